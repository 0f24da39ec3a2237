// SPDX-License-Identifier: MIT
// Any bytes as a language file: read, written and read again, the table is the same.
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/platform/Files.h>

#include <cstdlib>
#include <filesystem>

#include <unistd.h>

using namespace vagrel;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    static const std::filesystem::path memory = "/dev/shm";
    static const auto folder = exists(memory) ? memory : std::filesystem::temp_directory_path();
    static const std::string file = (folder / ("vagrel-fuzz-" + std::to_string(getpid()) + ".lng")).string();
    const auto written = [] {
        TVGRMsg::LoadResources(std::filesystem::path(file).u16string());
        TVGRMsg::SaveToIniFile(std::filesystem::path(file).u16string());
        return ReadFile(file);
    };
    WriteFile(file, std::string_view(data, size));
    const std::string once = written();
    if (written() != once)
        std::abort();
    return 0;
}
