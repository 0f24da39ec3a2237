// SPDX-License-Identifier: MIT
// Document units, base units and their conversions. One base unit is a thousandth of a millimetre.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <cstdint>
#include <string_view>

namespace vagrel {

/// Base units of one document unit; a value that is no unit acts as `unMM`. The yard is 914000, the foot 304800.
std::int64_t UnitFactor(TKSLUnits units);

/// The symbol of a unit, as "mm", "inch", "ft". Without `large` every unit beyond mm, inch and cm answers "mm".
std::u16string_view SymUnit(TKSLUnits units, bool large);

/// Base units to millimetres.
float GetBaseValue(std::int64_t base);

/// Millimetres to base units, rounded to nearest, ties to even.
std::int64_t SetBaseValue(float mm);

/// Base units to a document unit.
float GetValue(std::int64_t base, TKSLUnits units);

/// A document unit to base units, rounded to nearest, ties to even.
std::int64_t SetValue(float value, TKSLUnits units);

} // namespace vagrel
