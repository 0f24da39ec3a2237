// SPDX-License-Identifier: MIT
// Base64 with the standard alphabet and padding (RFC 4648, section 4).
#pragma once

#include <string>
#include <string_view>

namespace vagrel {

std::u16string EncodeBase64(std::string_view bytes);

/// Blanks and line breaks are skipped. Throws EConvertError for any other character outside the alphabet.
std::string DecodeBase64(std::u16string_view text);

} // namespace vagrel
