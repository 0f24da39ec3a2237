// SPDX-License-Identifier: MIT
// The rows of a PDF417 symbol: start, row facts, codewords, stop (ISO/IEC 15438).
#include <vagrel/barcode/ModuleBytes_p.h>
#include <vagrel/barcode/Pdf417Modules.h>
#include <vagrel/barcode/Pdf417Tables_p.h>
#include <vagrel/foundation/Exceptions.h>

namespace vagrel {
namespace {

constexpr std::uint32_t Start = 0b11111111010101000;
constexpr std::uint32_t Stop = 0b111111101000101001;

// A pattern of 17 modules.
std::uint8_t* Paint(std::uint8_t* at, std::uint32_t pattern) {
    *at++ = pattern >> 16 & 1;
    return detail::PutModules(detail::PutModules(at, std::uint8_t(pattern >> 8)), std::uint8_t(pattern));
}

} // namespace

std::vector<std::uint8_t> Pdf417Modules(const TCodeWords& words, int columns, int rows, int errorLevel,
                                        bool truncated) {
    if (columns < 1 || rows < 1 || columns > 30 || rows > 90 || errorLevel < 0 || errorLevel > 8)
        throw EArgumentOutOfRangeException(u"Grid out of range");
    std::vector<std::uint8_t> modules(std::size_t(Pdf417RowModules(columns, truncated) * rows));
    std::uint8_t* at = modules.data();
    const std::uint16_t* word = words.data();
    // Told in three parts, by turns on the left and, one row later, on the right.
    const int facts[] = {(rows - 1) / 3, errorLevel * 3 + (rows - 1) % 3, columns - 1};
    for (int row = 0; row < rows; ++row) {
        const int cluster = row % 3;
        const int base = row / 3 * 30;
        at = Paint(at, Start);
        at = Paint(at, Pdf417Pattern(cluster, base + facts[cluster]));
        for (int column = 0; column < columns; ++column)
            at = Paint(at, Pdf417Pattern(cluster, *word++));
        if (truncated) {
            *at++ = 1;
            continue;
        }
        at = Paint(at, Pdf417Pattern(cluster, base + facts[(cluster + 2) % 3]));
        at = Paint(at, Stop >> 1);
        *at++ = Stop & 1;
    }
    return modules;
}

} // namespace vagrel
