// SPDX-License-Identifier: MIT
// Records and cells of CSV, written down by hand.
#include <vagrel/merge/TCsvReader.h>

#include <vagrel/foundation/Exceptions.h>

#include <gtest/gtest.h>

namespace vagrel {
namespace {

using TRecords = std::vector<std::vector<std::u16string>>;

TRecords Records(const std::string& text, char separator, char quote) {
    const TCsvReader reader(text, separator, quote);
    TRecords records(std::size_t(reader.Count()));
    for (int i = 0; i < reader.Count(); ++i)
        reader.Read(i, records[std::size_t(i)]);
    return records;
}

struct TCase {
    const char* what;
    const char* text;
    char quote;
    TRecords records;
};

TEST(TCsvReader, SplitsRecordsAndCells) {
    const TCase cases[] = {
        {"nothing", "", '"', {}},
        {"one cell", "a", '"', {{u"a"}}},
        {"a line break at the end adds nothing", "a;b\n", '"', {{u"a", u"b"}}},
        {"an empty line is a record", "a\n\nb", '"', {{u"a"}, {u""}, {u"b"}}},
        {"all line breaks", "a\rb\r\nc\nd", '"', {{u"a"}, {u"b"}, {u"c"}, {u"d"}}},
        {"empty cells", ";\n;;", '"', {{u"", u""}, {u"", u"", u""}}},
        {"separator and line break in quotes", "\"a;b\nc\";d", '"', {{u"a;b\nc", u"d"}}},
        {"doubled quotes", "\"say \"\"x\"\"\";\"\"\"\"", '"', {{u"say \"x\"", u"\""}}},
        {"empty quotes", "\"\";x", '"', {{u"", u"x"}}},
        {"a quote inside a cell is data", "5\" pipe;a", '"', {{u"5\" pipe", u"a"}}},
        {"text behind the closing quote", "\"a\"b;c", '"', {{u"ab", u"c"}}},
        {"marks at all places of a group of bytes",
         "abcdefg;1234567\n12345678;\"9\n\";abcdefghijk\"\r\nx",
         '"',
         {{u"abcdefg", u"1234567"}, {u"12345678", u"9\n", u"abcdefghijk\""}, {u"x"}}},
        {"a quote behind a separator in quotes", "\"a;\"\"b\";\"c\"d\";e", '"', {{u"a;\"b", u"cd\"", u"e"}}},
        {"other letters", "é;\"ñ;€\"", '"', {{u"é", u"ñ;€"}}},
        {"single quotes", "'a;b';\"c", '\'', {{u"a;b", u"\"c"}}},
        {"no quotes", "\"a;b\"", 0, {{u"\"a", u"b\""}}},
    };
    for (const TCase& one : cases)
        EXPECT_EQ(Records(one.text, ';', one.quote), one.records) << one.what;
}

TEST(TCsvReader, TellsWhereAQuoteOpens) {
    for (const char* text : {"a;b\nc;\"d\ne", "a;b\rc;\"d", "\r\n\"d"}) {
        try {
            TCsvReader(text, ';', '"');
            FAIL();
        } catch (const EVagrel& error) {
            EXPECT_STREQ(error.what(), "The quote that opens in line 2 is not closed") << text;
        }
    }
}

} // namespace
} // namespace vagrel
