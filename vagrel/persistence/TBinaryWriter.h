// SPDX-License-Identifier: MIT
// The primitive forms of the binary document: little-endian numbers without padding, texts with a length in front.
#pragma once

#include <bit>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace vagrel {

/// Appends primitive values to a string of bytes.
class TBinaryWriter {
public:
    /// A number in the width of its type, a bool as one byte; call as `Write<std::int16_t>(x)` to state the width.
    template <class T>
    requires std::integral<T> || std::floating_point<T>
    void Write(T value) {
        static_assert(std::endian::native == std::endian::little);
        char raw[sizeof(T)];
        std::memcpy(raw, &value, sizeof(T));
        fBytes.append(raw, sizeof(T));
    }
    /// Byte count in groups of seven bits, low group first, then UTF-8.
    void Write(std::u16string_view text);
    void WriteBytes(std::string_view bytes) { fBytes += bytes; }

    const std::string& Bytes() const { return fBytes; }
    std::string Take() { return std::move(fBytes); }

private:
    std::string fBytes;
};

/// Reads primitive values from bytes that outlive it. Every read beyond the end throws EStreamError.
class TBinaryReader {
public:
    explicit TBinaryReader(std::string_view bytes) : fBytes(bytes) {}

    template <class T>
    requires std::integral<T> || std::floating_point<T> T Read() {
        T value;
        std::memcpy(&value, Take(sizeof(T)).data(), sizeof(T));
        return value;
    }
    bool ReadBool() { return Read<std::uint8_t>() != 0; }
    std::u16string ReadString();
    std::string_view ReadBytes(std::int64_t count);

    std::size_t Position() const { return fPos; }
    std::size_t Left() const { return fBytes.size() - fPos; }

private:
    std::string_view Take(std::size_t count);

    std::string_view fBytes;
    std::size_t fPos = 0;
};

} // namespace vagrel
