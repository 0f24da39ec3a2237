// SPDX-License-Identifier: MIT
// QR Code Model 2 symbols of a text, at error correction level L (ISO/IEC 18004).
#pragma once

#include <vagrel/barcode/TBitArray.h>
#include <vagrel/barcode/TQRCode.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace vagrel {

class TEncoder {
public:
    /// Encodes `content` in one segment, in the smallest version that holds it, with `encodeOptions` a
    /// `TQRCodeEncoding`. Characters that the mode cannot carry are dropped. Text beyond version 40 sets
    /// `EncoderError` and leaves the symbol as it was. No ECI is written: readers recognise UTF-8 by themselves.
    void Encode(std::u16string_view content, std::int32_t encodeOptions, TErrorCorrectionLevel ecLevel,
                TQRCode& qrCode);

    /// True when the last text did not fit.
    bool GetEncoderError() const { return fEncoderError; }

    /// The mode for `content`. `Automatic` becomes the encoding of the bytes when the mode is `qmByte`.
    static TMode ChooseMode(std::u16string_view content, std::int32_t& encodeOptions);

    /// `content` without what the mode cannot carry.
    static std::u16string FilterContent(std::u16string_view content, TMode mode, std::int32_t encodeOptions);

    /// Appends the Kanji compaction of Shift JIS text, 13 bits for two bytes; `ChooseMode` never asks for it. False,
    /// and the rest is left out, at a character that is not a Kanji of two bytes.
    static bool AppendKanjiBytes(std::string_view shiftJis, TBitArray& bits);

private:
    bool fEncoderError = false;
};

} // namespace vagrel
