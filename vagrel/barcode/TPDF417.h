// SPDX-License-Identifier: MIT
// The code words of PDF417 symbols (ISO/IEC 15438).
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vagrel {

/// The words of a symbol: the length descriptor, data, padding, correction.
using TCodeWords = std::array<std::uint16_t, 2701>;

/// Error correction by level, or by the number of data words; stored in documents as its number.
enum TKSLPdf417CorrectionLevel : std::int32_t {
    Level0,
    Level1,
    Level2,
    Level3,
    Level4,
    Level5,
    Level6,
    Level7,
    Level8,
    Auto
};

/// Encodes a text into code words and keeps how many there are.
class TPDF417 {
public:
    /// `code` without all characters but U+0020 to U+007E.
    static std::string GetValid(std::u16string_view code);

    /// Writes the data words of `code` in Text and Numeric compaction from word 1 on. Backslashes escape: `\\`, `\ddd`
    /// and `\Xhh` a character, `\Cddd` a word as it is, `\Gdddddd` an extended channel interpretation. False, with the
    /// words in no use, when nothing valid is left, at a raw word above 928, and when the words do not fit the array.
    bool Encode(TCodeWords& words, std::u16string_view code);

    /// The words in use after `Encode`, with the descriptor.
    int GetUsedCWords() const { return fUsedCWords; }

    /// 0 to 8. `Auto` goes by the words in use.
    int GetCorrecLevel(TKSLPdf417CorrectionLevel level) const;

    /// The grid that holds the words. 0 columns or rows are chosen here; 31 columns or 91 rows tell that the wished
    /// other count holds no grid.
    static void AdjustSize(int& xCount, int& yCount, int numErrorCWords, int usedCWords, int cols, int rows);

    /// Fills up to `numCodewords`, the grid without its correction words, with padding, sets the length descriptor and
    /// appends the correction. Throws as `CalculateECC`.
    static void Complete(TCodeWords& words, int usedCWords, int numCodewords, int eccLen);

    /// Writes `eccLen` correction words, a power of two from 2 to 512, behind the first `numCodewords`. Throws
    /// `EArgumentOutOfRangeException` on another count, or when they do not fit the array.
    static void CalculateECC(TCodeWords& words, int numCodewords, int eccLen);

    /// Six bytes as five words, the most significant first.
    static std::array<std::uint16_t, 5> BytesToBase900(std::span<const std::uint8_t, 6> bytes);

    /// A decimal number as words, the most significant first.
    static std::vector<std::uint16_t> NumToBase900(std::string_view digits);

private:
    int fUsedCWords = 1;
};

} // namespace vagrel
