// SPDX-License-Identifier: MIT
// Lists inside the current record: their rows, and calculations over them.
#include <vagrel/merge/MergeCursor.h>

#include <vagrel/foundation/Numbers.h>
#include <vagrel/merge/DataRecords_p.h>
#include <vagrel/merge/IKSLDataset.h>
#include <vagrel/merge/MergeSources.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace vagrel {

namespace {

double Median(std::vector<double> values) {
    std::ranges::sort(values);
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

// Of a sample; 0 for a single value.
double Variance(const std::vector<double>& values, double mean) {
    if (values.size() < 2)
        return 0;
    double squares = 0;
    for (const double value : values)
        squares += (value - mean) * (value - mean);
    return squares / double(values.size() - 1);
}

double Statistic(TKSLFooter calculation, const std::vector<double>& values) {
    if (values.empty())
        return 0;
    const double sum = std::accumulate(values.begin(), values.end(), 0.0);
    const double mean = sum / double(values.size());
    switch (calculation) {
    case foCount:
        return double(values.size());
    case foMin:
        return std::ranges::min(values);
    case foMax:
        return std::ranges::max(values);
    case foSum:
        return sum;
    case foMean:
        return mean;
    case foMedian:
        return Median(values);
    case foVariance:
        return Variance(values, mean);
    case foStdDev:
        return std::sqrt(Variance(values, mean));
    default:
        return 0;
    }
}

double NumberOf(const TJsonObject* row, std::u16string_view name) {
    const TJsonDataType type = row ? row->GetType(name) : jdtNone;
    return type >= jdtInt && type <= jdtFloat ? row->GetFloat(name) : 0;
}

bool IsDataset(const TVGRDetailItem& detail) { return detail.fType == dtyDataset && detail.fDataset; }

} // namespace

TJsonArray* MergeCursor::Rows(const TVGRDetailItem& detail) const {
    TJsonObject* master = fSources.GetLinkData() && RecordCount() > 0 ? fRecords->Json() : nullptr;
    return master ? master->FindArray(detail.fCaption) : nullptr;
}

std::int32_t MergeCursor::FirstDetail(std::u16string_view detail) {
    TVGRDetailItem* found = fSources.GetDetail(detail);
    if (!found)
        return 0;
    if (IsDataset(*found)) {
        found->fDataset->First();
        return found->fDataset->RecordCount();
    }
    found->fPos = 0;
    const TJsonArray* rows = Rows(*found);
    return rows ? rows->Count() : 0;
}

void MergeCursor::NextDetail(std::u16string_view detail) {
    TVGRDetailItem* found = fSources.GetDetail(detail);
    if (!found)
        return;
    if (IsDataset(*found)) {
        if (!found->fDataset->Eof())
            found->fDataset->Next();
    } else if (const TJsonArray* rows = Rows(*found); rows && found->fPos < rows->Count()) {
        ++found->fPos;
    }
}

std::u16string MergeCursor::DataDetailValue(std::u16string_view detail, std::u16string_view name,
                                            std::u16string_view format) const {
    if (!fSources.GetLinkData() || fSources.GetType() == dtyNone || fSources.GetType() == dtyCustom)
        return std::u16string(name);
    const TVGRDetailItem* found = fSources.GetDetail(detail);
    if (!found)
        return {};
    if (found->fType == dtyNone)
        return std::u16string(name);
    if (IsDataset(*found))
        return detail::DatasetText(*found->fDataset, name, format);
    const TJsonArray* rows = Rows(*found);
    return rows ? detail::JsonText(detail::JsonRecord(*rows, found->fPos), name, format) : std::u16string();
}

std::vector<double> MergeCursor::DetailNumbers(const TVGRDetailItem& detail, std::u16string_view name) const {
    std::vector<double> numbers;
    if (IsDataset(detail)) {
        IKSLDataset& rows = *detail.fDataset;
        const int field = rows.FindField(name);
        const bool isNumber = field >= 0 && (rows.FieldKind(field) == fkInteger || rows.FieldKind(field) == fkFloat);
        const detail::TStillControls still(&rows);
        for (rows.First(); !rows.Eof(); rows.Next())
            numbers.push_back(isNumber ? rows.AsFloat(field) : 0);
    } else if (const TJsonArray* rows = Rows(detail)) {
        for (std::int32_t i = 0; i < rows->Count(); ++i)
            numbers.push_back(NumberOf(rows->FindObject(i), name));
    }
    return numbers;
}

std::u16string MergeCursor::GetDetailCalc(std::u16string_view detail, std::u16string_view name,
                                          std::u16string_view format, TKSLFooter calculation) const {
    if (!fSources.GetLinkData())
        return std::u16string(name);
    const TVGRDetailItem* found = fSources.GetDetail(detail);
    if (!found)
        return {};
    if (found->fType == dtyNone)
        return std::u16string(name);
    return FormatFloat(format, Statistic(calculation, DetailNumbers(*found, name)));
}

} // namespace vagrel
