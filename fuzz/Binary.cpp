// SPDX-License-Identifier: MIT
// Any bytes as a binary document: refused with an exception of the library, or read and written to the same document.
#include <host/HostLabel.h>
#include <tests/support/StubItem.h>
#include <vagrel/foundation/Exceptions.h>

#include <cstdlib>

using namespace vagrel;

// The fonts of the machine have no part in this.
static const test::FixedTextMeasurer Measurer;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    HostLabel label(nullptr, Measurer);
    try {
        label.ReadDocument(std::string_view(data, size));
    } catch (const EVagrel&) {
        return 0;
    }
    const std::string bytes = label.ToBinary();
    HostLabel copy(nullptr, Measurer);
    copy.ReadDocument(std::string_view(bytes));
    if (copy.ToBinary() != bytes)
        std::abort();
    return 0;
}
