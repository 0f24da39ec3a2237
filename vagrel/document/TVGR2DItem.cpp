// SPDX-License-Identifier: MIT
// Fill and size of items that enclose an area.
#include <vagrel/document/TVGR2DItem.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>

namespace vagrel {

namespace {

std::int64_t Span(std::int64_t a, std::int64_t b) { return a < b ? SubSat(b, a) : SubSat(a, b); }

} // namespace

TVGR2DItem::TVGR2DItem(TVGRBaseLabel& owner, TKSLItemType type, bool preview) : TVGRBaseItem(owner, type, preview) {
    fResize = true;
}

TVGR2DItem::TVGR2DItem(TVGRBaseLabel& owner, TKSLItemType type, TVGRLayer& layer, bool preview)
    : TVGRBaseItem(owner, type, layer, preview) {
    fResize = true;
}

void TVGR2DItem::SetBackColor(TAlphaColor value) { Store(fBackColor, value, cmd::Back); }
void TVGR2DItem::SetFilled(bool value) { Store(fFill, value, cmd::Filled); }

std::int64_t TVGR2DItem::BaseWidth() const { return Span(GetPoint(1).bX, GetPoint(2).bX); }
std::int64_t TVGR2DItem::BaseHeight() const { return Span(GetPoint(1).bY, GetPoint(2).bY); }

std::int64_t TVGR2DItem::BaseScaleWidth() const {
    return Round(double(BaseWidth()) / double(fOwner.GetMeasure().GetDrawScale()));
}

std::int64_t TVGR2DItem::BaseScaleHeight() const {
    return Round(double(BaseHeight()) / double(fOwner.GetMeasure().GetDrawScale()));
}

float TVGR2DItem::GetWidth() const { return GetValue(BaseWidth(), fOwner.GetUnits()); }
float TVGR2DItem::GetHeight() const { return GetValue(BaseHeight(), fOwner.GetUnits()); }

void TVGR2DItem::SetWidth(float value) {
    if (!HasTrait(trSizeFollows) && value != GetWidth())
        SetPointX(2, GetPointX(1) + value);
}

void TVGR2DItem::SetHeight(float value) {
    if (!HasTrait(trSizeFollows) && value != GetHeight())
        SetPointY(2, GetPointY(1) + value);
}

void TVGR2DItem::SetBaseWidth(std::int64_t value) {
    if (value == BaseWidth() || !Record({ckPosX, 2}))
        return;
    SetBaseX(2, AddSat(GetPoint(1).bX, value));
    UpdateBounds();
}

void TVGR2DItem::SetBaseHeight(std::int64_t value) {
    if (value == BaseHeight() || !Record({ckPosY, 2}))
        return;
    SetBaseY(2, AddSat(GetPoint(1).bY, value));
    UpdateBounds();
}

float TVGR2DItem::GetWidthMM() const { return FromBase(BaseWidth()); }
float TVGR2DItem::GetHeightMM() const { return FromBase(BaseHeight()); }

std::int64_t TVGR2DItem::WidthPx(int dpi) const { return fOwner.ToPixels(BaseWidth(), dpi); }
std::int64_t TVGR2DItem::HeightPx(int dpi) const { return fOwner.ToPixels(BaseHeight(), dpi); }

void TVGR2DItem::CheckBaseBoundsMove(std::int64_t& bx, std::int64_t& by, TKSLMoveOpt option) const {
    if (HasTrait(trClosed))
        TVGRBaseItem::CheckBaseBoundsMove(bx, by, option);
    else
        CheckBaseBoundsMoveResize(bx, by, option);
}

SvgElement& TVGR2DItem::WriteFill(SvgElement& element) const {
    return fFill ? element.Fill(fBackColor) : element << " fill=\"none\"";
}

SvgElement& TVGR2DItem::WriteStroke(SvgElement& element, TKSLineType dash) const {
    return element.Stroke(fColor).StrokeWidth(GetPenWidth()).Dash(dash);
}

void TVGR2DItem::Members(TMembers& members) {
    TVGRBaseItem::Members(members);
    members(fBackColor, fFill);
}

void TVGR2DItem::Keys(TJsonFields& keys) {
    keys(u"Filled", fFill);
    keys.Color(u"FillColor", fBackColor);
}

void TVGR2DItem::Fields(TBinaryFields& fields) { fields(fFill, fBackColor); }

} // namespace vagrel
