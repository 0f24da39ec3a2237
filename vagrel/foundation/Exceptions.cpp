// SPDX-License-Identifier: MIT
// The text of exceptions in both encodings.
#include <vagrel/foundation/Exceptions.h>

#include <vagrel/foundation/Text.h>

namespace vagrel {

EVagrel::EVagrel(std::u16string_view message) : std::runtime_error(ToUtf8(message)) {}

std::u16string EVagrel::Message() const { return FromUtf8(what()); }

} // namespace vagrel
