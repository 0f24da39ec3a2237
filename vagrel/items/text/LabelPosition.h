// SPDX-License-Identifier: MIT
// Where a measured text stands: inside an anchored box, or along a line that leaves a gap for it. Arithmetic alone.
//
// A text runs along +x at ag0, up the page at ag90, back at ag180 and down the page at ag270; across is a quarter turn
// clockwise from along. Y grows downward.
#pragma once

#include <vagrel/foundation/Enumerations.h>
#include <vagrel/foundation/TDraw2D.h>
#include <vagrel/foundation/TKSLRect.h>

#include <cstdint>

namespace vagrel {

/// Places a rectangle around its top left corner, the anchor, as alignment and angle say; the quarter turns exchange
/// its sides. haJustify moves it at ag0 alone, and only vertically.
void AdjustRect(TKSLRect& rect, TKSLHorzAlign horz, TKSLVertAlign vert, TKSLAngle angle);

/// Moves a text position inward from the anchor by the padding; a centred side has none.
void AdjustPos(float padX, float padY, TKSLHorzAlign horz, TKSLVertAlign vert, TKSLAngle angle, float& x, float& y);

/// The float form of `AdjustRect`, with the padded start of the text as `DrawTxtPos` gives it for an anchor (px, py).
void AdjustRectPos(TRectF& rect, float px, float py, TKSLHorzAlign horz, TKSLVertAlign vert, TKSLAngle angle, float& x,
                   float& y);

/// The corner of a box of `width` × `height` on the page axes, at the anchor (px, py); padding counts at every side. An
/// alignment without a meaning leaves its coordinate as it was.
void DrawPos(float& x, float& y, float px, float py, float padX, float padY, float width, float height,
             TKSLHorzAlign horz, TKSLVertAlign vert, TKSLAngle angle);

/// The start of a text of `width` along and `height` across; a centred side has no padding.
void DrawTxtPos(float& x, float& y, float px, float py, float padX, float padY, float width, float height,
                TKSLHorzAlign horz, TKSLVertAlign vert, TKSLAngle angle);
/// The same in integers; halves truncate.
void PrintTxtPos(std::int32_t& x, std::int32_t& y, std::int32_t px, std::int32_t py, std::int32_t padX,
                 std::int32_t padY, std::int32_t width, std::int32_t height, TKSLHorzAlign horz, TKSLVertAlign vert,
                 TKSLAngle angle);

/// Moves the start of a chain of runs of `width` in all. A padding counts when it is above 0.
void DrawPolyPos(float& x, float& y, float padX, float padY, float width, TKSLHorzAlign horz, TKSLAngle angle);

/// A label on a line: the start of its baseline, the ends of the gap that it takes (g1 toward point 1) and its angle in
/// radians.
void PosText(float x1, float y1, float x2, float y2, float ascent, float descent, float width, std::int16_t textPos,
             float& tx, float& ty, float& g1x, float& g1y, float& g2x, float& g2y, float& angle);

/// The corner of the label's box alone, in integers.
void PosPrintText(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2, std::int32_t width,
                  std::int32_t height, std::int16_t textPos, std::int32_t& tx, std::int32_t& ty);

/// The box of a label on an axis-parallel line, in base units; an oblique line leaves the results as they were.
void PosBaseText(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2, std::int64_t height,
                 std::int64_t width, std::int16_t textPos, std::int64_t& left, std::int64_t& right, std::int64_t& top,
                 std::int64_t& bottom);

/// What a label of given size needs on a line.
struct TLabelSize {
    std::int64_t tall = 0; ///< height of the text's box when it stands across the line's gap
    std::int64_t width = 0;
    std::int64_t ascent = 0;
    std::int64_t descent = 0;
};

/// Where it stands then.
struct TLabelPlace {
    TKSLPto gap1, gap2; ///< ends of the gap, toward point 1 first; zero for none
    TKSLPto text;       ///< start of the baseline
    TKSLPto box;        ///< corner of the box
    float angle = 0;    ///< radians
};

/// The whole placement of a label on any line, in base units.
TLabelPlace PosBaseLinesText(TKSLPto from, TKSLPto to, const TLabelSize& size, TKSLTextPos textPos);

} // namespace vagrel
