// SPDX-License-Identifier: MIT
// The fields of 256 elements that the Reed-Solomon codes of QR and Data Matrix are computed in.
#pragma once

#include <array>
#include <cstdint>

namespace vagrel {

/// GF(256) by a primitive polynomial, as tables of powers and logarithms of its generator 2.
class TGenericGF {
public:
    /// `primitive` with its term of degree 8; the roots of generator polynomials begin at 2 to the power
    /// `generatorBase`.
    constexpr TGenericGF(unsigned primitive, int generatorBase) : fGeneratorBase(generatorBase) {
        unsigned power = 1;
        for (unsigned i = 0; i < 255; ++i) {
            fExp[i] = fExp[i + 255] = std::uint8_t(power);
            fLog[power] = std::uint8_t(i);
            power = power << 1 ^ (power & 0x80 ? primitive : 0);
        }
    }

    constexpr int GetGeneratorBase() const { return fGeneratorBase; }
    constexpr std::uint8_t Exp(int power) const { return fExp[std::size_t(power)]; }
    constexpr std::uint8_t Multiply(std::uint8_t a, std::uint8_t b) const {
        return a == 0 || b == 0 ? std::uint8_t(0) : fExp[std::size_t(fLog[a] + fLog[b])];
    }

private:
    int fGeneratorBase;
    std::array<std::uint8_t, 510> fExp{};
    std::array<std::uint8_t, 256> fLog{};
};

/// ISO/IEC 18004.
inline constexpr TGenericGF QRCodeField(0x11D, 0);
/// ISO/IEC 16022.
inline constexpr TGenericGF DataMatrixField(0x12D, 1);

} // namespace vagrel
