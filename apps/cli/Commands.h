// SPDX-License-Identifier: MIT
// The commands of the program. Each one adds its arguments and what to run.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace CLI {
class App;
class Validator;
} // namespace CLI

namespace vagrel::cli {

void AddNew(CLI::App& app);
void AddRender(CLI::App& app);
void AddInfo(CLI::App& app);
void AddConvert(CLI::App& app);
void AddBarcode(CLI::App& app);
void AddMerge(CLI::App& app);
void AddFields(CLI::App& app);
void AddPlay(CLI::App& app);

/// Names of an enumeration for an argument, in the order of its values.
using TNames = std::vector<std::pair<std::string, int>>;
extern const TNames ModeNames;
extern const TNames UnitNames;

/// Takes one of the names and hands on its number; the error lists the names.
CLI::Validator OneOf(const TNames& names);
/// Takes a finite number within limits.
CLI::Validator Between(double low, double high);

/// Writes to standard output. Throws EStreamError when that fails.
void Print(std::string_view text);

} // namespace vagrel::cli
