// SPDX-License-Identifier: MIT
// Unit conversions: single precision in and out, computed in double.
#include <vagrel/foundation/Units.h>

#include <vagrel/foundation/Rounding.h>

#include <array>

namespace vagrel {

namespace {

struct TUnitRow {
    std::int64_t factor;
    std::u16string_view symbol;
};

constexpr std::array<TUnitRow, 7> UnitRows{{
    {1000, u"mm"},
    {25400, u"inch"},
    {10000, u"cm"},
    {100000, u"dm"},
    {1000000, u"m"},
    {304800, u"ft"},
    {914000, u"yd"}, // not 914400: documents are stored with this yard
}};

const TUnitRow& RowOf(TKSLUnits units) { return UnitRows[units >= unMM && units <= unYd ? std::size_t(units) : 0]; }

} // namespace

std::int64_t UnitFactor(TKSLUnits units) { return RowOf(units).factor; }

std::u16string_view SymUnit(TKSLUnits units, bool large) { return RowOf(large || units <= unCM ? units : unMM).symbol; }

float GetBaseValue(std::int64_t base) { return GetValue(base, unMM); }

std::int64_t SetBaseValue(float mm) { return SetValue(mm, unMM); }

float GetValue(std::int64_t base, TKSLUnits units) { return float(double(base) / double(UnitFactor(units))); }

std::int64_t SetValue(float value, TKSLUnits units) { return Round(double(value) * double(UnitFactor(units))); }

} // namespace vagrel
