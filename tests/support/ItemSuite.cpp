// SPDX-License-Identifier: MIT
// The samples of the items' suite.
#include <tests/support/ItemSuite.h>

#include <tests/support/StubItem.h>
#include <vagrel/barcode/TVGRBaseBarcode.h>
#include <vagrel/barcode/TVGRBaseDataMatrix.h>
#include <vagrel/barcode/TVGRBasePDF417.h>
#include <vagrel/barcode/TVGRBaseQRCode.h>
#include <vagrel/document/TVGRBasePoint.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/items/figures/TVGRBaseBezier.h>
#include <vagrel/items/figures/TVGRBaseCircle.h>
#include <vagrel/items/figures/TVGRBaseEllipse.h>
#include <vagrel/items/figures/TVGRBasePolygon.h>
#include <vagrel/items/figures/TVGRBaseRectangle.h>
#include <vagrel/items/figures/TVGRBaseSector.h>
#include <vagrel/items/lines/TVGRBaseLine.h>
#include <vagrel/items/lines/TVGRBasePolyLine.h>
#include <vagrel/items/text/TVGRBaseText.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <sstream>

namespace vagrel::test {

namespace {

template <class Family>
TVGRBaseItem& Preview(TVGRBaseLabel& label) {
    return *new StubItem<Family>(label, true);
}

const TKSLPtoA Box{{100000, 100000}, {200000, 180000}};
const TKSLPtoA Square{{100000, 100000}, {200000, 200000}};
const TKSLPtoA Zigzag{{100000, 100000}, {150000, 180000}, {200000, 100000}, {250000, 180000}};

constexpr std::u16string_view SampleText = u"<\"";

const TItemSample Samples[] = {
    {itPoint, {{150000, 120000}}, {150000, 120000}, snPoint, "", 0, Preview<TVGRBasePoint>},
    {itLine, Box, {150000, 140000}, snEnd, "LineType ", 4, Preview<TVGRBaseLine>},
    {itPolyLine,
     Zigzag,
     {125000, 140000},
     snEnd,
     "LineType FromType SizeFrom FromColor ToType SizeTo ToColor ",
     24,
     Preview<TVGRBasePolyLine>},
    {itRectangle, Box, {100000, 140000}, snEnd, "Filled FillColor LineType Radio ", 13, Preview<TVGRBaseRectangle>},
    {itPolygon, Zigzag, {125000, 140000}, snEnd, "Filled FillColor LineType ", 9, Preview<TVGRBasePolygon>},
    {itCircle, Square, {100000, 150000}, snTangent, "Filled FillColor LineType ", 9, Preview<TVGRBaseCircle>},
    {itEllipse, Box, {150000, 100000}, {}, "Filled FillColor LineType ", 9, Preview<TVGRBaseEllipse>},
    {itBezier,
     Zigzag,
     {175000, 140000},
     {},
     "Filled FillColor LineType FromType SizeFrom FromColor ToType SizeTo ToColor ",
     29,
     Preview<TVGRBaseBezier>},
    {itText,
     {{150000, 120000}},
     {150000, 120000},
     {},
     "HorzAlign VertAlign DispWidth ScaleX Font Radio PaddingX PaddingY Filled BackColor Text Data ",
     43 + (1 + 5) + (1 + SampleText.size()) + 1 + 1,
     Preview<TVGRBaseText>,
     "ID Angle Options Points HorzAlign VertAlign ScaleX Font Radio PaddingX PaddingY Text Data "},
    {itSector,
     Square,
     {150000, 100000},
     {},
     "Filled FillColor LineType StartAngle SweepAngle ",
     17,
     Preview<TVGRBaseSector>,
     "ID Angle Options Points StartAngle SweepAngle "},
    {itBarcode,
     {{150000, 120000}},
     {150000, 120000},
     {},
     "Filled FillColor CodeType CheckType HorzAlign AutoType128 BarWidth BarHeight Distance PaddingX PaddingY Factor "
     "Code IgnoreParentheses CheckSum ShowNumber Font Data ",
     61,
     Preview<TVGRBaseBarcode>,
     "ID Options Points CheckType Distance PaddingX PaddingY IgnoreParentheses CheckSum ShowNumber Data "},
    {itPDF417,
     {{150000, 120000}},
     {150000, 120000},
     {},
     "Filled FillColor CorrecLevel BarWidth BarHeight HorzAlign VertAlign PaddingX PaddingY Factor Truncated Rows Cols "
     "Code Data ",
     50,
     Preview<TVGRBasePDF417>,
     "ID Options Points CorrecLevel HorzAlign VertAlign PaddingX PaddingY Truncated Cols Data "},
    {itDataMatrix,
     {{150000, 120000}},
     {150000, 120000},
     {},
     "Filled FillColor DMSize DMShape BarWidth BarHeight HorzAlign VertAlign PaddingX PaddingY Factor Code Data ",
     46,
     Preview<TVGRBaseDataMatrix>,
     "ID Options Points DMSize DMShape HorzAlign VertAlign PaddingX PaddingY Data "},
    {itQRCode,
     {{150000, 120000}},
     {150000, 120000},
     {},
     "Filled FillColor Encoding BarWidth BarHeight HorzAlign VertAlign PaddingX PaddingY Factor Code Data ",
     38,
     Preview<TVGRBaseQRCode>,
     "ID Options Points Encoding HorzAlign VertAlign PaddingX PaddingY Data "},
};

} // namespace

const TItemSample* SampleOf(TKSLItemType type) {
    const auto hit = std::ranges::find(Samples, type, &TItemSample::type);
    return hit == std::end(Samples) ? nullptr : &*hit;
}

TVGRBaseItem& MakeSample(PartialLabel& label, const TItemSample& sample) {
    TVGRBaseItem& item = label.MakeItem(label.ActiveLayer(), sample.type, int(sample.points.size()), false);
    item.AssignPoints(sample.points);
    const UpdateScope measuring(label);
    if (auto* text = Query<IKSLText>(&item))
        text->SetText(SampleText);
    return item;
}

void SetEverything(TVGRBaseItem& item) {
    const UpdateScope measuring(item.KSLab());
    for (const TSetter& set : SettersOf(item))
        set();
}

std::vector<TSetter> SettersOf(TVGRBaseItem& item, bool expect) {
    std::vector<TSetter> all;
    // Sets a property of a capability and reads it back; nothing for an item without the capability.
    auto Put = [&all, expect]<class I, class T, class Value>(TVGRBaseItem& of, T (I::*get)() const, void (I::*set)(T),
                                                             Value value) {
        if (I* capability = Query<I>(&of))
            all.push_back([=] {
                (capability->*set)(T(value));
                if (expect) {
                    EXPECT_EQ((capability->*get)(), T(value));
                }
            });
    };
    all.push_back([&item] { item.SetID(u"My Item ñ 1"); });
    all.push_back([&item] { item.SetOptions({lopVisible, lopExport}); });
    Put(item, &IKSLStroke::GetColor, &IKSLStroke::SetColor, 0x80102030u);
    Put(item, &IKSLStroke::GetPenWidth, &IKSLStroke::SetPenWidth, 0.35f);
    Put(item, &IKSLStyle::GetLineType, &IKSLStyle::SetLineType, ii42);
    Put(item, &IKSLBack::GetBackColor, &IKSLBack::SetBackColor, 0x40A0B0C0u);
    Put(item, &IKSLBack::GetFilled, &IKSLBack::SetFilled, false);
    // The size of a symbol follows from its text. Else alike, so that a circle stays round: undo knows one radius.
    const bool sized = !dynamic_cast<TVGRBaseCode*>(&item);
    if (sized) {
        Put(item, &IKSLSize::BaseWidth, &IKSLSize::SetBaseWidth, 90000);
        Put(item, &IKSLSize::BaseHeight, &IKSLSize::SetBaseHeight, 90000);
        Put(item, &IKSLSize::GetWidth, &IKSLSize::SetWidth, 8.5f);
        Put(item, &IKSLSize::GetHeight, &IKSLSize::SetHeight, 8.5f);
    }
    Put(item, &IKSLWidthHeight::GetWidth, &IKSLWidthHeight::SetWidth, 9.5f);
    Put(item, &IKSLWidthHeight::GetHeight, &IKSLWidthHeight::SetHeight, 7.5f);
    Put(item, &IKSLRadio::GetBaseRadio, &IKSLRadio::SetBaseRadio, 12340);
    Put(item, &IKSLRadio::GetRadio, &IKSLRadio::SetRadio, 2.5f);
    Put(item, &IKSLCenter::GetCenterX, &IKSLCenter::SetCenterX, 20.25f);
    Put(item, &IKSLCenter::GetCenterY, &IKSLCenter::SetCenterY, 15.75f);
    Put(item, &IKSLAngle::GetAngle, &IKSLAngle::SetAngle, ag180);
    Put(item, &IKSLFont::GetFontHeight, &IKSLFont::SetFontHeight, 7.5f);
    Put(item, &IKSLFont::GetFontColor, &IKSLFont::SetFontColor, 0xFF8040C0u);
    Put(item, &IKSLFont::GetScaleX, &IKSLFont::SetScaleX, 1.25f);
    Put(item, &IKSLFont::GetBold, &IKSLFont::SetBold, true);
    Put(item, &IKSLFont::GetItalic, &IKSLFont::SetItalic, true);
    Put(item, &IKSLFont::GetUnderline, &IKSLFont::SetUnderline, true);
    if (auto* font = Query<IKSLFont>(&item)) {
        all.push_back([font] { font->SetFontName(u"Verdana"); });
        all.push_back([font] { font->SetStrikeout(true); });
    }
    Put(item, &IKSLSTerm::GetFromType, &IKSLSTerm::SetFromType, ttFillArrow);
    Put(item, &IKSLSTerm::GetToType, &IKSLSTerm::SetToType, ttCross);
    Put(item, &IKSLSTerm::GetFromColor, &IKSLSTerm::SetFromColor, 0xFF00FF00u);
    Put(item, &IKSLSTerm::GetToColor, &IKSLSTerm::SetToColor, 0xFF0000FFu);
    Put(item, &IKSLSTerm::BaseSizeFrom, &IKSLSTerm::SetBaseSizeFrom, 1250);
    Put(item, &IKSLSTerm::BaseSizeTo, &IKSLSTerm::SetBaseSizeTo, 49000);
    Put(item, &IKSLSTerm::GetSizeTo, &IKSLSTerm::SetSizeTo, 7.5f);
    Put(item, &IKSLPadding::GetPaddingX, &IKSLPadding::SetPaddingX, 0.25f);
    Put(item, &IKSLPadding::GetPaddingY, &IKSLPadding::SetPaddingY, 0.5f);
    Put(item, &IKSLBar1D2D::GetBarWidth, &IKSLBar1D2D::SetBarWidth, 0.05f);
    Put(item, &IKSLBar1D2D::GetBarHeight, &IKSLBar1D2D::SetBarHeight, 1.5f);
    Put(item, &IKSLBar1D2D::GetFactor, &IKSLBar1D2D::SetFactor, 2.5f);
    if (auto* align = Query<IKSLAlign>(&item)) {
        all.push_back([align] { align->SetHorzAlign(haRight); });
        all.push_back([align] { align->SetVertAlign(vaCenter); });
    }
    if (auto* data = Query<IKSLData>(&item))
        all.push_back([data] { data->SetData(ftField, u"name", u"0.0"); });
    if (auto* sector = dynamic_cast<TVGRBaseSector*>(&item)) {
        all.push_back([=] { sector->SetStartAngle(-30.5f); });
        all.push_back([=] { sector->SetSweepAngle(200.25f); });
    }
    if (auto* bars = dynamic_cast<TVGRBaseBarcode*>(&item)) {
        all.push_back([=] { bars->SetCheckType(ctMod11); });
        all.push_back([=] { bars->SetCheckSum(true); });
        all.push_back([=] { bars->SetIgnoreParentheses(true); });
        all.push_back([=] { bars->SetShowNumber(false); });
        all.push_back([=] { bars->SetDistance(0.75f); });
    }
    if (auto* qr = dynamic_cast<TVGRBaseQRCode*>(&item))
        all.push_back([=] { qr->SetEncoding(ISO88591); });
    if (auto* matrix = dynamic_cast<TVGRBaseDataMatrix*>(&item)) {
        all.push_back([=] { matrix->SetDMSize(ecc200_26x26); });
        all.push_back([=] { matrix->SetDMShape(ecc200_Rectangle); });
    }
    if (auto* pdf = dynamic_cast<TVGRBasePDF417*>(&item)) {
        all.push_back([=] { pdf->SetCorrecLevel(Level5); });
        all.push_back([=] { pdf->SetTruncated(true); });
        all.push_back([=] { pdf->SetCols(4); });
    }
    return all;
}

bool IsWellFormed(const std::string& svg) {
    // One by one: a long document is too much for one expression.
    static const std::regex element(
        R"(<([a-z]+)(\s+[\w:-]+="([^"<&\x01-\x1F]|&[a-z]+;)*")*\s*(/>|>([^<&]|&[a-z]+;)*</\1>))");
    const std::size_t start = svg.find(">\n", svg.find("<svg "));
    if (start == svg.npos || !svg.ends_with("\n</svg>\n"))
        return false;
    std::istringstream lines(svg.substr(start + 2, svg.size() - start - 2 - 7));
    for (std::string line; std::getline(lines, line);)
        if (!std::regex_match(line.substr(0, line.find_last_not_of("\r") + 1), element))
            return false;
    return true;
}

void CheckSnaps(std::initializer_list<TSnapRow> rows) {
    for (const TSnapRow& row : rows) {
        const bool found = row.hit != NoPoint;
        TKSLRef ref;
        ref.Reset(true);
        ref.lbX = row.last.bX, ref.lbY = row.last.bY;
        EXPECT_EQ(row.item.CheckPoint(row.at.bX, row.at.bY, 300, row.snap, ref), found) << row.text;
        EXPECT_EQ((TKSLPto{ref.bX, ref.bY}), row.hit) << row.text;
        EXPECT_EQ(ref.link, found) << row.text;
        EXPECT_EQ(ref.fType, row.type) << row.text;
    }
}

} // namespace vagrel::test
