// SPDX-License-Identifier: MIT
// PDF417: words, grids and what a decoder reads.
#include "ReadBack.h"

#include <vagrel/barcode/Pdf417Modules.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>

#include <gmock/gmock.h>

#include <optional>

namespace vagrel {
namespace {

using TWords = std::vector<int>;

// The data words, nothing when the text is refused.
std::optional<TWords> WordsOf(std::u16string_view text) {
    TCodeWords words{};
    TPDF417 encoder;
    if (!encoder.Encode(words, text)) {
        EXPECT_EQ(encoder.GetUsedCWords(), 1);
        return std::nullopt;
    }
    return TWords(words.begin() + 1, words.begin() + encoder.GetUsedCWords());
}

struct TSymbol {
    int Columns = 0;
    int Rows = 0;
    int UsedWords = 0;
    std::vector<std::uint8_t> Modules;

    TSymbol(std::string_view text, TKSLPdf417CorrectionLevel wished = Auto, int cols = 0, int rows = 0,
            bool truncated = false) {
        TCodeWords words{};
        TPDF417 encoder;
        EXPECT_TRUE(encoder.Encode(words, FromUtf8(text)));
        UsedWords = encoder.GetUsedCWords();
        const int level = encoder.GetCorrecLevel(wished);
        const int eccLen = 2 << level;
        TPDF417::AdjustSize(Columns, Rows, eccLen, UsedWords, cols, rows);
        TPDF417::Complete(words, UsedWords, Columns * Rows - eccLen, eccLen);
        Modules = Pdf417Modules(words, Columns, Rows, level, truncated);
    }
    std::string Read() const { return ReadBack("PDF417", Modules, int(Modules.size()) / Rows, 3); }
};

TEST(TPDF417, MakesWords) {
    const TWords digits13 = {28 * 30 + 1, 2 * 30 + 3, 4 * 30 + 5, 6 * 30 + 7, 8 * 30 + 9, 0 * 30 + 1, 2 * 30 + 3};
    const struct {
        const char* What;
        std::u16string_view Text;
        std::optional<TWords> Words;
    } rows[] = {
        {"nothing", u"", std::nullopt},
        {"nothing valid", u"\x1F\x7F\u00E9", std::nullopt},
        {"upper case", u"AB", {{1}}},
        {"latch to lower case and a filler", u"Ab", {{27, 1 * 30 + 29}}},
        {"shift back for one letter", u"aBc", {{27 * 30, 27 * 30 + 1, 2 * 30 + 29}}},
        {"latch back for two", u"aBC", {{27 * 30, 28 * 30 + 28, 1 * 30 + 2}}},
        {"shift at the end of the text", u"A;", {{29, 0 * 30 + 29}}},
        {"latch to punctuation by way of mixed", u"A;;", {{28, 25 * 30, 0 * 30 + 29}}},
        {"13 digits are text", u"1234567890123", digits13},
        {"14 digits at the end are text",
         u"12345678901234",
         {{28 * 30 + 1, 2 * 30 + 3, 4 * 30 + 5, 6 * 30 + 7, 8 * 30 + 9, 0 * 30 + 1, 2 * 30 + 3, 4 * 30 + 29}}},
        {"the example of the standard", u"000213298174000", {{902, 1, 624, 434, 632, 282, 200}}},
        {"numbers between letters", u"A000213298174000B", {{29, 902, 1, 624, 434, 632, 282, 200, 900, 1 * 30 + 29}}},
        {"a raw word closes the half before it", u"A\\C123B", {{29, 123, 1 * 30 + 29}}},
        {"a raw word beyond all", u"A\\c929", std::nullopt},
        {"a label below 900", u"\\G000001", {{927, 1}}},
        {"a label below 810900", u"\\g001801", {{926, 1, 1}}},
        {"a label below 811800", u"\\G811799", {{925, 899}}},
        {"a label beyond", u"A\\G811800B", {{1}}},
        {"a character by its code", u"\\065\\x42", {{1}}},
        {"codes modulo 256", u"\\321\\322", {{1}}},
        {"characters that text lacks", u"A\\007\\xE9B", {{1}}},
        {"a backslash at the end", u"\\", {{29 * 30 + 5}}},
        {"what is no escape", u"\\x4", {{28 * 30 + 25, 5 * 30 + 29, 27 * 30 + 23, 28 * 30 + 4}}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(WordsOf(row.Text), row.Words) << row.What;
    EXPECT_EQ(WordsOf(std::u16string(5399, u'A'))->size(), 2700u);
    EXPECT_EQ(WordsOf(std::u16string(5401, u'A')), std::nullopt) << "more than the array holds";
}

TEST(TPDF417, ReadsBack) {
    std::string text;
    for (const char character : Printable)
        text += character == '\\' ? "\\\\" : std::string(1, character);
    EXPECT_EQ(TSymbol(text).Read(), Printable);
    EXPECT_EQ(TSymbol("a\\009b\\x0Ac\\013D").Read(), "a\tb\nc\rD");
    EXPECT_EQ(TSymbol(text, Auto, 4, 0, true).Read(), Printable) << "truncated";
    for (int level = Level0; level <= Level8; ++level)
        EXPECT_EQ(TSymbol(text, TKSLPdf417CorrectionLevel(level)).Read(), Printable) << level;
}

// Every character class and their mixtures, up to the 864 words that a symbol of level 5 holds.
TEST(TPDF417, ReadsBackAnyText) {
    std::mt19937 random(6);
    const std::string_view classes[] = {Digits, Capitals.substr(0, 26), Capitals, Printable.substr(0, 16), Printable};
    int mostWords = 0;
    for (int round = 0; round < 150; ++round) {
        std::string text;
        std::string expected;
        const std::size_t length = round == 0 ? 1724 : 1 + random() % (round % 3 == 0 ? 1100 : 60);
        while (expected.size() < length) {
            const std::size_t part = std::min<std::size_t>(length - expected.size(), 1 + random() % 60);
            expected += RandomText(random, part, round == 0 ? "AB" : classes[random() % std::size(classes)]);
        }
        for (const char character : expected)
            text += character == '\\' ? "\\\\" : std::string(1, character);
        const TSymbol symbol(text);
        if (symbol.UsedWords > 864)
            continue;
        mostWords = std::max(mostWords, symbol.UsedWords);
        EXPECT_EQ(symbol.Read(), expected) << symbol.Columns << " columns, round " << round;
    }
    EXPECT_GE(mostWords, 863);
}

TEST(TPDF417, ChoosesLevelAndGrid) {
    // One word for two letters, behind the descriptor.
    for (const auto& [used, level] : {std::pair{40, 2}, {41, 3}, {160, 3}, {161, 4}, {320, 4}, {321, 5}}) {
        TCodeWords words{};
        TPDF417 encoder;
        encoder.Encode(words, std::u16string(std::size_t(used - 1) * 2, u'A'));
        EXPECT_EQ(encoder.GetUsedCWords(), used);
        EXPECT_EQ(encoder.GetCorrecLevel(Auto), level) << used;
        EXPECT_EQ(encoder.GetCorrecLevel(Level7), 7);
    }
    const struct {
        int ErrorWords, Used, Cols, Rows, X, Y;
    } rows[] = {
        {8, 10, 4, 7, 4, 7},   {8, 10, 5, 0, 5, 4},   {8, 12, 5, 0, 5, 5},       {8, 10, 0, 6, 4, 6},
        {8, 600, 1, 0, 1, 91}, {8, 600, 0, 3, 31, 3}, {8, 2, 0, 0, 2, 5},        {64, 864, 0, 0, 29, 32},
        {2, 1, 0, 0, 1, 3},    {8, 9, 0, 0, 3, 6},    {512, 2700, 0, 0, 30, 90},
    };
    for (const auto& row : rows) {
        int x = 0;
        int y = 0;
        TPDF417::AdjustSize(x, y, row.ErrorWords, row.Used, row.Cols, row.Rows);
        EXPECT_EQ(std::pair(x, y), std::pair(row.X, row.Y)) << row.Used << " in " << row.Cols << " by " << row.Rows;
    }
}

TEST(TPDF417, RefusesCountsOutOfRange) {
    TCodeWords words{};
    for (const int eccLen : {0, 1, 3, 1024})
        EXPECT_THROW(TPDF417::CalculateECC(words, 10, eccLen), EArgumentOutOfRangeException) << eccLen;
    EXPECT_THROW(TPDF417::CalculateECC(words, 2700, 2), EArgumentOutOfRangeException);
    EXPECT_THROW(TPDF417::Complete(words, 11, 10, 2), EArgumentOutOfRangeException);
    EXPECT_THROW(Pdf417Modules(words, 31, 3, 0), EArgumentOutOfRangeException);
}

TEST(TPDF417, ConvertsToBase900) {
    EXPECT_THAT(TPDF417::NumToBase900("1000213298174000"), testing::ElementsAre(1, 624, 434, 632, 282, 200));
    constexpr std::array<std::uint8_t, 6> bytes = {1, 2, 3, 4, 5, 6};
    EXPECT_THAT(TPDF417::BytesToBase900(bytes), testing::ElementsAre(1, 620, 89, 74, 846));
}

} // namespace
} // namespace vagrel
