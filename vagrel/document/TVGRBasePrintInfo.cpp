// SPDX-License-Identifier: MIT
// The parameters of a print run.
#include <vagrel/document/TVGRBasePrintInfo.h>

#include <vagrel/document/TMembers.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>

#include <algorithm>

namespace vagrel {

float TVGRBasePrintInfo::Restricted(std::int32_t base) const { return fOwner.GetVal(base, true); }

void TVGRBasePrintInfo::Store(std::int32_t& field, float value, TKSLMeasureType limit) {
    const std::int64_t high = fOwner.GetMeasure().GetSize(limit, false);
    field = std::int32_t(std::max<std::int64_t>(std::min(fOwner.SetVal(value, false), high), 0));
}

void TVGRBasePrintInfo::SetNumLabs(std::int32_t value) { fLabs = std::max(value, 1); }
void TVGRBasePrintInfo::SetRepetition(std::int32_t value) { fRepetition = std::max(value, 1); }

// The sheet may have become smaller since the cell was chosen.
std::int32_t TVGRBasePrintInfo::GetFirstRow() const { return std::min(fFirstRow, fOwner.GetMeasure().GetNuHor()); }
std::int32_t TVGRBasePrintInfo::GetFirstCol() const { return std::min(fFirstCol, fOwner.GetMeasure().GetNuVer()); }
void TVGRBasePrintInfo::SetFirstRow(std::int32_t value) {
    fFirstRow = std::clamp(value, 1, fOwner.GetMeasure().GetNuHor());
}
void TVGRBasePrintInfo::SetFirstCol(std::int32_t value) {
    fFirstCol = std::clamp(value, 1, fOwner.GetMeasure().GetNuVer());
}

void TVGRBasePrintInfo::SetFirstLab(std::int32_t value) {
    fFirstLab = std::max(value, 1);
    fLastLab = std::max(fLastLab, fFirstLab);
}

void TVGRBasePrintInfo::SetLastLab(std::int32_t value) {
    fLastLab = std::max(value, 1);
    fFirstLab = std::min(fFirstLab, fLastLab);
}

std::int32_t TVGRBasePrintInfo::LabelsPerPage() const {
    const TVGRMeasure& measure = fOwner.GetMeasure();
    return ToInt32(std::int64_t(measure.GetNuHor()) * measure.GetNuVer());
}

std::int32_t TVGRBasePrintInfo::FirstPageLabels() const {
    const std::int64_t columns = fOwner.GetMeasure().GetNuVer();
    return ToInt32(LabelsPerPage() - (GetFirstRow() - 1) * columns - (GetFirstCol() - 1));
}

std::vector<TSheetCell> TVGRBasePrintInfo::Cells() const {
    const TVGRMeasure& measure = fOwner.GetMeasure();
    const std::int64_t columns = measure.GetNuVer();
    auto step = [&](TKSLMeasureType label, TKSLMeasureType gap) {
        return measure.GetSize(label, false) + measure.GetSize(gap, false);
    };
    // The first gap lies between rows, as the first count is that of rows.
    const std::int64_t right = step(mtLabelWidth, mtGapVert), down = step(mtLabelHeight, mtGapHorz);
    const std::int64_t left = measure.GetSize(mtMarginLeft, false), top = measure.GetSize(mtMarginTop, false);
    const bool first = fCurrentPage <= 1;
    std::int64_t index = first ? (GetFirstRow() - 1) * columns + GetFirstCol() - 1 : 0;
    const std::int64_t labels = std::int64_t(fLabelsToPrint) - fCurrentLabel + 1;
    const std::int64_t end = std::min<std::int64_t>(LabelsPerPage(), index + labels);
    std::vector<TSheetCell> cells;
    for (; index < end; ++index) {
        const std::int64_t row = index / columns, column = index % columns;
        cells.push_back({std::int16_t(row + 1), std::int16_t(column + 1), left + column * right, top + row * down});
    }
    return cells;
}

void TVGRBasePrintInfo::SetPrinterIndex(std::int32_t value) {
    if (value == fPrinterIndex)
        return;
    fPrinterIndex = value;
    fOwner.PrinterChanged();
}

void TVGRBasePrintInfo::Assign(const TVGRBasePrintInfo& s) {
    fMaLeft = s.fMaLeft, fMaTop = s.fMaTop, fMaRight = s.fMaRight, fMaBottom = s.fMaBottom;
    fColor = s.fColor, fWidth = s.fWidth, fHeight = s.fHeight, fLabs = s.fLabs, fRepetition = s.fRepetition;
    fOrient = s.fOrient, fPrinterIndex = s.fPrinterIndex, fFirstRow = s.fFirstRow;
}

void TVGRBasePrintInfo::Keys(TJsonFields& keys) {
    keys.Through(u"NumLabels", fLabs, [this](std::int32_t value) { SetNumLabs(value); });
    keys.Through(u"Repetition", fRepetition, [this](std::int32_t value) { SetRepetition(value); });
    keys(u"PrinterOrientation", fOrient);
}

void TVGRBasePrintInfo::Fields(TBinaryFields& fields) {
    fields(fRepetition);
    fields.As<std::uint8_t>(fOrient);
    fields(fCopies);
    SetRepetition(fRepetition); // divides
}

void TVGRBasePrintInfo::Members(TMembers& members) {
    members(fMaLeft, fMaTop, fMaRight, fMaBottom, fColor, fWidth, fHeight, fLabs, fRepetition, fFirstRow, fFirstCol,
            fFirstLab, fLastLab, fCopies, fFindDetail, fOrient, fPrinterName, fPrinterIndex);
}

void TVGRBasePrintInfo::WriteJson(TJsonObject& parent) const { WriteKeys(*this, parent.AddObject(u"PrintInfo")); }
void TVGRBasePrintInfo::ReadJson(TJsonObject& json) { ReadKeys(*this, json); }
void TVGRBasePrintInfo::WriteData(TBinaryWriter& writer) const { WriteFields(*this, writer); }
void TVGRBasePrintInfo::ReadData(std::int32_t version, TBinaryReader& reader) { ReadFields(*this, reader, version); }

} // namespace vagrel
