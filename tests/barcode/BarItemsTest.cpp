// SPDX-License-Identifier: MIT
// The items of barcodes: limits, sizes, place, data, and SVG whose rectangles a decoder reads.
#include "SvgReadBack.h"

#include <tests/support/TestHost.h>

#include <vagrel/barcode/TVGRBaseBarcode.h>
#include <vagrel/barcode/TVGRBaseDataMatrix.h>
#include <vagrel/barcode/TVGRBasePDF417.h>
#include <vagrel/barcode/TVGRBaseQRCode.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/persistence/TJsonObject.h>
#include <vagrel/svg/TExSVG.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace vagrel::test {
namespace {

constexpr float NaN = std::numeric_limits<float>::quiet_NaN();

struct BarItemsTest : testing::Test {
    TestHost label;

    TVGRBaseBarcode& Bars(std::u16string_view text = u"123456", TKSLBarType type = btCODE39) {
        return dynamic_cast<TVGRBaseBarcode&>(label.CreateBarcode(10000, 20000, text, type));
    }
    TVGRBaseQRCode& Qr(std::u16string_view text = u"QR") {
        return dynamic_cast<TVGRBaseQRCode&>(label.CreateQRCode(10000, 20000, text));
    }
    TVGRBaseDataMatrix& Matrix(std::u16string_view text = u"DMatrix") {
        return dynamic_cast<TVGRBaseDataMatrix&>(label.CreateDataMatrix(10000, 20000, text));
    }
    TVGRBasePDF417& Pdf(std::u16string_view text = u"PdfCode") {
        return dynamic_cast<TVGRBasePDF417&>(label.CreatePDF417(10000, 20000, text));
    }
};

TEST_F(BarItemsTest, SizesKeepTheirLimits) {
    struct TCase {
        const char* what;
        TVGRBaseCode& code;
        float width, height; // the least
    };
    for (const TCase& one : {TCase{"linear", Bars(), 0.12f, 2}, TCase{"QR", Qr(), 0.19f, 0.19f},
                             TCase{"matrix", Matrix(), 0.1f, 0.1f}, TCase{"PDF417", Pdf(), 0.1f, 0.26f}}) {
        SCOPED_TRACE(one.what);
        for (const float small : {0.05f, 0.0f, -3.0f, NaN}) {
            one.code.SetBarWidth(small);
            one.code.SetBarHeight(small);
            one.code.SetPaddingX(-1);
            one.code.SetPaddingY(NaN);
            EXPECT_EQ(one.code.GetBarWidth(), one.width);
            EXPECT_EQ(one.code.GetBarHeight(), one.height);
            EXPECT_EQ(one.code.GetPaddingX(), 0.0f);
            EXPECT_EQ(one.code.GetPaddingY(), 0.0f);
        }
        one.code.SetBarWidth(1e30f); // saturates, and overflows nothing
        EXPECT_GT(one.code.BoundsRect().Right, one.code.BoundsRect().Left);
    }
    TVGRBaseBarcode& bars = Bars();
    bars.SetFontHeight(0.5f);
    EXPECT_EQ(bars.GetFontHeight(), 1.0f);
}

TEST_F(BarItemsTest, SizesAreInTheUnitOfTheDocument) {
    TVGRBaseBarcode& bars = Bars();
    bars.SetBarWidth(0.254f);
    const std::tuple<TKSLEditorMode, TKSLUnits, float> cases[] = {
        {emLabelling, unINCH, 0.01f}, {emLabelling, unCM, 0.0254f}, {emDrawing, unM, 0.254f}};
    for (const auto& [mode, unit, shown] : cases) {
        label.SetEditorMode(mode);
        label.SetUnits(unit);
        EXPECT_NEAR(bars.GetBarWidth(), shown, 1e-6f) << unit;
    }
    label.SetEditorMode(emLabelling);
    label.SetUnits(unINCH);
    bars.SetPaddingX(0.5f);
    EXPECT_EQ(bars.GetPaddingX(), 0.5f);
    EXPECT_EQ(bars.WriteJson()->GetFloat(u"PaddingX"), 0.5);
}

TEST_F(BarItemsTest, SymbologiesLimitTheFactor) {
    struct TCase {
        TKSLBarType type;
        float asked, kept;
    };
    for (const TCase& one :
         {TCase{btCODE39, 5, 3}, TCase{btINDUS_25, 1, 2}, TCase{btMATRIX_25, 1, 2.25f}, TCase{btCODE128B, 5, 5},
          TCase{btMSI, 9, 6}, TCase{btCODABAR, 0.1f, 1}, TCase{btEAN13, NaN, 2}}) {
        TVGRBaseBarcode& bars = Bars(u"", one.type);
        bars.SetFactor(one.asked);
        EXPECT_EQ(bars.GetFactor(), one.kept) << one.type;
    }
    TVGRBaseBarcode& bars = Bars(u"1", btCODE128B);
    bars.SetFactor(5);
    bars.SetCodeType(btCODE39);
    EXPECT_EQ(bars.GetFactor(), 3.0f);
}

TEST_F(BarItemsTest, TheFactorOfModulesTiesHeightToWidth) {
    TVGRBaseQRCode& qr = Qr();
    qr.SetFactor(2);
    EXPECT_EQ(qr.GetBarHeight(), 0.6f);
    qr.SetBarWidth(0.25f);
    EXPECT_EQ(qr.GetBarHeight(), 0.5f);
    qr.SetBarHeight(0.8f);
    EXPECT_EQ(qr.GetBarWidth(), 0.4f);
    qr.SetBarHeight(0.2f);
    EXPECT_EQ(qr.GetBarWidth(), 0.19f) << "both have a limit";
    EXPECT_EQ(qr.GetBarHeight(), 0.38f);
    qr.SetFactor(0.1f);
    EXPECT_EQ(qr.GetBarHeight(), 0.19f);
    qr.SetFactor(-2);
    EXPECT_EQ(qr.GetFactor(), 0.0f);
    qr.SetBarHeight(0.7f);
    EXPECT_EQ(qr.GetBarWidth(), 0.19f) << "free";
}

TEST_F(BarItemsTest, BoxesFollowTheSymbol) {
    TVGRBaseBarcode& ean = Bars(u"9638507", btEAN8);
    EXPECT_FALSE(ean.IsValid());
    EXPECT_EQ(ean.BarCodeWidth(), 60 * 300 + 2 * 3000) << "a text that is refused";
    EXPECT_TRUE(ean.GetDrCode().empty());
    {
        const UpdateScope bracket(label);
        ean.SetCheckSum(true);
        EXPECT_TRUE(ean.IsValid()) << "known at once";
    }
    EXPECT_EQ(ean.GetCCode(), u"96385074");
    EXPECT_EQ(ean.BoundsRect(), TKSLRect(10000, 20000, 10000 + 67 * 300 + 6000, 20000 + 10000 + 3000))
        << "digits of 1 em";
    {
        const UpdateScope bracket(label);
        ean.SetFontHeight(6);
        ean.SetDistance(2);
    }
    EXPECT_EQ(ean.BarCodeHeight(), 18000) << "with the gap above the digits";
    {
        const UpdateScope bracket(label);
        ean.SetShowNumber(false);
        ean.SetFontHeight(20);
    }
    EXPECT_EQ(ean.BarCodeHeight(), 10000) << "no digits, no font";
    EXPECT_EQ(ean.GetDrCode().find(u'9'), std::u16string::npos) << "nor guards that reach below";

    TVGRBaseQRCode& qr = Qr();
    EXPECT_EQ(qr.BarCodeWidth(), 21 * 300 + 4000);
    TVGRBasePDF417& pdf = Pdf();
    EXPECT_EQ(pdf.BarCodeWidth(), 300 * (17 * (pdf.XCount() + 4) + 1) + 6000);
    EXPECT_EQ(pdf.BarCodeHeight(), 600 * pdf.YCount());
    {
        const UpdateScope bracket(label);
        pdf.SetTruncated(true);
    }
    EXPECT_EQ(pdf.BarCodeWidth(), 300 * (17 * (pdf.XCount() + 2) + 1) + 6000);

    const TKSLRect before = qr.BoundsRect();
    qr.SetWidth(50);
    qr.SetBaseHeight(90000);
    qr.BaseMove(5000, 0, -1, -1, moRight, true);
    EXPECT_EQ(qr.BoundsRect(), before) << "the size cannot be set";
}

TEST_F(BarItemsTest, SymbolsStandInsideTheirBoxAtEveryAngle) {
    label.GetMeasure().SetLabelSizeMM(100, 80);
    TVGRBaseDataMatrix& matrix = Matrix();
    matrix.SetPaddingX(1);
    matrix.SetBarHeight(0.5f);
    const std::int64_t along = 300 * matrix.Modules().columns + 2000, across = 500 * matrix.Modules().rows + 4000;
    for (const TKSLAngle angle : {ag0, ag90, ag180, ag270})
        for (const TKSLHorzAlign horz : {haLeft, haCenter, haRight})
            for (const TKSLVertAlign vert : {vaTop, vaCenter, vaBottom}) {
                matrix.SetAngle(angle);
                matrix.SetHorzAlign(horz);
                matrix.SetVertAlign(vert);
                const bool upright = angle == ag90 || angle == ag270;
                const TKSLRect& box = matrix.BoundsRect();
                EXPECT_EQ(box.GetWidth(), upright ? across : along);
                EXPECT_EQ(box.GetHeight(), upright ? along : across);
                TKSLRect dark = matrix.DarkRects().front();
                for (const TKSLRect& one : matrix.DarkRects())
                    dark = {std::min(dark.Left, one.Left), std::min(dark.Top, one.Top), std::max(dark.Right, one.Right),
                            std::max(dark.Bottom, one.Bottom)};
                const std::int64_t padX = upright ? 2000 : 1000, padY = upright ? 1000 : 2000;
                EXPECT_EQ(dark, TKSLRect(box.Left + padX, box.Top + padY, box.Right - padX, box.Bottom - padY))
                    << angle << horz << vert;
            }
    matrix.RotateLeft();
    EXPECT_EQ(matrix.GetAngle(), ag0);
    EXPECT_EQ(matrix.GetPoint(1), (TKSLPto{20000, 70000}));
    EXPECT_EQ(matrix.GetPoint(2), (TKSLPto{20000 + along, 70000 + across}));
    matrix.RotateRight();
    EXPECT_EQ(matrix.GetPoint(1), (TKSLPto{30000, 20000})) << "round the width of the page";
}

TEST_F(BarItemsTest, TextsThatDoNotFit) {
    TVGRBaseBarcode& bars = Bars(u"a€b", btCODE128AUTO);
    EXPECT_FALSE(bars.IsValid()) << "a character beyond ISO 8859-1 must not become another one";
    bars.SetCode(u"caf\u00E9");
    EXPECT_EQ(bars.GetAnsiCode(), "caf\xE9");

    TVGRBaseQRCode& qr = Qr();
    const std::vector<std::uint8_t> before = qr.Modules().dark;
    qr.SetCode(std::u16string(3000, u'x'));
    qr.CalcValues(2);
    EXPECT_FALSE(qr.IsValid());
    EXPECT_EQ(qr.Modules().dark, before);
    qr.SetCode(u"\u00E1\u00C9\u00F1");
    EXPECT_EQ(qr.GetCode(), u"aE\u00F1");
    qr.SetCode(u"");
    qr.CalcValues(2);
    EXPECT_TRUE(qr.IsValid());

    TVGRBaseDataMatrix& matrix = Matrix();
    matrix.SetCode(std::u16string(4000, u'x'));
    matrix.CalcValues(2);
    EXPECT_FALSE(matrix.IsValid());
    EXPECT_TRUE(matrix.DarkRects().empty());
    EXPECT_EQ(matrix.BarCodeWidth(), 10 * 300 + 4000);

    TVGRBasePDF417& pdf = Pdf(u"\u0001");
    EXPECT_FALSE(pdf.ValidCode());
    EXPECT_EQ(pdf.BarCodeWidth(), 300 * (17 * 5 + 1) + 6000);
    EXPECT_EQ(pdf.BarCodeHeight(), 3 * 600);
    TVGRBasePDF417& small = Pdf(u"more words than three rows hold");
    small.SetCols(-5);
    small.SetRows(900);
    EXPECT_EQ(small.GetCols(), 0);
    EXPECT_EQ(small.GetRows(), 90);
    EXPECT_TRUE(small.ValidCode());
    small.SetCols(30);
    EXPECT_FALSE(small.ValidCode()) << "more words than its first one can count";
    small.SetCols(1);
    small.SetRows(3);
    EXPECT_FALSE(small.ValidCode());
    EXPECT_TRUE(small.DarkRects().empty());
}

TEST_F(BarItemsTest, ReadingKeepsTheLimits) {
    auto read = [](TVGRBaseItem& from, auto&& change) -> std::unique_ptr<TJsonObject> {
        auto json = from.WriteJson();
        change(*json);
        from.ReadJson(3200, *json);
        return from.WriteJson();
    };
    const auto bars = read(Bars(), [](TJsonObject& json) {
        json.SetFloat(u"BarWidth", -1);
        json.SetFloat(u"BarHeight", 0.5);
        json.SetFloat(u"PaddingX", -5);
        json.SetFloat(u"Factor", 40);
        json.SetInt(u"CodeType", 99);
    });
    EXPECT_EQ(bars->GetFloat(u"BarWidth"), 0.12);
    EXPECT_EQ(bars->GetFloat(u"BarHeight"), 2.0);
    EXPECT_EQ(bars->GetFloat(u"PaddingX"), 0.0);
    EXPECT_EQ(bars->GetFloat(u"Factor"), 6.0);
    EXPECT_EQ(bars->GetInt(u"CodeType"), 99) << "stored as it stands";
    const auto pdf = read(Pdf(), [](TJsonObject& json) {
        json.SetInt(u"Rows", 30000);
        json.SetInt(u"Cols", 70000);
        json.SetInt(u"CorrecLevel", -3);
        json.SetFloat(u"Factor", -2);
    });
    EXPECT_EQ(pdf->GetInt(u"Rows"), 90);
    EXPECT_EQ(pdf->GetInt(u"Cols"), 30);
    EXPECT_EQ(pdf->GetFloat(u"Factor"), 0.0);
    read(Qr(), [](TJsonObject& json) { json.SetInt(u"Encoding", 77); });
}

TEST_F(BarItemsTest, DataFillTheText) {
    TVGRData& data = label.GetData();
    data.SetJson(uR"({"rows": [{"code": "A1", "wide": "€"}, {"code": "B22"}]})");
    data.SetDataSel(u"rows");
    data.SetLinkData(true);
    data.Reset();
    data.First();
    for (TVGRBaseCode* code : std::initializer_list<TVGRBaseCode*>{&Bars(), &Qr(), &Matrix(), &Pdf()}) {
        SCOPED_TRACE(ToUtf8(code->GetID()));
        code->SetData(ftField, u"{code", u"");
        EXPECT_EQ(code->FillType(), ftJson);
        EXPECT_EQ(code->FillName(), u"code");
        EXPECT_EQ(code->SymFillName(), u"{code");
        EXPECT_TRUE(code->GetIsData());
        const std::vector<TKSLRect> before = code->DarkRects();
        code->FillData(false);
        EXPECT_EQ(code->GetCode(), u"A1");
        EXPECT_EQ(code->DarkRects(), before) << "not yet";
        data.Next();
        code->FillData(true);
        EXPECT_EQ(code->GetCode(), u"B22");
        EXPECT_NE(code->DarkRects(), before);
        data.First();
        code->SetData(ftJson, u"wide", u"");
        code->FillData(true);
        EXPECT_EQ(code->GetCode(), code->GetItemType() == itQRCode ? u"€" : u"\u0080");
        code->SetData(ftField, u"- Unassign -", u"");
        EXPECT_FALSE(code->IsBound());
        code->FillData(true);
        EXPECT_NE(code->GetCode(), u"A1") << "bound no more";
    }
}

TEST_F(BarItemsTest, SvgReadsBack) {
    struct TCase {
        const char* format;
        const char* expected;
        TVGRBaseCode& code;
    };
    auto centred = [](TVGRBaseMatrixCode& code) -> TVGRBaseMatrixCode& {
        code.SetHorzAlign(haCenter);
        code.SetVertAlign(vaBottom);
        return code;
    };
    const TCase cases[] = {
        {"Code39", "AB-12", Bars(u"ab-12")},
        {"Code128", "caf\xE9-2024", Bars(u"caf\u00E9-2024", btCODE128AUTO)},
        {"Code128", "0110LOT", Bars(u"(01)10LOT", btCODE128B)},
        {"EAN-13", "5901234123457", Bars(u"590123412345", btEAN13)},
        {"EAN-8", "96385074", Bars(u"9638507", btEAN8)},
        {"QRCode", "https://example.org", centred(Qr(u"https://example.org"))},
        {"DataMatrix", "caf\xE9", centred(Matrix(u"caf\u00E9"))},
        {"PDF417", "PDF417 with 12345678901234567890", centred(Pdf(u"PDF417 with 12345678901234567890"))},
    };
    for (const TCase& one : cases) {
        if (auto* bars = dynamic_cast<TVGRBaseBarcode*>(&one.code)) {
            bars->SetIgnoreParentheses(true);
            bars->SetCheckSum(one.format[0] == 'E');
        }
        one.code.CalcValues(2);
        for (const TKSLAngle angle : {ag0, ag90, ag180, ag270}) {
            one.code.SetAngle(angle);
            TSVGOutput out{svFactorPx, 20, false, true, {}, {}};
            one.code.WriteSVG(out);
            EXPECT_EQ(ReadBackSvg(one.format, out.svg), one.expected) << one.format << " " << angle;
        }
    }
}

TEST_F(BarItemsTest, DigitsStandUnderTheirBars) {
    struct TCase {
        TKSLBarType type;
        const char16_t* code;
        std::vector<std::u16string> groups;
        std::vector<TKSLHorzAlign> aligns;
    };
    const TCase cases[] = {
        {btEAN13, u"5901234123457", {u"5", u"901234", u"123457"}, {haRight, haCenter, haCenter}},
        {btEAN8, u"96385074", {u"9638", u"5074"}, {haCenter, haCenter}},
        {btUPCA, u"036000291452", {u"0", u"36000", u"29145", u"2"}, {haRight, haCenter, haCenter, haLeft}},
        {btUPCE0, u"04252614", {u"0", u"425261", u"4"}, {haRight, haCenter, haLeft}},
        {btCODE128A, u"A\u0001B", {u"A B"}, {haCenter}},
    };
    for (const TCase& one : cases) {
        const TVGRBaseBarcode& bars = Bars(one.code, one.type);
        const std::vector<TPlacedDigits> digits = bars.Digits();
        ASSERT_EQ(digits.size(), one.groups.size()) << one.type;
        std::int64_t last = 0;
        for (std::size_t i = 0; i < digits.size(); ++i) {
            EXPECT_EQ(digits[i].text, one.groups[i]);
            EXPECT_EQ(digits[i].align, one.aligns[i]);
            EXPECT_EQ(digits[i].at.bY, 20000 + 10000);
            EXPECT_GT(digits[i].at.bX, last);
            last = digits[i].at.bX;
        }
    }
    TVGRBaseBarcode& bars = Bars(u"A<B", btCODE128B);
    bars.SetAngle(ag90);
    bars.SetDistance(1);
    const std::int64_t length = bars.BarCodeWidth();
    EXPECT_EQ(bars.Digits().front().at, (TKSLPto{10000 + 11000, 20000 - length / 2}));
    TSVGOutput out{svCurrentUnit, 1, false, false, {}, {}};
    bars.WriteSVG(out);
    EXPECT_EQ(out.svg.back(), "<text x=\"21\" y=\"6.80\" font-family=\"Arial\" font-size=\"3\" fill=\"#000000\" "
                              "xml:space=\"preserve\" text-anchor=\"middle\" alignment-baseline=\"text-before-edge\" "
                              "transform=\"rotate(-90 21 6.80)\">A&lt;B</text>");
    EXPECT_TRUE(out.svg.front().ends_with("fill=\"#FFFFFF\" stroke-width=\"0\"/>"));
    const std::string red = TExSVG::Barcode(bars, 0xFFFF0000, 1, svCurrentUnit);
    EXPECT_EQ(std::ranges::count(red, '\n') + 2, std::ptrdiff_t(out.svg.size())) << "without the frame";
    EXPECT_TRUE(red.ends_with(">A&lt;B</text>"));
    EXPECT_EQ(red.find("#000000"), std::string::npos);
    bars.SetCodeType(btEAN13);
    EXPECT_EQ(TExSVG::Barcode(bars, 0xFFFF0000, 1, svCurrentUnit), "");
    out.svg.clear();
    bars.WriteSVG(out);
    EXPECT_TRUE(out.svg.empty()) << "refused: not even the frame";
}

TEST_F(BarItemsTest, ShortAndExtendedBars) {
    const TBarSizes sizes{300, 10000, 2.5f, 4000};
    const std::vector<TKSLRect> bars = BarRects("N1A69MF7C", sizes);
    const std::vector<TKSLRect> expected{{0, 0, 300, 10000},     {600, 6000, 900, 10000}, {1650, 0, 1950, 13000},
                                         {1950, 0, 2700, 10000}, {2700, 0, 3150, 10000},  {3600, 6000, 4200, 10000}};
    EXPECT_EQ(bars, expected);
}

} // namespace
} // namespace vagrel::test
