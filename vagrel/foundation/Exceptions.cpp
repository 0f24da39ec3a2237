// SPDX-License-Identifier: MIT
// The text of exceptions in both encodings.
#include <vagrel/foundation/Exceptions.h>

#include <vagrel/foundation/Text.h>

namespace vagrel {

EVagrel::EVagrel(std::u16string_view message) : EVagrel(ToUtf8(message)) {}

std::u16string EVagrel::Message() const { return FromUtf8(std::runtime_error::what()); }

} // namespace vagrel
