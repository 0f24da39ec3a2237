// SPDX-License-Identifier: MIT
// What the items of matrix codes share.
#include <vagrel/barcode/TVGRBaseMatrixCode.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonObject.h>

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
    WriteRects(out, DarkRects());
}

// Files

void TVGRBaseMatrixCode::TakeRead() {
    fFactor = fFactor > 0 ? fFactor : 0;
    aIsData = fBinding.IsSet();
    Encode();
}

void TVGRBaseMatrixCode::WriteSizeKeys(TJsonObject& json) const {
    WriteBarKeys(json);
    json.SetInt(u"HorzAlign", fHorzAlign);
    json.SetInt(u"VertAlign", fVertAlign);
    WritePaddingKeys(json);
    json.SetFloat(u"Factor", RoundTo3(fFactor));
}

void TVGRBaseMatrixCode::ReadSizeKeys(TJsonObject& json) {
    ReadBarKeys(json);
    fHorzAlign = TKSLHorzAlign(json.GetInt(u"HorzAlign"));
    fVertAlign = TKSLVertAlign(json.GetInt(u"VertAlign"));
    fFactor = float(json.GetFloat(u"Factor"));
}

void TVGRBaseMatrixCode::WriteCodeKeys(TJsonObject& json) const {
    json.SetString(u"Code", fCode);
    fBinding.WriteJson(json);
}

void TVGRBaseMatrixCode::ReadCodeKeys(TJsonObject& json) {
    StoreCode(json.GetString(u"Code"));
    fBinding.ReadJson(json);
    TakeRead();
}

void TVGRBaseMatrixCode::WriteSizeFields(TBinaryWriter& writer) const {
    for (const std::int32_t size : {fBarHeight, fBarWidth, fPaddingX, fPaddingY})
        writer.Write(size);
    writer.Write(fFactor);
}

void TVGRBaseMatrixCode::ReadSizeFields(TBinaryReader& reader) {
    for (std::int32_t* size : {&fBarHeight, &fBarWidth, &fPaddingX, &fPaddingY})
        *size = reader.Read<std::int32_t>();
    StoreLimited(fBarWidth, fBarHeight, fPaddingX, fPaddingY);
    fFactor = reader.Read<float>();
}

void TVGRBaseMatrixCode::WriteCodeFields(TBinaryWriter& writer) const {
    writer.Write(fCode);
    fBinding.WriteData(writer);
    writer.Write(std::int16_t(fHorzAlign));
    writer.Write(std::int16_t(fVertAlign));
}

void TVGRBaseMatrixCode::ReadCodeFields(TBinaryReader& reader) {
    StoreCode(reader.ReadString());
    fBinding.ReadData(reader);
    fHorzAlign = TKSLHorzAlign(reader.Read<std::int16_t>());
    fVertAlign = TKSLVertAlign(reader.Read<std::int16_t>());
    TakeRead();
}

} // namespace vagrel
