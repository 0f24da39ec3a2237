// SPDX-License-Identifier: MIT
// A growing array of bits, most significant first.
#pragma once

#include <cstdint>
#include <vector>

namespace vagrel {

class TBitArray {
public:
    /// Appends the lowest `count` bits of `value`, 0 to 32, the highest of them first.
    void AppendBits(std::uint32_t value, int count) {
        for (int left = count; left > 0;) {
            if (fSize % 8 == 0)
                fBytes.push_back(0);
            const int room = 8 - fSize % 8;
            const int taken = left < room ? left : room;
            const std::uint32_t bits = value >> (left - taken) & ((1u << taken) - 1);
            fBytes.back() = std::uint8_t(fBytes.back() | bits << (room - taken));
            fSize += taken;
            left -= taken;
        }
    }

    /// The number of bits.
    int GetSize() const { return fSize; }
    /// The number of bytes, rounded up.
    int GetSizeInBytes() const { return int(fBytes.size()); }
    /// The bits as bytes; bits behind the last are 0.
    const std::vector<std::uint8_t>& ToBytes() const { return fBytes; }

private:
    std::vector<std::uint8_t> fBytes;
    int fSize = 0;
};

} // namespace vagrel
