// SPDX-License-Identifier: MIT
// The table of item types.
#include <vagrel/foundation/ItemTypes.h>

#include <algorithm>
#include <array>

namespace vagrel {

namespace {

constexpr TItemTraits Geometry{trGeometry, trReference};
constexpr TItemTraits Chain{trChain, trFreePoints, trGeometry, trReference};

// clang-format off
constexpr std::array Rows = std::to_array<TItemTypeRow>({
    {itUndefined, u"Undefined", 1},
    {itPoint, u"Point", 1, hfPlace, arPoints, gpFirst},
    {itLine, u"Line", 2, hfLine, arStraight, gpEnds, Geometry + TItemTraits{trOrderedPoints}, ipText, 0, 1},
    {itArrowLine, u"ArrowLine", 4, hfLine, arStraight, gpEnds,
     Geometry + TItemTraits{trOrderedPoints, trFollowsMove, trLineOnPage}, ipText, 0, 1},
    {itPolyLine, u"Polyline", 0, hfVertices, arNone, gpVertices, Chain},
    {itArc, u"Arc", 2, hfRim, arNone, gpCorners, Geometry},
    {itRectangle, u"Rectangle", 2, hfBox, arPoints, gpCorners, Geometry},
    {itPolygon, u"Polygon", 0, hfVertices, arNone, gpVertices, Chain + TItemTraits{trClosed}},
    {itCircle, u"Circle", 2, hfCircle, arPoints, gpEdges, Geometry + TItemTraits{trOneSize}},
    {itEllipse, u"Ellipse", 2, hfEllipse, arPoints, gpEdges, Geometry},
    {itText, u"Text", 2, hfText, arBounds, gpCorners, {trOrderedPoints, trText, trInPlace}},
    {itPara, u"Paragraph", 2, hfParagraph, arPoints, gpCorners, {trFollowsMove}, ipMemo, 1},
    {itBarcode, u"Barcode", 2, hfCode, arBounds, gpCorners, {trDerivedPoints, trSizeFollows}},
    {itPDF417, u"PDF417", 2, hfCode, arBounds, gpCorners, {trDerivedPoints}, ipMemo, 10},
    {itDataMatrix, u"DataMatrix", 2, hfCode, arBounds, gpCorners, {trDerivedPoints}, ipMemo, 11},
    {itQRCode, u"QRCode", 2, hfCode, arBounds, gpCorners, {trDerivedPoints}, ipMemo, 12},
    {itImage, u"Image", 2, hfBox, arPoints, gpCorners, {}, ipImage, 1},
    {itFlow, u"FlowDiagram", 2, hfBox, arPoints, gpCorners, {trFollowsMove}, ipMemo, 2},
    {itLink, u"Link", 1, hfLink, arNone, gpNone, {trLink}},
    {itTable, u"Table", 2, hfBox, arPoints, gpCorners, {trDerivedPoints}, ipTable, 2},
    {itPolyText, u"Polytext", 2, hfText, arBounds, gpCorners, {trDerivedPoints, trOrderedPoints}, ipPolyText, 2},
    {itRank, u"Rank", 2, hfBoxGauge, arPoints, gpCorners},
    {itNutriScore, u"NutriScore", 2, hfBoxGauge, arPoints, gpCorners},
    {itLevel, u"Level", 2, hfRoundGauge, arPoints, gpEdges, {trOneSize}},
    {itSymbol, u"Symbol", 3, hfPlace, arPlace, gpFirst, {trUnstyled}},
    {itBezier, u"Bezier", 0, hfCurve, arNone, gpNone, {trCurve, trFreePoints}},
    {itDim, u"Dimension", 10, hfLine, arStraight, gpNone, {trOrderedPoints, trReference, trFollowsMove}, ipText, 0, 5},
    {itSector, u"Sector", 2, hfCircle, arPoints, gpEdges, {trOneSize, trOffPage}},
    {itPackage, u"Package", 2, hfBox, arPoints, gpCorners, {}, ipMemo, 14},
    {itRichText, u"RichText", 2, hfBox, arPoints, gpCorners, {trFollowsMove, trText}, ipMemo, 1},
});
// clang-format on
static_assert(std::ranges::all_of(Rows, [](const TItemTypeRow& row) { return &row == &Rows[std::size_t(row.type)]; }));

} // namespace

bool IsItemType(TKSLItemType type) { return std::size_t(type) < Rows.size(); }

const TItemTypeRow& ItemTypeRow(TKSLItemType type) { return Rows[IsItemType(type) ? std::size_t(type) : 0]; }

std::u16string_view NameItem(TKSLItemType type) { return IsItemType(type) ? ItemTypeRow(type).name : u"None"; }

int NumPointsItem(TKSLItemType type) { return ItemTypeRow(type).points; }

} // namespace vagrel
