// SPDX-License-Identifier: MIT
// Centre and radii of the round figures.
#include <vagrel/items/figures/TVGRRoundItem.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TDraw2D.h>

#include <cmath>

namespace vagrel {

void TVGRRoundItem::UpdateBounds() {
    TVGRBaseItem::UpdateBounds();
    const TKSLPto a = At(1), b = At(2);
    fBaseRadioX = SubSat(b.bX, a.bX) / 2;
    fBaseRadioY = SubSat(b.bY, a.bY) / 2;
    fBaseX = AddSat(a.bX, fBaseRadioX);
    fBaseY = AddSat(a.bY, fBaseRadioY);
}

void TVGRRoundItem::Members(TMembers& members) {
    WithLineType::Members(members);
    members(fBaseX, fBaseY, fBaseRadioX, fBaseRadioY);
}

float TVGRRoundItem::RadioX() const { return GetValue(SubSat(At(2).bX, At(1).bX) / 2, fOwner.GetUnits()); }
float TVGRRoundItem::RadioY() const { return GetValue(SubSat(At(2).bY, At(1).bY) / 2, fOwner.GetUnits()); }

float TVGRRoundItem::GetCenterX() const {
    return GetValue(AddSat(At(1).bX, SubSat(At(2).bX, At(1).bX) / 2), fOwner.GetUnits());
}

float TVGRRoundItem::GetCenterY() const {
    return GetValue(AddSat(At(1).bY, SubSat(At(2).bY, At(1).bY) / 2), fOwner.GetUnits());
}

std::int64_t TVGRRoundItem::KeptOnLabel(std::int64_t center, std::int64_t radius, TKSLMeasureType size) const {
    const std::int64_t limit = fOwner.GetMeasure().GetSize(size, CenterOnScaledLabel());
    if (center < radius)
        center = radius;
    if (AddSat(center, radius) > limit)
        center = SubSat(limit, radius);
    return center;
}

void TVGRRoundItem::SetCenterX(float value) {
    const std::int64_t center = SetValue(value, fOwner.GetUnits());
    if (center == fBaseX || !Record(cmd::CenterX))
        return;
    fBaseX = KeptOnLabel(center, fBaseRadioX, mtLabelWidth);
    Rebuild(fBaseRadioX, fBaseRadioY);
    StateUpdate();
}

void TVGRRoundItem::SetCenterY(float value) {
    const std::int64_t center = SetValue(value, fOwner.GetUnits());
    if (center == fBaseY || !Record(cmd::CenterY))
        return;
    fBaseY = KeptOnLabel(center, fBaseRadioY, mtLabelHeight);
    Rebuild(fBaseRadioX, fBaseRadioY);
    StateUpdate();
}

void TVGRRoundItem::Rebuild(std::int64_t radiusX, std::int64_t radiusY) {
    AssignPoints(
        {{SubSat(fBaseX, radiusX), SubSat(fBaseY, radiusY)}, {AddSat(fBaseX, radiusX), AddSat(fBaseY, radiusY)}});
}

bool TVGRRoundItem::PickDisc(std::int64_t bx, std::int64_t by, std::int64_t gap) const {
    if (!fFill || Alpha() == 0)
        return TDraw2D::PointOnCircle(fBaseX, fBaseY, fBaseRadioX, bx, by, gap);
    const double dx = std::fabs(double(bx) - double(fBaseX)), dy = std::fabs(double(by) - double(fBaseY));
    const auto radius = double(fBaseRadioX);
    if (dx + dy <= radius + double(gap))
        return true;
    return dx <= radius && dx * dx + dy * dy <= radius * radius;
}

bool TVGRRoundItem::CheckPoint(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLSnap snap, TKSLRef& ref) const {
    return snap == snCenter && Snap(bx, by, gap, {fBaseX, fBaseY}, rtyCircle, ref);
}

void TVGRRoundItem::WriteCircle(TSVGOutput& out) const {
    if (!Draws())
        return;
    SvgElement circle = out.Element();
    (circle << "<circle" << GetSVGID(out)).Attr("cx", FromBase(fBaseX)).Attr("cy", FromBase(fBaseY));
    circle.Attr("r", FromBase(fBaseRadioX)) << (fFill ? " " : "");
    WriteFill(circle) << " ";
    (circle.Stroke(fColor).StrokeWidth(GetPenWidth()) << " ").Dash(fLineType) << "/>";
    out.svg.push_back(circle.Take());
}

} // namespace vagrel
