// SPDX-License-Identifier: MIT
// What the readers take and refuse. Every row runs through both readers.
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/JsonExceptions.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>
#include <vagrel/persistence/TJsonReader.h>
#include <vagrel/persistence/TJsonSerializationConfig.h>

#include <gtest/gtest.h>

namespace vagrel {
namespace {

// The compact text of what either reader made of `bytes`, or the message of its fault.
std::string Outcome(const std::function<std::unique_ptr<TJsonBaseObject>()>& read) {
    try {
        const auto tree = read();
        return tree ? tree->ToUtf8JSON() : "nothing";
    } catch (const EJsonParserException& fault) {
        return fault.what();
    }
}

void ExpectOutcome(const std::string& bytes, const std::string& expected) {
    EXPECT_EQ(Outcome([&] { return TJsonBaseObject::FromUtf8JSON(bytes); }), expected) << "UTF-8: " << bytes;
    EXPECT_EQ(Outcome([&] { return TJsonBaseObject::FromJSON(FromUtf8(bytes)); }), expected) << "UTF-16: " << bytes;
}

TEST(TJsonReader, Accepts) {
    const std::pair<const char*, const char*> rows[] = {
        {"", "nothing"},
        {" \t\r\n", "nothing"},
        {" { } ", "{}"},
        {"[\r\n]", "[]"},
        {"[true,false,null]", "[true,false,null]"},
        {"[0,-0,-1,10,1.5,1E2,1e+2,25e-1,-0.5e0]", "[0,0,-1,10,1.5,100,100,2.5,-0.5]"},
        {"[1e-999,0e999,123456789012345678901234567890]", "[0,0,1.23456789012346E29]"},
        {R"(["","a","1234567","12345678"])", R"(["","a","1234567","12345678"])"},
        {R"(["\"\\\/\b\f\n\r\t\u0041\u00e9\ud83d\ude00\u001F"])", "[\"\\\"\\\\/\\b\\f\\n\\r\\tAé😀\\u001F\"]"},
        {"[\"é€😀 \x7F\"]", "[\"é€😀 \x7F\"]"},
        {R"(["\ud800x\udc00"])", "[\"\uFFFDx\uFFFD\"]"},
        {R"({a:1,_b:2,$c:3,A_9:4})", R"({"a":1,"_b":2,"$c":3,"A_9":4})"},
        {R"({1:1,-2.50:2,true:3,null:4})", R"({"1":1,"-2.50":2,"true":3,"null":4})"},
        {R"({"b":1,"a":{"b":2,"b":3},"b":4})", R"({"b":4,"a":{"b":3}})"},
        {R"({"":{"é":[[],{}]}})", R"({"":{"é":[[],{}]}})"},
    };
    for (const auto& [text, expected] : rows)
        ExpectOutcome(text, expected);
}

TEST(TJsonReader, RefusesAndTellsWhere) {
    const std::pair<const char*, const char*> rows[] = {
        {"1", "Expected object or array but found number (1, 1)"},
        {"\"a\"", "Expected object or array but found string (1, 1)"},
        {"[", "Unexpected end of file where value was expected (1, 2)"},
        {"[1", "Unexpected end of file where \",\" was expected (1, 3)"},
        {"{", "Unexpected end of file where name was expected (1, 2)"},
        {"{\"a\"", "Unexpected end of file where \":\" was expected (1, 5)"},
        {"[1]\n [", "Expected end of file but found \"[\" (2, 2)"},
        {"[1}", "Expected \",\" but found \"}\" (1, 3)"},
        {"[1,]", "Expected value but found \"]\" (1, 4)"},
        {"[,1]", "Expected value but found \",\" (1, 2)"},
        {"{\"a\":1,}", "Expected name but found \"}\" (1, 8)"},
        {"{\"a\" 1}", "Expected \":\" but found number (1, 6)"},
        {"{\"a\":}", "Expected value but found \"}\" (1, 6)"},
        {"[+1]", "Expected value but found \"+\" (1, 2)"},
        {"[01]", "Expected \",\" but found number (1, 3)"},
        {"[-]", "Expected digit but found \"]\" (1, 3)"},
        {"[.5]", "Expected value but found \".\" (1, 2)"},
        {"[1.]", "Expected digit but found \"]\" (1, 4)"},
        {"[1.e1]", "Expected digit but found \"e1\" (1, 4)"},
        {"[1e+]", "Expected digit but found \"]\" (1, 5)"},
        {"[0x1]", "Expected \",\" but found \"x1\" (1, 3)"},
        {"[1e999]", "Number out of range (1, 2)"},
        {"[18446744073709551616e999]", "Number out of range (1, 2)"}, // 2^64, whose low bits are zero
        {"[NaN]", "Expected value but found \"NaN\" (1, 2)"},
        {"[-Infinity]", "Expected digit but found \"Infinity\" (1, 3)"},
        {"[True]", "Expected value but found \"True\" (1, 2)"},
        {"[nulls]", "Expected value but found \"nulls\" (1, 2)"},
        {"[1 /* */]", "Expected \",\" but found \"/\" (1, 4)"},
        {"['a']", "Expected value but found \"'\" (1, 2)"},
        {"[é]", "Expected value but found invalid character (1, 2)"},
        {"{é:1}", "Expected name but found invalid character (1, 2)"},
        {"[\"a", "String not closed (1, 2)"},
        {"[\"a\\", "String not closed (1, 2)"},
        {"{\"a:1}", "String not closed (1, 2)"},
        {"[\r\n\"é😀\n\"]", "Invalid character in string (2, 5)"},
        {"[\"a\rb\"]", "Invalid character in string (1, 4)"},
        {"[\"\t\"]", "Invalid character in string (1, 3)"},
        {"[\"\\x\"]", "Invalid character in string (1, 4)"},
        {"[\"\\u12g4\"]", "Invalid hex number \"12g4\" (1, 5)"},
        {"[\"\\u12", "Invalid hex number \"12\" (1, 5)"},
    };
    for (const auto& [text, expected] : rows)
        ExpectOutcome(text, expected);
}

TEST(TJsonReader, PicksTheNarrowestNumberType) {
    const std::pair<const char16_t*, TJsonDataType> rows[] = {
        {u"[2147483647]", jdtInt},
        {u"[-2147483648]", jdtInt},
        {u"[2147483648]", jdtLong},
        {u"[-2147483649]", jdtLong},
        {u"[9223372036854775807]", jdtLong},
        {u"[-9223372036854775808]", jdtLong},
        {u"[9223372036854775808]", jdtULong},
        {u"[18446744073709551615]", jdtULong},
        {u"[18446744073709551616]", jdtFloat},
        {u"[-9223372036854775809]", jdtFloat},
        {u"[1.0]", jdtFloat},
        {u"[1e0]", jdtFloat},
    };
    for (const auto& [text, typ] : rows) {
        TJsonArray array;
        array.Parse(text);
        EXPECT_EQ(array.GetType(0), typ) << ToUtf8(text);
    }
}

TEST(TJsonReader, RoundsEveryFloatRight) {
    for (const char* text : {"0.1", "10.123", "123456789.123456789", "9007199254740993.0", "1e22", "1e23",
                             "4.9406564584124654e-324", "2.2250738585072011e-308", "1.7976931348623157e308",
                             "0.000000000000000000000000000000000000012345678901234567890", "179769313486231570e291",
                             "18446744073709551617e0", "1844674407370955162.1"}) {
        TJsonArray array;
        array.ParseUtf8(std::string("[").append(text).append("]"));
        EXPECT_EQ(array.GetFloat(0), std::strtod(text, nullptr)) << text;
    }
}

TEST(TJsonReader, MalformedBytesBecomeReplacements) {
    TJsonArray array;
    array.ParseUtf8("[\"\xC0\x80x\xE2\x82\", \"\xED\xA0\x80\"]");
    EXPECT_EQ(array.GetString(0), u"\uFFFD\uFFFDx\uFFFD\uFFFD");
    EXPECT_EQ(array.GetString(1), u"\uFFFD\uFFFD\uFFFD");
}

TEST(TJsonReader, LimitsNesting) {
    auto nested = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    EXPECT_EQ(Outcome([&] { return TJsonBaseObject::FromUtf8JSON(nested(512)); }), nested(512));
    ExpectOutcome(nested(513), "Nesting is deeper than 512 levels (1, 513)");
    TJsonSerializationConfig::Instance().MaxDepth = 1000000;
    EXPECT_EQ(Outcome([&] { return TJsonBaseObject::FromUtf8JSON(nested(100000)); }), nested(100000));
    TJsonSerializationConfig::Reset();
}

TEST(TJsonReader, ManyKeysTakeTheirPlaces) {
    std::string text = "{";
    for (int i = 0; i < 100000; ++i)
        text.append("k").append(std::to_string(i)).append(":").append(std::to_string(i)).append(",");
    text += "k99999:-1,k0:-2}";
    TJsonObject object;
    object.ParseUtf8(text);
    ASSERT_EQ(object.Count(), 100000);
    EXPECT_EQ(object.GetName(0), u"k0");
    EXPECT_EQ(object.GetInt(u"k0"), -2);
    EXPECT_EQ(object.GetInt(u"k99999"), -1);
    EXPECT_EQ(object.IndexOf(u"k54321"), 54321);
}

TEST(TJsonReader, FaultLeavesTheOldContent) {
    TJsonObject object;
    object.SetInt(u"a", 1);
    EXPECT_THROW(object.Parse(u"{\"b\":2"), EJsonParserException);
    EXPECT_THROW(object.Parse(u"[]"), EJsonParserException);
    EXPECT_EQ(object.ToJSON(), u"{\"a\":1}");
    object.Parse(u" ");
    EXPECT_EQ(object.Count(), 0);
}

TEST(TJsonReader, ReportsProgress) {
    std::string text = "[";
    for (int i = 0; i < 999; ++i)
        text += "1,        ";
    text += "1        ]";
    for (const std::size_t threshold : {0, 1000}) {
        std::vector<std::size_t> positions;
        int last = 0;
        TJsonReaderProgressRec progress{&last, threshold,
                                        [&](void* data, int percentage, std::size_t position, std::size_t size) {
                                            EXPECT_EQ(size, text.size());
                                            *static_cast<int*>(data) = percentage;
                                            positions.push_back(position);
                                        }};
        TJsonBaseObject::FromUtf8JSON(text, &progress);
        EXPECT_EQ(last, 100);
        EXPECT_EQ(positions.back(), text.size());
        EXPECT_NEAR(double(positions.size()), threshold == 0 ? 100 : 10, 2);
    }
}

} // namespace
} // namespace vagrel
