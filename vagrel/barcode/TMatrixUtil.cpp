// SPDX-License-Identifier: MIT
// The modules of a QR symbol (ISO/IEC 18004). A symbol is kept twice, by rows and by columns, as lines of machine
// words, so that masks and penalties take whole lines at a time in both directions.
#include <vagrel/barcode/QRMask_p.h>
#include <vagrel/barcode/TMatrixUtil.h>

#include <cstdlib>
#include <limits>

namespace vagrel {
namespace {

using namespace detail;

// The 15 bits of the format information.
int FormatBits(TErrorCorrectionLevel level, int mask) {
    const int data = (level.FBits & 3) << 3 | mask;
    int remainder = data;
    for (int i = 0; i < 10; ++i)
        remainder = remainder << 1 ^ (remainder >> 9) * 0x537;
    return (data << 10 | remainder) ^ 0x5412;
}

// The 18 bits of the version information.
int VersionBits(int version) {
    int remainder = version;
    for (int i = 0; i < 12; ++i)
        remainder = remainder << 1 ^ (remainder >> 11) * 0x1F25;
    return version << 12 | remainder;
}

template <int Words>
class TLayout {
public:
    using TLine = TBitLine<Words>;
    using TLines = std::array<TLine, 64 * Words>;

    TLayout(std::span<const std::uint8_t> codewords, TErrorCorrectionLevel level, const TVersion& version)
        : fLevel(level), fDimension(version.Dimension), fInside(TLine::First(version.Dimension)) {
        EmbedBasicPatterns(version);
        EmbedTypeInfo(0);
        MaybeEmbedVersionInfo(version.VersionNumber);
        EmbedDataBits(codewords);
    }

    int ChooseMaskPattern() {
        int best = 0;
        int lowest = std::numeric_limits<int>::max();
        for (int mask = 0; mask < MaskCount; ++mask) {
            const int penalty = Penalty(mask);
            if (penalty < lowest) {
                lowest = penalty;
                best = mask;
            }
        }
        return best;
    }

    TByteMatrix ToMatrix(int mask) {
        EmbedTypeInfo(mask);
        TByteMatrix matrix(fDimension, fDimension);
        for (int y = 0; y < fDimension; ++y) {
            const TLine line = Masked(Rows, mask, y);
            std::uint8_t* row = matrix.Row(y);
            for (int x = 0; x < fDimension; ++x)
                row[x] = line.Get(x);
        }
        return matrix;
    }

private:
    void SetFunction(int x, int y, bool dark) {
        fPatterns[Rows][std::size_t(y)].Set(x);
        fPatterns[Columns][std::size_t(x)].Set(y);
        fCells[Rows][std::size_t(y)].Put(x, dark);
        fCells[Columns][std::size_t(x)].Put(y, dark);
    }

    // A square of rings about a centre, as far as it lies inside; one of the rings is light.
    void EmbedRings(int centerX, int centerY, int radius, int lightRing) {
        for (int y = -radius; y <= radius; ++y) {
            for (int x = -radius; x <= radius; ++x) {
                const int ring = std::max(std::abs(x), std::abs(y));
                const int atX = centerX + x;
                const int atY = centerY + y;
                if (std::min(atX, atY) >= 0 && std::max(atX, atY) < fDimension)
                    SetFunction(atX, atY, ring != lightRing && ring != 4);
            }
        }
    }

    void EmbedBasicPatterns(const TVersion& version) {
        for (int i = 0; i < fDimension; ++i) {
            SetFunction(6, i, i % 2 == 0);
            SetFunction(i, 6, i % 2 == 0);
        }
        // With the light separators, which are ring 4.
        EmbedRings(3, 3, 4, 2);
        EmbedRings(fDimension - 4, 3, 4, 2);
        EmbedRings(3, fDimension - 4, 4, 2);
        for (const int y : version.AlignmentPatternCenters) {
            for (const int x : version.AlignmentPatternCenters) {
                const bool onFinder = (x == 6 && y == 6) || (std::min(x, y) == 6 && std::max(x, y) == fDimension - 7);
                if (x != 0 && y != 0 && !onFinder)
                    EmbedRings(x, y, 2, 1);
            }
        }
        SetFunction(8, fDimension - 8, true);
    }

    void EmbedTypeInfo(int mask) {
        const int bits = FormatBits(fLevel, mask);
        for (int i = 0; i < 15; ++i) {
            const bool dark = bits >> i & 1;
            // Around the first finder, past the timing patterns; then split between the other two.
            const int near = i < 6 ? i : i < 8 ? i + 1 : i == 8 ? 7 : 14 - i;
            SetFunction(i < 8 ? 8 : near, i < 8 ? near : 8, dark);
            SetFunction(i < 8 ? fDimension - 1 - i : 8, i < 8 ? 8 : fDimension - 15 + i, dark);
        }
    }

    void MaybeEmbedVersionInfo(int number) {
        if (number < 7)
            return;
        const int bits = VersionBits(number);
        for (int i = 0; i < 18; ++i) {
            const bool dark = bits >> i & 1;
            SetFunction(fDimension - 11 + i % 3, i / 3, dark);
            SetFunction(i / 3, fDimension - 11 + i % 3, dark);
        }
    }

    // In pairs of columns from the right, upwards and downwards by turns, over what the patterns leave free.
    void EmbedDataBits(std::span<const std::uint8_t> codewords) {
        std::size_t byte = 0;
        int bit = 7;
        bool upwards = true;
        for (int right = fDimension - 1; right > 0; right -= 2, upwards = !upwards) {
            if (right == 6)
                --right; // the vertical timing pattern
            for (int step = 0; step < fDimension; ++step) {
                const int y = upwards ? fDimension - 1 - step : step;
                for (int x = right; x >= right - 1; --x) {
                    if (byte == codewords.size() || fPatterns[Columns][std::size_t(x)].Get(y))
                        continue;
                    const bool dark = codewords[byte] >> bit & 1;
                    fCells[Rows][std::size_t(y)].Or(x, dark);
                    fCells[Columns][std::size_t(x)].Or(y, dark);
                    byte += bit == 0;
                    bit = (bit + 7) % 8;
                }
            }
        }
    }

    TLine Masked(TDirection direction, int mask, int line) const {
        const auto at = std::size_t(line);
        const TLine pattern = TLine::FirstWords(QRMaskTable[direction][std::size_t(mask)][at % MaskPeriod]);
        return fCells[direction][at] ^ (pattern & ~fPatterns[direction][at] & fInside);
    }

    int Penalty(int mask) {
        EmbedTypeInfo(mask);
        int penalty = 0;
        int dark = 0;
        TLine above;
        for (int i = 0; i < fDimension; ++i) {
            const TLine row = Masked(Rows, mask, i);
            dark += row.Count();
            penalty += LinePenalty(row, fInside) + LinePenalty(Masked(Columns, mask, i), fInside);
            if (i > 0)
                penalty += BlockPenalty(above, row, fInside);
            above = row;
        }
        return penalty + BalancePenalty(dark, fDimension * fDimension);
    }

    TErrorCorrectionLevel fLevel;
    int fDimension;
    TLine fInside;
    std::array<TLines, 2> fCells{};    // by direction
    std::array<TLines, 2> fPatterns{}; // the cells that hold no data
};

template <int Words>
TByteMatrix Build(std::span<const std::uint8_t> codewords, TErrorCorrectionLevel level, const TVersion& version,
                  int& maskPattern) {
    TLayout<Words> layout(codewords, level, version);
    if (maskPattern < 0)
        maskPattern = layout.ChooseMaskPattern();
    return layout.ToMatrix(maskPattern);
}

} // namespace

TByteMatrix TMatrixUtil::BuildMatrix(std::span<const std::uint8_t> codewords, TErrorCorrectionLevel level,
                                     const TVersion& version, int& maskPattern) {
    const auto build = version.Dimension <= 64 ? Build<1> : version.Dimension <= 128 ? Build<2> : Build<3>;
    return build(codewords, level, version, maskPattern);
}

} // namespace vagrel
