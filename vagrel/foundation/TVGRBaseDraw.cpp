// SPDX-License-Identifier: MIT
// Conversions from base units to the device of a drawing context. Each formula stands once, for both axes.
#include <vagrel/foundation/TVGRBaseDraw.h>

#include <vagrel/foundation/Rounding.h>

#include <algorithm>

namespace vagrel {

namespace {

float ToPixels(std::int64_t base, std::int64_t scale, std::int32_t dpi) {
    return float(double(base) / (double(scale) * 25400) * dpi);
}

std::int64_t ToDots(std::int64_t base, std::int64_t scale, std::int32_t dpi) {
    return Round(double(MulSat(base, dpi)) / (double(scale) * 25400));
}

float PaperPixels(float mm, std::int32_t dpi) { return float(double(mm) * dpi / 25.4); }

std::int64_t PaperDots(float mm, std::int32_t dpi) { return Round(double(mm) * dpi / 25.4); }

} // namespace

float TVGRBaseDraw::GetDrawX(std::int64_t base) const { return ToPixels(base, fDrawScale, fDpix); }
float TVGRBaseDraw::GetDrawY(std::int64_t base) const { return ToPixels(base, fDrawScale, fDpiy); }
std::int64_t TVGRBaseDraw::GetPrintX(std::int64_t base) const { return ToDots(base, fDrawScale, fDpix); }
std::int64_t TVGRBaseDraw::GetPrintY(std::int64_t base) const { return ToDots(base, fDrawScale, fDpiy); }
float TVGRBaseDraw::BasePtoX(float mm) const { return PaperPixels(mm, fDpix); }
float TVGRBaseDraw::BasePtoY(float mm) const { return PaperPixels(mm, fDpiy); }
float TVGRBaseDraw::DrawBasePtoX(float mm) const { return std::max(1.0f, BasePtoX(mm)); }
float TVGRBaseDraw::DrawBasePtoY(float mm) const { return std::max(1.0f, BasePtoY(mm)); }
std::int64_t TVGRBaseDraw::PrintBasePtoX(float mm) const { return PaperDots(mm, fDpix); }
std::int64_t TVGRBaseDraw::PrintBasePtoY(float mm) const { return PaperDots(mm, fDpiy); }

} // namespace vagrel
