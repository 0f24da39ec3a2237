// SPDX-License-Identifier: MIT
// What all codes share: size, padding, place, frame and bars in files and in SVG.
#include <vagrel/barcode/TVGRBaseCode.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/items/text/LabelPosition.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/persistence/TJsonFields.h>

#include <algorithm>

namespace vagrel {

TVGRBaseCode::TVGRBaseCode(TVGRBaseLabel& owner, TKSLItemType type, TVGRLayer& layer, bool preview,
                           const TCodeSizes& sizes)
    : TVGR2DItem(owner, type, layer, preview), fBarWidth(sizes.barWidth), fBarHeight(sizes.barHeight),
      fPaddingX(sizes.paddingX), fPaddingY(sizes.paddingY), fLeastWidth(sizes.leastWidth),
      fLeastHeight(sizes.leastHeight) {}

// The text

void TVGRBaseCode::StoreCode(std::u16string_view value) {
    constexpr char16_t lacking = 0x80;
    fCode = value;
    std::ranges::replace_if(
        fCode, [](char16_t unit) { return unit > 0xFF; }, lacking);
}

std::string TVGRBaseCode::GetAnsiCode() const { return {fCode.begin(), fCode.end()}; }

void TVGRBaseCode::SetCode(std::u16string_view value) {
    if (value == fCode)
        return;
    Touch();
    StoreCode(value);
    StateCalc();
}

// Sizes

float TVGRBaseCode::ToUnit(std::int32_t base) const { return fOwner.GetVal(base, true); }
std::int32_t TVGRBaseCode::ToBase(float value) const { return ToInt32(fOwner.SetVal(value, true)); }

void TVGRBaseCode::SizeStored() {
    Touch();
    MeasureSymbol();
    UpdatePoints();
    StateUpdate();
}

void TVGRBaseCode::StoreBars(std::int64_t width, std::int64_t height, float factor, cmd::TFloatIndex index) {
    const std::int32_t newWidth = ToInt32(std::max<std::int64_t>(width, fLeastWidth));
    const std::int32_t newHeight = ToInt32(std::max<std::int64_t>(height, fLeastHeight));
    if (newWidth == fBarWidth && newHeight == fBarHeight && factor == fFactor)
        return;
    // What follows from the value is recorded in front of it, so that undo brings it back behind it.
    if (newWidth != fBarWidth && index != cmd::BarWidth && !Record(cmd::BarWidth))
        return;
    if (newHeight != fBarHeight && index != cmd::BarHeight && !Record(cmd::BarHeight))
        return;
    if (!Record(index))
        return;
    fBarWidth = newWidth;
    fBarHeight = newHeight;
    fFactor = factor;
    SizeStored();
}

void TVGRBaseCode::StorePadding(std::int32_t& field, float value) {
    if (Store(field, std::max(ToBase(value), 0), {}, TFollow::None))
        SizeStored();
}

void TVGRBaseCode::LimitSizes() {
    fBarWidth = std::max(fBarWidth, fLeastWidth);
    fBarHeight = std::max(fBarHeight, fLeastHeight);
    fPaddingX = std::max(fPaddingX, 0);
    fPaddingY = std::max(fPaddingY, 0);
}

void TVGRBaseCode::Members(TMembers& members) {
    TVGR2DItem::Members(members);
    members(fCode, fBarWidth, fBarHeight, fPaddingX, fPaddingY, fFactor, fHorzAlign, fVertAlign, fBarCodeWidth,
            fBarCodeHeight, fBinding);
}

// Place

void TVGRBaseCode::SetAngle(TKSLAngle value) { Store(fAngle, value, cmd::Angle, TFollow::Bounds); }

void TVGRBaseCode::RotateLeft() {
    Touch();
    fAngle = fAngle >= ag0 && fAngle < ag270 ? TKSLAngle(fAngle + 1) : ag0;
    At(1) = {At(1).bY, SubSat(fOwner.GetMeasure().GetSize(mtLabelHeight, true), At(1).bX)};
    UpdatePoints();
}

void TVGRBaseCode::RotateRight() {
    Touch();
    fAngle = fAngle > ag0 && fAngle <= ag270 ? TKSLAngle(fAngle - 1) : ag270;
    At(1) = {SubSat(fOwner.GetMeasure().GetSize(mtLabelWidth, true), At(1).bY), At(1).bX};
    UpdatePoints();
}

void TVGRBaseCode::UpdateBounds() {
    Touch();
    const std::int64_t scale = fOwner.GetMeasure().GetDrawScale();
    At(2) = {AddSat(At(1).bX, MulSat(fBarCodeWidth, scale)), AddSat(At(1).bY, MulSat(fBarCodeHeight, scale))};
    fBoundsRect = {At(1).bX, At(1).bY, At(2).bX, At(2).bY};
    AdjustRect(fBoundsRect, fHorzAlign, fVertAlign, fAngle);
}

void TVGRBaseCode::CheckFit(TKSLExtent& extent) const {
    extent.Widen(fBoundsRect.Left, fBoundsRect.Top, 0);
    extent.Widen(fBoundsRect.Right, fBoundsRect.Bottom, 0);
}

TKSLBase TVGRBaseCode::CenterPoint() const {
    return {AddSat(fBoundsRect.Left, fBoundsRect.GetWidth() / 2), AddSat(fBoundsRect.Top, fBoundsRect.GetHeight() / 2)};
}

TKSLRect TVGRBaseCode::Place(const TKSLRect& rect) const {
    const std::int64_t scale = fOwner.GetMeasure().GetDrawScale();
    const std::int64_t left = MulSat(rect.Left, scale), right = MulSat(rect.Right, scale);
    const std::int64_t top = MulSat(rect.Top, scale), bottom = MulSat(rect.Bottom, scale);
    const TKSLRect& box = fBoundsRect;
    switch (fAngle) {
    case ag90: // from the left bottom corner up the page
        return {AddSat(box.Left, top), SubSat(box.Bottom, right), AddSat(box.Left, bottom), SubSat(box.Bottom, left)};
    case ag180:
        return {SubSat(box.Right, right), SubSat(box.Bottom, bottom), SubSat(box.Right, left), SubSat(box.Bottom, top)};
    case ag270:
        return {SubSat(box.Right, bottom), AddSat(box.Top, left), SubSat(box.Right, top), AddSat(box.Top, right)};
    default:
        return {AddSat(box.Left, left), AddSat(box.Top, top), AddSat(box.Left, right), AddSat(box.Top, bottom)};
    }
}

// Data

TKSLFillType TVGRBaseCode::FillType() const { return fOwner.GetData().GetLinkData() ? fBinding.type : ftNone; }

std::u16string TVGRBaseCode::SymFillName() const { return fBinding.Symbolic(); }

void TVGRBaseCode::SetData(TKSLFillType type, std::u16string_view name, std::u16string_view format) {
    Touch();
    fBinding.Set(type, name, format);
    aIsData = fBinding.IsSet();
    StateCalc();
}

bool TVGRBaseCode::GetIsData() const { return aIsData && fOwner.GetData().IsValidData(fBinding.type, fBinding.field); }

void TVGRBaseCode::FillData(bool update) {
    if (!fOwner.GetData().IsValidData(FillType(), FillName()))
        return;
    Touch();
    StoreCode(fOwner.DataValue(FillName(), GetFormat(), FillType()));
    if (update)
        CalcValues(2);
}

// Files and SVG

void TVGRBaseCode::SizeKey(TJsonFields& keys, std::u16string_view key, std::int32_t& field) {
    keys.Number(key, ToUnit(field), [&](float value) { field = ToBase(value); });
}

void TVGRBaseCode::BarKeys(TJsonFields& keys) {
    SizeKey(keys, u"BarWidth", fBarWidth);
    SizeKey(keys, u"BarHeight", fBarHeight);
}

void TVGRBaseCode::PaddingKeys(TJsonFields& keys) {
    SizeKey(keys, u"PaddingX", fPaddingX);
    SizeKey(keys, u"PaddingY", fPaddingY);
}

namespace {

SvgElement& WriteBox(SvgElement& rect, const TVGRBaseItem& item, const TKSLRect& box) {
    return (rect << "<rect")
        .Box(item.GetMM(box.Left), item.GetMM(box.Top), item.GetMM(box.GetWidth()), item.GetMM(box.GetHeight()));
}

} // namespace

void TVGRBaseCode::WriteFrame(TSVGOutput& out) const {
    if (!fFill)
        return;
    SvgElement rect = out.Element();
    (WriteBox(rect, *this, fBoundsRect) << GetSVGID(out)).Fill(fBackColor) << " stroke-width=\"0\"/>";
    out.svg.push_back(rect.Take());
}

// An identifier stands once in a document: at the frame, or without one at the first bar.
void TVGRBaseCode::WriteRects(TSVGOutput& out, const std::vector<TKSLRect>& rects, TAlphaColor color) const {
    bool named = fFill;
    for (const TKSLRect& dark : rects) {
        SvgElement rect = out.Element();
        (WriteBox(rect, *this, dark) << (named ? "" : GetSVGID(out))).Fill(color) << "/>";
        named = true;
        out.svg.push_back(rect.Take());
    }
}

} // namespace vagrel
