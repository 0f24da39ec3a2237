// SPDX-License-Identifier: MIT
// The drawing context. A host derives its painter's context from it and fills it; the library only reads it.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <cstdint>

namespace vagrel {

/// Scale and resolution of one painting. A plain record with conversions: no virtual operations.
class TVGRBaseDraw {
public:
    float fFX = 1, fFY = 1;              ///< host scale factors
    float fSC = 1;                       ///< host scale
    std::int32_t fDX = 0, fDY = 0;       ///< host offsets of the drawing origin
    float fDSX = 0, fDSY = 0;            ///< fractional host offsets
    std::int32_t fDpix = 96, fDpiy = 96; ///< dots per inch, zoom included
    std::int32_t fPageX = 0, fPageY = 0; ///< page index in the sheet grid
    double fBDpix = 96, fBDpiy = 96;     ///< base resolution
    float fMMyToPto = 1;                 ///< millimetres to host points
    std::int64_t fDrawScale = 1;         ///< denominator N of the draw scale 1:N, at least 1
    TKSLDrawState fState = dsLabel;      ///< what is being painted
    bool fShowDispWidthHandle = false;   ///< whether the display-width handle is shown
    std::int16_t aRow = 0, aCol = 0;     ///< sheet cell being painted

    /// Base coordinate to pixels: (base ÷ (draw scale × 25400)) × dpi, in double.
    float GetDrawX(std::int64_t base) const;
    float GetDrawY(std::int64_t base) const;
    /// Base coordinate to whole dots: the product with dpi in integers, the division in double, rounded.
    std::int64_t GetPrintX(std::int64_t base) const;
    std::int64_t GetPrintY(std::int64_t base) const;
    /// Millimetres on paper to pixels.
    float BasePtoX(float mm) const;
    float BasePtoY(float mm) const;
    /// The same, never below 1.
    float DrawBasePtoX(float mm) const;
    float DrawBasePtoY(float mm) const;
    /// Millimetres on paper to whole dots.
    std::int64_t PrintBasePtoX(float mm) const;
    std::int64_t PrintBasePtoY(float mm) const;
};

} // namespace vagrel
