// SPDX-License-Identifier: MIT
// The table from item types to classes.
#include <host/ItemRegistry.h>

#include <host/HostItem.h>
#include <vagrel/barcode/TVGRBaseBarcode.h>
#include <vagrel/barcode/TVGRBaseDataMatrix.h>
#include <vagrel/barcode/TVGRBasePDF417.h>
#include <vagrel/barcode/TVGRBaseQRCode.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRBasePoint.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/items/figures/TVGRBaseBezier.h>
#include <vagrel/items/figures/TVGRBaseCircle.h>
#include <vagrel/items/figures/TVGRBaseEllipse.h>
#include <vagrel/items/figures/TVGRBasePolygon.h>
#include <vagrel/items/figures/TVGRBaseRectangle.h>
#include <vagrel/items/figures/TVGRBaseSector.h>
#include <vagrel/items/lines/TVGRBaseLine.h>
#include <vagrel/items/lines/TVGRBasePolyLine.h>

#include <algorithm>

namespace vagrel {

namespace {

using TMaker = TVGRBaseItem& (*)(TVGRBaseLabel&, TVGRLayer&, TPointCount);

template <class Family>
TVGRBaseItem& Fixed(TVGRBaseLabel& label, TVGRLayer& layer, TPointCount) {
    return *new HostItem<Family>(label, layer, false);
}

template <class Family>
TVGRBaseItem& Counted(TVGRBaseLabel& label, TVGRLayer& layer, TPointCount points) {
    return *new HostItem<Family>(label, layer, points, false);
}

struct TRow {
    TKSLItemType type;
    TMaker make;
};

constexpr TRow Rows[] = {
    {itPoint, Fixed<TVGRBasePoint>},         {itLine, Fixed<TVGRBaseLine>},
    {itPolyLine, Counted<TVGRBasePolyLine>}, {itRectangle, Fixed<TVGRBaseRectangle>},
    {itPolygon, Counted<TVGRBasePolygon>},   {itCircle, Fixed<TVGRBaseCircle>},
    {itEllipse, Fixed<TVGRBaseEllipse>},     {itBezier, Counted<TVGRBaseBezier>},
    {itSector, Fixed<TVGRBaseSector>},       {itBarcode, Fixed<TVGRBaseBarcode>},
    {itPDF417, Fixed<TVGRBasePDF417>},       {itDataMatrix, Fixed<TVGRBaseDataMatrix>},
    {itQRCode, Fixed<TVGRBaseQRCode>},
};

} // namespace

TVGRBaseItem& MakeItem(TVGRBaseLabel& label, TVGRLayer& layer, TKSLItemType type, TPointCount points) {
    const auto row = std::ranges::find(Rows, type, &TRow::type);
    if (row != std::end(Rows))
        return row->make(label, layer, points);
    if (type <= itUndefined || type > itRichText)
        throw EVagrel(u"Unknown item type " + IntToStr(type));
    throw ENotAvailable(u"Items of type " + IntToStr(type) + u" (" + std::u16string(NameItem(type)) +
                        u") are not available yet");
}

std::vector<TKSLItemType> AvailableItemTypes() {
    std::vector<TKSLItemType> types;
    for (const TRow& row : Rows)
        types.push_back(row.type);
    return types;
}

} // namespace vagrel
