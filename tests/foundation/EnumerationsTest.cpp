// SPDX-License-Identifier: MIT
// The integers of all enumerations, which files hold; item types, quarter turns and sets.
#include <vagrel/foundation/Enumerations.h>

#include <gtest/gtest.h>

#include <limits>

namespace vagrel {
namespace {

// A value inserted, taken out or moved shows in a middle or the last one.
struct TPinned {
    const char* name;
    int first;
    int middle, expectedMiddle;
    int last, expectedLast;
};

// clang-format off
constexpr TPinned Pinned[] = {
    {"TKSLUnits", unMM, unDM, 3, unYd, 6}, {"TKSLAngle", ag0, ag180, 2, ag270, 3},
    {"TKSLHorzAlign", haLeft, haRight, 2, haJustify, 3}, {"TKSLVertAlign", vaTop, vaCenter, 1, vaBottom, 2},
    {"TKSLineType", iiSolid, ii31, 6, ii411, 11}, {"TKSLTermType", ttNone, ttFillSquare, 6, ttCross, 11},
    {"TKSLGradient", grNone, grHorz, 1, grVert, 2}, {"TKSLDrawState", dsLabel, dsExport, 3, dsSymbol, 5},
    {"TKSLExportSVG", svCurrentUnit, svFactor, 2, svFactorPx, 3}, {"TKSLExt", lfBin, lfJSON, 1, lfJSON, 1},
    {"TKSLExport", exPDF, exPNG, 3, exJPEG, 5}, {"TKSLEditorMode", emLabelling, emDrawing, 2, emInteractive, 3},
    {"TVagrelOption", loUniqueID, loBackImageLayer, 2, loBackImageMap, 3},
    {"TVagrelState", lsModified, lsReading, 5, lsPrint, 9}, {"TKSLClear", cleAll, cleSymbols, 6, cleBaseStyle, 12},
    {"TKSDestUpdate", duEditor, duPreview, 2, duSymbol, 3},
    {"TKSChange", chLabelDef, chClearSelect, 10, chSelSymbol, 20},
    {"TKSLayerOp", lopVisible, lopBox, 4, lopExportBack, 8},
    {"TKSLMeasureType", mtPaperWidth, mtMarginLeft, 4, mtGapVert, 7}, {"TVagrelType", ltRect, ltCircle, 1, ltCircle, 1},
    {"TKSLBackStyle", biNone, biGraCircle, 4, biQuarter, 7},
    {"TKSLPrinterOrientation", poPortrait, poLandscape, 1, poLandscape, 1},
    {"TKSLReadType", rdNormal, rdPaste, 1, rdPreview, 2}, {"TKSLPosType", ptX, ptRadio, 3, ptHeight, 5},
    {"TKSLObjectAlign", oaLeft, oaRight, 2, oaBottom, 3}, {"TKSLAlignType", anHorz, anVert, 1, anVert, 1},
    {"TKSLItemType", itUndefined, itQRCode, 15, itRichText, 29}, {"TKSLItemState", isNormal, isSelected, 1, isRef, 2},
    {"TKSLMoveOpt", moAll, moBottom, 4, moBotRight, 8}, {"TKSLSnap", snPoint, snEnd, 4, snPerpendicular, 8},
    {"TKSRefType", rtyRect, rtyCircle, 1, rtyCross, 2}, {"TKSLTextPos", tpAbove, tpMiddleRemove, 3, tpVert, 5},
    {"TKSDimType", dmtHorz, dmtRadial2, 4, dmtAngle, 7}, {"TKSLRadialStyle", rs01, rs03, 2, rs04, 3},
    {"TKSLImgType", itNone, itPng, 2, itGif, 3}, {"TKSLImgFilter", ifNone, ifGrayScale, 1, ifBlackWhite, 2},
    {"TKSLImgAlign", iaLeftTop, iaCenter, 1, iaRightBottom, 2}, {"TKSLFrame", pfNone, pfCircle, 2, pfCropCircle, 3},
    {"TKSLRankType", rtSquare, rtStar, 2, rtRhombus, 3}, {"TKSLRankPos", rpHorzLeft, rpVertLeft, 2, rpVertRight, 3},
    {"TKSLNutriType", ntStyle1, ntStyle2, 1, ntStyle2, 1},
    {"TKSLLevelType", ltFluidHorz, ltRadialHorz, 2, ltRadialVert, 3}, {"TVGRGrid", gtNone, gtHorz, 2, gtBoth, 3},
    {"TKSLRowType", rwHead, rwRow, 1, rwFoot, 2}, {"TKSLPolyType", poText, poQR, 2, poDataMatrix, 3},
    {"TKSLFlowType", ftTerminator, ftPredefined, 7, ftEnd, 14}, {"TKSLinkType", ltDirLine, ltArc, 4, ltRoundCorner, 7},
    {"TKSLPackageStyle", psWireFrameNoDim, poSolidDim, 3, poPartDrillDim, 5},
    {"TKSLBarType", btEAN13, btEAN128C, 11, btPOSTNET, 22}, {"TKSLDataType", dtyNone, dtyDataset, 2, dtyCsv, 4},
    {"TKSLFieldType", ftString, ftFloat, 4, ftBlobImg, 7}, {"TKSLFillType", ftNone, ftAsk, 5, ftImg64, 10},
    {"TKSLCsvSep", scvNone, scvComma, 2, scvSpace, 4}, {"TKSLCsvQuote", scqNone, scqQuotes, 1, scqDoubleQuotes, 2},
    {"TKSLFooter", foNone, foSum, 4, foStdDev, 8}, {"TKSLAskType", atText, atNumber, 2, atDateTime, 3},
    {"TKSLEdAction", eaNone, eaBarcode, 24, eaDimAng, 47},
    {"TKSLEdState", edPickPoint, edPickRef, 12, edPickCircle, 23}, {"TKSLStEditor", seDraw, seSelect, 2, seEditProp, 3},
    {"TKSLDrawType", dtNone, dtTerminator, 14, dtSector, 28}, {"TKSLMoveType", mtNone, mtArc, 10, mtDispWidth, 20},
    {"TKSLSelType", stNone, stSizeRectS, 14, stDispWidth, 27}, {"TKSLInputType", intNone, intFloat, 2, intInt, 3},
    {"TShift", ssShift, ssLeft, 3, ssDouble, 6}, {"TMouseButton", mbLeft, mbRight, 1, mbMiddle, 2},
    {"TKSLInsTypeBase", iyID, iyRadio, 11, iyBackBarcode, 21}, {"TKSLInsType", iyLine, iyRank, 9, iyPackage, 17},
    {"TKSLInsProp", ipText, ipCode, 7, ipRank, 14}, {"TKSLInsCol", ic11, ic34, 8, ic223, 15},
    {"TKSListProp", lpLayer, lpFieldInt, 12, lpBoxStyle, 24},
    {"TKSLMapProvider", mpOpenStreetMap, mpGoogleRoad, 7, mpCartoVoyager, 13},
    {"TKSLMapServiceType", mstTiles, mstWMS, 1, mstWMTS, 2},
    {"TKSLGMLMapTarget", gmtLayerBackground, gmtImageElement, 1, gmtImageElement, 1},
};
// clang-format on

TEST(Enumerations, KeepTheirStoredIntegers) {
    for (const TPinned& row : Pinned) {
        const std::array<int, 3> expected{0, row.expectedMiddle, row.expectedLast};
        EXPECT_EQ((std::array<int, 3>{row.first, row.middle, row.last}), expected) << row.name;
    }
}

TEST(Enumerations, ItemTypesHaveNamesAndPoints) {
    const std::pair<int, std::u16string_view> names[] = {{itUndefined, u"Undefined"},
                                                         {itPara, u"Paragraph"},
                                                         {itFlow, u"FlowDiagram"},
                                                         {itDim, u"Dimension"},
                                                         {itRichText, u"RichText"},
                                                         {30, u"None"},
                                                         {-1, u"None"}};
    for (const auto& [type, name] : names)
        EXPECT_EQ(NameItem(TKSLItemType(type)), name) << type;
    const std::pair<int, int> points[] = {{itUndefined, 1}, {itArrowLine, 4}, {itPolygon, 0}, {itLink, 1},
                                          {itSymbol, 3},    {itBezier, 0},    {itDim, 10},    {itSector, 2},
                                          {30, 1},          {-1, 1}};
    for (const auto& [type, count] : points)
        EXPECT_EQ(NumPointsItem(TKSLItemType(type)), count) << type;
}

TEST(Enumerations, QuarterTurnsGoAgainstTheClock) {
    for (const auto& [angle, degrees, radians] : {std::tuple(1, -90, -1.5707964f),
                                                  {2, -180, -3.1415927f},
                                                  {3, -270, -4.712389f},
                                                  {4, 0, 0.0f},
                                                  {-1, 0, 0.0f}}) {
        EXPECT_EQ(DegAngle(TKSLAngle(angle)), degrees);
        EXPECT_EQ(PrintAngle(TKSLAngle(angle)), radians);
    }
}

TEST(TKSLSet, HoldsThePositionsOfItsValues) {
    using TTypes = TKSLSet<TKSLItemType>;
    EXPECT_EQ((TTypes{itUndefined, itRichText}.Bits()), 0x20000001u);
    EXPECT_EQ(TTypes::Range(itPoint, itArrowLine).Bits(), 0xEu);
    EXPECT_EQ(TTypes::Range(itUndefined, TKSLItemType(31)).Bits(), 0xFFFFFFFFu);
    EXPECT_FALSE((TTypes{itRichText}.HasAll({itRichText, itLine})));
    EXPECT_EQ((TTypes{itText} + TTypes{itLine} - TTypes{itText}) * TTypes{itLine}, TTypes{itLine});
    for (const int beyond : {32, 34, -1, std::numeric_limits<int>::min()})
        EXPECT_TRUE(TTypes{TKSLItemType(beyond)}.Empty()) << beyond;
}

} // namespace
} // namespace vagrel
