// SPDX-License-Identifier: MIT
// The primitive forms of the binary document, whole and damaged.
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/persistence/TBinaryWriter.h>

#include <gtest/gtest.h>

#include <limits>

namespace vagrel {
namespace {

TEST(TBinaryWriter, TextsTellTheirLengthInGroupsOfSevenBits) {
    const std::pair<std::size_t, std::string> rows[] = {
        {0, std::string(1, '\0')}, {127, "\x7F"}, {128, "\x80\x01"}, {16383, "\xFF\x7F"}, {16384, "\x80\x80\x01"}};
    for (const auto& [length, head] : rows) {
        TBinaryWriter writer;
        writer.Write(std::u16string(length, u'x'));
        EXPECT_EQ(writer.Bytes(), head + std::string(length, 'x')) << length;
        TBinaryReader reader(writer.Bytes());
        EXPECT_EQ(reader.ReadString().size(), length);
        EXPECT_EQ(reader.Left(), 0u);
    }
    TBinaryWriter writer;
    writer.Write(u"é😀"); // counted in bytes
    EXPECT_EQ(writer.Bytes(), "\x06\xC3\xA9\xF0\x9F\x98\x80");
}

TEST(TBinaryReader, EveryPrefixEndsTooEarly) {
    TBinaryWriter writer;
    writer.Write<std::int16_t>(-2);
    writer.Write(std::numeric_limits<std::int64_t>::min());
    writer.Write(1.5f);
    writer.Write(true);
    writer.Write(std::u16string(200, u'x'));
    const std::string bytes = writer.Take();
    EXPECT_EQ(bytes.substr(0, 2), "\xFE\xFF") << "the low byte first, without padding";
    const auto read = [](TBinaryReader& reader) {
        EXPECT_EQ(reader.Read<std::int16_t>(), -2);
        EXPECT_EQ(reader.Read<std::int64_t>(), std::numeric_limits<std::int64_t>::min());
        EXPECT_EQ(reader.Read<float>(), 1.5f);
        EXPECT_TRUE(reader.ReadBool());
        EXPECT_EQ(reader.ReadString().size(), 200u);
    };
    TBinaryReader whole(bytes);
    read(whole);
    EXPECT_EQ(whole.Position(), bytes.size());
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        // A copy of its own, so that a sanitizer sees a step beyond the end.
        const std::string prefix(bytes, 0, size);
        TBinaryReader reader(prefix);
        EXPECT_THROW(read(reader), EStreamError) << size;
    }
}

TEST(TBinaryReader, DamagedLengthsAreRefused) {
    const std::pair<std::string, std::string> rows[] = {
        {"\xFF\xFF\xFF\xFF\xFF\x01", "damaged text length at byte 6"},
        {"\xFF\xFF\xFF\xFF\x0F", "unexpected end of data at byte 5"},
        {"\x02x", "unexpected end of data at byte 1"},
    };
    for (const auto& [bytes, told] : rows) {
        TBinaryReader reader(bytes);
        try {
            reader.ReadString();
            ADD_FAILURE() << told;
        } catch (const EStreamError& error) {
            EXPECT_EQ(error.what(), told);
        }
    }
    TBinaryReader reader("abc");
    EXPECT_THROW(reader.ReadBytes(-1), EStreamError);
    EXPECT_THROW(reader.ReadBytes(4), EStreamError);
    EXPECT_EQ(reader.ReadBytes(3), "abc") << "a refusal takes nothing";
}

} // namespace
} // namespace vagrel
