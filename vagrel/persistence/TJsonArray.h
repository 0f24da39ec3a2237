// SPDX-License-Identifier: MIT
// A JSON array.
#pragma once

#include <vagrel/persistence/TJsonBaseObject.h>
#include <vagrel/persistence/TJsonDataValueHelper.h>

namespace vagrel {

/// Values by zero-based index. Beyond the end scalars read as null (0, empty text); every other access there throws
/// EOutOfRange.
class TJsonArray final : public TJsonBaseObject {
public:
    TJsonArray() : TJsonBaseObject(false) {}
    std::unique_ptr<TJsonArray> Clone() const;

    TJsonDataType GetType(std::int32_t index) const { return At(index).GetTyp(); }
    std::u16string GetString(std::int32_t index) const { return At(index).GetStringValue(); }
    std::int32_t GetInt(std::int32_t index) const { return At(index).GetIntValue(); }
    std::int64_t GetLong(std::int32_t index) const { return At(index).GetLongValue(); }
    std::uint64_t GetULong(std::int32_t index) const { return At(index).GetULongValue(); }
    double GetFloat(std::int32_t index) const { return At(index).GetFloatValue(); }
    bool GetBool(std::int32_t index) const { return At(index).GetBoolValue(); }
    double GetDateTime(std::int32_t index) const { return At(index).GetDateTimeValue(); }
    double GetUtcDateTime(std::int32_t index) const { return At(index).GetUtcDateTimeValue(); }
    /// A null there becomes an empty object or array; throws EJsonCastException for any other value.
    TJsonObject& GetObject(std::int32_t index) { return Item(index).NeedObject(); }
    TJsonArray& GetArray(std::int32_t index) { return Item(index).NeedArray(); }
    /// The object or array there, or null when there is something else or nothing.
    TJsonObject* FindObject(std::int32_t index) const;
    TJsonArray* FindArray(std::int32_t index) const;
    TJsonDataValueHelper GetValue(std::int32_t index) { return TJsonDataValueHelper(Item(index)); }

    void SetString(std::int32_t index, std::u16string_view value) { SetValue(index, value); }
    void SetInt(std::int32_t index, std::int32_t value) { SetValue(index, value); }
    void SetLong(std::int32_t index, std::int64_t value) { SetValue(index, value); }
    void SetULong(std::int32_t index, std::uint64_t value) { SetValue(index, value); }
    void SetFloat(std::int32_t index, double value) { SetValue(index, value); }
    void SetBool(std::int32_t index, bool value) { SetValue(index, value); }
    void SetDateTime(std::int32_t index, double value) { SetValue(index, TJsonDataValue::DateTime(value)); }
    void SetUtcDateTime(std::int32_t index, double value) { SetValue(index, TJsonDataValue::UtcDateTime(value)); }
    void SetObject(std::int32_t index, std::unique_ptr<TJsonObject> value);
    void SetArray(std::int32_t index, std::unique_ptr<TJsonArray> value);
    void SetValue(std::int32_t index, TJsonDataValue value) { Item(index) = std::move(value); }

    /// Takes every payload: text, numbers, booleans, nullptr, containers, TJsonDataValue::DateTime(...).
    void Add(TJsonDataValue value) { Insert(Count(), std::move(value)); }
    TJsonObject& AddObject() { return InsertObject(Count()); }
    TJsonArray& AddArray() { return InsertArray(Count()); }
    void Insert(std::int32_t index, TJsonDataValue value);
    TJsonObject& InsertObject(std::int32_t index);
    TJsonArray& InsertArray(std::int32_t index);
    void Delete(std::int32_t index) { Extract(index); }
    /// Takes a value out and hands it over.
    TJsonDataValue Extract(std::int32_t index);
    std::unique_ptr<TJsonObject> ExtractObject(std::int32_t index);
    std::unique_ptr<TJsonArray> ExtractArray(std::int32_t index);

    TJsonDataValue* begin() { return Items(); }
    TJsonDataValue* end() { return Items() + Count(); }
    const TJsonDataValue* begin() const { return Items(); }
    const TJsonDataValue* end() const { return Items() + Count(); }

private:
    const TJsonDataValue& At(std::int32_t index) const;
    TJsonDataValue& Item(std::int32_t index) const;
};

} // namespace vagrel
