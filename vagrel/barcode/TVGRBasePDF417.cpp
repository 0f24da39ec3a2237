// SPDX-License-Identifier: MIT
// The PDF417 item.
#include <vagrel/barcode/TVGRBasePDF417.h>

#include <vagrel/barcode/Pdf417Modules.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>

#include <algorithm>

namespace vagrel {

namespace {

constexpr TCodeSizes Sizes{300, 600, 3000, 0, 100, 260};
constexpr int MostCols = 30, MostRows = 90;
constexpr std::uint16_t Padding = 900;
// The first word counts those that are no correction, and there is no pattern for a higher one.
constexpr int HighestWord = 928;

std::int16_t Limited(int value, int most) { return std::int16_t(std::clamp(value, 0, most)); }

} // namespace

TVGRBasePDF417::TVGRBasePDF417(TVGRBaseLabel& owner, bool preview)
    : TVGRBasePDF417(owner, owner.GetLayer(1), preview) {}

TVGRBasePDF417::TVGRBasePDF417(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : TVGRBaseMatrixCode(owner, itPDF417, layer, preview, Sizes) {
    fCode = u"PdfCode";
    Encode();
}

void TVGRBasePDF417::SetCols(int value) { StoreGrid(fCols, value, MostCols); }
void TVGRBasePDF417::SetRows(int value) { StoreGrid(fRows, value, MostRows); }

void TVGRBasePDF417::StoreGrid(std::int16_t& field, int value, int most) {
    value = Limited(value, most);
    if (value == field)
        return;
    Put(field, std::int16_t(value));
    Encode();
    UpdatePoints();
    StateUpdate();
}

bool TVGRBasePDF417::ValidCode() const {
    const int room = fXCount * fYCount - fNumErrorCWords;
    return fEncoded && fXCount <= MostCols && fYCount <= MostRows && room >= fEncoder.GetUsedCWords() &&
           room <= HighestWord;
}

void TVGRBasePDF417::AdjustErrorLevel() {
    fErrorLevel = fEncoder.GetCorrecLevel(fCorrecLevel);
    fNumErrorCWords = 2 << fErrorLevel;
    TPDF417::AdjustSize(fXCount, fYCount, fNumErrorCWords, fEncoder.GetUsedCWords(), fCols, fRows);
    if (ValidCode())
        TPDF417::Complete(fCodeWords, fEncoder.GetUsedCWords(), fXCount * fYCount - fNumErrorCWords, fNumErrorCWords);
}

void TVGRBasePDF417::Encode() {
    fCodeWords.fill(Padding);
    fXCount = 1;
    fYCount = 3;
    fEncoded = fEncoder.Encode(fCodeWords, fCode);
    if (fEncoded)
        AdjustErrorLevel();
    fGrid = {Pdf417RowModules(fXCount, fTruncated), fYCount, {}};
    if (ValidCode())
        fGrid.dark = Pdf417Modules(fCodeWords, fXCount, fYCount, fErrorLevel, fTruncated);
    MeasureSymbol();
}

void TVGRBasePDF417::Members(TMembers& members) {
    TVGRBaseMatrixCode::Members(members);
    members(fTruncated, fCorrecLevel, fCols, fRows, fEncoder, fCodeWords, fEncoded, fErrorLevel, fNumErrorCWords,
            fXCount, fYCount);
}

void TVGRBasePDF417::Keys(TJsonFields& keys) {
    TVGRBaseMatrixCode::Keys(keys);
    keys(u"CorrecLevel", fCorrecLevel);
    SizeKeys(keys);
    keys(u"Truncated", fTruncated);
    auto limited = [&](std::u16string_view key, std::int16_t& field, int most) {
        keys.Through(key, std::int32_t(field), [&](std::int32_t value) { field = Limited(value, most); });
    };
    limited(u"Rows", fRows, MostRows);
    limited(u"Cols", fCols, MostCols);
    CodeKeys(keys);
}

void TVGRBasePDF417::Fields(TBinaryFields& fields) {
    TVGRBaseMatrixCode::Fields(fields);
    fields.As<std::int32_t>(fCorrecLevel);
    SizeFields(fields);
    fields(fTruncated, fRows, fCols);
    fRows = Limited(fRows, MostRows);
    fCols = Limited(fCols, MostCols);
    CodeFields(fields);
}

} // namespace vagrel
