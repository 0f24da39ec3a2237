// SPDX-License-Identifier: MIT
// What the text families share in SVG: the frame and the anchoring of text.
#pragma once

#include <vagrel/document/TVGRBaseItem.h>

namespace vagrel {

/// The frame of a text: its fill and its corner radius in millimetres.
struct TTextFrame {
    bool filled = false;
    TAlphaColor backColor = OpaqueWhite;
    float radius = 0;
};

/// Writes the frame around the bounds of an item, when it has a pen width or is filled.
void WriteTextFrame(TSVGOutput& out, const TVGRBaseItem& item, const TTextFrame& frame);

/// The attributes of an alignment, behind a blank. A portable text stands by its baseline and has no vertical one.
std::string TextAnchor(TKSLHorzAlign horz, TKSLVertAlign vert, bool portable);

/// How far the baseline lies below the place of a text that is aligned there, in the unit of ascent and descent.
float BaselineBelow(TKSLVertAlign vert, float ascent, float descent);

} // namespace vagrel
