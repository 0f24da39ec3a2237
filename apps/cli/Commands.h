// SPDX-License-Identifier: MIT
// The commands of the program. Each one adds its arguments and what to run.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace CLI {
class App;
}

namespace vagrel::cli {

void AddNew(CLI::App& app);
void AddRender(CLI::App& app);
void AddInfo(CLI::App& app);

/// Names of an enumeration for an argument, in the order of its values.
using TNames = std::vector<std::pair<std::string, int>>;
extern const TNames ModeNames;
extern const TNames UnitNames;

/// Writes to standard output. Throws EStreamError when that fails.
void Print(std::string_view text);

} // namespace vagrel::cli
