// SPDX-License-Identifier: MIT
// Free functions on values: distances, grids, scaling to a resolution, the filter of typed coordinates.
#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>
#include <vector>

namespace vagrel {

class TVGRBaseDraw;

/// a × b ÷ c, the product in 64 bits, the quotient rounded with ties away from zero; -1 when c is 0.
std::int32_t MulDiv(std::int32_t a, std::int32_t b, std::int32_t c);

/// Exact for points that share an axis, otherwise rounded to nearest, ties to even.
std::int64_t Distance(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2);
/// The same on single precision; off-axis the root is rounded to a whole number.
float Distance(float x1, float y1, float x2, float y2);

/// True when `value` lies between `a` and `b`, whichever is larger, both included.
template <class Number>
constexpr bool ValInRange(Number value, std::type_identity_t<Number> a, std::type_identity_t<Number> b) {
    return a <= b ? value >= a && value <= b : value >= b && value <= a;
}

/// True when the two differ by less than 0.0001.
bool SamePoint(float a, float b);

/// The multiple of `step` nearest to `value`; without a step above 0 the value itself.
std::int64_t AdjustGrid(std::int64_t value, std::int64_t step);
/// The next multiple of `step` forward, or the previous one backward. A value on the grid goes one full step; the
/// quotient never falls below 0.
std::int64_t AdjustGrid(std::int64_t value, std::int64_t step, bool forward);

/// Base coordinate to pixels: (base × dpi) ÷ (draw scale × 25400).
float DrawFromBaseX(std::int64_t base, const TVGRBaseDraw& draw);
float DrawFromBaseY(std::int64_t base, const TVGRBaseDraw& draw);
/// The same as whole dots.
std::int64_t PrintFromBaseX(std::int64_t base, const TVGRBaseDraw& draw);
std::int64_t PrintFromBaseY(std::int64_t base, const TVGRBaseDraw& draw);
/// Millimetres on paper to pixels, never below 1.
float BasePtoX(float mm, const TVGRBaseDraw& draw);
float BasePtoY(float mm, const TVGRBaseDraw& draw);

/// A size in pixels at 96 dots per inch, at another resolution.
std::int32_t ScalePos(std::int32_t pos, std::int32_t dpi);
float ScalePos(float pos, std::int32_t dpi);
/// The inverse.
std::int32_t RevScalePos(std::int32_t pos, std::int32_t dpi);

/// The middle value, or the mean of the two middle values; 0 for none.
double Median(std::vector<double> values);

/// Reads an unsigned 32-bit number. Throws EConvertError.
std::uint32_t StrToCardinal(std::u16string_view text);

/// Whether the key "-" may go into `text`, typed coordinates that begin with "@", behind the first `position`
/// characters.
bool ValidInputKey(std::u16string_view text, char16_t key, int position);

} // namespace vagrel
