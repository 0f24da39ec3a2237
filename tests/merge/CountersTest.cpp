// SPDX-License-Identifier: MIT
// Counters, questions and value lists.
#include "MergeFixture.h"

#include <vagrel/foundation/Exceptions.h>
#include <vagrel/persistence/TBinaryWriter.h>

#include <limits>

namespace vagrel::test {
namespace {

constexpr std::int64_t Most = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t Least = std::numeric_limits<std::int64_t>::min();

struct TCounterRow {
    const char* text;
    std::int64_t from, to;
    std::int32_t step;
    std::int16_t repeat;
    std::int32_t labels;
    const char* values;
};

TEST(TVGRCounter, CountsAndMovesAlike) {
    const TCounterRow rows[] = {
        {"each number twice", 1, 3, 1, 2, 6, "1 1 2 2 3 3 3 3 "},
        {"by threes", 1, 10, 3, 1, 3, "1 4 7 10 10 10 "},
        {"a last number beside the step", 1, 9, 3, 2, 6, "1 1 4 4 7 7 7 "},
        {"a step of 0 is 1", 5, 6, 0, 1, 2, "5 6 6 "},
        {"downwards it has no end", 1, 2, -2, 1, -1, "1 -1 -3 "},
        {"at the limits", Most - 1, Most, 1, 1, 2, "9223372036854775806 9223372036854775807 9223372036854775807 "},
        {"label counts saturate", Least, Most, 1, 9, 2147483647, "-9223372036854775808 "},
        {"the end of downwards", Least, Least + 1, -9, 1, 0, "-9223372036854775808 -9223372036854775808 "},
    };
    for (const TCounterRow& row : rows) {
        SCOPED_TRACE(row.text);
        TestHost label;
        TVGRCounter& counter = *new TVGRCounter(label);
        counter.SetNumTo(row.to);
        counter.SetNumFrom(row.from);
        counter.SetNumTo(row.to);
        counter.SetStep(row.step);
        counter.SetRepeat(row.repeat);
        EXPECT_EQ(counter.GetNumLabs(), row.labels);
        std::string walked, moved;
        counter.Reset();
        for (std::size_t i = 1; walked.size() < std::string_view(row.values).size(); ++i, counter.Next())
            walked += ToUtf8(counter.GetValue()) + " ";
        EXPECT_EQ(walked, row.values);
        for (std::int64_t i = 1; moved.size() < walked.size(); ++i) {
            counter.MoveTo(i);
            moved += ToUtf8(counter.GetValue()) + " ";
        }
        EXPECT_EQ(moved, row.values);
    }
}

TEST(TVGRCounter, ContinuesInsideARepeat) {
    TestHost label;
    TVGRCounter& counter = *new TVGRCounter(label);
    counter.SetRepeat(3);
    counter.SetBefore(u"A-");
    counter.SetAfter(u"!");
    counter.SetFormat(u"000");
    counter.MoveTo(20);
    EXPECT_EQ(counter.GetValue(), u"A-007!");
    counter.Next();
    EXPECT_EQ(counter.GetValue(), u"A-007!");
    counter.Next();
    EXPECT_EQ(counter.GetValue(), u"A-008!");
    counter.SetNumTo(Most);
    counter.SetNumFrom(99'999'999'999'999'997);
    counter.SetFormat(u"000000000000000000");
    counter.Reset();
    EXPECT_EQ(counter.GetValue(), u"A-099999999999999997!") << "more digits than a double has";
}

TEST(TVGRCounter, ReadsADamagedBlockWithinItsLimits) {
    TBinaryWriter writer;
    writer.Write(u"");
    writer.Write<std::int64_t>(9);
    writer.Write<std::int64_t>(5);
    writer.Write<std::int32_t>(0);
    writer.Write<std::int16_t>(0);
    for (int i = 0; i < 3; ++i)
        writer.Write(u"");
    TBinaryReader reader(writer.Bytes());
    TestHost label;
    TVGRCounter& counter = *new TVGRCounter(label);
    counter.ReadData(3200, reader);
    counter.MoveTo(4);
    EXPECT_EQ(counter.GetValue(), u"5");
    EXPECT_EQ(counter.GetNumLabs(), 1);
}

TEST(TVGRCounter, IsFoundAndRemovedByName) {
    TestHost label;
    TVGRCounter* first = new TVGRCounter(label);
    TVGRCounter* second = new TVGRCounter(label);
    first->SetName(u"No");
    second->SetName(u"Box");
    BoundItem& bound = Bind(label, ftCounter, u"NO");
    BoundItem& other = Bind(label, ftCounter, u"box");
    BoundItem& question = Bind(label, ftAsk, u"no");
    EXPECT_EQ(label.FindCounter(u"bOX"), second);
    EXPECT_EQ(label.CounterValue(u"none"), u"");
    EXPECT_TRUE(label.CounterName(u"no", second) && label.CounterName(u"no", nullptr));
    EXPECT_FALSE(label.CounterName(u"no", first));
    EXPECT_FALSE(label.RemoveCounter(nullptr));
    EXPECT_TRUE(label.RemoveCounter(first));
    EXPECT_EQ(label.CounterCount(), 1);
    EXPECT_EQ(bound.SymFillName(), u"") << "also while no merge runs";
    EXPECT_EQ(other.SymFillName(), u"@box");
    EXPECT_EQ(question.SymFillName(), u"?no");
}

TEST(AskLists, Answers) {
    TestHost label;
    TVGRData& data = label.GetData();
    data.AddAskVal(u"q");
    TKSAskField& question = *data.GetAskField(u"Q");
    question.fAnsText = u"12", question.fAnsInt = 7, question.fAnsNumber = -2.75, question.fAnsDT = 45292.75;
    const struct {
        TKSLAskType type;
        std::u16string_view format, text;
        int integer;
        float number;
    } rows[] = {
        {atText, u"000", u"12", 12, 12},
        {atInteger, u"", u"7", 7, 7},
        {atInteger, u"000", u"007", 7, 7},
        {atNumber, u"", u"-2.75", -2, -2.75f},
        {atNumber, u"0.0", u"-2.8", -2, -2.75f},
        {atDateTime, u"", u"01/01/2024", 45292, 45292.75f},
        {atDateTime, u"yyyy HH:nn", u"2024 18:00", 45292, 45292.75f},
    };
    for (const auto& row : rows) {
        question.fAskType = row.type;
        EXPECT_EQ(label.DataValue(u"q", row.format, ftAsk), row.text);
        EXPECT_EQ(label.DataIntValue(u"q", ftAsk), row.integer);
        EXPECT_EQ(label.DataNumValue(u"q", ftAsk), row.number);
    }
    EXPECT_EQ(label.DataValue(u"none", u"", ftAsk), u"none");
    EXPECT_EQ(label.DataIntValue(u"none", ftAsk), 0);
    data.AddListVal(u"l");
    data.GetListVal(1)->fAnsText = u"5";
    EXPECT_EQ(label.DataValue(u"L", u"", ftList), u"5");
    EXPECT_EQ(label.DataIntValue(u"l", ftList), 0) << "lists are texts";
    EXPECT_EQ(label.DataValue(u"none", u"", ftList), u"none");
}

TEST(AskLists, NamesAreKeptApart) {
    TestHost label;
    TVGRData& data = label.GetData();
    EXPECT_TRUE(data.AddAskVal(u"a") && data.AddAskVal(u"b"));
    EXPECT_FALSE(data.AddAskVal(u"a"));
    EXPECT_THROW(data.SetAskName(1, u""), EVagrel);
    EXPECT_THROW(data.SetAskName(1, u"B"), EVagrel);
    data.SetAskName(1, u"A");
    BoundItem& first = Bind(label, ftAsk, u"a");
    BoundItem& second = Bind(label, ftAsk, u"b");
    EXPECT_FALSE(data.DeleteAsk(0) || data.DeleteAsk(3));
    EXPECT_TRUE(data.DeleteAsk(1));
    EXPECT_EQ(first.SymFillName(), u"");
    EXPECT_EQ(second.SymFillName(), u"?b");
    EXPECT_EQ(data.GetAskField(1)->fName, u"b");
    EXPECT_EQ(data.GetAskField(2), nullptr);
}

} // namespace
} // namespace vagrel::test
