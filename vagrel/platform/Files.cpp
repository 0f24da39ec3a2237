// SPDX-License-Identifier: MIT
// Reading and replacing whole files over the standard library and rename().
#include <vagrel/platform/Files.h>

#include <vagrel/foundation/Exceptions.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include <sys/stat.h>
#include <unistd.h>

namespace vagrel {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Fail(const char* what, const std::string& name, int error) {
    throw EStreamError(std::string("cannot ") + what + " \"" + name + "\": " + std::strerror(error));
}

} // namespace

std::string ReadFile(const std::string& name) {
    // fopen opens directories; only reading them fails, and with a less telling reason.
    std::error_code none;
    if (std::filesystem::is_directory(name, none))
        Fail("read", name, EISDIR);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(name.c_str(), "rb"), std::fclose);
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

TOutputFile::TOutputFile(const std::string& name) : fName(name) {
    std::error_code none;
    const fs::file_status old = fs::status(name, none);
    if (fs::exists(old) && !fs::is_regular_file(old)) {
        // A rename would put a file in the place of a device or a pipe.
        fFile.reset(std::fopen(name.c_str(), "wb"));
        if (!fFile)
            Fail("write", name, errno);
        return;
    }
    // A rename would replace a file that is protected against writing.
    if (fs::exists(old) && access(name.c_str(), W_OK) != 0)
        Fail("write", name, errno);
    // What a link points to is replaced, not the link.
    fTarget = fs::exists(old) ? fs::canonical(name, none).string() : name;
    std::string temporary = fTarget + ".XXXXXX";
    const int handle = mkstemp(temporary.data());
    if (handle < 0)
        Fail("write", name, errno);
    fFile.reset(fdopen(handle, "wb"));
    if (!fFile) {
        const int error = errno;
        close(handle);
        std::remove(temporary.c_str());
        Fail("write", name, error);
    }
    fTemporary = temporary;
}

TOutputFile::~TOutputFile() {
    if (!fTemporary.empty())
        std::remove(fTemporary.c_str());
}

void TOutputFile::Write(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), fFile.get()) != bytes.size())
        Fail("write", fName, errno);
}

void TOutputFile::Close() {
    if (fFile && std::fclose(fFile.release()) != 0)
        Fail("write", fName, errno);
}

void TOutputFile::Commit() {
    Close();
    if (fTemporary.empty())
        return;
    // mkstemp makes private files; a replaced file keeps its mode, a new one takes the usual one.
    std::error_code none;
    const fs::file_status old = fs::status(fTarget, none);
    const mode_t mask = umask(0);
    umask(mask);
    fs::permissions(fTemporary, fs::exists(old) ? old.permissions() : fs::perms(0666 & ~mask), none);
    if (std::rename(fTemporary.c_str(), fTarget.c_str()) != 0)
        Fail("write", fName, errno);
    fTemporary.clear();
}

void WriteFile(const std::string& name, std::string_view bytes) {
    TOutputFile file(name);
    file.Write(bytes);
    file.Commit();
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
