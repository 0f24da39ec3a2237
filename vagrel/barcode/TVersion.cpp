// SPDX-License-Identifier: MIT
// What follows from the number of a QR version (ISO/IEC 18004).
#include <vagrel/barcode/TVersion.h>

namespace vagrel {
namespace {

// Centres run from the last, 7 from the edge, towards the first at 6, in even steps; only the first step differs.
std::array<std::int32_t, 7> Centers(int number, int dimension) {
    std::array<std::int32_t, 7> centers{};
    if (number == 1)
        return centers;
    const int count = number / 7 + 2;
    // Version 32 alone breaks the rule.
    const int step = number == 32 ? 26 : (dimension - 13 + 2 * count - 3) / (2 * count - 2) * 2;
    centers[0] = 6;
    for (int i = count - 1, at = dimension - 7; i > 0; --i, at -= step)
        centers[std::size_t(i)] = at;
    return centers;
}

// The modules that finder, timing, alignment, format and version patterns leave, in bytes.
std::int32_t CodewordsOf(int number) {
    int modules = (16 * number + 128) * number + 64;
    if (number >= 2) {
        const int count = number / 7 + 2;
        modules -= (25 * count - 10) * count - 55;
    }
    if (number >= 7)
        modules -= 36;
    return modules / 8;
}

} // namespace

TVersion TVersion::GetVersionForNumber(int number) {
    const detail::TBlockCounts& counts = detail::VersionTable[std::size_t(number) - 1];
    const int dimension = GetDimensionForVersion(number);
    const std::int32_t total = CodewordsOf(number);
    const std::int32_t longer = total % counts.Blocks;
    const std::int32_t data = total / counts.Blocks - counts.ECCodewordsPerBlock;
    return {number,
            dimension,
            total,
            Centers(number, dimension),
            {counts.ECCodewordsPerBlock, {{{counts.Blocks - longer, data}, {longer, longer ? data + 1 : 0}}}}};
}

} // namespace vagrel
