// SPDX-License-Identifier: MIT
// Texts in other encodings than UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace vagrel {

/// The code page of texts that do not tell their encoding: a name that iconv knows, at first "windows-1252". A setting
/// of the process; set it before documents are read.
const std::string& AnsiCodePage();
/// Throws EVagrel for an encoding that is not known.
void SetAnsiCodePage(const std::string& name);

/// Text in an encoding to UTF-8; bytes that it does not have become U+FFFD. Throws EVagrel for an encoding that is not
/// known.
std::string DecodeToUtf8(std::string_view bytes, const std::string& encoding);

} // namespace vagrel
