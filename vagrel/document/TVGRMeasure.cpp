// SPDX-License-Identifier: MIT
// The rules of the page: floors, linked paper, draw scale.
#include <vagrel/document/TVGRMeasure.h>

#include <vagrel/document/TMembers.h>
#include <vagrel/document/TVGRBackSurf.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/Versions.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonObject.h>

#include <algorithm>
#include <limits>

namespace vagrel {

namespace {

constexpr std::int64_t SmallestSide = 5000;
constexpr std::int32_t LowestMargin = -5000;
constexpr std::int16_t UserPaper = 256;

std::int32_t Floored(std::int64_t base) { return ToInt32(std::max(base, SmallestSide)); }

} // namespace

TVGRMeasure::TVGRMeasure(TVGRBaseLabel& owner) : fOwner(owner) { ResetLabelName(); }

bool TVGRMeasure::Linked() const { return fContinousPaper || fOwner.GetEditorMode() != emLabelling; }

std::int64_t TVGRMeasure::GetSize(TKSLMeasureType type, bool incScale) const {
    auto field = [&]() -> std::int32_t {
        switch (type) {
        case mtPaperWidth:
            return fPaperWidth;
        case mtPaperHeight:
            return fPaperHeight;
        case mtLabelWidth:
            return fWidth;
        case mtLabelHeight:
            return fHeight;
        case mtMarginLeft:
            return fMarLeft;
        case mtMarginTop:
            return fMarTop;
        case mtGapHorz:
            return fDiHor;
        case mtGapVert:
            return fDiVer;
        }
        return 0;
    };
    return incScale ? MulSat(field(), fDrawScale) : field();
}

float TVGRMeasure::GetSide(std::int32_t base) const {
    return fOwner.GetEditorMode() == emLabelling ? fOwner.GetVal(base, true) : GetBaseValue(base);
}

std::int64_t TVGRMeasure::BaseSide(float value) const {
    return fOwner.GetEditorMode() == emLabelling ? fOwner.SetVal(value, true) : SetBaseValue(value);
}

float TVGRMeasure::Restricted(std::int32_t base) const { return fOwner.GetVal(base, true); }

void TVGRMeasure::Turn() {
    std::swap(fWidth, fHeight);
    std::swap(fPaperWidth, fPaperHeight);
}

float TVGRMeasure::WidthUnits() const { return GetValue(GetSize(mtLabelWidth, true), fOwner.GetUnits()); }
float TVGRMeasure::HeightUnits() const { return GetValue(GetSize(mtLabelHeight, true), fOwner.GetUnits()); }

std::int64_t TVGRMeasure::MaxDrawScaleForPaper(std::int64_t width, std::int64_t height) {
    auto size = [](std::int64_t side) { return side < 0 ? SubSat(0, side) : side; };
    const std::int64_t largest = std::max(size(width), size(height));
    constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max();
    return largest < 1 ? limit : limit / largest;
}

void TVGRMeasure::ValidateDrawScaleForPaper(std::int64_t width, std::int64_t height) const {
    if (!fOwner.HasDrawScale())
        return;
    const std::int64_t largest = MaxDrawScaleForPaper(width, height);
    if (fDrawScale > largest)
        throw EInvalidOperation(
            u"Drawing scale 1:" + IntToStr(fDrawScale) +
            u" cannot be represented with Int64 base coordinates for this paper size; maximum is 1:" +
            IntToStr(largest));
}

void TVGRMeasure::Modified(bool notify) {
    fOwner.SetModified(true);
    if (notify)
        fOwner.ChangeValue(chMeasure);
}

void TVGRMeasure::StoreWidth(std::int64_t base) {
    const std::int32_t value = Floored(base);
    if (value == fWidth)
        return;
    ValidateDrawScaleForPaper(value, fPaperHeight);
    fWidth = value;
    if (fLabelType == ltCircle)
        fHeight = value;
    if (Linked()) {
        fPaperWidth = fWidth;
        if (fLabelType == ltCircle)
            fPaperHeight = fHeight;
    }
    Modified(true);
}

void TVGRMeasure::StoreHeight(std::int64_t base) {
    const std::int32_t value = Floored(base);
    if (value == fHeight)
        return;
    ValidateDrawScaleForPaper(fPaperWidth, value);
    fHeight = value;
    if (fLabelType == ltCircle)
        fWidth = value;
    if (Linked()) {
        fPaperHeight = fHeight;
        if (fLabelType == ltCircle)
            fPaperWidth = fWidth;
    }
    Modified(true);
}

void TVGRMeasure::StorePaperWidth(std::int64_t base) {
    const std::int32_t value = Floored(base);
    if (value == fPaperWidth)
        return;
    ValidateDrawScaleForPaper(value, fPaperHeight);
    fPaperWidth = value;
    if (Linked())
        fWidth = value;
    Modified(Linked());
}

void TVGRMeasure::StorePaperHeight(std::int64_t base) {
    const std::int32_t value = Floored(base);
    if (value == fPaperHeight)
        return;
    ValidateDrawScaleForPaper(fPaperWidth, value);
    fPaperHeight = value;
    if (Linked())
        fHeight = value;
    Modified(Linked());
}

void TVGRMeasure::SetLabelSizeMM(float width, float height) {
    const std::int32_t w = ToInt32(SetBaseValue(width)), h = ToInt32(SetBaseValue(height));
    if (w == fWidth && h == fHeight)
        return;
    if (Linked())
        ValidateDrawScaleForPaper(w, h);
    fWidth = w;
    fHeight = h;
    if (Linked()) {
        fPaperWidth = w;
        fPaperHeight = h;
        fOwner.ChangeValue(chMeasure);
    }
    Modified(true);
}

void TVGRMeasure::SetPaperSizeMM(float width, float height) {
    const std::int32_t w = ToInt32(SetBaseValue(width)), h = ToInt32(SetBaseValue(height));
    if (w == fPaperWidth && h == fPaperHeight)
        return;
    ValidateDrawScaleForPaper(w, h);
    fPaperWidth = w;
    fPaperHeight = h;
    if (Linked()) {
        fWidth = w;
        fHeight = h;
        fOwner.ChangeValue(chMeasure);
    }
    Modified(true);
}

void TVGRMeasure::StoreMargin(std::int32_t& field, float value, std::int32_t floor) {
    const std::int32_t base = std::max(ToInt32(fOwner.SetVal(value, true)), floor);
    if (fOwner.IsLoading() || base == field)
        return;
    field = base;
    Modified(false);
}

void TVGRMeasure::SetMarLeft(float value) { StoreMargin(fMarLeft, value, LowestMargin); }
void TVGRMeasure::SetMarTop(float value) { StoreMargin(fMarTop, value, LowestMargin); }
void TVGRMeasure::SetDiHor(float value) { StoreMargin(fDiHor, value, 0); }
void TVGRMeasure::SetDiVer(float value) { StoreMargin(fDiVer, value, 0); }

void TVGRMeasure::StoreCount(std::int32_t& field, std::int32_t value) {
    value = std::max(value, 1);
    if (value == field)
        return;
    field = value;
    Modified(false);
}

void TVGRMeasure::SetNuHor(std::int32_t value) { StoreCount(fNuHor, value); }
void TVGRMeasure::SetNuVer(std::int32_t value) { StoreCount(fNuVer, value); }

void TVGRMeasure::SetInnerCircle(float value) {
    const std::int32_t base = std::min(std::max(ToInt32(fOwner.SetVal(value, true)), 0), fWidth);
    if (base == fInnerCircle)
        return;
    fInnerCircle = base;
    Modified(true);
}

void TVGRMeasure::SetLabelType(TVagrelType value) {
    if (value == fLabelType)
        return;
    fLabelType = value;
    if (value == ltCircle)
        fHeight = fWidth;
    else
        fInnerCircle = 0;
    if (Linked()) // of a round label the paper turns square with it
        fPaperHeight = fHeight;
    fOwner.GetBackSurf().DropUnfit();
    Modified(false);
}

void TVGRMeasure::SetContinousPaper(bool value) {
    value = value || fOwner.GetEditorMode() != emLabelling;
    if (value == fContinousPaper)
        return;
    fContinousPaper = value;
    if (value) {
        fMarLeft = fMarTop = fDiHor = fDiVer = 0;
        fNuHor = fNuVer = 1;
        fWidth = fPaperWidth;
        fHeight = fPaperHeight;
    }
    Modified(false);
}

void TVGRMeasure::SetPaperName(std::u16string_view value) {
    if (value == fPaperName)
        return;
    if (fOwner.IsLoading()) {
        fPaperName = value;
        return;
    }
    float width = 0, height = 0;
    const std::int16_t code = GetPaperSize(value, width, height);
    const bool sized = code >= 0 && code != UserPaper;
    const std::int32_t w = Floored(SetBaseValue(width)), h = Floored(SetBaseValue(height));
    if (sized)
        ValidateDrawScaleForPaper(w, h);
    fPaperName = value;
    if (code >= 0)
        fPaperSize = code;
    if (sized) {
        fPaperWidth = w;
        fPaperHeight = h;
        if (Linked()) {
            fWidth = w;
            fHeight = h;
        }
    }
    Modified(sized);
}

void TVGRMeasure::SetLabelName(std::u16string_view value) {
    if (value == fLabelName)
        return;
    fLabelName = value;
    if (!fOwner.IsLoading())
        Modified(false);
}

void TVGRMeasure::SetDrawScale(std::int64_t value) {
    if (!fOwner.HasDrawScale())
        value = 1;
    const std::int64_t largest = GetMaxDrawScale();
    if (value < 1 || value > largest)
        throw EOutOfRange(u"Drawing scale must be between 1:1 and 1:" + IntToStr(largest) +
                          u" for the current paper size");
    if (value == fDrawScale)
        return;
    fDrawScale = value;
    if (fOwner.IsLoading() || fOwner.HasAnyState({lsReading}))
        return;
    fOwner.ChangeValue(chMeasure);
    fOwner.SetModified(true);
}

void TVGRMeasure::SendInfo() { fOwner.ChangeValue(chLabelDef); }

void TVGRMeasure::ResetLabelName() {
    fLabelName = TVGRMsg::GetInfoValue(fOwner.GetEditorMode() == emLabelling ? u"LabelName" : u"DrawingName");
}

void TVGRMeasure::Reset() {
    ResetLabelName();
    fLabelType = ltRect;
    for (std::u16string* text : {&fPromoter, &fAuthor, &fProject, &fTitle, &fDate, &fNote})
        text->clear();
    fPlanNumber = 1;
    fInnerCircle = 0;
    fDrawScale = 1;
    fIncludeUnit = true;
}

void TVGRMeasure::Assign(const TVGRMeasure& s) {
    fHeight = s.fHeight, fWidth = s.fWidth;
    fMarLeft = s.fMarLeft, fMarTop = s.fMarTop, fDiHor = s.fDiHor, fDiVer = s.fDiVer;
    fNuHor = s.fNuHor, fNuVer = s.fNuVer;
    fPaperHeight = s.fPaperHeight, fPaperWidth = s.fPaperWidth, fPaperSize = s.fPaperSize, fPaperName = s.fPaperName;
    fInnerCircle = s.fInnerCircle, fLabelName = s.fLabelName, fLabelType = s.fLabelType;
    fContinousPaper = s.fContinousPaper, fDrawScale = s.fDrawScale;
    fPromoter = s.fPromoter, fAuthor = s.fAuthor, fProject = s.fProject, fTitle = s.fTitle, fDate = s.fDate;
    fNote = s.fNote, fPlanNumber = s.fPlanNumber, fFormat = s.fFormat, fIncludeUnit = s.fIncludeUnit;
}

void TVGRMeasure::WriteJson(TJsonObject& parent) const {
    TJsonObject& json = parent.AddObject(u"Measures");
    auto length = [&](std::u16string_view key, std::int32_t base) { json.SetFloat(key, RoundTo3(Restricted(base))); };
    json.SetString(u"LabelName", fLabelName);
    json.SetString(u"Author", fAuthor);
    json.SetString(u"Note", fNote);
    length(u"LabelWidth", fWidth);
    length(u"LabelHeight", fHeight);
    length(u"MarginLeft", fMarLeft);
    length(u"MarginTop", fMarTop);
    json.SetInt(u"Rows", fNuHor);
    json.SetInt(u"Columns", fNuVer);
    length(u"RowGap", fDiHor);
    length(u"ColumnGap", fDiVer);
    length(u"PaperWidth", fPaperWidth);
    length(u"PaperHeight", fPaperHeight);
    json.SetInt(u"PaperSize", fPaperSize);
    json.SetString(u"PaperName", fPaperName);
    if (fOwner.HasDrawScale())
        json.SetLong(u"DrawScale", fDrawScale);
    json.SetBool(u"ContinousPaper", fContinousPaper);
    json.SetInt(u"LabelType", fLabelType);
    length(u"InnerCircle", fInnerCircle);
    json.SetString(u"Format", fFormat);
    json.SetBool(u"IncludeUnit", fIncludeUnit);
    if (fOwner.GetEditorMode() == emLabelling)
        return;
    json.SetString(u"Promoter", fPromoter);
    json.SetString(u"Project", fProject);
    json.SetString(u"Title", fTitle);
    json.SetString(u"Date", fDate);
    json.SetInt(u"PlanNumber", fPlanNumber);
}

void TVGRMeasure::ReadJson(std::int32_t, TJsonObject& json) {
    auto side = [&](std::u16string_view key) { return fOwner.SetVal(float(json.GetFloat(key)), true); };
    fLabelName = json.GetString(u"LabelName");
    fAuthor = json.GetString(u"Author");
    fNote = json.GetString(u"Note");
    SetContinousPaper(json.GetBool(u"ContinousPaper"));
    SetLabelType(TVagrelType(json.GetInt(u"LabelType")));
    StorePaperWidth(side(u"PaperWidth"));
    StorePaperHeight(side(u"PaperHeight"));
    StoreWidth(side(u"LabelWidth"));
    StoreHeight(side(u"LabelHeight"));
    SetMarLeft(float(json.GetFloat(u"MarginLeft")));
    SetMarTop(float(json.GetFloat(u"MarginTop")));
    SetNuHor(json.GetInt(u"Rows"));
    SetNuVer(json.GetInt(u"Columns"));
    SetDiHor(float(json.GetFloat(u"RowGap")));
    SetDiVer(float(json.GetFloat(u"ColumnGap")));
    // Not through SetPaperName: the paper table would undo a sheet turned to landscape.
    fPaperSize = std::int16_t(std::clamp(json.GetInt(u"PaperSize"), -0x8000, 0x7FFF));
    fPaperName = json.GetString(u"PaperName");
    SetDrawScale(fOwner.HasDrawScale() ? json.GetLong(u"DrawScale") : 1);
    SetInnerCircle(float(json.GetFloat(u"InnerCircle")));
    fFormat = json.GetString(u"Format");
    fIncludeUnit = json.GetBool(u"IncludeUnit");
    if (fOwner.GetEditorMode() == emLabelling)
        return;
    fPromoter = json.GetString(u"Promoter");
    fProject = json.GetString(u"Project");
    fTitle = json.GetString(u"Title");
    fDate = json.GetString(u"Date");
    fPlanNumber = json.GetInt(u"PlanNumber");
}

void TVGRMeasure::Fields(TBinaryFields& fields) {
    fields(fLabelName, fAuthor, fNote, fWidth, fHeight, fMarLeft, fMarTop, fNuHor, fNuVer, fDiHor, fDiVer, fPaperWidth,
           fPaperHeight, fPaperSize, fPaperName);
    if (fields.Reads() && fields.Version() < WideScaleVersion)
        fields.As<std::int32_t>(fDrawScale);
    else
        fields(fDrawScale);
    const std::pair<const char*, std::int64_t> divisors[] = {
        {"DrawScale", fDrawScale}, {"Rows", fNuHor}, {"Columns", fNuVer}};
    for (const auto& [key, value] : divisors)
        if (fields.Reads() && value < 1)
            throw Refusal<EOutOfRange>(key, std::to_string(value), "numbers from 1 on");
    fields(fContinousPaper);
    fields.As<std::uint8_t>(fLabelType);
    fields(fInnerCircle, fFormat, fIncludeUnit);
    if (fOwner.GetEditorMode() != emLabelling)
        fields(fPromoter, fProject, fTitle, fDate, fPlanNumber);
}

void TVGRMeasure::Members(TMembers& members) {
    members(fHeight, fWidth, fMarLeft, fMarTop, fDiHor, fDiVer, fNuHor, fNuVer, fPaperHeight, fPaperWidth, fPaperSize,
            fInnerCircle, fPaperName, fLabelName, fLabelType, fContinousPaper, fDrawScale, fPromoter, fAuthor, fProject,
            fTitle, fDate, fNote, fPlanNumber, fFormat, fIncludeUnit);
}

void TVGRMeasure::WriteData(TBinaryWriter& writer) const { WriteFields(*this, writer); }
void TVGRMeasure::ReadData(std::int32_t version, TBinaryReader& reader) { ReadFields(*this, reader, version); }

} // namespace vagrel
