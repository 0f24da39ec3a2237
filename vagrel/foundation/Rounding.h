// SPDX-License-Identifier: MIT
// The named rounding rules. They differ on ties and on negative numbers and are not interchangeable. All of them
// saturate at the limits of their result type, and a value that is not a number gives 0.
#pragma once

#include <cstdint>

namespace vagrel {

/// A product of two coordinates needs 128 bits.
__extension__ typedef __int128 TInt128;

/// To nearest, ties to even (IEEE 754 roundTiesToEven): all conversions of units and resolutions.
std::int64_t Round(double value);

/// As `Round`, saturating at 32 bits.
std::int32_t Round32(double value);

/// Truncation, plus 1 when the fractional part is at least 0.5: negative values truncate towards zero.
std::int32_t KSRound(double value);

/// To nearest, ties away from zero.
std::int64_t MathRound(double value);

/// Towards zero.
std::int64_t Trunc(double value);

/// `value` to 3 decimals: Round(value × 1000) ÷ 1000. Values too large to have decimals stay as they are.
double RoundTo3(double value);

/// `value` to 8 decimals by the same rule, for geographic coordinates.
double RoundTo8(double value);

/// a × b, saturating at the limits of 64 bits.
std::int64_t MulSat(std::int64_t a, std::int64_t b);

/// a + b, saturating at the limits of 64 bits.
std::int64_t AddSat(std::int64_t a, std::int64_t b);

/// a − b, saturating at the limits of 64 bits.
std::int64_t SubSat(std::int64_t a, std::int64_t b);

/// a − b in double, rounded only once: no digits are lost where both are large and near.
double Difference(std::int64_t a, std::int64_t b);

/// The 32-bit value nearest to `value`.
std::int32_t ToInt32(std::int64_t value);

} // namespace vagrel
