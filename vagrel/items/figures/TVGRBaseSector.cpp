// SPDX-License-Identifier: MIT
// The sector of a circle.
#include <vagrel/items/figures/TVGRBaseSector.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TDraw2D.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

namespace vagrel {

namespace {

// Whether two places are the same as written, where a whole number has no decimals and one that rounds to it has.
bool SamePlace(const std::string& one, const std::string& other) {
    auto numbers = [](const std::string& text) {
        std::pair<double, double> place;
        const char* const end = text.data() + text.size();
        std::from_chars(std::from_chars(text.data(), end, place.first).ptr + 1, end, place.second);
        return place;
    };
    return numbers(one) == numbers(other);
}

} // namespace

TVGRBaseSector::TVGRBaseSector(TVGRBaseLabel& owner, bool preview) : TVGRRoundItem(owner, itSector, preview) {}

TVGRBaseSector::TVGRBaseSector(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : TVGRRoundItem(owner, itSector, layer, preview) {}

void TVGRBaseSector::AdjustStartAngle() { fCalcStart = fAngleStart + float(DegAngle(fAngle)); }

void TVGRBaseSector::SetRadio(float value) { SetBaseRadio(SetValue(value, fOwner.GetUnits())); }

void TVGRBaseSector::SetBaseRadio(std::int64_t value) {
    if (value == fBaseRadioX)
        return;
    Rebuild(value, value);
    StateUpdate();
}

void TVGRBaseSector::SetStartAngle(float value) {
    value = std::clamp(value, -359.0f, 360.0f);
    if (value == fAngleStart)
        return;
    Put(fAngleStart, value);
    AdjustStartAngle();
    StateUpdate();
}

void TVGRBaseSector::SetSweepAngle(float value) {
    const float start = std::fabs(fAngleStart);
    value = std::max(value, 0.0f);
    if (value + start > 360)
        value = 360 - start;
    if (value == fAngleGap)
        return;
    Put(fAngleGap, value);
    StateUpdate();
}

void TVGRBaseSector::SetAngle(TKSLAngle value) {
    if (value == fAngle)
        return;
    Put(fAngle, value);
    AdjustStartAngle();
    StateUpdate();
}

void TVGRBaseSector::RotateLeft() {
    TVGRRoundItem::RotateLeft();
    AdjustStartAngle();
}

void TVGRBaseSector::RotateRight() {
    TVGRRoundItem::RotateRight();
    AdjustStartAngle();
}

bool TVGRBaseSector::Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) {
    return TVGRBaseItem::Pick(bx, by, gap, fill) && PickDisc(bx, by, gap);
}

bool TVGRBaseSector::SearchRect(const TKSLRect& rect, bool intersects) const {
    if (!TVGRBaseItem::SearchRect(rect, intersects))
        return false;
    if (!intersects || rect.Contains(fBoundsRect))
        return true;
    auto inside = [&](std::int64_t x, std::int64_t y) {
        return TDraw2D::Distance(fBaseX, fBaseY, x, y) <= fBaseRadioX;
    };
    return inside(rect.Left, rect.Top) || inside(rect.Right, rect.Top) || inside(rect.Right, rect.Bottom) ||
           inside(rect.Left, rect.Bottom);
}

TPoint2D TVGRBaseSector::ToRim(float degrees) const {
    const double angle = double(degrees) * std::numbers::pi / 180;
    return {double(fBaseRadioX) * std::cos(angle), double(fBaseRadioX) * std::sin(angle)};
}

void TVGRBaseSector::CheckFit(TKSLExtent& extent) const {
    if (fAngleGap == 360)
        return extent.Widen(fBaseX, fBaseY, fBaseRadioX);
    extent.Widen(fBaseX, fBaseY, 0);
    for (const TPoint2D& rim : {ToRim(fCalcStart), ToRim(fCalcStart + fAngleGap)})
        extent.Widen(AddSat(fBaseX, Round(rim.X)), AddSat(fBaseY, Round(rim.Y)), 0);
}

void TVGRBaseSector::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props, {iyID, iyLayer, iy2D, iyBack, iyBorder, iyAngle, iyRadio, iyCenter}, {iyLine, iySector});
}

void TVGRBaseSector::Members(TMembers& members) {
    TVGRRoundItem::Members(members);
    members(fAngleStart, fAngleGap, fCalcStart);
}

void TVGRBaseSector::Keys(TJsonFields& keys) {
    TVGRRoundItem::Keys(keys);
    keys(u"StartAngle", fAngleStart);
    keys(u"SweepAngle", fAngleGap);
    AdjustStartAngle();
}

void TVGRBaseSector::Fields(TBinaryFields& fields) {
    TVGRRoundItem::Fields(fields);
    fields(fAngleStart, fAngleGap);
    AdjustStartAngle();
}

void TVGRBaseSector::WriteSVG(TSVGOutput& out) const {
    if (fAngleGap == 360)
        return WriteCircle(out);
    if (!Draws())
        return;
    auto place = [&](TPoint2D away) {
        SvgElement text = out.Element();
        text.Val(float(fOwner.ToPaper(double(fBaseX) + away.X))) << ",";
        return text.Val(float(fOwner.ToPaper(double(fBaseY) + away.Y))).Take();
    };
    const std::string start = place(ToRim(fCalcStart)), end = place(ToRim(fCalcStart + fAngleGap));
    // Between equal ends an arc is nothing at all to a renderer.
    if (out.wellFormed && fAngleGap > 180 && SamePlace(start, end))
        return WriteCircle(out);
    SvgElement slice = out.Element();
    slice << "<path" << GetSVGID(out) << " d=\"M" << place({0, 0}) << " L" << start;
    (slice << " A").Val(FromBase(fBaseRadioX)) << ",";
    slice.Val(FromBase(fBaseRadioX)) << " 0 " << (fAngleGap > 180 ? "1" : "0") << ",1 ";
    slice << end << (fFill ? " Z\" " : " Z\"");
    WriteFill(slice) << " ";
    (slice.Stroke(fColor).StrokeWidth(GetPenWidth()) << " ").Dash(fLineType) << "/>";
    out.svg.push_back(slice.Take());
}

} // namespace vagrel
