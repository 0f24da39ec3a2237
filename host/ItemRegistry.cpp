// SPDX-License-Identifier: MIT
// The table from item types to classes.
#include <host/ItemRegistry.h>

#include <host/HostBarcode.h>
#include <host/HostText.h>
#include <vagrel/barcode/TVGRBaseDataMatrix.h>
#include <vagrel/barcode/TVGRBasePDF417.h>
#include <vagrel/barcode/TVGRBaseQRCode.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRBasePoint.h>
#include <vagrel/foundation/Exceptions.h>
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

using TMaker = TVGRBaseItem& (*)(TVGRBaseLabel&, TVGRLayer&, TPointCount, bool preview);

template <class Item>
TVGRBaseItem& Fixed(TVGRBaseLabel& label, TVGRLayer& layer, TPointCount, bool preview) {
    return *new Item(label, layer, preview);
}

template <class Item>
TVGRBaseItem& Counted(TVGRBaseLabel& label, TVGRLayer& layer, TPointCount points, bool preview) {
    return *new Item(label, layer, points, preview);
}

struct TRow {
    TKSLItemType type;
    TMaker make;
};

constexpr TRow Rows[] = {
    {itPoint, Fixed<HostItem<TVGRBasePoint>>},
    {itLine, Fixed<HostItem<TVGRBaseLine>>},
    {itPolyLine, Counted<HostItem<TVGRBasePolyLine>>},
    {itRectangle, Fixed<HostItem<TVGRBaseRectangle>>},
    {itPolygon, Counted<HostItem<TVGRBasePolygon>>},
    {itCircle, Fixed<HostItem<TVGRBaseCircle>>},
    {itEllipse, Fixed<HostItem<TVGRBaseEllipse>>},
    {itBezier, Counted<HostItem<TVGRBaseBezier>>},
    {itSector, Fixed<HostItem<TVGRBaseSector>>},
    {itText, Fixed<HostText>},
    {itBarcode, Fixed<HostBarcode>},
    {itPDF417, Fixed<HostItem<TVGRBasePDF417>>},
    {itDataMatrix, Fixed<HostItem<TVGRBaseDataMatrix>>},
    {itQRCode, Fixed<HostItem<TVGRBaseQRCode>>},
};

} // namespace

TVGRBaseItem& MakeItem(TVGRBaseLabel& label, TVGRLayer& layer, TKSLItemType type, TPointCount points, bool preview) {
    const auto row = std::ranges::find(Rows, type, &TRow::type);
    if (row != std::end(Rows))
        return row->make(label, layer, points, preview);
    if (type == itUndefined || !IsItemType(type))
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
