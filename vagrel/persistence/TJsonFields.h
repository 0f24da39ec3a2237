// SPDX-License-Identifier: MIT
// The keys of an object of a document, said once for writing and reading.
#pragma once

#include <vagrel/foundation/Rounding.h>
#include <vagrel/persistence/JsonColors.h>
#include <vagrel/persistence/TJsonObject.h>

#include <algorithm>
#include <limits>
#include <type_traits>

namespace vagrel {

/// Carries fields to the keys of an object, or back. A class names each of its keys in one line:
///
///     void TVGRBaseThing::Keys(TJsonFields& keys) {
///         keys(u"Filled", fFill);
///         keys.Number(u"Radio", GetRadio(), [this](float value) { SetRadio(value); });
///     }
class TJsonFields {
public:
    enum TWay : std::uint8_t { Write, Read };

    TJsonFields(TJsonObject& object, TWay way) : fObject(object), fWay(way) {}

    bool Reads() const { return fWay == Read; }
    TJsonObject& Object() const { return fObject; }

    /// A text, a truth value, a whole number or an enumeration, as it stands. Numbers of less than 32 bits are cut to
    /// their limits when they are read.
    template <class T>
    void operator()(std::u16string_view key, T& field) {
        if constexpr (std::is_same_v<T, bool>)
            Reads() ? void(field = fObject.GetBool(key)) : void(fObject.SetBool(key, field));
        else if constexpr (std::is_same_v<T, std::int64_t>)
            Reads() ? void(field = fObject.GetLong(key)) : void(fObject.SetLong(key, field));
        else if constexpr (std::is_integral_v<T> || std::is_enum_v<T>)
            Reads() ? void(field = Limited<T>(fObject.GetInt(key))) : void(fObject.SetInt(key, std::int32_t(field)));
        else
            Reads() ? void(field = fObject.GetString(key)) : void(fObject.SetString(key, field));
    }
    void operator()(std::u16string_view key, float& field) {
        Number(key, double(field), [&](float value) { field = value; });
    }

    /// An object with "R", "G", "B", "A".
    void Color(std::u16string_view key, TAlphaColor& field) {
        Reads() ? void(field = GetAlphaColor(fObject.GetObject(key))) : SetAlphaColor(fObject, key, field);
    }
    /// A number with three decimals; when it is read `set` takes it.
    template <class Set>
    void Number(std::u16string_view key, double value, Set set) {
        Reads() ? void(set(float(fObject.GetFloat(key)))) : void(fObject.SetFloat(key, RoundTo3(value)));
    }
    /// A double with eight decimals.
    void Degrees(std::u16string_view key, double& field) {
        Reads() ? void(field = fObject.GetFloat(key)) : void(fObject.SetFloat(key, RoundTo8(field)));
    }
    /// A field behind its setter, of any kind that `operator()` takes.
    template <class T, class Set>
    void Through(std::u16string_view key, T value, Set set) {
        (*this)(key, value);
        if (Reads())
            set(value);
    }
    /// An object of its own under a key.
    template <class Keys>
    void Inner(std::u16string_view key, Keys keys) {
        TJsonFields inner(Reads() ? fObject.GetObject(key) : fObject.AddObject(key), fWay);
        keys(inner);
    }

private:
    template <class T>
    static T Limited(std::int32_t value) {
        if constexpr (std::is_integral_v<T> && sizeof(T) < sizeof(std::int32_t))
            return T(std::clamp<std::int32_t>(value, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
        else
            return T(value);
    }

    TJsonObject& fObject;
    TWay fWay;
};

/// Writes what an object names in its `Keys`, which changes nothing of it then.
template <class T>
void WriteKeys(const T& object, TJsonObject& json) {
    TJsonFields keys(json, TJsonFields::Write);
    const_cast<T&>(object).Keys(keys);
}
template <class T>
void ReadKeys(T& object, TJsonObject& json) {
    TJsonFields keys(json, TJsonFields::Read);
    object.Keys(keys);
}

} // namespace vagrel
