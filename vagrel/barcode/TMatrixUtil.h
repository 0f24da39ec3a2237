// SPDX-License-Identifier: MIT
// The layout of a QR symbol: patterns, format and version information, data placement and masking (ISO/IEC 18004).
#pragma once

#include <vagrel/barcode/TQRCode.h>

#include <span>

namespace vagrel {

struct TMatrixUtil {
    /// The modules of a symbol whose interleaved codewords are given; cells that they leave over are 0 before masking.
    /// `maskPattern` 0 to 7 is taken; -1 takes the pattern of the lowest penalty, the first of equals, and tells it.
    /// The balance of dark and light counts 0 or 1 in the penalty, not the weight of the standard.
    static TByteMatrix BuildMatrix(std::span<const std::uint8_t> codewords, TErrorCorrectionLevel level,
                                   const TVersion& version, int& maskPattern);
};

} // namespace vagrel
