// SPDX-License-Identifier: MIT
// The Data Matrix item.
#include <vagrel/barcode/TVGRBaseDataMatrix.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonObject.h>

namespace vagrel {

namespace {

constexpr TCodeSizes Sizes{300, 300, 2000, 2000, 100, 100};
constexpr int SmallestSide = 10;

} // namespace

TVGRBaseDataMatrix::TVGRBaseDataMatrix(TVGRBaseLabel& owner, bool preview)
    : TVGRBaseDataMatrix(owner, owner.GetLayer(1), preview) {}

TVGRBaseDataMatrix::TVGRBaseDataMatrix(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : TVGRBaseMatrixCode(owner, itDataMatrix, layer, preview, Sizes) {
    fCode = u"DMatrix";
    Encode();
}

void TVGRBaseDataMatrix::Encode() {
    const std::vector<std::uint8_t> bytes(fCode.begin(), fCode.end());
    try {
        std::uint16_t columns = 0, rows = 0;
        CalcECC200(bytes, ecc200_Autosize, ecc200_Square, fGrid.dark, columns, rows);
        fGrid.columns = columns;
        fGrid.rows = rows;
    } catch (const EOutOfRange&) {
        // Nothing is drawn rather than the text before: a text from data may be too long.
        fGrid = {SmallestSide, SmallestSide, {}};
    }
    MeasureSymbol();
}

void TVGRBaseDataMatrix::WriteKeys(TJsonObject& json) const {
    TVGRBaseMatrixCode::WriteKeys(json);
    json.SetInt(u"DMSize", fDMSize);
    json.SetInt(u"DMShape", fDMShape);
    WriteSizeKeys(json);
    WriteCodeKeys(json);
}

void TVGRBaseDataMatrix::ReadKeys(std::int32_t version, TJsonObject& json) {
    TVGRBaseMatrixCode::ReadKeys(version, json);
    fDMSize = TECC200Size(json.GetInt(u"DMSize"));
    fDMShape = TECC200Shape(json.GetInt(u"DMShape"));
    ReadSizeKeys(json);
    ReadCodeKeys(json);
}

void TVGRBaseDataMatrix::WriteFields(TBinaryWriter& writer) const {
    TVGRBaseMatrixCode::WriteFields(writer);
    writer.Write(std::int32_t(fDMSize));
    writer.Write(std::uint8_t(fDMShape));
    WriteSizeFields(writer);
    WriteCodeFields(writer);
}

void TVGRBaseDataMatrix::ReadFields(std::int32_t version, TBinaryReader& reader) {
    TVGRBaseMatrixCode::ReadFields(version, reader);
    fDMSize = TECC200Size(reader.Read<std::int32_t>());
    fDMShape = TECC200Shape(reader.Read<std::uint8_t>());
    ReadSizeFields(reader);
    ReadCodeFields(reader);
}

} // namespace vagrel
