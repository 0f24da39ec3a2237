// SPDX-License-Identifier: MIT
// Files as whole texts. Names are UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace vagrel {

/// The bytes of a file. Throws EStreamError with the name and the system's reason.
std::string ReadFile(const std::string& name);

/// Replaces a file as one step: writes a temporary file beside it, then renames. Devices and pipes are written through.
/// On failure throws EStreamError with the name and the system's reason; the file that stood there is untouched and no
/// temporary file stays.
void WriteFile(const std::string& name, std::string_view bytes);

/// True when a file of this name exists and is no directory.
bool FileExists(const std::string& name);

/// The folder of the running program, without a separator at its end.
std::string ProgramFolder();

} // namespace vagrel
