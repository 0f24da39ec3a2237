// SPDX-License-Identifier: MIT
// Values as SVG text.
#include <vagrel/svg/SvgElement.h>
#include <vagrel/svg/TExSVG.h>

#include <gtest/gtest.h>

#include <numbers>

namespace vagrel {
namespace {

TEST(TExSVG, NumbersFollowTheMode) {
    const struct {
        float value, factor;
        TKSLExportSVG type;
        const char* text;
    } rows[] = {
        {12, 3, svCurrentUnit, "12"},
        {12.5f, 3, svCurUnitNoMed, "12.50"},
        {10, 2, svFactor, "20"},
        {10.25f, 2, svFactor, "20.50"},
        {10.25f, 2, svCurrentUnit, "10.25"},
        {0.125f, 1, svFactorPx, "0.13"},
        {-0.001f, 1, svCurrentUnit, "0.00"},
        {2.5f, 2, svFactorPx, "5"},
        {1e20f, 1, svCurrentUnit, "100000002004087734272"},
        {1, 1, TKSLExportSVG(4), ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(TExSVG::GetVal(row.value, row.factor, row.type), row.text) << row.value << " mode " << row.type;
}

TEST(TExSVG, LengthsCarryTheirUnit) {
    const struct {
        float value, factor;
        TKSLUnits unit;
        TKSLExportSVG type;
        const char* text;
    } rows[] = {
        {1.5f, 1, unMM, svCurrentUnit, "1.5mm"},
        {1.5f, 1, unMM, svCurUnitNoMed, "1.5"},
        {1.5f, 3, unMM, svFactorPx, "4.50"},
        {0.25f, 10, unMM, svCurUnitNoMed, "0.3"},
        {2, 2, unCM, svFactor, "4cm"},
        {1.25f, 1, unINCH, svCurrentUnit, "1.25in"},
        {1.5f, 1, unM, svCurrentUnit, ""},
        {2, 1, unM, svFactor, ""},
        {2, 1, unM, svFactorPx, "2"},
        {2, 1, unMM, TKSLExportSVG(-1), ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(TExSVG::GetValUnit(row.value, row.factor, row.unit, row.type), row.text)
            << row.value << " unit " << row.unit << " mode " << row.type;
    EXPECT_EQ(TExSVG::GetVal(1.5f, unMM), "1.50");
    EXPECT_EQ(TExSVG::GetVal(1.5f, unYd), "1.500");
    EXPECT_EQ(TExSVG::GetVal(1.5f, TKSLUnits(7)), "1.50");
    EXPECT_EQ(TExSVG::GetVal(3, unM), "3");
}

TEST(TExSVG, StylesAreAttributes) {
    EXPECT_EQ(TExSVG::GetLineColor(0xFF000000), R"( stroke="#000000")");
    EXPECT_EQ(TExSVG::GetLineColor(0x80A1B2C3), R"( stroke="#A1B2C3" stroke-opacity="0.5")");
    EXPECT_EQ(TExSVG::GetFillColor(0x00000001, true), R"( fill="#000001" fill-opacity="0.0")");
    EXPECT_EQ(TExSVG::GetFillColor(0xFE000000, true), R"( fill="#000000" fill-opacity="1.0")");
    EXPECT_EQ(TExSVG::GetFillColor(0x00000001, false), R"( fill="none")");
    EXPECT_EQ(TExSVG::GetLineStyle(iiSolid), "");
    EXPECT_EQ(TExSVG::GetLineStyle(ii12), R"( stroke-dasharray="2 1" )");
    EXPECT_EQ(TExSVG::GetLineStyle(ii411), R"( stroke-dasharray="4 1 1 1" )");
    EXPECT_EQ(TExSVG::GetLineStyle(TKSLineType(12)), "");
    EXPECT_EQ(TExSVG::GetCap(false), R"( stroke-linecap="butt" )");
    EXPECT_EQ(TExSVG::GetTextStyle(true, false, true), R"(" font-weight="bold" text-decoration="underline)");
    EXPECT_EQ(TExSVG::GetTextStyle(false, true, false), R"(" font-style="italic)");
    EXPECT_EQ(TExSVG::GetDegAngle(-std::numbers::pi_v<float> / 2), "-90.0");
    EXPECT_EQ(TExSVG::GetUnit(unYd), "yd");
    EXPECT_EQ(TExSVG::GetUnit(TKSLUnits(7)), "");
    EXPECT_EQ(TExSVG::GetUnit(u"Dm"), unDM);
    EXPECT_EQ(TExSVG::GetUnit(u"furlong"), unMM);
    EXPECT_EQ(TExSVG::ScapeText(u"a<b & 'c' > \"ñ\"\r\n"), "a&lt;b &amp; 'c' &gt; &quot;ñ&quot;\r\n");
}

TEST(TExSVG, TerminalsFollowTheirTemplates) {
    const std::string style = R"(  stroke="#FF0000" stroke-width="0.3"/>)";
    const std::string none = R"( fill="none")", full = R"(  fill="#00FF00")";
    const std::string rhombus = R"(<polygon points="20,17.50 22.50,20 20,22.50 17.50,20")";
    const std::string leftDia = R"(<line x1="17.50" y1="17.50" x2="22.50" y2="22.50")" + style;
    const std::string rightDia = R"(<line x1="22.50" y1="17.50" x2="17.50" y2="22.50")" + style;
    const std::pair<TKSLTermType, std::string> rows[] = {
        {ttNone, ""},
        {ttCircle, R"(<circle cx="20" cy="20" r="2.50")" + none + style},
        {ttFillCircle, R"(<circle cx="20" cy="20" r="2.50")" + full + style},
        {ttArrow, R"(<line x1="20" y1="20" x2="16.30" y2="21.53")" + style + "\r\n" +
                      R"(<line x1="20" y1="20" x2="16.30" y2="18.47")" + style},
        {ttFillArrow, R"(<polygon points="20,20 16.30,21.53 16.30,18.47")" + full + style},
        {ttSquare, R"(<rect x="17.50" y="17.50" width="5" height="5" )" + none + style},
        {ttFillSquare, R"(<rect x="17.50" y="17.50" width="5" height="5")" + full + style},
        {ttRhombus, rhombus + none + style},
        {ttFillRhombus, rhombus + full + style},
        {ttLeftDia, leftDia},
        {ttRightDia, rightDia},
        {ttCross, leftDia + "\r\n" + rightDia},
        {TKSLTermType(12), ""},
    };
    // Handed in at half their size: the factor of the mode doubles them, all but the pen. An arrow of 2.5 is one of 2.
    for (const auto& [type, text] : rows)
        EXPECT_EQ(TExSVG::DrawTerm(type, svFactor, 10, 10, 3, 10, 0.25f, 2, 2.5f, 0xFFFF0000, 0xFF00FF00, 8, false),
                  text)
            << type;
}

TEST(TExSVG, ArrowOnAnArcTakesItsDirection) {
    const float down = std::numbers::pi_v<float> / 2;
    EXPECT_EQ(
        TExSVG::DrawTerm(ttFillArrow, svCurrentUnit, 10, 10, down, 99, 1, 1, 3.5f, 0xFF000000, 0xFF000000, 4, true),
        R"(<polygon points="10,10 7.17,7.17 12.83,7.17"  fill="#000000"  stroke="#000000" stroke-width="1"/>)");
}

TEST(SvgElement, HandsItsTextOver) {
    SvgElement element(svFactor, 2);
    (element << "<a").Dash(ii11).Text(u"<") << u"é";
    EXPECT_EQ(element.Take(), "<a stroke-dasharray=\"1\" &lt;é");
    EXPECT_EQ(element.Take(), "");
    EXPECT_EQ(element.ValUnit(1.5f, unMM).Take(), "3mm");
}

} // namespace
} // namespace vagrel
