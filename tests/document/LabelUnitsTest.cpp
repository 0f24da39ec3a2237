// SPDX-License-Identifier: MIT
// Units, modes and the conversions of a document.
#include <tests/support/TestHost.h>

#include <vagrel/document/TVGRMeasure.h>

#include <gtest/gtest.h>

namespace vagrel::test {
namespace {

TEST(LabelUnits, ConversionsByUnit) {
    const struct {
        TKSLUnits units;
        std::int64_t base, restricted; // of 2 units
        float fromMM, draw;            // of 100 mm; of 10 at 254 dots per inch in labelling
    } rows[] = {{unMM, 2000, 2000, 100, 100},
                {unINCH, 50800, 50800, 100 / 25.4f, 2540},
                {unCM, 20000, 20000, 10, 1000},
                {unM, 2000000, 2000, 0.1f, 100},
                {unFt, 609600, 2000, 100 / 304.8f, 100},
                {unYd, 1828000, 2000, 100 / 914.0f, 100}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.units);
        TestHost label(emDrawing, row.units, 50);
        EXPECT_EQ(label.SetVal(2, false), row.base);
        EXPECT_EQ(label.SetVal(2, true), row.restricted);
        EXPECT_FLOAT_EQ(label.BaseValue(100), row.fromMM);
        EXPECT_EQ(label.GetValMM(2000000), 40);
        EXPECT_EQ(label.GetDataDrawValue(10, 254), 100); // no inverse outside labelling
        label.SetEditorMode(emLabelling);                // the unit stays
        EXPECT_FLOAT_EQ(label.GetDrawValue(10.0f, 254), row.draw);
        EXPECT_EQ(label.GetPrintValue(10, 254), std::int64_t(row.draw));
    }
}

TEST(LabelUnits, TheModeLimitsUnitsAndShapesThePage) {
    for (auto [mode, unit] :
         {std::pair{emLabelling, unMM}, {emFlowChart, unMM}, {emDrawing, unYd}, {emInteractive, unYd}})
        EXPECT_EQ(TestHost(mode, unYd).GetUnits(), unit) << mode;
    TestHost label(emDrawing, unMM, 20);
    RecordingObserver editor(duEditor);
    label.Attach(&editor);
    editor.Take();
    EXPECT_TRUE(label.GetMeasure().GetContinousPaper());
    const auto name = label.GetMeasure().GetLabelName();
    label.SetEditorMode(emInteractive), label.SetEditorMode(emInteractive);
    EXPECT_EQ(editor.Take(), (std::vector<TKSChange>{chMeasure, chUnits}));
    EXPECT_EQ(label.GetMeasure().GetDrawScale(), 20);
    EXPECT_EQ(label.GetMeasure().GetLabelName(), name);
    EXPECT_FALSE(label.GetEditable());
    label.SetEditorMode(emLabelling);
    EXPECT_EQ(label.GetMeasure().GetDrawScale(), 1);
    EXPECT_NE(label.GetMeasure().GetLabelName(), name);
    label.BeginLoading();
    label.SetUnits(unYd); // streamed values are taken as they are
    EXPECT_EQ(label.GetUnits(), unYd);
}

} // namespace
} // namespace vagrel::test
