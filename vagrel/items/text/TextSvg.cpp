// SPDX-License-Identifier: MIT
// Frames and anchors of texts in SVG.
#include <vagrel/items/text/TextSvg.h>

#include <vagrel/document/TVGRBaseLabel.h>

namespace vagrel {

void WriteTextFrame(TSVGOutput& out, const TVGRBaseItem& item, const TTextFrame& frame) {
    if (item.BasePenWidth() <= 0 && !frame.filled)
        return;
    const TKSLRect& box = item.BoundsRect();
    SvgElement rect = out.Element();
    rect << "<rect";
    rect.Box(item.GetMM(box.Left), item.GetMM(box.Top), item.GetMM(box.GetWidth()), item.GetMM(box.GetHeight())) << " ";
    if (frame.radius != 0)
        (rect << " rx=\"").Pen(frame.radius) << "\" ";
    else
        rect << " ";
    if (frame.filled)
        rect.Fill(frame.backColor);
    else
        rect << " fill=\"none\" ";
    rect.Stroke(item.GetColor()).StrokeWidth(item.GetPenWidth()) << "/>";
    out.svg.push_back(rect.Take());
}

std::string TextAnchor(TKSLHorzAlign horz, TKSLVertAlign vert, bool portable) {
    std::string text = horz == haLeft     ? " text-anchor=\"start\" "
                       : horz == haCenter ? " text-anchor=\"middle\" "
                       : horz == haRight  ? " text-anchor=\"end\" "
                                          : "";
    if (!portable)
        text += vert == vaTop      ? "alignment-baseline=\"text-before-edge\" "
                : vert == vaCenter ? "alignment-baseline=\"central\" "
                : vert == vaBottom ? "alignment-baseline=\"text-after-edge\" "
                                   : "";
    return text;
}

float BaselineBelow(TKSLVertAlign vert, float ascent, float descent) {
    switch (vert) {
    case vaTop:
        return ascent;
    case vaCenter:
        return (ascent - descent) / 2;
    case vaBottom:
        return -descent;
    }
    return 0;
}

} // namespace vagrel
