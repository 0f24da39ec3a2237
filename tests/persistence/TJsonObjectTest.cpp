// SPDX-License-Identifier: MIT
// Values, their conversions, access by name, index and path, and texts, files and streams of trees.
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/JsonExceptions.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>
#include <vagrel/persistence/TJsonSerializationConfig.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <sstream>

namespace vagrel {
namespace {

class TJsonTest : public testing::Test {
protected:
    TJsonTest() { SetZone("UTC"); }
    ~TJsonTest() override { TJsonSerializationConfig::Reset(); }

    static void SetZone(const char* zone) {
        setenv("TZ", zone, 1);
        tzset();
    }
    static std::string MessageOf(const std::function<void()>& action) {
        try {
            action();
        } catch (const EVagrel& fault) {
            return fault.what();
        }
        return "";
    }
    TJsonObject object;
};

TEST_F(TJsonTest, AbsentNamesReadAsZero) {
    EXPECT_EQ(object.GetInt(u"a"), 0);
    EXPECT_EQ(object.GetString(u"a"), u"");
    EXPECT_EQ(object.GetDateTime(u"a"), 0);
    EXPECT_FALSE(object.GetBool(u"a"));
    EXPECT_EQ(object.IndexOf(u"a"), -1);
    EXPECT_TRUE(object.GetValue(u"a").IsNull());
    EXPECT_EQ(object.FindObject(u"a"), nullptr);
    EXPECT_EQ(object.Count(), 0);
    EXPECT_EQ(object.GetObject(u"o").GetFloat(u"x"), 0);
    EXPECT_EQ(object.GetArray(u"l").GetInt(7), 0);
    EXPECT_EQ(object.ToJSON(), u"{\"o\":{},\"l\":[]}");
}

TEST_F(TJsonTest, Converts) {
    struct TRow {
        const char16_t* json;
        std::int32_t asInt;
        std::int64_t asLong;
        std::uint64_t asULong;
        double asFloat;
        bool asBool;
        const char16_t* asString;
    };
    constexpr std::int64_t maxLong = std::numeric_limits<std::int64_t>::max();
    const TRow rows[] = {
        {u"null", 0, 0, 0, 0, false, u""},
        {u"true", 1, 1, 1, 1, true, u"true"},
        {u"-7", -7, -7, 0, -7, true, u"-7"},
        {u"-2.9", -2, -2, 0, -2.9, true, u"-2.9"},
        {u"1e300", 2147483647, maxLong, ~0ull, 1e300, true, u"1E300"},
        {u"5000000000", 2147483647, 5000000000, 5000000000, 5e9, true, u"5000000000"},
        {u"18446744073709551615", 2147483647, maxLong, ~0ull, 18446744073709551615.0, true, u"18446744073709551615"},
        {u"\" 12 \"", 12, 12, 12, 12, false, u" 12 "},
    };
    for (const TRow& row : rows) {
        object.Parse(std::u16string(u"{\"v\":").append(row.json).append(u"}"));
        SCOPED_TRACE(ToUtf8(row.json));
        EXPECT_EQ(object.GetInt(u"v"), row.asInt);
        EXPECT_EQ(object.GetLong(u"v"), row.asLong);
        EXPECT_EQ(object.GetULong(u"v"), row.asULong);
        EXPECT_EQ(object.GetFloat(u"v"), row.asFloat);
        EXPECT_EQ(object.GetBool(u"v"), row.asBool);
        EXPECT_EQ(object.GetString(u"v"), row.asString);
    }
    object.Parse(u"{t:\"true\",f:\"1.5\",big:\"18446744073709551615\",bad:\"x\",o:{},a:[]}");
    EXPECT_TRUE(object.GetBool(u"t"));
    EXPECT_EQ(object.GetFloat(u"f"), 1.5);
    EXPECT_EQ(object.GetULong(u"big"), ~0ull);
    EXPECT_THROW(object.GetInt(u"f"), EConvertError);
    EXPECT_THROW(object.GetLong(u"big"), EConvertError);
    EXPECT_THROW(object.GetFloat(u"bad"), EConvertError);
    EXPECT_THROW(object.GetDateTime(u"bad"), EConvertError);
    EXPECT_EQ(MessageOf([&] { object.GetInt(u"o"); }), "Cannot cast Object into Long");
    EXPECT_EQ(MessageOf([&] { object.GetString(u"a"); }), "Cannot cast Array into String");
    EXPECT_EQ(MessageOf([&] { object.GetObject(u"a"); }), "Cannot cast Array into Object");
    EXPECT_EQ(MessageOf([&] { object.GetArray(u"bad"); }), "Cannot cast String into Array");
}

TEST_F(TJsonTest, NullContainersConvertOnRequestOnly) {
    object.SetObject(u"o", nullptr);
    EXPECT_EQ(object.ToJSON(), u"{\"o\":null}");
    EXPECT_THROW(object.GetInt(u"o"), EJsonCastException);
    TJsonSerializationConfig::Instance().NullConvertsToValueTypes = true;
    EXPECT_EQ(object.GetInt(u"o"), 0);
    object.GetArray(u"o").Add(1);
    EXPECT_EQ(object.ToJSON(), u"{\"o\":[1]}");
}

TEST_F(TJsonTest, KeepsOrderThroughChanges) {
    object.Parse(u"{\"z\":1,\"a\":2,\"m\":3}");
    object.SetString(u"a", u"a text that is long enough for the heap");
    object.SetBool(u"b", true);
    object.Remove(u"z");
    object.Remove(u"absent");
    object.SetULong(u"z", 18446744073709551615u);
    EXPECT_EQ(object.ToJSON(),
              u"{\"a\":\"a text that is long enough for the heap\",\"m\":3,\"b\":true,\"z\":18446744073709551615}");
    object.Delete(1);
    EXPECT_EQ(object.IndexOf(u"z"), 2);
    EXPECT_THROW(object.Delete(3), EOutOfRange);
    std::u16string names;
    for (const auto& [name, value] : object)
        names += name;
    EXPECT_EQ(names, u"abz");
}

TEST_F(TJsonTest, FindsNamesOfLargeObjects) {
    for (int i = 0; i < 200; ++i)
        object.SetInt(std::u16string(u"n").append(IntToStr(i)), i);
    EXPECT_EQ(object.IndexOf(u"n150"), 150);
    object.Remove(u"n100");
    object.SetInt(u"n100", -1);
    EXPECT_EQ(object.IndexOf(u"n150"), 149);
    EXPECT_EQ(object.GetInt(u"n100"), -1);
    EXPECT_EQ(object.IndexOf(u"n200"), -1);
    object.Clear();
    EXPECT_EQ(object.IndexOf(u"n150"), -1);
}

TEST_F(TJsonTest, HandsContainersOver) {
    object.AddObject(u"o").SetInt(u"x", 1);
    object.AddArray(u"a").AddObject().SetInt(u"y", 2);
    object.AddArray(u"a").Add(u"new");
    EXPECT_THROW(object.ExtractArray(u"o"), EJsonCastException);
    const std::unique_ptr<TJsonObject> taken = object.ExtractObject(u"o");
    EXPECT_EQ(taken->ToJSON(), u"{\"x\":1}");
    EXPECT_EQ(object.ExtractObject(u"o"), nullptr);
    EXPECT_EQ(object.ToJSON(), u"{\"a\":[\"new\"]}");
    object.SetArray(u"o", object.ExtractArray(u"a"));
    EXPECT_EQ(object.ToJSON(), u"{\"o\":[\"new\"]}");
}

TEST_F(TJsonTest, ArraysInsertAndDelete) {
    TJsonArray array;
    array.Add(2);
    array.Insert(0, u"first");
    array.Insert(2, nullptr);
    array.InsertObject(1).SetInt(u"k", 1);
    array.InsertArray(4).Add(1.5);
    array.Add(std::int64_t(1) << 40);
    EXPECT_EQ(array.ToJSON(), u"[\"first\",{\"k\":1},2,null,[1.5],1099511627776]");
    EXPECT_THROW(array.Insert(9, 1), EOutOfRange);
    EXPECT_THROW(array.GetObject(6), EOutOfRange);
    EXPECT_THROW(array.SetInt(-1, 0), EOutOfRange);
    EXPECT_EQ(array.ExtractObject(1)->GetInt(u"k"), 1);
    array.Delete(0);
    EXPECT_EQ(array.ToJSON(), u"[2,null,[1.5],1099511627776]");
}

TEST_F(TJsonTest, HelpersReadAndWriteThrough) {
    object.GetValue(u"a") = 5;
    const std::int32_t number = object.GetValue(u"a");
    EXPECT_EQ(number, 5);
    auto absent = object.GetValue(u"b");
    EXPECT_FALSE(object.Contains(u"b"));
    absent = u"text";
    absent = true;
    object.GetValue(u"o") = std::make_unique<TJsonObject>();
    static_cast<TJsonObject*>(object.GetValue(u"o"))->SetInt(u"x", 1);
    object.SetValue(u"copy", object.GetValue(u"o"));
    object.GetObject(u"o").SetInt(u"x", 2);
    EXPECT_EQ(object.ToJSON(), u"{\"a\":5,\"b\":true,\"o\":{\"x\":2},\"copy\":{\"x\":1}}");
}

TEST_F(TJsonTest, WalksPaths) {
    object.Parse(u"{a:{b:[1,2,{c:\"deep\"},[7]]},n:null,s:1}");
    EXPECT_EQ(std::u16string(object.GetPath(u"a.b[2].c")), u"deep");
    EXPECT_EQ(std::int32_t(object.GetPath(u"a.b[3][0]")), 7);
    EXPECT_TRUE(object.GetPath(u"n").IsNull());
    object.SetPath(u"a.b[0]", 9);
    object.SetPath(u"x.y", true);
    EXPECT_EQ(object.ToJSON(), u"{\"a\":{\"b\":[9,2,{\"c\":\"deep\"},[7]]},\"n\":null,\"s\":1,\"x\":{\"y\":true}}");
    const std::pair<const char16_t*, const char*> rows[] = {
        {u"", "Invalid JSON path \"\""},
        {u"a..b", "Invalid JSON path \"a..b\""},
        {u"a.", "Invalid JSON path \"a.\""},
        {u"a.b[-1]", "Invalid JSON path \"a.b[-1]\""},
        {u"a.b[x]", "Invalid JSON path \"a.b[x]\""},
        {u"a.b[1x]", "Invalid JSON path \"a.b[1x]\""},
        {u"a.b[]", "Invalid JSON path \"a.b[]\""},
        {u"a.b[1", "Invalid JSON path \"a.b[1\""},
        {u"a.b[2]c", "Invalid JSON path \"a.b[2]c\""},
        {u"a.b[99999999999]", "Invalid JSON path \"a.b[99999999999]\""},
        {u"n.x", "JSON path contains null value (\"n.x\")"},
        {u"a.b[4]", "JSON path index out of bounds (4) \"a.b[4]\""},
        {u"new[0]", "JSON path index out of bounds (0) \"new[0]\""},
        {u"s.x", "Cannot cast Integer into Object"},
    };
    for (const auto& [path, message] : rows)
        EXPECT_EQ(MessageOf([&, at = path] { object.GetPath(at); }), message);
}

TEST_F(TJsonTest, WritesDateTimes) {
    const double noon = 45000.5 + 7.0 / 86400000; // 2023-03-15
    SetZone("XXX-5:30");
    EXPECT_EQ(TJsonBaseObject::UtcDateTimeToJSON(noon), u"2023-03-15T12:00:00.7Z");
    EXPECT_EQ(TJsonBaseObject::DateTimeToJSON(noon, false), u"2023-03-15T12:00:00.7+05:30");
    EXPECT_EQ(TJsonBaseObject::DateTimeToJSON(noon, true), u"2023-03-15T06:30:00.7Z");
    object.SetDateTime(u"l", noon);
    object.SetUtcDateTime(u"u", noon);
    EXPECT_EQ(object.ToJSON(), u"{\"l\":\"2023-03-15T06:30:00.7Z\",\"u\":\"2023-03-15T12:00:00.7Z\"}");
    object.Parse(object.ToJSON());
    EXPECT_NEAR(object.GetDateTime(u"l"), noon, 1e-9);
    EXPECT_NEAR(object.GetUtcDateTime(u"u"), noon, 1e-9);
    SetZone("XXX3");
    EXPECT_EQ(TJsonBaseObject::DateTimeToJSON(noon, false), u"2023-03-15T12:00:00.7-03:00");
    SetZone("UTC");
    EXPECT_EQ(TJsonBaseObject::DateTimeToJSON(0, false), u"1899-12-30T00:00:00.0Z");
}

TEST_F(TJsonTest, ReadsDateTimes) {
    SetZone("XXX-2");
    const std::pair<const char16_t*, double> rows[] = {
        {u"", 0},
        {u"1970-01-01T00:00:00Z", 25569},
        {u"1970-01-01T00:00:00.500Z", 25569 + 0.5 / 86400},
        {u"1970-01-01T00:00:00.5Z", 25569 + 0.005 / 86400},
        {u"1970-01-02T01:00:00+01:00", 25570},
        {u"1970-01-01T18:00:00-06:00", 25570},
        {u"1970-01-01T02:00:00", 25569},
        {u"/Date(86400000)/", 25570},
        {u"/Date(-86400000)/", 25568},
    };
    for (const auto& [text, utc] : rows) {
        EXPECT_NEAR(TJsonBaseObject::JSONToDateTime(text, true), utc, 1e-9) << ToUtf8(text);
        const double local = utc == 0 ? 0 : utc + 2.0 / 24;
        EXPECT_NEAR(TJsonBaseObject::JSONToDateTime(text, false), local, 1e-9) << ToUtf8(text);
    }
    for (const char16_t* bad : {u"1970-02-30T00:00:00Z", u"1970-01-01T00:61:00Z", u"1970-01-01T00:00:00.Z", u"/Date(1",
                                u"today", u"1970-01-01T00:00:00ZZ"})
        EXPECT_THROW(TJsonBaseObject::JSONToDateTime(bad, true), EConvertError) << ToUtf8(bad);
}

TEST_F(TJsonTest, WritesIndented) {
    object.Parse(u"{\"a\":[1,{\"b\":[]}],\"c\":{}}");
    EXPECT_EQ(object.ToJSON(false), u"{\n\t\"a\": [\n\t\t1,\n\t\t{\n\t\t\t\"b\": []\n\t\t}\n\t],\n\t\"c\": {}\n}");
    TJsonSerializationConfig::Instance().LineBreak = u"\r\n";
    TJsonSerializationConfig::Instance().IndentChar = u"  ";
    std::vector<std::u16string> lines;
    object.GetArray(u"a").Clear();
    object.SaveToLines(lines);
    EXPECT_EQ(lines, (std::vector<std::u16string>{u"{", u"  \"a\": [],", u"  \"c\": {}", u"}"}));
}

TEST_F(TJsonTest, WritesEveryText) {
    const std::u16string text = u"\"\\/\b\f\n\r\t\x01\x1F\x7Fé\u2028😀" + std::u16string(1, char16_t(0xDC00)) +
                                std::u16string(1000, u'\x01') + char16_t(0xD800);
    object.SetString(text, text);
    TJsonObject back;
    back.Parse(object.ToJSON());
    EXPECT_EQ(back.GetName(0), text);
    EXPECT_EQ(back.GetString(text), text);
    object.Parse(u"{\"s\":\"\\ud83d\\ude00\\udc00\\u0001\"}");
    EXPECT_EQ(object.ToUtf8JSON(), "{\"s\":\"\xF0\x9F\x98\x80\xEF\xBF\xBD\\u0001\"}");
    TJsonArray numbers;
    for (const double number : {0.1, -0.0, 1.0 / 3, 1e20, HUGE_VAL, std::nan("")})
        numbers.Add(number);
    EXPECT_EQ(numbers.ToJSON(), u"[0.1,0,0.333333333333333,1E20,null,null]");
}

TEST_F(TJsonTest, ReadsAndWritesEncodings) {
    object.SetString(u"é", std::u16string(50000, u'€').append(u"😀"));
    for (const TJsonEncoding encoding : {jeUtf8, jeUtf8Bom, jeUtf16LE, jeUtf16BE}) {
        std::stringstream stream;
        object.SaveToStream(stream, false, encoding);
        TJsonObject back;
        back.LoadFromStream(stream);
        EXPECT_EQ(back.ToJSON(), object.ToJSON()) << encoding;
        const std::string name = testing::TempDir() + "vagrel_json_test.json";
        object.SaveToFile(name, true, encoding);
        EXPECT_EQ(TJsonBaseObject::ParseFromFile(name)->ToJSON(), object.ToJSON()) << encoding;
        std::remove(name.c_str());
    }
    for (const std::string& mark : {std::string("\xFF\xFE\0\0", 4), std::string("\0\0\xFE\xFF", 4)}) {
        std::istringstream stream(mark);
        EXPECT_EQ(MessageOf([&] { object.LoadFromStream(stream); }), "File encoding is not supported");
    }
    EXPECT_THROW(object.LoadFromFile("/nonexistent/file.json"), EStreamError);
}

TEST_F(TJsonTest, BrokenUtf16IsToldWithItsPlace) {
    const auto bytes = [](std::u16string_view text, bool bigEndian) {
        std::string all = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
        for (const char16_t unit : text)
            (all += char(bigEndian ? unit >> 8 : unit)) += char(bigEndian ? unit : unit >> 8);
        return all;
    };
    const std::u16string high(1, char16_t(0xD83D)), low(1, char16_t(0xDE00));
    const std::pair<std::u16string, const char*> rows[] = {
        {u"{\"a\":\n\"" + high + low + high + u"\"}", "Half a surrogate pair in UTF-16 text (2, 4)"},
        {u"{\"" + low + high + u"\":1}", "Half a surrogate pair in UTF-16 text (1, 3)"},
        {u"{\"" + high, "Half a surrogate pair in UTF-16 text (1, 3)"},
        {u"{\"" + high + low, "String not closed (1, 2)"},
        {u"{", "Unexpected end of file where name was expected (1, 2)"},
        {u" ", ""},
    };
    for (const bool bigEndian : {false, true}) {
        for (const auto& [text, told] : rows)
            EXPECT_EQ(MessageOf([&, &text = text] { object.ParseBytes(bytes(text, bigEndian)); }), told);
        EXPECT_EQ(MessageOf([&] { object.ParseBytes(bytes(u"{}", bigEndian) + "x"); }),
                  "UTF-16 text has an odd number of bytes (1, 3)");
        // What is broken in memory is written so that it can be read.
        object.SetString(u"a", high);
        std::stringstream stream;
        object.SaveToStream(stream, true, bigEndian ? jeUtf16BE : jeUtf16LE);
        object.LoadFromStream(stream);
        EXPECT_EQ(object.GetString(u"a"), u"\uFFFD");
    }
}

TEST_F(TJsonTest, DeepTreesCopyWriteAndGo) {
    constexpr std::size_t depth = 1000000;
    TJsonArray root;
    TJsonArray* inner = &root;
    for (std::size_t i = 1; i < depth; ++i)
        inner = &inner->AddArray();
    const auto copy = root.Clone();
    root.Clear();
    EXPECT_EQ(copy->ToUtf8JSON(), std::string(depth, '[') + std::string(depth, ']'));
}

TEST_F(TJsonTest, ClonesStandAlone) {
    object.Parse(u"{\"a\":[1,\"a text on the heap\",{\"k\":true}],\"b\":1.5}");
    const std::u16string text = object.ToJSON();
    const auto copy = object.Clone();
    object.GetArray(u"a").GetObject(2).SetInt(u"k", 2);
    object.Remove(u"b");
    EXPECT_EQ(copy->ToJSON(), text);
    copy->GetArray(u"a").Add(1);
    EXPECT_EQ(copy->GetArray(u"a").Count(), 4);
}

} // namespace
} // namespace vagrel
