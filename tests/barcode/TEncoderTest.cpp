// SPDX-License-Identifier: MIT
// QR symbols: what the encoder chooses, and what a decoder reads.
#include "ReadBack.h"

#include <vagrel/barcode/TEncoder.h>
#include <vagrel/barcode/TMatrixUtil.h>
#include <vagrel/foundation/Text.h>

#include <gtest/gtest.h>

namespace vagrel {
namespace {

// Each byte as the character of that code.
std::u16string Latin1(std::string_view bytes) {
    std::u16string text;
    for (const char byte : bytes)
        text += char16_t(std::uint8_t(byte));
    return text;
}

TQRCode Encoded(std::u16string_view text, TQRCodeEncoding encoding = Automatic) {
    TQRCode code;
    TEncoder encoder;
    encoder.Encode(text, encoding, {}, code);
    EXPECT_FALSE(encoder.GetEncoderError());
    EXPECT_TRUE(code.IsValid());
    return code;
}

std::string Read(const TQRCode& code) {
    const int width = code.FMatrix.GetWidth();
    return ReadBack("QRCode", {code.FMatrix.Row(0), std::size_t(width * width)}, width);
}

TEST(TEncoder, ChoosesTheModeAndWritesWhatItCarries) {
    const struct {
        std::u16string_view Text;
        TQRCodeEncoding Encoding;
        TMode Mode;
        std::string_view Read;
    } rows[] = {
        {u"12345", Automatic, qmNumeric, "12345"},
        {u"0", Automatic, qmNumeric, "0"},
        {u"A-1 $%*+./:Z", Automatic, qmAlphanumeric, "A-1 $%*+./:Z"},
        {u"abc", Automatic, qmByte, "abc"},
        {u"A`", Automatic, qmByte, "A`"},
        {u"a\u00E9\u00FF", Automatic, qmByte, "a\xE9\xFF"},
        {u"a\u20AC", Automatic, qmByte,
         "\xEF\xBB\xBF"
         "a\xE2\x82\xAC"},
        {u"\U0001F600\xDC00", UTF8BOM, qmByte, "\xF0\x9F\x98\x80\xEF\xBF\xBD"},
        {u"x", UTF8NoBOM, qmByte,
         "\xEF\xBB\xBF"
         "x"},
        {u"", Automatic, qmByte, "\xEF\xBB\xBF"},
        {u"1a2\u0663", Numeric, qmNumeric, "12"},
        {u"A0b\u00C9:", Alphanumeric, qmAlphanumeric, "A0:"},
        {u"12\u0141\u00E9", ISO88591, qmByte, "12\xE9"},
    };
    for (const auto& row : rows) {
        const TQRCode code = Encoded(row.Text, row.Encoding);
        EXPECT_EQ(code.FMode, row.Mode) << ToUtf8(row.Text);
        EXPECT_EQ(Read(code), row.Read) << ToUtf8(row.Text);
    }
}

// The least and the most characters of every version in every mode.
TEST(TEncoder, ReadsBackInEveryVersion) {
    std::mt19937 random(1);
    const struct {
        TMode Mode;
        std::string_view Alphabet;
        int BitsOfSix;
        std::array<int, 3> CountBits;
        int Last; // what version 40 holds at level L
    } rows[] = {{qmNumeric, Digits, 20, {10, 12, 14}, 7089},
                {qmAlphanumeric, Capitals, 33, {9, 11, 13}, 4296},
                {qmByte, Bytes, 48, {8, 16, 16}, 2953}};
    for (const auto& row : rows) {
        int least = 1;
        int most = 0;
        for (int version = 1; version <= 40; ++version, least = most + 1) {
            const int countBits = row.CountBits[version < 10 ? 0 : version < 27 ? 1 : 2];
            const int bits = TVersion::GetVersionForNumber(version).DataCodewords() * 8 - 4 - countBits;
            most = bits * 6 / row.BitsOfSix;
            for (const int length : {least, most}) {
                const std::string text = RandomText(random, std::size_t(length), row.Alphabet);
                const TQRCode code = Encoded(Latin1(text), row.Mode == qmByte ? ISO88591 : Automatic);
                EXPECT_EQ(code.FMode, row.Mode);
                EXPECT_EQ(code.FVersion, version) << length;
                EXPECT_EQ(Read(code), text) << "version " << version;
            }
        }
        EXPECT_EQ(most, row.Last);
    }
}

TEST(TEncoder, LeavesTheSymbolWhenTheTextDoesNotFit) {
    TEncoder encoder;
    TQRCode code;
    encoder.Encode(u"kept", Automatic, {}, code);
    const TByteMatrix kept = code.FMatrix;
    for (const std::size_t length : {2954, 100'000}) {
        encoder.Encode(std::u16string(length, u'a'), Automatic, {}, code);
        EXPECT_TRUE(encoder.GetEncoderError());
        EXPECT_TRUE(code.FQRCodeError);
        EXPECT_EQ(code.FMatrix, kept);
    }
    encoder.Encode(u"again", Automatic, {}, code);
    EXPECT_FALSE(encoder.GetEncoderError());
    EXPECT_EQ(Read(code), "again");
}

TEST(TEncoder, CompactsKanji) {
    TBitArray bits;
    EXPECT_TRUE(TEncoder::AppendKanjiBytes("\x93\x5F\xE4\xAA", bits)); // the example of the standard
    EXPECT_EQ(bits.GetSize(), 26);
    EXPECT_EQ(bits.ToBytes(), (std::vector<std::uint8_t>{0x6C, 0xFE, 0xAA, 0x80}));
    EXPECT_FALSE(TEncoder::AppendKanjiBytes("A1", bits));
}

// The penalty cell by cell.
int Penalty(const TByteMatrix& matrix) {
    const int width = matrix.GetWidth();
    int penalty = 0;
    int dark = 0;
    for (const bool transposed : {false, true}) {
        auto at = [&](int x, int y) { return transposed ? matrix.Get(y, x) : matrix.Get(x, y); };
        auto isLight = [&](int x, int y) {
            for (int i = x; i < x + 4; ++i) {
                if (i < 0 || i >= width || at(i, y))
                    return false;
            }
            return true;
        };
        for (int y = 0; y < width; ++y) {
            for (int x = 0, run = 0; x < width; ++x) {
                run = x > 0 && at(x, y) == at(x - 1, y) ? run + 1 : 1;
                penalty += run == 5 ? 3 : run > 5;
                bool finder = x + 7 <= width;
                for (int i = 0; finder && i < 7; ++i)
                    finder = at(x + i, y) == ((0b1011101 >> i) & 1);
                penalty += finder && (isLight(x + 7, y) || isLight(x - 4, y)) ? 40 : 0;
            }
        }
    }
    for (int y = 0; y < width; ++y) {
        for (int x = 0; x < width; ++x) {
            dark += matrix.Get(x, y);
            const int four = x > 0 && y > 0 ? matrix.Get(x, y) + matrix.Get(x - 1, y) + matrix.Get(x, y - 1) +
                                                  matrix.Get(x - 1, y - 1)
                                            : 1;
            penalty += four % 4 == 0 ? 3 : 0;
        }
    }
    const double percent = 100.0 * dark / (width * width);
    return penalty + int(std::nearbyint(std::abs(percent - 50) / 50));
}

TEST(TMatrixUtil, TakesTheFirstMaskOfTheLowestPenalty) {
    std::mt19937 random(2);
    for (int number = 1; number <= 40; ++number) {
        const TVersion version = TVersion::GetVersionForNumber(number);
        // All dark or all light data favour runs; noise does not, and there the weights decide.
        for (const int kind : {0, 255, 1}) {
            if (kind != 1 && version.Dimension % 64 > 5 && number % 8 != 4)
                continue;
            std::vector<std::uint8_t> codewords(std::size_t(version.TotalCodewords), std::uint8_t(kind));
            for (std::uint8_t& codeword : codewords)
                codeword = kind == 1 ? std::uint8_t(random()) : codeword;
            int chosen = -1;
            const TByteMatrix matrix = TMatrixUtil::BuildMatrix(codewords, {}, version, chosen);
            int best = 0;
            int lowest = 1 << 30;
            for (int mask = 0; mask < 8; ++mask) {
                const TByteMatrix tried = TMatrixUtil::BuildMatrix(codewords, {}, version, mask);
                EXPECT_TRUE(mask != chosen || tried == matrix);
                const int penalty = Penalty(tried);
                if (penalty < lowest) {
                    lowest = penalty;
                    best = mask;
                }
            }
            EXPECT_EQ(chosen, best) << "version " << number << " data " << kind;
        }
    }
}

} // namespace
} // namespace vagrel
