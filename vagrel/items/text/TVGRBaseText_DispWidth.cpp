// SPDX-License-Identifier: MIT
// The display width: the part of a long data text that an item shows, and the handle that sets it.
#include <vagrel/items/text/TVGRBaseText.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>

#include <algorithm>

namespace vagrel {

namespace {

constexpr std::int64_t HandleAlong = 750;
constexpr std::int64_t HandleAcross = 1500;
constexpr std::int64_t NarrowestByMouse = 1000;

} // namespace

// The axis of the text on the page. `forward` is true where the text runs toward growing coordinates.
struct TVGRBaseText::TSpan {
    bool vertical, forward;
    std::int64_t low, high; ///< the bounds along the axis
    std::int64_t pad;       ///< padding along the axis, base coordinates
    bool keepsLow, keepsHigh;
};

TVGRBaseText::TSpan TVGRBaseText::Span() const {
    TSpan span{};
    span.vertical = fAngle == ag90 || fAngle == ag270;
    span.forward = fAngle == ag0 || fAngle == ag270;
    span.low = span.vertical ? fBoundsRect.Top : fBoundsRect.Left;
    span.high = span.vertical ? fBoundsRect.Bottom : fBoundsRect.Right;
    span.pad = MulSat(span.vertical ? fPaddingY : fPaddingX, fOwner.GetMeasure().GetDrawScale());
    const bool atStart = fHorzAlign == haLeft, atEnd = fHorzAlign == haRight;
    span.keepsLow = span.forward ? atStart : atEnd;
    span.keepsHigh = span.forward ? atEnd : atStart;
    return span;
}

void TVGRBaseText::SetDispWidth(std::int32_t value) {
    Touch();
    fDispWidth = value > 0 && value < fMeasured.width ? value : 0;
    StateCalc();
}

std::int32_t TVGRBaseText::GetEffectiveWidth() const {
    return fDispWidth >= 1 && fDispWidth < fMeasured.width ? fDispWidth : fMeasured.width;
}

TKSLRect TVGRBaseText::GetDisplayBoundsRect() const {
    TKSLRect rect = fBoundsRect;
    if (GetEffectiveWidth() == fMeasured.width)
        return rect;
    const TSpan span = Span();
    const std::int64_t shown = AddSat(MulSat(fDispWidth, fOwner.GetMeasure().GetDrawScale()), MulSat(2, span.pad));
    std::int64_t& low = span.vertical ? rect.Top : rect.Left;
    std::int64_t& high = span.vertical ? rect.Bottom : rect.Right;
    if (!span.keepsLow && !span.keepsHigh)
        low = AddSat(low, SubSat(SubSat(high, low), shown) / 2);
    if (span.keepsHigh)
        low = SubSat(high, shown);
    else
        high = AddSat(low, shown);
    return rect;
}

TKSLRect TVGRBaseText::GetDispWidthHandleRect() const {
    const TSpan span = Span();
    const std::int64_t width = MulSat(GetEffectiveWidth(), fOwner.GetMeasure().GetDrawScale());
    std::int64_t along;
    if (span.keepsLow)
        along = AddSat(AddSat(span.low, span.pad), width);
    else if (span.keepsHigh)
        along = SubSat(SubSat(span.high, span.pad), width);
    else
        along = AddSat(AddSat(span.low, SubSat(span.high, span.low) / 2), span.forward ? width / 2 : -(width / 2));
    const TKSLBase center = CenterPoint();
    TKSLRect rect =
        span.vertical ? TKSLRect(center.X, along, center.X, along) : TKSLRect(along, center.Y, along, center.Y);
    span.vertical ? rect.Inflate(HandleAcross, HandleAlong) : rect.Inflate(HandleAlong, HandleAcross);
    return rect;
}

bool TVGRBaseText::PickDispWidthHandle(std::int64_t bx, std::int64_t by, std::int64_t gap) const {
    if (!aIsData)
        return false;
    TKSLRect rect = GetDispWidthHandleRect();
    rect.Inflate(gap, gap);
    return bx >= rect.Left && bx <= rect.Right && by >= rect.Top && by <= rect.Bottom;
}

void TVGRBaseText::SetDispWidthFromMouse(std::int64_t bx, std::int64_t by) {
    const TSpan span = Span();
    const std::int64_t at = span.vertical ? by : bx;
    std::int64_t width;
    if (span.keepsLow) {
        width = SubSat(at, AddSat(span.low, span.pad));
    } else if (span.keepsHigh) {
        width = SubSat(SubSat(span.high, span.pad), at);
    } else {
        const std::int64_t off = SubSat(at, AddSat(span.low, SubSat(span.high, span.low) / 2));
        width = MulSat(2, off < 0 ? SubSat(0, off) : off);
    }
    const std::int64_t paper = Round(double(width) / double(fOwner.GetMeasure().GetDrawScale()));
    SetDispWidth(ToInt32(std::max(paper, NarrowestByMouse)));
}

void TVGRBaseText::CheckBaseBoundsMove(std::int64_t& bx, std::int64_t& by, TKSLMoveOpt option) const {
    if (aIsData && GetEffectiveWidth() != fMeasured.width)
        ClipToPage(bx, by, GetDisplayBoundsRect());
    else
        TVGRBaseItem::CheckBaseBoundsMove(bx, by, option);
}

void TVGRBaseText::BoundsMove(float& ax, float& ay) const {
    std::int64_t bx = SetValue(ax, fOwner.GetUnits()), by = SetValue(ay, fOwner.GetUnits());
    const std::int64_t askedX = bx, askedY = by;
    ClipToPage(bx, by, fBoundsRect);
    if (bx != askedX)
        ax = GetValue(bx, fOwner.GetUnits());
    if (by != askedY)
        ay = GetValue(by, fOwner.GetUnits());
}

} // namespace vagrel
