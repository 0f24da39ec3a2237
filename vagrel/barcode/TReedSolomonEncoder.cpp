// SPDX-License-Identifier: MIT
// Correction codewords by division of polynomials over a Galois field.
#include <vagrel/barcode/TReedSolomonEncoder.h>

#include <algorithm>

namespace vagrel {
namespace {

using TPolynomial = std::array<std::uint8_t, TReedSolomonEncoder::MaxDegree>;

// The product of (x - 2^(base + i)) for i below `degree`, without its leading 1, highest power first.
TPolynomial Generator(const TGenericGF& field, int degree) {
    TPolynomial result{};
    const std::size_t last = std::size_t(degree) - 1;
    result[last] = 1; // higher powers come in ahead of it, one a step
    for (std::size_t i = 0; i <= last; ++i) {
        const std::uint8_t root = field.Exp(field.GetGeneratorBase() + int(i));
        for (std::size_t j = last - std::min(i + 1, last); j <= last; ++j)
            result[j] = std::uint8_t(field.Multiply(result[j], root) ^ (j < last ? result[j + 1] : 0));
    }
    return result;
}

} // namespace

TReedSolomonEncoder::TReedSolomonEncoder(const TGenericGF& field, int degree) : fWords((degree + 7) / 8) {
    const TPolynomial generator = Generator(field, degree);
    for (int bit = 0; bit < 8; ++bit) {
        std::array<TRemainder, 16>& half = bit < 4 ? fLow : fHigh;
        TRemainder& multiple = half[std::size_t(1) << bit % 4];
        for (std::size_t i = 0; i < std::size_t(degree); ++i)
            multiple[i / 8] |= std::uint64_t(field.Multiply(generator[i], std::uint8_t(1 << bit))) << i % 8 * 8;
    }
    for (auto* half : {&fLow, &fHigh}) {
        for (std::size_t value = 1; value < 16; ++value) {
            const std::size_t lowestBit = value & (~value + 1);
            for (std::size_t i = 0; i < std::size_t(fWords); ++i)
                (*half)[value][i] = (*half)[lowestBit][i] ^ (*half)[value ^ lowestBit][i];
        }
    }
}

void TReedSolomonEncoder::Encode(std::span<const std::uint8_t> data, std::span<std::uint8_t> correction) const {
    TRemainder remainder{};
    const std::size_t words = std::size_t(fWords);
    for (const std::uint8_t byte : data) {
        const std::size_t factor = (byte ^ remainder[0]) & 0xFF;
        const TRemainder& low = fLow[factor & 15];
        const TRemainder& high = fHigh[factor >> 4];
        for (std::size_t i = 0; i < words; ++i) {
            const std::uint64_t next = i + 1 < words ? remainder[i + 1] : 0;
            remainder[i] = (remainder[i] >> 8 | next << 56) ^ low[i] ^ high[i];
        }
    }
    for (std::size_t i = 0; i < correction.size(); ++i)
        correction[i] = std::uint8_t(remainder[i / 8] >> i % 8 * 8);
}

} // namespace vagrel
