// SPDX-License-Identifier: MIT
// Validity, preparation, check digits and measures of linear barcodes.
#include "Raster.h"

#include <vagrel/barcode/TBarcode.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace vagrel {
namespace {

TEST(TBarcode, AcceptsItsCharactersAndLengths) {
    const struct {
        const char* what;
        std::string code;
        TKSLBarType type;
        bool check, ignoreParentheses, valid;
    } cases[] = {
        {"EAN-13 whole", "4006381333931", btEAN13, false, false, true},
        {"EAN-13 short without check", "400638133393", btEAN13, false, false, false},
        {"EAN-13 short with check", "4006", btEAN13, true, false, true},
        {"EAN-13 empty with check", "", btEAN13, true, false, true},
        {"EAN-8 too long", "123456789", btEAN8, true, false, false},
        {"UPC-A with a letter", "12345678901a", btUPCA, false, false, false},
        {"Code 39 takes lower case", "abc-*", btCODE39, true, false, true},
        {"Code 93 does not", "abc", btCODE93, true, false, false},
        {"Code 93 has no asterisk", "A*", btCODE93, true, false, false},
        {"full ASCII ends at 127", "\x7F", btCODE39EX, false, false, true},
        {"full ASCII has no 128", "\x80", btCODE93EX, false, false, false},
        {"Codabar without its starts", "A12B", btCODABAR, false, false, false},
        {"Codabar symbols", "$1:2/3.4+5-", btCODABAR, false, false, true},
        {"set A has controls", std::string("\0\x1F_", 3), btCODE128A, false, false, true},
        {"set A ends at 95", "`", btEAN128A, false, false, false},
        {"set B has no controls", "\x1F", btCODE128B, false, false, false},
        {"parentheses in pairs", "(01)12", btEAN128C, false, false, false},
        {"parentheses that are dropped", "(01)12", btEAN128C, false, true, true},
        {"parentheses stay elsewhere", "(01)", btMSI, false, true, false},
        {"automatic without controls", "\n", btCODE128AUTO, false, false, false},
        {"automatic with an accent", "\xC1z", btCODE128AUTO, false, false, true},
        {"soft hyphen", "\xAD", btCODE128AUTO, false, false, false},
        {"GS1 without accents", "\xC1", btEAN128AUTO, false, false, false},
        {"Code 11", "12-3", btCODE11, true, false, true},
        {"a stored type that is none", "1", static_cast<TKSLBarType>(99), false, false, false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TBarcode::IsValidCode(c.code, c.type, c.check, c.ignoreParentheses), c.valid) << c.what;
}

TEST(TBarcode, PreparesTheData) {
    const struct {
        const char* what;
        std::string code;
        TKSLBarType type;
        bool check, ignoreParentheses;
        std::string calculated, digits;
        TKSL128AutoType mode = at128None;
    } cases[] = {
        {"check digit", "400638133393", btEAN13, true, false, "4006381333931", "1"},
        {"wrong check digit replaced", "4006381333930", btEAN13, true, false, "4006381333931", "1"},
        {"zeros in front", "1234", btEAN8, true, false, "00012348", "8"},
        {"no check, no change", "12", btUPCA, false, false, "12", ""},
        {"capitals without check", "abc", btCODE39, false, false, "ABC", ""},
        {"modulo 43", "CODE 39", btCODE39, true, false, "CODE 39R", "R"},
        {"modulo 43 of the expanded text", "a", btCODE39EX, true, false, "a8", "8"},
        {"pairs need an even length", "123", btCODE128C, false, false, "0123", ""},
        {"check and even length", "1234", btCODE128C, true, false, "012348", "8"},
        {"check needs digits only", "12A", btCODE128B, true, false, "12A", ""},
        {"parentheses dropped", "(01)9", btEAN128B, false, true, "019", ""},
        {"parentheses kept", "(01)9", btEAN128B, false, false, "(01)9", ""},
        {"2 of 5 in pairs, check", "1234", btINTER_25, true, false, "012348", "8"},
        {"2 of 5 in pairs", "123", btINTER_25, false, false, "0123", ""},
        {"9 characters, one check", "123456789", btCODE11, true, false, "1234567890", "0"},
        {"10 characters, two checks", "1234567890", btCODE11, true, false, "123456789019", "9"},
        {"Luhn", "1234567", btMSI, true, false, "12345674", "4"},
        {"two digits", "12", btCODE128AUTO, false, false, "12", "", at128c},
        {"three digits", "123", btCODE128AUTO, false, false, "123", "", at128a},
        {"four digits", "1234", btCODE128AUTO, false, false, "1234", "", at128c},
        {"five digits", "12345", btCODE128AUTO, true, false, "12345", "", at128nac},
        {"parentheses before the choice", "(01)23", btEAN128AUTO, false, true, "0123", "", at128c},
        {"capitals", "ABC123", btCODE128AUTO, false, false, "ABC123", "", at128a},
        {"digits in front", "1234abc", btCODE128AUTO, false, false, "1234abc", "", at128cb},
        {"letters in front", "abc1234", btCODE128AUTO, false, false, "abc1234", "", at128bc},
        {"accents", "\xC1\xC9", btCODE128AUTO, false, false, "\xC1\xC9", "", at128e},
        {"accents and letters", "a\xC9", btCODE128AUTO, false, false, "a\xC9", "", at128be},
        {"accents in GS1", "\xC1\xC9", btEAN128AUTO, false, false, "\xC1\xC9", "", at128None},
    };
    for (const auto& c : cases) {
        std::string digits = "before";
        auto mode = at128ac;
        EXPECT_EQ(TBarcode::PrepareBarcode(c.code, c.type, c.check, c.ignoreParentheses, digits, mode), c.calculated)
            << c.what;
        EXPECT_EQ(digits, c.digits) << c.what;
        EXPECT_EQ(mode, c.mode) << c.what;
    }
}

TEST(TBarcode, ChecksThatNoSymbologyUses) {
    // 6 + 3·5 + 4 + 3·3 + 2 + 3·1: the first digit does not count.
    EXPECT_EQ(TBarcode::CheckSumMod("0123456", ctMod10UPCE).Code, "01234561");
    EXPECT_EQ(TBarcode::CheckSumMod("", ctMod10UPCE).DC, "0");
    // 1·9·7·5 odd and 2·3·4: 234 · 2 = 468 in even places.
    EXPECT_EQ(TBarcode::CheckSumMod("1293745", ctMSI).DC, "0");
    EXPECT_EQ(TBarcode::CheckSumMod("19", ctMSI).DC, "0") << "the carry counts: 18 gives 9";
    EXPECT_EQ(TBarcode::CheckSumMod("7", ctNone).Code, "7");
}

TEST(TBarcode, PairsWherePairsPay) {
    const auto length = [](const char* code, TKSLBarType type) {
        std::string digits;
        TKSL128AutoType mode;
        const std::string calculated = TBarcode::PrepareBarcode(code, type, false, false, digits, mode);
        return (TBarcode::FillBarPattern(calculated, type, mode, false).size() - 7) / 6;
    };
    // Start, data, check; the stop is the rest.
    EXPECT_EQ(length("abc123456", btCODE128AUTO), 1 + 3 + 1 + 3 + 1U) << "one code C for six digits";
    EXPECT_EQ(length("abc12d", btCODE128AUTO), 1 + 6 + 1U) << "two digits in the middle do not pay";
    EXPECT_EQ(length("abc12", btCODE128AUTO), 1 + 3 + 1 + 1 + 1U) << "two at the end do";
    EXPECT_EQ(length("abc123", btCODE128AUTO), 1 + 6 + 1U) << "three do not";
    EXPECT_EQ(length("abc1234", btCODE128AUTO), 1 + 3 + 1 + 2 + 1U) << "four do";
    for (const char* code : {"abc12", "abc12345"}) // as long either way
        EXPECT_NE(TEncoded(code, btCODE128AUTO, false).pattern, TEncoded(code, btCODE128B, false).pattern) << code;
    EXPECT_EQ(length("abc12345d", btCODE128AUTO), 1 + 9 + 1U) << "five in the middle do not";
    EXPECT_EQ(length("1234ab", btEAN128AUTO), 1 + 1 + 2 + 1 + 2 + 1U) << "FNC1, two pairs, code B";
    EXPECT_EQ(TBarcode::FillBarPattern("a\xC9", btEAN128AUTO, at128be, false), "");
    EXPECT_EQ(TBarcode::FillBarPattern("a", btCODE128AUTO, at128None, false), "");
}

TEST(TBarcode, TextThatIsNotValidDoesNoHarm) {
    std::string all;
    for (int code = 0; code < 256; ++code)
        all += static_cast<char>(code);
    for (int type = btEAN13; type <= btPOSTNET + 1; ++type)
        for (const std::string& code : {all, std::string("1"), std::string()})
            for (int mode = at128None; mode <= at128be; ++mode) {
                const auto pattern = TBarcode::FillBarPattern(code, static_cast<TKSLBarType>(type),
                                                              static_cast<TKSL128AutoType>(mode), true);
                EXPECT_THAT(pattern, testing::MatchesRegex("[NMDTWFA9123456]*")) << type;
            }
}

TEST(TBarcode, MeasuresPatterns) {
    EXPECT_EQ(TBarcode::BarCodeWidth("N1M6", 101, 2.5F, true), 101 + 101 + 252 + 252) << "252.5 rounds to even";
    EXPECT_EQ(TBarcode::BarCodeWidth("F7", 101, 2, true), 151 + 151) << "3/2 in integers";
    EXPECT_EQ(TBarcode::BarCodeWidth("NA9159DT238W4MB6", 10, 3, true), 10 * (7 + 2 + 3 + 2 + 3 + 3 + 8 + 9) - 10);
    EXPECT_EQ(TBarcode::BarCodeWidth("N1M6", 100, 2, false), 6000);
    EXPECT_EQ(TBarcode::BarCodeWidth(std::string(100, 'W'), std::numeric_limits<std::int32_t>::max(), 1, true),
              std::numeric_limits<std::int32_t>::max());

    double text1 = 0, text2 = 0, text3 = 0;
    const std::string ean = TBarcode::FillBarPattern("4006381333931", btEAN13, at128None, true);
    TBarcode::Ean13Pos(ean, 0.5, 3, text1, text2);
    EXPECT_DOUBLE_EQ(text1, 0.5 * (3 + 21));
    EXPECT_DOUBLE_EQ(text2, 0.5 * (3 + 42 + 5 + 21));
    TBarcode::UPCAPos(ean, 1, 3, text1, text2, text3);
    EXPECT_DOUBLE_EQ(text3, 95);
    TBarcode::Ean8Pos(TBarcode::FillBarPattern("01234565", btEAN8, at128None, false), 1, 3, text1, text2);
    EXPECT_DOUBLE_EQ(text2, 3 + 28 + 5 + 14);
    TBarcode::UPCEPos(TBarcode::FillBarPattern("01234565", btUPCE0, at128None, false), 1, 3, text1, text2);
    EXPECT_DOUBLE_EQ(text2, 51);
    TBarcode::UPCEPos("F7M", 1, 2.25, text1, text2);
    EXPECT_DOUBLE_EQ(text2, 5.25) << "a short pattern ends early";

    TKSLDrawWidth width = dw3;
    TKSLDrawBar bar = dbEB;
    TBarcode::FillBarData('?', width, bar);
    EXPECT_TRUE(width == dw3 && bar == dbEB);
    TBarcode::FillBarData('B', width, bar);
    EXPECT_TRUE(width == dw1F && bar == dbB2);
}

TEST(TBarcode, GuardsReachDownWithNumbers) {
    EXPECT_EQ(TBarcode::FillBarPattern("01234565", btUPCE0, at128None, true), "9191D2D2N2D1W1N2T1N1T2N1N1W191919");
    EXPECT_THAT(TBarcode::FillBarPattern("01234565", btEAN8, at128None, true), testing::HasSubstr("19191"));
}

TEST(TBarcode, PlainVowels) {
    EXPECT_EQ(TBarcode::RemoveAccented("\xE1\xE9\xED\xF3\xFA\xC1\xC9\xCD\xD3\xDA\xF1"), "aeiouAEIOU\xF1");
}

} // namespace
} // namespace vagrel
