// SPDX-License-Identifier: MIT
// The QR Code.
#pragma once

#include <vagrel/barcode/TEncoder.h>
#include <vagrel/barcode/TVGRBaseMatrixCode.h>

namespace vagrel {

/// A QR Code at error correction level L. A text beyond its capacity leaves the modules of the text before.
class TVGRBaseQRCode : public TVGRBaseMatrixCode {
public:
    TVGRBaseQRCode(TVGRBaseLabel& owner, bool preview);
    TVGRBaseQRCode(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview);

    /// Takes the accents off vowels; values from data keep theirs.
    void SetCode(std::u16string_view value) override;
    TQRCodeEncoding GetEncoding() const { return fEncoding; }
    void SetEncoding(TQRCodeEncoding value) { Store(fEncoding, value, {}, TFollow::Calc); }
    bool IsValid() const override { return !fEncoder.GetEncoderError(); }
    const TQRCode& QRCode() const { return fQRCode; }
    void Encode() final;

protected:
    void StoreCode(std::u16string_view value) override { fCode = value; }
    void WriteKeys(TJsonObject& json) const override;
    void ReadKeys(std::int32_t version, TJsonObject& json) override;
    void WriteFields(TBinaryWriter& writer) const override;
    void ReadFields(std::int32_t version, TBinaryReader& reader) override;

private:
    TQRCodeEncoding fEncoding = Automatic;
    TEncoder fEncoder;
    TErrorCorrectionLevel fLevel;
    TQRCode fQRCode;
};

} // namespace vagrel
