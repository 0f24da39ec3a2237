// SPDX-License-Identifier: MIT
// Colours as JSON objects and as texts under a key.
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/JsonColors.h>
#include <vagrel/persistence/TJsonObject.h>

#include <gtest/gtest.h>

namespace vagrel {
namespace {

TEST(JsonColors, WritesChannelsInOrder) {
    TJsonObject parent;
    SetAlphaColor(parent, u"Pen", 0x04010203);
    ColorHex(parent, 0x80FF0001);
    EXPECT_EQ(ToUtf8(parent.ToJSON()), R"({"Pen":{"R":1,"G":2,"B":3,"A":4},"Color":"#FF000180"})");
    EXPECT_EQ(GetAlphaColor(parent.GetObject(u"Pen")), 0x04010203u);
    EXPECT_EQ(ParseJsonColor(parent), 0x80FF0001u);
}

TEST(JsonColors, ReadersDifferInWhatIsMissing) {
    const struct {
        std::u16string_view json;
        TAlphaColor get, parseJs, parseJson;
    } rows[] = {
        {u"{'R':1,'G':2,'B':3,'A':4}", 0x04010203, 0x04010203, 0x04010203},
        {u"{'R':1,'G':2,'B':3}", 0x00010203, 0xFF010203, 0xFF010203},
        {u"{'R':1,'G':2,'B':3,'A':0}", 0x00010203, 0x00010203, 0x00010203},
        {u"{'R':1,'B':3}", 0x00010003, 0xFF010003, OpaqueWhite},
        {u"{}", 0, OpaqueBlack, OpaqueWhite},
        {u"{'R':1,'G':2,'B':3,'Color':'#0A0B0C0D'}", 0x00010203, 0xFF010203, 0x0D0A0B0C},
        {u"{'R':1,'G':2,'B':3,'Color':'none such'}", 0x00010203, 0xFF010203, OpaqueWhite},
        {u"{'R':1,'G':2,'B':3,'Color':7}", 0x00010203, 0xFF010203, 0xFF010203},
        {u"{'R':257,'G':-1,'B':99999999999,'A':'8'}", 0x0801FFFF, 0x0801FFFF, 0x0801FFFF},
    };
    for (const auto& row : rows) {
        TJsonObject json;
        json.Parse(ReplaceAll(row.json, u"'", u"\""));
        EXPECT_EQ(GetAlphaColor(json), row.get) << ToUtf8(row.json);
        EXPECT_EQ(ParseJsColor(json), row.parseJs) << ToUtf8(row.json);
        EXPECT_EQ(ParseJsonColor(json), row.parseJson) << ToUtf8(row.json);
    }
}

} // namespace
} // namespace vagrel
