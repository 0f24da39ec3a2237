// SPDX-License-Identifier: MIT
// Units and values of a document, and the editor mode that they depend on.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>

namespace vagrel {

void TVGRBaseLabel::SetUnits(TKSLUnits value) {
    const bool paper = fEditorMode == emLabelling || fEditorMode == emFlowChart;
    if (!IsLoading() && paper && value >= unDM && value <= unYd)
        value = unMM;
    if (value == fUnits)
        return;
    fUnits = value;
    if (IsLoading())
        return;
    ChangeValue(chUnits);
    if (CheckNeedDrawUnits())
        Refresh();
}

void TVGRBaseLabel::SetEditorMode(TKSLEditorMode value) {
    if (value == fEditorMode)
        return;
    fEditorMode = value;
    if (IsLoading())
        return;
    fMeasure->ResetLabelName();
    if (!HasDrawScale())
        fMeasure->SetDrawScale(1);
    if (fEditorMode != emLabelling)
        fMeasure->SetContinousPaper(true);
    ChangeValue(chMeasure);
    ChangeValue(chUnits);
}

std::int64_t TVGRBaseLabel::SetVal(float value, bool restricted) const {
    return SetValue(value, restricted && IsLargeUnit() ? unMM : fUnits);
}

float TVGRBaseLabel::GetVal(std::int64_t base, bool restricted) const {
    return GetValue(base, restricted && IsLargeUnit() ? unMM : fUnits);
}

std::int64_t TVGRBaseLabel::SetValMM(float mm) const { return SetBaseValue(mm); }

double TVGRBaseLabel::ToPaper(double base) const { return base / (double(fMeasure->GetDrawScale()) * 1000); }

std::int64_t TVGRBaseLabel::ToPixels(std::int64_t base, int dpi) const {
    return Round(double(base) * dpi / (double(fMeasure->GetDrawScale()) * 25400));
}

float TVGRBaseLabel::BaseValue(float mm) const { return float(double(mm) * 1000 / double(UnitFactor(fUnits))); }

float TVGRBaseLabel::UnitValue(float value, bool restricted) const {
    return restricted && IsLargeUnit() ? BaseValue(value) : value;
}

std::int64_t TVGRBaseLabel::BaseMoveInc() const { return MulSat(2000, fMeasure->GetDrawScale()); }

float TVGRBaseLabel::GetDrawValue(float value, int dpi) const {
    if (fEditorMode == emLabelling && fUnits == unINCH)
        return float(double(value) * dpi);
    const double inch = fEditorMode == emLabelling && fUnits == unCM ? 2.54 : 25.4;
    return float(double(value) * dpi / inch);
}

float TVGRBaseLabel::GetDrawValue(std::int64_t base, int dpi) const {
    return base == 0 ? 0 : float(double(base) * dpi / 25400);
}

float TVGRBaseLabel::GetDataDrawValue(float value, int dpi) const {
    // Outside labelling this is no inverse: hosts hand in millimetres there.
    return fEditorMode == emLabelling ? GetDataPrintValue(value, dpi) : float(double(value) * dpi / 25.4);
}

std::int64_t TVGRBaseLabel::GetPrintValue(float value, int dpi) const {
    if (fUnits == unINCH)
        return Round(double(value) * dpi);
    return Round(double(value) * dpi / (fUnits == unCM ? 2.54 : 25.4));
}

std::int64_t TVGRBaseLabel::GetPrintFromBase(std::int64_t base, int dpi) const {
    return Round(double(MulSat(base, dpi)) / 25400);
}

float TVGRBaseLabel::GetDataPrintValue(float px, int dpi) const {
    const double inch = fUnits == unINCH ? 1 : fUnits == unCM ? 2.54 : 25.4;
    return float(double(px) * inch / dpi);
}

} // namespace vagrel
