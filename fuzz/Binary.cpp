// SPDX-License-Identifier: MIT
// Any bytes as a binary document: refused with an exception of the library, or read and written to the same document.
#include <host/HostLabel.h>
#include <vagrel/foundation/Exceptions.h>

#include <cstdlib>

using namespace vagrel;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    HostLabel label;
    try {
        label.ReadDocument(std::string_view(data, size));
    } catch (const EVagrel&) {
        return 0;
    }
    const std::string bytes = label.ToBinary();
    HostLabel copy;
    copy.ReadDocument(std::string_view(bytes));
    if (copy.ToBinary() != bytes)
        std::abort();
    return 0;
}
