// SPDX-License-Identifier: MIT
// Text, looks, data and geometry of the single-line text.
#include <vagrel/items/text/TVGRBaseText.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TVGRBaseDraw.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/items/text/LabelPosition.h>
#include <vagrel/merge/TVGRData.h>

#include <algorithm>

namespace vagrel {

namespace {

constexpr std::int32_t SmallestFont = 1000;

} // namespace

TVGRBaseText::TVGRBaseText(TVGRBaseLabel& owner, bool preview) : TVGRBaseText(owner, owner.GetLayer(1), preview) {}

TVGRBaseText::TVGRBaseText(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : TVGRBaseItem(owner, itText, layer, preview) {
    fPenWidth = 0;
}

void TVGRBaseText::SetText(std::u16string_view value) {
    if (value == fText || !Record(cmd::Text))
        return;
    fText = value;
    if (FillType() != ftNone && !fText.empty()) {
        fBinding.type = ftNone;
        fBinding.field.clear();
        aIsData = false;
    }
    dText = fText;
    // The editor of a selected text measures it at the end; undo has nobody else who would.
    if (fState != isSelected || fOwner.IsReplaying())
        StateCalc();
}

TFontStyles TVGRBaseText::Style() const {
    TFontStyles styles;
    styles.Put(fsBold, fFont.bold);
    styles.Put(fsItalic, fFont.italic);
    styles.Put(fsUnderline, fFont.underline);
    styles.Put(fsStrikeOut, fFont.strikeout);
    return styles;
}

TKSLSPoint TVGRBaseText::Position(const TVGRBaseDraw& draw) const { return {At(1).DrawX(draw), At(1).DrawY(draw)}; }

void TVGRBaseText::SetScaleX(float value) { Store(fScaleX, std::clamp(value, 0.4f, 2.0f), {}, TFollow::Calc); }

void TVGRBaseText::SetFontName(std::u16string_view value) {
    Store(fFont.name, std::u16string(value), cmd::FontName, TFollow::Calc);
}

float TVGRBaseText::GetFontHeight() const { return GetBaseValue(fFont.height); }

void TVGRBaseText::SetFontHeight(float mm) {
    Store(fFont.height, std::max(ToInt32(SetBaseValue(mm)), SmallestFont), {}, TFollow::Calc);
}

void TVGRBaseText::SetFontColor(TAlphaColor value) { Store(fFont.color, value, cmd::Font); }

void TVGRBaseText::SetStrikeout(bool value) {
    if (value == fFont.strikeout)
        return;
    Put(fChanged, true);
    Store(fFont.strikeout, value);
}

void TVGRBaseText::SetBackColor(TAlphaColor value) { Store(fBackColor, value, cmd::BackInterface); }
void TVGRBaseText::SetFilled(bool value) { Store(fFill, value, cmd::Filled); }

float TVGRBaseText::GetPaddingX() const { return GetBaseValue(fPaddingX); }
float TVGRBaseText::GetPaddingY() const { return GetBaseValue(fPaddingY); }
void TVGRBaseText::SetPaddingX(float mm) { StorePadding(fPaddingX, mm); }
void TVGRBaseText::SetPaddingY(float mm) { StorePadding(fPaddingY, mm); }

void TVGRBaseText::StorePadding(std::int32_t& field, float mm) {
    Store(field, std::max(ToInt32(SetBaseValue(mm)), 0), {}, TFollow::Bounds);
}

float TVGRBaseText::GetRadio() const { return GetBaseValue(fRadio); }

void TVGRBaseText::SetRadio(float mm) {
    const std::int64_t base = SetBaseValue(mm);
    SetBaseRadio(fMeasured.height > 0 ? std::min<std::int64_t>(base, fMeasured.height / 2) : base);
}

void TVGRBaseText::SetBaseRadio(std::int64_t value) { Store(fRadio, value); }

// Data

TKSLFillType TVGRBaseText::FillType() const { return fOwner.GetData().GetLinkData() ? fBinding.type : ftNone; }

std::u16string TVGRBaseText::SymFillName() const { return fBinding.Symbolic(); }

void TVGRBaseText::SetData(TKSLFillType type, std::u16string_view name, std::u16string_view format) {
    Touch();
    fBinding.Set(type, name, format);
    ShowBinding();
    fText = dText;
    const TItemHandle self(*this); // who is told may end it
    StateCalc();
    if (self && fState == isSelected)
        NotifyUpdate(chChText);
}

// A bound text shows the name of its field until a record fills it.
void TVGRBaseText::ShowBinding() {
    dText = fBinding.type != ftNone ? fBinding.field : fText;
    aIsData = fBinding.IsSet();
}

bool TVGRBaseText::GetIsData() const { return aIsData && fOwner.GetData().IsValidData(fBinding.type, fBinding.field); }

void TVGRBaseText::FillData(bool first) {
    if (!fOwner.GetData().IsValidData(FillType(), fBinding.field))
        return;
    Touch();
    dText = fOwner.DataValue(fBinding.field, fBinding.format, FillType());
    // An export writes the text that an item holds.
    if (fFromPreview)
        fText = dText;
    if (first)
        CalcValues(1);
}

// Geometry

void TVGRBaseText::StoreMeasure(const TTextMeasure& measure) {
    Put(fMeasured, measure);
    UpdateBounds();
}

void TVGRBaseText::UpdateBounds() {
    Touch();
    const std::int64_t scale = fOwner.GetMeasure().GetDrawScale();
    auto extent = [scale](std::int32_t size, std::int32_t padding) {
        return MulSat(std::int64_t(size) + 2 * std::int64_t(padding), scale);
    };
    At(2) = {AddSat(At(1).bX, extent(fMeasured.width, fPaddingX)),
             AddSat(At(1).bY, extent(fMeasured.height, fPaddingY))};
    fBoundsRect = {At(1).bX, At(1).bY, At(2).bX, At(2).bY};
    AdjustRect(fBoundsRect, fHorzAlign, fVertAlign, fAngle);
    TVGRBaseItem::UpdateBounds();
}

TKSLBase TVGRBaseText::CenterPoint() const {
    return {AddSat(fBoundsRect.Left, fBoundsRect.GetWidth() / 2), AddSat(fBoundsRect.Top, fBoundsRect.GetHeight() / 2)};
}

void TVGRBaseText::CheckFit(TKSLExtent& extent) const {
    extent.Widen(fBoundsRect.Left, fBoundsRect.Top, 0);
    extent.Widen(fBoundsRect.Right, fBoundsRect.Bottom, 0);
}

void TVGRBaseText::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props,
         {iyID, iyLayer, iyFont, iy1D, iyBack, iyBorder, iyAngle, iyData, iyRadio, iyPadding, iyAlignHorzVert}, {});
}

} // namespace vagrel
