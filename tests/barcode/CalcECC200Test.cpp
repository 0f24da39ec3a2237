// SPDX-License-Identifier: MIT
// Data Matrix symbols: sizes, edges and what a decoder reads.
#include "ReadBack.h"

#include <vagrel/barcode/CalcECC200.h>
#include <vagrel/barcode/ECC200.h>
#include <vagrel/foundation/Exceptions.h>

#include <gmock/gmock.h>

namespace vagrel {
namespace {

std::span<const std::uint8_t> AsBytes(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

struct TSymbol {
    std::vector<std::uint8_t> Matrix;
    std::uint16_t Cols = 0;
    std::uint16_t Rows = 0;

    explicit TSymbol(std::string_view text, TECC200Size size = ecc200_Autosize, TECC200Shape shape = ecc200_Square) {
        CalcECC200(AsBytes(text), size, shape, Matrix, Cols, Rows);
        EXPECT_EQ(Matrix.size(), std::size_t(Cols * Rows));
    }
    std::string Read() const { return ReadBack("DataMatrix", Matrix, Cols); }
};

TEST(CalcECC200, MakesCodewords) {
    auto long128 = [](std::size_t length) { return std::string(length, '\x80'); };
    const struct {
        std::string Text;
        std::vector<std::uint8_t> Codewords;
    } rows[] = {
        {"", {}},
        {"123456", {142, 164, 186}},
        {"1a23", {50, 98, 153}},
        {"\x7F\x80\xFF", {128, 235, 1, 235, 128}},
        // Three are no longer shifted one by one: latch, then length and bytes randomised.
        {long128(3), {231, 47, 65, 215, 108}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(MakeECC200Codewords(AsBytes(row.Text), 100), row.Codewords) << row.Text;
    EXPECT_EQ(MakeECC200Codewords(AsBytes(long128(249)), 1558).size(), 251u);
    EXPECT_EQ(MakeECC200Codewords(AsBytes(long128(250)), 1558).size(), 253u);
}

// One text that fills each size to the last codeword, and others shorter.
TEST(CalcECC200, ReadsBackInEverySize) {
    std::mt19937 random(3);
    for (const TECC200SymbolParam& param : ECC200SizeTable) {
        const auto size = TECC200Size(param.Size);
        const auto most = std::size_t(param.DataLength);
        const std::string letters = RandomText(random, most, Capitals.substr(0, 26));
        for (const std::string& text :
             {letters, letters.substr(0, most / 2 + 1), RandomText(random, most * 2, Digits)}) {
            const TSymbol fixed(text, size);
            EXPECT_EQ(fixed.Cols, param.Cols);
            EXPECT_EQ(fixed.Rows, param.Rows);
            EXPECT_EQ(fixed.Read(), text) << param.Rows << " by " << param.Cols;
        }
        const TSymbol automatic(letters, ecc200_Autosize, size < ecc200_8x18 ? ecc200_Square : ecc200_Rectangle);
        EXPECT_EQ(automatic.Matrix.size(), std::size_t(param.Rows * param.Cols)) << "chosen for its data";
        EXPECT_THROW(TSymbol(letters + "A", size), EOutOfRange);
    }
}

TEST(CalcECC200, ReadsBackAnyBytes) {
    std::mt19937 random(4);
    for (const std::string_view alphabet : {Digits, Capitals, Printable, Bytes}) {
        for (std::size_t length = 1; length < 1000; length += 1 + length / 4) {
            std::string text = RandomText(random, length, alphabet);
            // Runs of one kind between others: latches at every kind of border.
            for (std::size_t i = 0; i < length; ++i)
                text[i] = i / 9 % 3 == 2 ? char(128 + random() % 128) : text[i];
            EXPECT_EQ(TSymbol(text).Read(), text) << length;
        }
    }
    const std::string most(1555, '\xC0');
    EXPECT_EQ(TSymbol(most).Read(), most);
}

TEST(CalcECC200, RefusesWhatDoesNotFit) {
    const struct {
        std::string Text;
        TECC200Size Size;
        std::u16string_view Message;
    } rows[] = {
        {"AAAA", ecc200_10x10, u"MakeCodeword Error"},
        {std::string(1559, 'A'), ecc200_Autosize, u"MakeCodeword Error"},
        {"A", TECC200Size(31), u"MakeCodeword Error"},
        {"A", TECC200Size(-1), u"MakeCodeword Error"},
        {std::string(1556, '\xC0'), ecc200_Autosize, u"Base256_Encode Error"},
    };
    for (const auto& row : rows) {
        try {
            TSymbol(row.Text, row.Size);
            ADD_FAILURE() << row.Text.size();
        } catch (const EOutOfRange& error) {
            EXPECT_EQ(error.Message(), row.Message) << row.Text.size();
        }
    }
    EXPECT_THROW(TSymbol(std::string(50, 'A'), ecc200_Autosize, ecc200_Rectangle), EOutOfRange);
}

} // namespace
} // namespace vagrel
