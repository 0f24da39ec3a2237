// SPDX-License-Identifier: MIT
// Reading and replacing whole files over the standard library and rename().
#include <vagrel/platform/Files.h>

#include <vagrel/foundation/Exceptions.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

#include <sys/stat.h>
#include <unistd.h>

namespace vagrel {

namespace {

struct TCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using TFile = std::unique_ptr<std::FILE, TCloser>;

[[noreturn]] void Fail(const char* what, const std::string& name, int error) {
    throw EStreamError(std::string("cannot ") + what + " \"" + name + "\": " + std::strerror(error));
}

// 0, or the system's error number.
int WriteAndClose(TFile file, std::string_view bytes) {
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    const int error = errno;
    const bool closed = std::fclose(file.release()) == 0;
    return !written ? error : closed ? 0 : errno;
}

} // namespace

std::string ReadFile(const std::string& name) {
    // fopen opens directories; only reading them fails, and with a less telling reason.
    std::error_code none;
    if (std::filesystem::is_directory(name, none))
        Fail("read", name, EISDIR);
    TFile file(std::fopen(name.c_str(), "rb"));
    if (!file)
        Fail("read", name, errno);
    std::string bytes;
    char buffer[65536];
    while (std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get()))
        bytes.append(buffer, count);
    if (std::ferror(file.get()))
        Fail("read", name, errno);
    return bytes;
}

void WriteFile(const std::string& name, std::string_view bytes) {
    namespace fs = std::filesystem;
    std::error_code none;
    const fs::file_status old = fs::status(name, none);
    if (fs::exists(old) && !fs::is_regular_file(old)) {
        // A device or a pipe is written through; a rename would put a file in its place.
        TFile file(std::fopen(name.c_str(), "wb"));
        if (!file)
            Fail("write", name, errno);
        if (const int error = WriteAndClose(std::move(file), bytes))
            Fail("write", name, error);
        return;
    }
    // A rename would replace a file that is protected against writing.
    if (fs::exists(old) && access(name.c_str(), W_OK) != 0)
        Fail("write", name, errno);
    // What a link points to is replaced, not the link.
    const std::string target = fs::exists(old) ? fs::canonical(name, none).string() : name;
    std::string temporary = target + ".XXXXXX";
    const int handle = mkstemp(temporary.data());
    if (handle < 0)
        Fail("write", name, errno);
    auto fail = [&](int error) {
        std::remove(temporary.c_str());
        Fail("write", name, error);
    };
    TFile file(fdopen(handle, "wb"));
    if (!file) {
        const int error = errno;
        close(handle);
        fail(error);
    }
    if (const int error = WriteAndClose(std::move(file), bytes))
        fail(error);

    // mkstemp makes private files; a replaced file keeps its mode, a new one takes the usual one.
    const mode_t mask = umask(0);
    umask(mask);
    fs::permissions(temporary, fs::exists(old) ? old.permissions() : fs::perms(0666 & ~mask), none);
    if (std::rename(temporary.c_str(), target.c_str()) != 0)
        fail(errno);
}

bool FileExists(const std::string& name) {
    std::error_code none;
    return std::filesystem::exists(name, none) && !std::filesystem::is_directory(name, none);
}

std::string ProgramFolder() {
    std::error_code none;
    return std::filesystem::read_symlink("/proc/self/exe", none).parent_path().string();
}

} // namespace vagrel
