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
    void Members(TMembers& members) override;

protected:
    void StoreCode(std::u16string_view value) override { fCode = value; }
    void Keys(TJsonFields& keys) override;
    void Fields(TBinaryFields& fields) override;

private:
    TQRCodeEncoding fEncoding = Automatic;
    TEncoder fEncoder;
    TErrorCorrectionLevel fLevel;
    TQRCode fQRCode;
};

} // namespace vagrel
