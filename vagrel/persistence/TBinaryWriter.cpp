// SPDX-License-Identifier: MIT
// Texts of the binary form, and the guard against reading beyond the end.
#include <vagrel/persistence/TBinaryWriter.h>

#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>

namespace vagrel {

void TBinaryWriter::Write(std::u16string_view text) {
    const std::string bytes = ToUtf8(text);
    std::size_t rest = bytes.size();
    for (; rest >= 0x80; rest >>= 7)
        fBytes += char(0x80 | (rest & 0x7F));
    fBytes += char(rest);
    fBytes += bytes;
}

std::string_view TBinaryReader::Take(std::size_t count) {
    if (count > Left())
        throw EStreamError("unexpected end of data at byte " + std::to_string(fPos));
    const std::string_view taken = fBytes.substr(fPos, count);
    fPos += count;
    return taken;
}

std::u16string TBinaryReader::ReadString() {
    std::int64_t count = 0;
    for (int shift = 0;; shift += 7) {
        const auto group = Read<std::uint8_t>();
        if (shift > 28)
            throw EStreamError("damaged text length at byte " + std::to_string(fPos));
        count |= std::int64_t(group & 0x7F) << shift;
        if (group < 0x80)
            return FromUtf8(ReadBytes(count));
    }
}

std::string_view TBinaryReader::ReadBytes(std::int64_t count) {
    if (count < 0)
        throw EStreamError("negative length at byte " + std::to_string(fPos));
    return Take(std::size_t(count));
}

} // namespace vagrel
