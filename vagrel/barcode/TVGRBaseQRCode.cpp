// SPDX-License-Identifier: MIT
// The QR Code item.
#include <vagrel/barcode/TVGRBaseQRCode.h>

#include <vagrel/barcode/TBarcode.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>

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

void TVGRBaseQRCode::Members(TMembers& members) {
    TVGRBaseMatrixCode::Members(members);
    members(fEncoding, fEncoder, fLevel, fQRCode);
}

void TVGRBaseQRCode::Keys(TJsonFields& keys) {
    TVGRBaseMatrixCode::Keys(keys);
    keys(u"Encoding", fEncoding);
    SizeKeys(keys);
    CodeKeys(keys);
}

void TVGRBaseQRCode::Fields(TBinaryFields& fields) {
    TVGRBaseMatrixCode::Fields(fields);
    fields.As<std::int16_t>(fEncoding);
    SizeFields(fields);
    CodeFields(fields);
}

} // namespace vagrel
