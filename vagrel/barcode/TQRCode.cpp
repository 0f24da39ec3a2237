// SPDX-License-Identifier: MIT
// What a QR symbol tells of itself.
#include <vagrel/barcode/TQRCode.h>

#include <algorithm>

namespace vagrel {

bool TQRCode::IsValid() const {
    const bool set = std::min({FVersion, FMatrixWidth, FMaskPattern, FNumTotalBytes, FNumDataBytes, FNumECBytes,
                               FNumRSBlocks}) != -1;
    return set && FMaskPattern >= 0 && FMaskPattern <= 7 && FNumTotalBytes == FNumDataBytes + FNumECBytes &&
           FMatrix.GetWidth() == FMatrixWidth && FMatrix.GetHeight() == FMatrixWidth;
}

} // namespace vagrel
