// SPDX-License-Identifier: MIT
// Any bytes: both readers agree, and what was read survives writing and reading again.
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/JsonExceptions.h>
#include <vagrel/persistence/TJsonBaseObject.h>

#include <cstdlib>

using namespace vagrel;

namespace {

template <class Read>
std::string Outcome(Read read) {
    try {
        const auto tree = read();
        return tree ? tree->ToUtf8JSON() : std::string();
    } catch (const EJsonParserException& fault) {
        return fault.what();
    }
}

void Require(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const std::string_view bytes(data, size);
    const std::string once = Outcome([&] { return TJsonBaseObject::FromUtf8JSON(bytes); });
    if (IsUtf8(bytes))
        Require(once == Outcome([&] { return TJsonBaseObject::FromJSON(FromUtf8(bytes)); }));
    if (once.starts_with("{") || once.starts_with("["))
        Require(once == Outcome([&] { return TJsonBaseObject::FromUtf8JSON(once)->Clone(); }));
    return 0;
}
