// SPDX-License-Identifier: MIT
// What the rules that all items share ask of an item's type: one row for each type.
#pragma once

#include <vagrel/foundation/Enumerations.h>

namespace vagrel {

// No file holds these: their order is free.

enum TItemTrait : std::uint8_t {
    trChain,         ///< several straight segments
    trClosed,        ///< a chain whose last point is joined to the first
    trCurve,         ///< only its first and its last point lie on it; it has no size to be set
    trFreePoints,    ///< points can be added and taken away
    trOrderedPoints, ///< its two points stay in their order
    trDerivedPoints, ///< its other points hang on point 1
    trLink,          ///< joins two items
    trGeometry,      ///< the geometry actions change it
    trReference,     ///< the geometry actions take it as a reference
    trOneSize,       ///< as wide as high
    trSizeFollows,   ///< its size follows from its content
    trFollowsMove,   ///< its inner layout is calculated anew after a move
    trLineOnPage,    ///< of its points only 1 and 2 stay on the page
    trOffPage,       ///< it may leave the page
    trText,          ///< the editor of texts takes it
    trInPlace,       ///< a click opens that editor, which measures it, too
    trUnstyled       ///< its JSON has no angle, colour and pen width
};
using TItemTraits = TKSLSet<TItemTrait>;

/// The handles that the editor shows; see Handles.cpp.
enum THandleForm : std::uint8_t {
    hfNone,
    hfPlace,
    hfLine,
    hfVertices,
    hfCurve,
    hfRim,
    hfBox,
    hfBoxGauge,
    hfParagraph,
    hfCircle,
    hfRoundGauge,
    hfEllipse,
    hfLink,
    hfCode,
    hfText
};

/// On which axes an item is aligned, and by what extent.
enum TAlignRule : std::uint8_t {
    arNone,
    arPlace,    ///< both; it has no extent
    arStraight, ///< where points 1 and 2 share the coordinate; by these
    arPoints,   ///< both; by points 1 and 2, or by its one point
    arBounds    ///< both; by the bounds
};

/// The reference points that guides align.
enum TGuidePoints : std::uint8_t {
    gpNone,
    gpFirst,   ///< point 1
    gpEnds,    ///< points 1 and 2
    gpCorners, ///< the first and the last corner of the bounds, or the ends of an arc
    gpEdges,   ///< the middles of the four edges of the bounds
    gpVertices ///< all points
};

struct TItemTypeRow {
    TKSLItemType type;
    std::u16string_view name;
    int points; ///< with which it starts; 0 when they come from its data
    THandleForm handles = hfNone;
    TAlignRule align = arNone;
    TGuidePoints guides = gpNone;
    TItemTraits traits = {};
    TKSLInsProp prop = ipText; ///< the row of the inspector that a double click opens
    int kind = 0;              ///< of that row; 0 for none
    int line = 0;              ///< of the types that are one straight line: the first of its two points
};

/// Files may hold other integers.
bool IsItemType(TKSLItemType type);

/// That of itUndefined for a value that is no type.
const TItemTypeRow& ItemTypeRow(TKSLItemType type);
inline bool HasTrait(TKSLItemType type, TItemTrait trait) { return ItemTypeRow(type).traits.Has(trait); }

} // namespace vagrel
