// SPDX-License-Identifier: MIT
// Sets of enumeration values.
#pragma once

#include <cstdint>
#include <initializer_list>

namespace vagrel {

/// A set of values of the enumeration `E`, each at the bit of its position; positions 0 to 31, or to 63 in 64 bits.
template <class E, class TBits = std::uint32_t>
class TKSLSet {
public:
    constexpr TKSLSet() = default;
    constexpr TKSLSet(std::initializer_list<E> values) {
        for (E value : values)
            fBits |= Bit(value);
    }
    static constexpr TKSLSet FromBits(TBits bits) {
        TKSLSet set;
        set.fBits = bits;
        return set;
    }
    /// The values from `first` to `last`, both included.
    static constexpr TKSLSet Range(E first, E last) {
        return FromBits(((Bit(last) - 1) | Bit(last)) & ~(Bit(first) - 1));
    }

    constexpr TBits Bits() const { return fBits; }
    constexpr bool Empty() const { return fBits == 0; }
    constexpr bool Has(E value) const { return (fBits & Bit(value)) != 0; }
    constexpr bool HasAny(TKSLSet other) const { return (fBits & other.fBits) != 0; }
    constexpr bool HasAll(TKSLSet other) const { return (fBits & other.fBits) == other.fBits; }

    /// Adds or removes one value.
    constexpr void Put(E value, bool present) { present ? fBits |= Bit(value) : fBits &= ~Bit(value); }

    constexpr TKSLSet& operator+=(TKSLSet other) { return fBits |= other.fBits, *this; }
    constexpr TKSLSet& operator-=(TKSLSet other) { return fBits &= ~other.fBits, *this; }
    constexpr TKSLSet& operator*=(TKSLSet other) { return fBits &= other.fBits, *this; }
    friend constexpr TKSLSet operator+(TKSLSet a, TKSLSet b) { return a += b; }
    friend constexpr TKSLSet operator-(TKSLSet a, TKSLSet b) { return a -= b; }
    friend constexpr TKSLSet operator*(TKSLSet a, TKSLSet b) { return a *= b; }
    friend constexpr bool operator==(TKSLSet a, TKSLSet b) = default;

private:
    // Files may hold integers that are no value of the enumeration: those are in no set.
    static constexpr TBits Bit(E value) {
        return std::uint32_t(value) < 8 * sizeof(TBits) ? TBits(1) << std::uint32_t(value) : 0;
    }

    TBits fBits = 0;
};

} // namespace vagrel
