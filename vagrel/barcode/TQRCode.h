// SPDX-License-Identifier: MIT
// What the QR encoder gives: the modules and the choices that led to them.
#pragma once

#include <vagrel/barcode/TVersion.h>

#include <cstdint>
#include <vector>

namespace vagrel {

/// How a text is encoded; stored in documents as its number. UTF8NoBOM writes the byte order mark EF BB BF and UTF8BOM
/// leaves it out: the reverse of what the names say. They stay, since documents hold them.
enum TQRCodeEncoding : std::int32_t { Automatic, Numeric, Alphanumeric, ISO88591, UTF8NoBOM, UTF8BOM };

/// Segment modes; the values are the mode indicators of ISO/IEC 18004.
enum TMode : std::int32_t {
    qmTerminator = 0,
    qmNumeric = 1,
    qmAlphanumeric = 2,
    qmStructuredAppend = 3,
    qmByte = 4,
    qmFNC1FirstPosition = 5,
    qmECI = 7,
    qmKanji = 8,
    qmFNC1SecondPosition = 9,
    qmHanzi = 13
};

/// Modules of a symbol, 1 dark and 0 light.
class TByteMatrix {
public:
    TByteMatrix() = default;
    TByteMatrix(int width, int height)
        : fWidth(width), fHeight(height), fCells(std::size_t(width) * std::size_t(height)) {}

    int GetWidth() const { return fWidth; }
    int GetHeight() const { return fHeight; }
    std::uint8_t Get(int x, int y) const { return fCells[std::size_t(y * fWidth + x)]; }
    /// The cells of one row, from the left.
    std::uint8_t* Row(int y) { return fCells.data() + y * fWidth; }
    const std::uint8_t* Row(int y) const { return fCells.data() + y * fWidth; }
    bool operator==(const TByteMatrix&) const = default;

private:
    int fWidth = 0;
    int fHeight = 0;
    std::vector<std::uint8_t> fCells;
};

/// A QR symbol. Numbers are -1, and the matrix empty, until one is encoded.
struct TQRCode {
    TMode FMode = qmTerminator;
    TErrorCorrectionLevel FECLevel;
    std::int32_t FVersion = -1;
    std::int32_t FMatrixWidth = -1;
    std::int32_t FMaskPattern = -1;
    std::int32_t FNumTotalBytes = -1;
    std::int32_t FNumDataBytes = -1;
    std::int32_t FNumECBytes = -1;
    std::int32_t FNumRSBlocks = -1;
    TByteMatrix FMatrix;
    /// The last text did not fit; all else is still that of the text before.
    bool FQRCodeError = false;

    /// True when all numbers are set and agree with each other and with the matrix.
    bool IsValid() const;

    bool operator==(const TQRCode&) const = default;
};

} // namespace vagrel
