// SPDX-License-Identifier: MIT
// What access by key or index hands out for reading and writing in one.
#pragma once

#include <vagrel/persistence/TJsonDataValue.h>

namespace vagrel {

/// Stands for a stored value, for an absent key that the first write adds, or for a value of its own. Valid until its
/// container changes by other means.
class TJsonDataValueHelper {
public:
    /// A value of its own.
    template <TJsonPayload T>
    TJsonDataValueHelper(T&& value) : fValue(std::forward<T>(value)) {}
    explicit TJsonDataValueHelper(TJsonDataValue& stored) : fIntern(&stored) {}
    TJsonDataValueHelper(TJsonObject& nameResolver, std::u16string_view name)
        : fNameResolver(&nameResolver), fName(name) {}
    TJsonDataValueHelper(TJsonDataValueHelper&&) = default;

    /// Writes through: into the stored value, or under the absent key.
    template <TJsonPayload T>
    TJsonDataValueHelper& operator=(T&& value) {
        return *this = TJsonDataValue(std::forward<T>(value));
    }
    TJsonDataValueHelper& operator=(TJsonDataValue&& value) {
        Write(std::move(value));
        return *this;
    }
    /// A helper gives a deep copy of its value.
    TJsonDataValueHelper& operator=(const TJsonDataValueHelper& other) { return *this = TJsonDataValue(other); }
    operator TJsonDataValue() const { return Value().Clone(); }

    TJsonDataType GetTyp() const { return Value().GetTyp(); }
    bool IsNull() const { return Value().IsNull(); }
    operator std::u16string() const { return Value().GetStringValue(); }
    operator std::int32_t() const { return Value().GetIntValue(); }
    operator std::int64_t() const { return Value().GetLongValue(); }
    operator std::uint64_t() const { return Value().GetULongValue(); }
    operator double() const { return Value().GetFloatValue(); }
    operator bool() const { return Value().GetBoolValue(); }
    /// The array or object; null for null.
    operator TJsonArray*() const { return Value().GetArrayValue(); }
    operator TJsonObject*() const { return Value().GetObjectValue(); }
    double GetDateTimeValue() const { return Value().GetDateTimeValue(); }
    double GetUtcDateTimeValue() const { return Value().GetUtcDateTimeValue(); }

    const TJsonDataValue& Value() const { return fIntern ? *fIntern : fValue; }

private:
    void Write(TJsonDataValue value);

    TJsonDataValue* fIntern = nullptr;
    TJsonObject* fNameResolver = nullptr;
    std::u16string fName;
    TJsonDataValue fValue;
};

} // namespace vagrel
