// SPDX-License-Identifier: MIT
// What the items of matrix codes share.
#include <vagrel/barcode/TVGRBaseMatrixCode.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>

#include <algorithm>

namespace vagrel {

// Sizes

void TVGRBaseMatrixCode::SetBarWidth(float value) {
    const std::int32_t width = std::max(ToBase(value), fLeastWidth);
    StoreBars(width, fFactor > 0 ? Round32(double(width) * double(fFactor)) : fBarHeight, fFactor, cmd::BarWidth);
}

void TVGRBaseMatrixCode::SetBarHeight(float value) {
    std::int32_t width = fBarWidth, height = std::max(ToBase(value), fLeastHeight);
    if (fFactor > 0) {
        width = std::max(Round32(double(height) / double(fFactor)), fLeastWidth);
        height = Round32(double(width) * double(fFactor));
    }
    StoreBars(width, height, fFactor, cmd::BarHeight);
}

void TVGRBaseMatrixCode::SetFactor(float value) {
    value = value > 0 ? value : 0; // not a number gives 0
    StoreBars(fBarWidth, value > 0 ? Round32(double(fBarWidth) * double(value)) : fBarHeight, value, cmd::Factor);
}

void TVGRBaseMatrixCode::MeasureSymbol() {
    fBarCodeWidth = std::int64_t(fBarWidth) * fGrid.columns + 2 * std::int64_t(fPaddingX);
    fBarCodeHeight = std::int64_t(fBarHeight) * fGrid.rows + 2 * std::int64_t(fPaddingY);
}

void TVGRBaseMatrixCode::CalcValues(int kind) {
    Touch();
    TVGRBaseCode::CalcValues(kind);
    Encode();
    UpdatePoints();
}

std::vector<TKSLRect> TVGRBaseMatrixCode::DarkRects() const {
    std::vector<TKSLRect> rects;
    const std::int64_t w = fBarWidth, h = fBarHeight;
    for (int row = 0; row < fGrid.rows; ++row)
        for (int column = 0; column < fGrid.columns; ++column)
            if (fGrid.IsDark(column, row)) {
                const std::int64_t x = fPaddingX + w * column, y = fPaddingY + h * row;
                rects.push_back(Place({x, y, x + w, y + h}));
            }
    return rects;
}

void TVGRBaseMatrixCode::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props, {iyID, iyLayer, iy1D, iyAngle, iyData, iyMemo, iyPadding, iyAlignHorzVert, iyBackBarcode},
         {iyBarcode});
}

void TVGRBaseMatrixCode::WriteSVG(TSVGOutput& out) const {
    WriteFrame(out);
    WriteRects(out, DarkRects(), fColor);
}

// Files

void TVGRBaseMatrixCode::Members(TMembers& members) {
    TVGRBaseCode::Members(members);
    members(fGrid);
}

void TVGRBaseMatrixCode::TakeRead() {
    LimitSizes();
    StoreCode(std::u16string(fCode));
    fFactor = fFactor > 0 ? fFactor : 0;
    aIsData = fBinding.IsSet();
    Encode();
}

void TVGRBaseMatrixCode::SizeKeys(TJsonFields& keys) {
    BarKeys(keys);
    keys(u"HorzAlign", fHorzAlign);
    keys(u"VertAlign", fVertAlign);
    PaddingKeys(keys);
    keys(u"Factor", fFactor);
}

void TVGRBaseMatrixCode::CodeKeys(TJsonFields& keys) {
    keys(u"Code", fCode);
    fBinding.Keys(keys);
    if (keys.Reads())
        TakeRead();
}

void TVGRBaseMatrixCode::SizeFields(TBinaryFields& fields) {
    fields(fBarHeight, fBarWidth, fPaddingX, fPaddingY, fFactor);
}

void TVGRBaseMatrixCode::CodeFields(TBinaryFields& fields) {
    fields(fCode);
    fBinding.Fields(fields);
    fields.As<std::int16_t>(fHorzAlign, fVertAlign);
    if (fields.Reads())
        TakeRead();
}

} // namespace vagrel
