// SPDX-License-Identifier: MIT
// Symbols painted as pixels and read back by ZXing.
#include "Raster.h"

#define ZX_USE_UTF8 // text() as UTF-8, without a note of the compiler
#include <ZXing/ReadBarcode.h>
#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace vagrel {
namespace {

using ZXing::BarcodeFormat;

constexpr int Narrow = 4;

/// The bytes that the reader sees, nothing when it refuses the symbol.
std::optional<std::string> Read(std::string_view pattern, BarcodeFormat format, double factor, bool validate = false,
                                std::string* identifier = nullptr) {
    const std::string quiet(12 * Narrow, '.');
    const std::string row = quiet + Paint(pattern, Narrow, factor) + quiet;
    std::vector<std::uint8_t> pixels;
    for (int y = 0; y < 8; ++y)
        for (const char pixel : row)
            pixels.push_back(pixel == '.' ? 255 : 0);
    const auto hints = ZXing::DecodeHints()
                           .setFormats(format)
                           .setTryRotate(false)
                           .setTryDownscale(false)
                           .setBinarizer(ZXing::Binarizer::BoolCast)
                           .setTryCode39ExtendedMode(true)
                           .setValidateCode39CheckSum(validate)
                           .setValidateITFCheckSum(validate)
                           .setReturnCodabarStartEnd(true);
    const auto result =
        ZXing::ReadBarcode({pixels.data(), static_cast<int>(row.size()), 8, ZXing::ImageFormat::Lum}, hints);
    if (!result.isValid())
        return {};
    if (identifier)
        *identifier = result.symbologyIdentifier();
    return std::string(result.bytes().begin(), result.bytes().end());
}

constexpr std::string_view Digits10 = "0123456789", MostlyDigits = "01234567890123456789012345678901234567890abXY-";

std::string Codes(int first, int last) {
    std::string codes;
    for (int code = first; code <= last; ++code)
        codes += static_cast<char>(code);
    return codes;
}

/// UPC-E carries the check digit of the UPC-A number that it shortens.
std::string WithUpcECheck(const std::string& text) {
    const std::string d = text.substr(1);
    std::string whole;
    if (d[5] <= '2')
        whole = d.substr(0, 2) + d[5] + "0000" + d.substr(2, 3);
    else if (d[5] == '3')
        whole = d.substr(0, 3) + "00000" + d.substr(3, 2);
    else if (d[5] == '4')
        whole = d.substr(0, 4) + "00000" + d[4];
    else
        whole = d.substr(0, 5) + "0000" + d[5];
    return text + TBarcode::CheckSumMod("0" + whole, ctMod10).DC;
}

struct TKind {
    const char* what;
    TKSLBarType type;
    BarcodeFormat format;
    bool check;
    double factor;
    std::function<std::string(TRandom&)> text;
};

std::function<std::string(TRandom&)> Of(std::string alphabet, std::size_t shortest, std::size_t longest) {
    return [=](TRandom& random) { return RandomText(random, alphabet, shortest, longest); };
}

/// One long run of accents between short ones.
std::string Accents(TRandom& random) {
    static const std::string upper = Codes(161, 172) + Codes(174, 255), plain = Codes(33, 126);
    std::string text;
    for (const std::size_t longest : {3, 12, 3}) {
        text += RandomText(random, plain, 1, 5);
        text += RandomText(random, upper, longest == 12 ? 4 : 1, longest);
    }
    return text + RandomText(random, plain, 0, 5);
}

const std::string Set39 = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/%", Set93 = Set39 + "+";

const TKind Kinds[] = {
    {"EAN-13", btEAN13, BarcodeFormat::EAN13, true, 3, Of("0123456789", 1, 13)},
    {"EAN-8", btEAN8, BarcodeFormat::EAN8, true, 3, Of("0123456789", 1, 8)},
    {"UPC-A", btUPCA, BarcodeFormat::UPCA, true, 3, Of("0123456789", 1, 12)},
    {"UPC-E", btUPCE0, BarcodeFormat::UPCE, false, 3,
     [](TRandom& random) { return WithUpcECheck("0" + RandomText(random, Digits10, 6, 6)); }},
    {"Code 39", btCODE39, BarcodeFormat::Code39, false, 2, Of(Set39.substr(0, 39), 2, 25)},
    {"Code 39 with check", btCODE39, BarcodeFormat::Code39, true, 3, Of(Set39.substr(0, 39), 2, 25)},
    {"Code 39 full ASCII", btCODE39EX, BarcodeFormat::Code39, false, 2.5, Of(Codes(0, 127), 2, 20)},
    {"Code 93", btCODE93, BarcodeFormat::Code93, true, 1, Of(Set93, 1, 45)},
    {"Code 93 full ASCII", btCODE93EX, BarcodeFormat::Code93, false, 1, Of(Codes(0, 127), 1, 30)},
    {"Codabar", btCODABAR, BarcodeFormat::Codabar, true, 2.5, Of("0123456789-$:/.+", 2, 25)},
    {"Codabar, wide", btCODABAR, BarcodeFormat::Codabar, true, 3, Of("0123456789-$:/.+", 2, 25)},
    {"set A", btCODE128A, BarcodeFormat::Code128, false, 1, Of(Codes(0, 95), 1, 30)},
    {"set B", btCODE128B, BarcodeFormat::Code128, false, 1, Of(Codes(32, 127), 1, 30)},
    {"set B with check", btCODE128B, BarcodeFormat::Code128, true, 1, Of("0123456789", 1, 30)},
    {"set C", btCODE128C, BarcodeFormat::Code128, false, 1, Of("0123456789", 1, 40)},
    {"set C with check", btCODE128C, BarcodeFormat::Code128, true, 1, Of("0123456789", 1, 40)},
    {"automatic, digits", btCODE128AUTO, BarcodeFormat::Code128, false, 1, Of("0123456789", 1, 40)},
    {"automatic, ASCII", btCODE128AUTO, BarcodeFormat::Code128, false, 1, Of(Codes(32, 127), 1, 30)},
    {"automatic, capitals", btCODE128AUTO, BarcodeFormat::Code128, false, 1, Of(Codes(32, 95), 1, 30)},
    {"automatic, runs of digits", btCODE128AUTO, BarcodeFormat::Code128, false, 1,
     Of(std::string(MostlyDigits), 1, 40)},
    {"automatic, accents", btCODE128AUTO, BarcodeFormat::Code128, false, 1, Of(Codes(174, 255), 1, 30)},
    {"automatic, some accents", btCODE128AUTO, BarcodeFormat::Code128, false, 1, Accents},
    {"GS1 A", btEAN128A, BarcodeFormat::Code128, false, 1, Of(Codes(32, 95), 1, 30)},
    {"GS1 B", btEAN128B, BarcodeFormat::Code128, false, 1, Of(Codes(32, 127), 1, 30)},
    {"GS1 C", btEAN128C, BarcodeFormat::Code128, true, 1, Of("0123456789", 1, 40)},
    {"GS1 automatic", btEAN128AUTO, BarcodeFormat::Code128, false, 1, Of(std::string(MostlyDigits), 1, 40)},
    {"interleaved 2 of 5", btINTER_25, BarcodeFormat::ITF, false, 2, Of("0123456789", 5, 30)},
    {"interleaved 2 of 5 with check", btINTER_25, BarcodeFormat::ITF, true, 3, Of("0123456789", 5, 30)},
};

TEST(TBarcodeReadBack, TextsOfAllLengthsAndClasses) {
    TRandom random(1);
    for (const TKind& kind : Kinds) {
        SCOPED_TRACE(kind.what);
        for (int i = 0; i < 60; ++i) {
            const std::string text = kind.text(random);
            const TEncoded encoded(text, kind.type, kind.check);
            ASSERT_TRUE(TBarcode::IsValidCode(text, kind.type, kind.check, false)) << testing::PrintToString(text);
            std::string identifier, expected = encoded.code;
            if (kind.type == btCODE39)
                expected.resize(text.size()); // the reader keeps the check to itself
            if (kind.type == btCODABAR)
                expected = "A" + expected + "B";
            const auto read = Read(encoded.pattern, kind.format, kind.factor, kind.check, &identifier);
            ASSERT_TRUE(read) << testing::PrintToString(text);
            ASSERT_EQ(*read, expected) << testing::PrintToString(text);
            ASSERT_EQ(identifier == "]C1", kind.type >= btEAN128A && kind.type <= btEAN128AUTO);
        }
    }
}

TEST(TBarcodeReadBack, CharactersThatASetLacksBecomeSpaces) {
    EXPECT_EQ(Read(TBarcode::FillBarPattern("ab\xC1X", btCODE128A, at128None, false), BarcodeFormat::Code128, 1),
              "   X");
    EXPECT_EQ(Read(TBarcode::FillBarPattern("12x4", btCODE128C, at128None, false), BarcodeFormat::Code128, 1), "1200");
}

// What docs/barcodes.md lists: built, and refused or misread.
TEST(TBarcodeReadBack, WhatDoesNotScan) {
    const struct {
        const char* what;
        std::string text;
        TKSLBarType type;
        BarcodeFormat format;
        bool check;
    } cases[] = {
        {"UPC-E check over the short number", "0654321", btUPCE0, BarcodeFormat::UPCE, true},
        {"full ASCII check that is shifted", "c1", btCODE39EX, BarcodeFormat::Code39, true},
        {"asterisk in Code 39", "AB*CD", btCODE39, BarcodeFormat::Code39, false},
        {"second long run of accents", "a\xC1\xC1\xC1\xC1z\xC9\xC9\xC9\xC9", btCODE128AUTO, BarcodeFormat::Code128,
         false},
        {"space among accents", "\xC1 \xC1", btCODE128AUTO, BarcodeFormat::Code128, false},
    };
    for (const auto& c : cases) {
        const TEncoded encoded(c.text, c.type, c.check);
        EXPECT_NE(Read(encoded.pattern, c.format, 3, c.check), encoded.code) << c.what;
    }
}

} // namespace
} // namespace vagrel
