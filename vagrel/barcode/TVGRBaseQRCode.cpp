// SPDX-License-Identifier: MIT
// The QR Code item.
#include <vagrel/barcode/TVGRBaseQRCode.h>

#include <vagrel/barcode/TBarcode.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonObject.h>

namespace vagrel {

namespace {

constexpr TCodeSizes Sizes{300, 300, 2000, 2000, 190, 190};

} // namespace

TVGRBaseQRCode::TVGRBaseQRCode(TVGRBaseLabel& owner, bool preview)
    : TVGRBaseQRCode(owner, owner.GetLayer(1), preview) {}

TVGRBaseQRCode::TVGRBaseQRCode(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : TVGRBaseMatrixCode(owner, itQRCode, layer, preview, Sizes) {
    fCode = u"QR";
    Encode();
}

void TVGRBaseQRCode::SetCode(std::u16string_view value) {
    std::u16string plain(value);
    for (char16_t& unit : plain)
        if (unit <= 0xFF)
            unit = static_cast<unsigned char>(TBarcode::RemoveAccented(std::string(1, char(unit)))[0]);
    TVGRBaseMatrixCode::SetCode(plain);
}

void TVGRBaseQRCode::Encode() {
    fEncoder.Encode(fCode, fEncoding, fLevel, fQRCode);
    const TByteMatrix& matrix = fQRCode.FMatrix;
    if (IsValid() && matrix.GetWidth() > 0) {
        fGrid.columns = matrix.GetWidth();
        fGrid.rows = matrix.GetHeight();
        fGrid.dark.assign(matrix.Row(0), matrix.Row(fGrid.rows));
    }
    MeasureSymbol();
}

void TVGRBaseQRCode::WriteKeys(TJsonObject& json) const {
    TVGRBaseMatrixCode::WriteKeys(json);
    json.SetInt(u"Encoding", fEncoding);
    WriteSizeKeys(json);
    WriteCodeKeys(json);
}

void TVGRBaseQRCode::ReadKeys(std::int32_t version, TJsonObject& json) {
    TVGRBaseMatrixCode::ReadKeys(version, json);
    fEncoding = TQRCodeEncoding(json.GetInt(u"Encoding"));
    ReadSizeKeys(json);
    ReadCodeKeys(json);
}

void TVGRBaseQRCode::WriteFields(TBinaryWriter& writer) const {
    TVGRBaseMatrixCode::WriteFields(writer);
    writer.Write(std::int16_t(fEncoding));
    WriteSizeFields(writer);
    WriteCodeFields(writer);
}

void TVGRBaseQRCode::ReadFields(std::int32_t version, TBinaryReader& reader) {
    TVGRBaseMatrixCode::ReadFields(version, reader);
    fEncoding = TQRCodeEncoding(reader.Read<std::int16_t>());
    ReadSizeFields(reader);
    ReadCodeFields(reader);
}

} // namespace vagrel
