// SPDX-License-Identifier: MIT
// Colour texts and the platform's colour; Base64.
#include <vagrel/foundation/Base64.h>
#include <vagrel/foundation/Colors.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>

#include <gmock/gmock.h>

namespace vagrel {
namespace {

TEST(Colors, ReadsTextsWithAlphaLast) {
    const std::pair<std::u16string_view, TAlphaColor> rows[] = {
        {u"#80FF00", 0xFF80FF00},        {u"#80FF0000", 0x0080FF00}, {u" \t#abcdef12 ", 0x12ABCDEF},
        {u" RebeccaPurple", 0xFF663399}, {u"aliceblue", 0xFFF0F8FF}, {u"YELLOWGREEN", 0xFF9ACD32},
        {u"Grey", 0xFF808080},           {u"Transparent", 0}};
    for (const auto& [text, expected] : rows) {
        TAlphaColor color = 1;
        EXPECT_TRUE(TryParseColor(text, color)) << ToUtf8(text);
        EXPECT_EQ(color, expected) << ToUtf8(text);
    }
}

TEST(Colors, RefusesOtherTexts) {
    for (const std::u16string_view text : {u"", u"  ", u"#", u"#1234", u"#12345", u"#1234567", u"#123456789",
                                           u"#12345G", u"# 12345", u"#-12345", u"123456", u"0xFF00FF", u"redd"}) {
        TAlphaColor color = 1;
        EXPECT_FALSE(TryParseColor(text, color)) << ToUtf8(text);
        EXPECT_EQ(color, 0u) << ToUtf8(text);
        EXPECT_EQ(ParseColor(text), OpaqueWhite) << ToUtf8(text);
    }
}

TEST(Colors, ReadsTextsWithAlphaFirst) {
    EXPECT_EQ(HexToTAlphaColor(u"#80FF0000"), 0x80FF0000u);
    EXPECT_EQ(HexToTAlphaColor(u"12abCD"), 0xFF12ABCDu);
    try {
        HexToTAlphaColor(u"#1234567");
        ADD_FAILURE();
    } catch (const EConvertError& error) {
        EXPECT_EQ(error.Message(), u"Formato de color inválido. Use #RRGGBB o #AARRGGBB");
    }
    for (const std::u16string_view text : {u"", u"#", u"#12345", u"##123456", u" #123456", u"red", u"12345x"})
        EXPECT_THROW(HexToTAlphaColor(text), EConvertError) << ToUtf8(text);
}

TEST(Colors, WritesAndConverts) {
    EXPECT_EQ(AlphaColor(1, 2, 3, 4), 0x04010203u);
    EXPECT_EQ(AlphaColorToHex(0x040A0B0C), u"#0A0B0C04");
    EXPECT_EQ(ParseColor(AlphaColorToHex(0xFEDCBA98)), 0xFEDCBA98u);
    EXPECT_EQ(ColorToAlphaColor(0x00332211), 0xFF112233u);
    EXPECT_EQ(AlphaColorToColor(0x80112233), 0x00332211);
    EXPECT_EQ(ColorToTAlphaColor(0x00332211, 0x80), 0x80332211u) << "the bits as they stand";
    constexpr TAlphaColor resolved[] = {0, 0xFFFFFF, 0x0000FF, 0x808080, 0xA9A9A9, 0xC0C0C0, 0xD3D3D3};
    for (int role = 0; role < 256; ++role)
        EXPECT_THAT(resolved, testing::Contains(ColorToTAlphaColor(TColor(0x80000000u | unsigned(role)), 0))) << role;
}

TEST(Base64, FollowsTheVectorsOfTheStandard) {
    // clang-format off
    const std::pair<std::string_view, std::u16string_view> rows[] = {
        {"", u""}, {"f", u"Zg=="}, {"fo", u"Zm8="}, {"foo", u"Zm9v"}, {"foob", u"Zm9vYg=="},
        {"fooba", u"Zm9vYmE="}, {"foobar", u"Zm9vYmFy"}, {"\xFB\xFF\xBE", u"+/++"},
    };
    // clang-format on
    for (const auto& [bytes, text] : rows) {
        EXPECT_EQ(EncodeBase64(bytes), text);
        EXPECT_EQ(DecodeBase64(text), bytes);
    }
    EXPECT_EQ(DecodeBase64(u" Zm9v\r\nYg = = "), "foob");
    EXPECT_EQ(DecodeBase64(u"Zm9vYg"), "foob") << "without padding";
    for (const std::u16string_view bad : {u"Zm9*", u"Zm-_", u"ñ"})
        EXPECT_THROW(DecodeBase64(bad), EConvertError) << ToUtf8(bad);
}

} // namespace
} // namespace vagrel
