// SPDX-License-Identifier: MIT
// Data Matrix symbols from text: the size that is chosen, and the modules (ISO/IEC 16022).
#include <vagrel/barcode/CalcECC200.h>
#include <vagrel/barcode/ECC200.h>
#include <vagrel/barcode/TReedSolomonEncoder.h>
#include <vagrel/foundation/Exceptions.h>

#include <algorithm>

namespace vagrel {
namespace {

[[noreturn]] void FailMakeCodeword() { throw EOutOfRange(u"MakeCodeword Error"); }

const TECC200SymbolParam& ChooseSize(std::size_t codewords, TECC200Size size, TECC200Shape shape) {
    const std::size_t rectangles = ecc200_8x18 - 1;
    std::span<const TECC200SymbolParam> choice = ECC200SizeTable;
    if (size < ecc200_Autosize || size > ECC200SizeCount)
        FailMakeCodeword();
    else if (size != ecc200_Autosize)
        choice = choice.subspan(std::size_t(size) - 1, 1);
    else
        choice = shape == ecc200_Rectangle ? choice.subspan(rectangles) : choice.first(rectangles);
    const auto found = std::ranges::find_if(
        choice, [&](const TECC200SymbolParam& param) { return std::size_t(param.DataLength) >= codewords; });
    if (found == choice.end())
        FailMakeCodeword();
    return *found;
}

// The first free place holds 129, the others 129 by the 253-state randomising.
void Pad(std::vector<std::uint8_t>& codewords, std::size_t length) {
    if (codewords.size() < length)
        codewords.push_back(129);
    while (codewords.size() < length) {
        const std::size_t value = 129 + 149 * (codewords.size() + 1) % 253 + 1;
        codewords.push_back(std::uint8_t(value > 254 ? value - 254 : value));
    }
}

// Blocks lie interleaved, the correction behind the data at the places of its own block.
void AppendCorrection(std::vector<std::uint8_t>& codewords, const TECC200SymbolParam& param) {
    const TReedSolomonEncoder encoder(DataMatrixField, param.BlockErrorLength);
    const auto dataLength = std::size_t(param.DataLength);
    const auto step = std::size_t(param.BlockCount);
    codewords.resize(dataLength + std::size_t(param.ErrorLength));
    std::array<std::uint8_t, TReedSolomonEncoder::MaxDegree> correction{};
    const std::span block(correction.data(), std::size_t(param.BlockErrorLength));
    std::vector<std::uint8_t> data;
    for (std::size_t start = 0; start < step; ++start) {
        data.clear();
        std::size_t at = start;
        for (; at < dataLength; at += step)
            data.push_back(codewords[at]);
        encoder.Encode(data, block);
        for (const std::uint8_t codeword : block) {
            codewords[at] = codeword;
            at += step;
        }
    }
}

// The regions of the mapping matrix, each with a dark left and bottom edge and an alternating top and right one.
std::vector<std::uint8_t> LayOut(std::span<const std::uint8_t> mapping, const TECC200SymbolParam& param) {
    std::vector<std::uint8_t> matrix(std::size_t(param.Rows * param.Cols), 1);
    const std::uint8_t* cell = mapping.data();
    std::uint8_t* at = matrix.data();
    for (int y = 0; y < param.Rows; ++y) {
        const int inRegion = y % (param.RegionRows + 2);
        for (int region = 0; region < param.RegionHCount; ++region, at += param.RegionCols + 2) {
            if (inRegion == 0) {
                for (int x = 1; x <= param.RegionCols + 1; x += 2)
                    at[x] = 0;
            } else if (inRegion <= param.RegionRows) {
                std::copy_n(cell, param.RegionCols, at + 1);
                at[param.RegionCols + 1] = y % 2 == 1;
                cell += param.RegionCols;
            }
        }
    }
    return matrix;
}

} // namespace

void CalcECC200(std::span<const std::uint8_t> aData, TECC200Size aSize, TECC200Shape aShape,
                std::vector<std::uint8_t>& aMatrix, std::uint16_t& aCols, std::uint16_t& aRows) {
    const auto most = std::size_t(ECC200SizeTable[ecc200_144x144 - 1].DataLength);
    std::vector<std::uint8_t> codewords = MakeECC200Codewords(aData, most);
    const TECC200SymbolParam& param = ChooseSize(codewords.size(), aSize, aShape);
    Pad(codewords, std::size_t(param.DataLength));
    AppendCorrection(codewords, param);
    const std::vector<std::uint8_t> mapping = PlaceECC200(codewords, param.MappingMatrixRows, param.MappingMatrixCols);

    aCols = std::uint16_t(param.Cols);
    aRows = std::uint16_t(param.Rows);
    aMatrix = LayOut(mapping, param);
}

} // namespace vagrel
