// SPDX-License-Identifier: MIT
// A JSON object, its members in the order of insertion.
#pragma once

#include <vagrel/persistence/TJsonBaseObject.h>
#include <vagrel/persistence/TJsonDataValueHelper.h>

namespace vagrel {

class TJsonNameIndex;

/// A member as iteration gives it.
template <class T>
struct TJsonMember {
    std::u16string_view Name;
    T& Value;
};
using TJsonNameValuePair = TJsonMember<TJsonDataValue>;

/// Values by name. An absent name reads as null: empty text, 0, false; nothing is added. Indexes are zero-based and
/// throw EOutOfRange outside the object.
class TJsonObject final : public TJsonBaseObject {
public:
    TJsonObject();
    ~TJsonObject() override;
    std::unique_ptr<TJsonObject> Clone() const;

    bool Contains(std::u16string_view name) const { return IndexOf(name) >= 0; }
    /// -1 when absent.
    std::int32_t IndexOf(std::u16string_view name) const;
    TJsonDataType GetType(std::u16string_view name) const { return At(name).GetTyp(); }
    /// The name of a member, valid as long as the member.
    std::u16string_view GetName(std::int32_t index) const;
    TJsonDataValue& GetItem(std::int32_t index);

    std::u16string GetString(std::u16string_view name) const { return At(name).GetStringValue(); }
    std::int32_t GetInt(std::u16string_view name) const { return At(name).GetIntValue(); }
    std::int64_t GetLong(std::u16string_view name) const { return At(name).GetLongValue(); }
    std::uint64_t GetULong(std::u16string_view name) const { return At(name).GetULongValue(); }
    double GetFloat(std::u16string_view name) const { return At(name).GetFloatValue(); }
    bool GetBool(std::u16string_view name) const { return At(name).GetBoolValue(); }
    double GetDateTime(std::u16string_view name) const { return At(name).GetDateTimeValue(); }
    double GetUtcDateTime(std::u16string_view name) const { return At(name).GetUtcDateTimeValue(); }
    /// Adds an empty object or array when the name is absent or null. Throws EJsonCastException for any other value.
    TJsonObject& GetObject(std::u16string_view name) { return Need(name).NeedObject(); }
    TJsonArray& GetArray(std::u16string_view name) { return Need(name).NeedArray(); }
    /// The object or array under the name, or null when there is something else or nothing. Adds nothing.
    TJsonObject* FindObject(std::u16string_view name) const;
    TJsonArray* FindArray(std::u16string_view name) const;
    /// An absent name stays absent until the helper is written to.
    TJsonDataValueHelper GetValue(std::u16string_view name);

    void SetString(std::u16string_view name, std::u16string_view value) { SetValue(name, value); }
    void SetInt(std::u16string_view name, std::int32_t value) { SetValue(name, value); }
    void SetLong(std::u16string_view name, std::int64_t value) { SetValue(name, value); }
    void SetULong(std::u16string_view name, std::uint64_t value) { SetValue(name, value); }
    void SetFloat(std::u16string_view name, double value) { SetValue(name, value); }
    void SetBool(std::u16string_view name, bool value) { SetValue(name, value); }
    void SetDateTime(std::u16string_view name, double value) { SetValue(name, TJsonDataValue::DateTime(value)); }
    void SetUtcDateTime(std::u16string_view name, double value) { SetValue(name, TJsonDataValue::UtcDateTime(value)); }
    void SetObject(std::u16string_view name, std::unique_ptr<TJsonObject> value);
    void SetArray(std::u16string_view name, std::unique_ptr<TJsonArray> value);
    void SetNull(std::u16string_view name) { SetValue(name, nullptr); }
    /// Adds or replaces; a replaced member keeps its place.
    void SetValue(std::u16string_view name, TJsonDataValue value) { Need(name) = std::move(value); }
    /// Stores an empty object or array under the name and returns it.
    TJsonObject& AddObject(std::u16string_view name);
    TJsonArray& AddArray(std::u16string_view name);

    /// Nothing happens when the name is absent.
    void Remove(std::u16string_view name) { Extract(name); }
    void Delete(std::int32_t index);
    /// Takes a member out and hands its value over; null when absent.
    TJsonDataValue Extract(std::u16string_view name);
    std::unique_ptr<TJsonObject> ExtractObject(std::u16string_view name);
    std::unique_ptr<TJsonArray> ExtractArray(std::u16string_view name);

    /// The value at the end of a path such as a.b[2].c. Missing objects and arrays on the way are added. Throws
    /// EJsonPathException for an empty name, a null on the way and an index that is none or beyond its array.
    TJsonDataValueHelper GetPath(std::u16string_view path);
    /// Stores a value through the same walk.
    void SetPath(std::u16string_view path, TJsonDataValue value);

    template <class Object, class Value>
    struct TIterator {
        Object* object;
        std::int32_t index;
        TJsonMember<Value> operator*() const { return {object->GetName(index), object->Items()[index]}; }
        TIterator& operator++() {
            ++index;
            return *this;
        }
        bool operator==(const TIterator&) const = default;
    };
    TIterator<TJsonObject, TJsonDataValue> begin() { return {this, 0}; }
    TIterator<TJsonObject, TJsonDataValue> end() { return {this, Count()}; }
    TIterator<const TJsonObject, const TJsonDataValue> begin() const { return {this, 0}; }
    TIterator<const TJsonObject, const TJsonDataValue> end() const { return {this, Count()}; }

private:
    void ForgetSearch() override;
    const TJsonDataValue& At(std::u16string_view name) const;
    TJsonDataValue& Need(std::u16string_view name);
    TJsonDataValue& Append(std::u16string_view name);

    mutable std::int32_t fLastValueItem = 0;        // position of the name that was found last
    mutable std::unique_ptr<TJsonNameIndex> fIndex; // of objects too large to search from the start
};

} // namespace vagrel
