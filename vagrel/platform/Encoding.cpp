// SPDX-License-Identifier: MIT
// Encodings over iconv.
#include <vagrel/platform/Encoding.h>

#include <vagrel/foundation/Exceptions.h>

#include <cerrno>

#include <iconv.h>

namespace vagrel {

namespace {

class TConverter {
public:
    explicit TConverter(const std::string& from) : fHandle(iconv_open("UTF-8", from.c_str())) {
        if (fHandle == iconv_t(-1))
            throw EVagrel("Unknown encoding \"" + from + "\"");
    }
    TConverter(const TConverter&) = delete;
    TConverter& operator=(const TConverter&) = delete;
    ~TConverter() { iconv_close(fHandle); }

    std::string Convert(std::string_view bytes) {
        std::string out;
        std::string source(bytes);
        char* from = source.data();
        std::size_t left = source.size();
        while (left > 0) {
            char buffer[4096];
            char* to = buffer;
            std::size_t room = sizeof buffer;
            const bool whole = iconv(fHandle, &from, &left, &to, &room) != std::size_t(-1);
            out.append(buffer, sizeof buffer - room);
            if (!whole && errno != E2BIG) {
                out += "\xEF\xBF\xBD";
                ++from, --left;
            }
        }
        return out;
    }

private:
    iconv_t fHandle;
};

std::string& CodePage() {
    static std::string name = "windows-1252";
    return name;
}

} // namespace

const std::string& AnsiCodePage() { return CodePage(); }

void SetAnsiCodePage(const std::string& name) {
    const TConverter known(name);
    CodePage() = name;
}

std::string DecodeToUtf8(std::string_view bytes, const std::string& encoding) {
    return TConverter(encoding).Convert(bytes);
}

} // namespace vagrel
