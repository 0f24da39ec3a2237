// SPDX-License-Identifier: MIT
// The families of items that a host makes, each with its constructor: one row a family.
#pragma once

#include <vagrel/barcode/TVGRBaseDataMatrix.h>
#include <vagrel/barcode/TVGRBasePDF417.h>
#include <vagrel/barcode/TVGRBaseQRCode.h>
#include <vagrel/document/TVGRBasePoint.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/ItemTypes.h>
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
#include <vector>

namespace vagrel {

/// How an item of a type is constructed. `points` counts for types that have any number of points.
struct TItemMaker {
    TKSLItemType type;
    TVGRBaseItem& (*make)(TVGRBaseLabel&, TVGRLayer&, int points, bool preview);
};

/// The rows for a host that makes a family concrete by the template `Item`, but for texts and linear barcodes, which it
/// measures in classes of its own.
template <template <class> class Item, class Text, class Barcode>
struct ItemTable {
    template <class T>
    static TVGRBaseItem& Fixed(TVGRBaseLabel& label, TVGRLayer& layer, int, bool preview) {
        return *new T(label, layer, preview);
    }
    template <class T>
    static TVGRBaseItem& Counted(TVGRBaseLabel& label, TVGRLayer& layer, int points, bool preview) {
        return *new T(label, layer, points, preview);
    }

    static constexpr TItemMaker Rows[] = {
        {itPoint, Fixed<Item<TVGRBasePoint>>},
        {itLine, Fixed<Item<TVGRBaseLine>>},
        {itPolyLine, Counted<Item<TVGRBasePolyLine>>},
        {itRectangle, Fixed<Item<TVGRBaseRectangle>>},
        {itPolygon, Counted<Item<TVGRBasePolygon>>},
        {itCircle, Fixed<Item<TVGRBaseCircle>>},
        {itEllipse, Fixed<Item<TVGRBaseEllipse>>},
        {itBezier, Counted<Item<TVGRBaseBezier>>},
        {itSector, Fixed<Item<TVGRBaseSector>>},
        {itText, Fixed<Text>},
        {itBarcode, Fixed<Barcode>},
        {itPDF417, Fixed<Item<TVGRBasePDF417>>},
        {itDataMatrix, Fixed<Item<TVGRBaseDataMatrix>>},
        {itQRCode, Fixed<Item<TVGRBaseQRCode>>},
    };

    /// Throws ENotAvailable for a type without a row, EVagrel for a number that is no type.
    static TVGRBaseItem& Make(TVGRBaseLabel& label, TVGRLayer& layer, TKSLItemType type, int points, bool preview) {
        const auto row = std::ranges::find(Rows, type, &TItemMaker::type);
        if (row != std::end(Rows))
            return row->make(label, layer, points, preview);
        if (type == itUndefined || !IsItemType(type))
            throw EVagrel(u"Unknown item type " + IntToStr(type));
        throw ENotAvailable(u"Items of type " + IntToStr(type) + u" (" + std::u16string(NameItem(type)) +
                            u") are not available yet");
    }
    static std::vector<TKSLItemType> Types() {
        std::vector<TKSLItemType> types;
        for (const TItemMaker& row : Rows)
            types.push_back(row.type);
        return types;
    }
};

} // namespace vagrel
