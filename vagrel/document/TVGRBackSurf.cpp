// SPDX-License-Identifier: MIT
// The background of a label.
#include <vagrel/document/TVGRBackSurf.h>

#include <vagrel/document/TMembers.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>
#include <vagrel/platform/Files.h>

#include <algorithm>

namespace vagrel {

namespace {

using TStyles = TKSLSet<TKSLBackStyle>;

constexpr TStyles OnlyRect{biGradHor, biGradVer};
constexpr TStyles OnlyCircle{biGraCircle, biHalf1, biHalf2, biQuarter};

} // namespace

TVGRBackSurf::TVGRBackSurf(TVGRBaseLabel& owner, bool createImage) : fCreateImage(createImage), fOwner(owner) {}

void TVGRBackSurf::DropUnfit() {
    if ((fOwner.GetMeasure().GetLabelType() == ltCircle ? OnlyRect : OnlyCircle).Has(fStyle))
        fStyle = biNone;
}

void TVGRBackSurf::SetStyle(TKSLBackStyle value) {
    if (value == fStyle)
        return;
    fStyle = value;
    if (!fOwner.IsLoading()) {
        if (fStyle == biImage && fFileName.empty())
            fStyle = biNone;
        DropUnfit();
    }
    fOwner.SetModified(true);
}

void TVGRBackSurf::StoreColor(TAlphaColor& field, TAlphaColor value) {
    if (value == field)
        return;
    field = value;
    fOwner.ChangeValue(chBackSurf);
}

void TVGRBackSurf::SetFileName(std::u16string_view value) {
    if (value == fFileName)
        return;
    fFileName = value;
    ReadFileImage();
    fNeedPaint = true;
    fOwner.SetModified(true);
}

bool TVGRBackSurf::ReadFileImage() { return FileExists(ToUtf8(fFileName)); }

float TVGRBackSurf::GetAlignLeft() const { return fOwner.GetVal(fAlignLeft, true); }
float TVGRBackSurf::GetAlignTop() const { return fOwner.GetVal(fAlignTop, true); }
void TVGRBackSurf::SetAlignLeft(float value) { StoreAlign(fAlignLeft, value, mtLabelWidth); }
void TVGRBackSurf::SetAlignTop(float value) { StoreAlign(fAlignTop, value, mtLabelHeight); }

void TVGRBackSurf::StoreAlign(std::int32_t& field, float value, TKSLMeasureType limit) {
    const std::int64_t high = fOwner.GetMeasure().GetSize(limit, false);
    const auto base = std::int32_t(std::max<std::int64_t>(std::min(fOwner.SetVal(value, false), high), 0));
    if (base == field)
        return;
    field = base;
    if (fShowAlign)
        fOwner.ChangeValue(chAligns);
}

void TVGRBackSurf::SetAlignColor(TAlphaColor value) {
    if (value == fAlignColor)
        return;
    fAlignColor = value;
    fOwner.SetModified(true);
    if (fShowAlign)
        fOwner.ChangeValue(chAligns);
}

void TVGRBackSurf::SetShowAlign(bool value) {
    if (value == fShowAlign)
        return;
    fShowAlign = value;
    if (value && !fOwner.IsLoading())
        fOwner.ChangeValue(chAligns);
}

void TVGRBackSurf::Assign(const TVGRBackSurf& s) {
    fStyle = s.fStyle, fColor = s.fColor, fToColor = s.fToColor, fAlignColor = s.fAlignColor;
    fFileName = s.fFileName, fAlignLeft = s.fAlignLeft, fAlignTop = s.fAlignTop;
    fShowAlign = s.fShowAlign, fPrint = s.fPrint;
}

void TVGRBackSurf::Keys(TJsonFields& keys) {
    keys.Color(u"Color", fColor);
    keys.Color(u"ToColor", fToColor);
    keys(u"Print", fPrint);
    keys.Through(u"FileNameImg", fFileName, [this](const std::u16string& value) { SetFileName(value); });
    keys(u"Style", fStyle);
}

void TVGRBackSurf::Fields(TBinaryFields& fields) {
    std::u16string file = fFileName;
    fields(file, fColor, fToColor, fStyle, fPrint);
    SetFileName(file);
}

void TVGRBackSurf::Members(TMembers& members) {
    members(fStyle, fColor, fToColor, fAlignColor, fFileName, fAlignLeft, fAlignTop, fShowAlign, fPrint);
}

void TVGRBackSurf::WriteJson(TJsonObject& parent) const { WriteKeys(*this, parent.AddObject(u"BackSurface")); }
void TVGRBackSurf::ReadJson(std::int32_t, TJsonObject& json) { ReadKeys(*this, json); }
void TVGRBackSurf::WriteData(TBinaryWriter& writer) const { WriteFields(*this, writer); }
void TVGRBackSurf::ReadData(std::int32_t version, TBinaryReader& reader) { ReadFields(*this, reader, version); }

} // namespace vagrel
