// SPDX-License-Identifier: MIT
// Files as whole texts. Names are UTF-8.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace vagrel {

/// The bytes of a file. Throws EStreamError with the name and the system's reason.
std::string ReadFile(const std::string& name);

/// A file that is written piece by piece and replaces the one that stands there in one step: it grows as a temporary
/// file beside it until `Commit` renames it. Devices and pipes are written through. Without a commit the file that
/// stood there is untouched and no temporary file stays. Every operation throws EStreamError with the name and the
/// system's reason.
class TOutputFile {
public:
    explicit TOutputFile(const std::string& name);
    ~TOutputFile();
    TOutputFile(const TOutputFile&) = delete;
    TOutputFile& operator=(const TOutputFile&) = delete;

    void Write(std::string_view bytes);
    /// Ends the writing; the file still waits for its commit.
    void Close();
    void Commit();

private:
    struct TClose {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::string fName, fTarget, fTemporary;
    std::unique_ptr<std::FILE, TClose> fFile;
};

/// Replaces a file as one step. Throws EStreamError as `TOutputFile` does.
void WriteFile(const std::string& name, std::string_view bytes);

/// True when a file of this name exists and is no directory.
bool FileExists(const std::string& name);

/// The folder of the running program, without a separator at its end.
std::string ProgramFolder();

} // namespace vagrel
