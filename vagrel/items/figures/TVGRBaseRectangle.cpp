// SPDX-License-Identifier: MIT
// The rectangle.
#include <vagrel/items/figures/TVGRBaseRectangle.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Rounding.h>

#include <algorithm>

namespace vagrel {

TVGRBaseRectangle::TVGRBaseRectangle(TVGRBaseLabel& owner, bool preview) : WithLineType(owner, itRectangle, preview) {}

TVGRBaseRectangle::TVGRBaseRectangle(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : WithLineType(owner, itRectangle, layer, preview) {}

float TVGRBaseRectangle::GetRadio() const { return GetValue(fRadio, fOwner.GetUnits()); }

void TVGRBaseRectangle::SetRadio(float value) {
    SetBaseRadio(std::min(SetValue(value, fOwner.GetUnits()), BaseHeight() / 2));
}

void TVGRBaseRectangle::SetBaseRadio(std::int64_t value) { Store(fRadio, value, cmd::Radio); }

TKSLShape TVGRBaseRectangle::Shape() const {
    const TKSLPto a = At(1), b = At(2);
    return TKSLShape::Segments({a, {b.bX, a.bY}, b, {a.bX, b.bY}}, true);
}

bool TVGRBaseRectangle::Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) {
    if (!TVGRBaseItem::Pick(bx, by, gap, fill))
        return false;
    if (fFill)
        return true;
    fCheckRect = fBoundsRect;
    const std::int64_t ring = AddSat(gap, fPenWidth);
    fCheckRect.Inflate(SubSat(0, ring), SubSat(0, ring));
    return !fCheckRect.Contains(bx, by);
}

bool TVGRBaseRectangle::CheckPoint(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLSnap snap,
                                   TKSLRef& ref) const {
    const TKSLPto a = At(1), b = At(2);
    const TKSLPto middle{AddSat(a.bX, SubSat(b.bX, a.bX) / 2), AddSat(a.bY, SubSat(b.bY, a.bY) / 2)};
    const TKSLPto left{std::min(a.bX, b.bX), middle.bY}, right{std::max(a.bX, b.bX), middle.bY};
    const TKSLPto top{middle.bX, std::min(a.bY, b.bY)}, bottom{middle.bX, std::max(a.bY, b.bY)};
    auto any = [&](std::initializer_list<TKSLPto> candidates) {
        return std::ranges::any_of(candidates, [&](TKSLPto point) { return Snap(bx, by, gap, point, rtyRect, ref); });
    };
    switch (snap) {
    case snMiddle:
        return any({top, bottom, left, right});
    case snCenter:
        return Snap(bx, by, gap, middle, rtyCircle, ref);
    case snEnd:
        return fRadio == 0 && any({a, {a.bX, b.bY}, b, {b.bX, a.bY}});
    case snPerpendicular: {
        const TKSLPto topLeft{left.bX, top.bY}, topRight{right.bX, top.bY};
        const TKSLPto bottomLeft{left.bX, bottom.bY}, bottomRight{right.bX, bottom.bY};
        return SnapFoot(bx, by, gap, topLeft, topRight, ref) || SnapFoot(bx, by, gap, topRight, bottomRight, ref) ||
               SnapFoot(bx, by, gap, bottomLeft, bottomRight, ref) || SnapFoot(bx, by, gap, topLeft, bottomLeft, ref);
    }
    default:
        return false;
    }
}

TKSLBase TVGRBaseRectangle::CenterPoint() const {
    return {AddSat(fBoundsRect.Left, fBoundsRect.GetWidth() / 2), AddSat(fBoundsRect.Top, fBoundsRect.GetHeight() / 2)};
}

void TVGRBaseRectangle::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props, {iyID, iyLayer, iy2D, iyBack, iyTwoPoint, iyBorder, iyRadio, iyWidthHeight}, {iyLine});
}

void TVGRBaseRectangle::Members(TMembers& members) {
    WithLineType::Members(members);
    members(fRadio);
}

void TVGRBaseRectangle::Keys(TJsonFields& keys) {
    WithLineType::Keys(keys);
    keys.Number(u"Radio", GetRadio(), [this](float value) { SetRadio(value); });
}

void TVGRBaseRectangle::Fields(TBinaryFields& fields) {
    if (!fields.Reads() && ToInt32(fRadio) != fRadio)
        throw EOutOfRange(u"The corner radius of \"" + fID + u"\" is larger than the binary form can hold");
    WithLineType::Fields(fields);
    fields.As<std::int32_t>(fRadio);
}

void TVGRBaseRectangle::WriteSVG(TSVGOutput& out) const {
    SvgElement box = out.Element();
    box << "<rect" << GetSVGID(out);
    box.Box(GetPointMMX(1), GetPointMMY(1), FromBase(BaseWidth()), FromBase(BaseHeight())) << " ";
    if (fRadio != 0)
        box.Attr("rx", GetMMRadio()) << " ";
    WriteFill(box) << " ";
    WriteStroke(box, fLineType) << "/>";
    out.svg.push_back(box.Take());
}

} // namespace vagrel
