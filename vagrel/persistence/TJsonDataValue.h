// SPDX-License-Identifier: MIT
// One JSON value in 16 bytes: scalars and short texts in place, long texts and containers on the heap.
#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace vagrel {

class TJsonArray;
class TJsonBaseObject;
class TJsonObject;

/// jdtNone is null.
enum TJsonDataType : std::uint8_t {
    jdtNone,
    jdtString,
    jdtInt,
    jdtLong,
    jdtULong,
    jdtFloat,
    jdtDateTime,
    jdtUtcDateTime,
    jdtBool,
    jdtArray,
    jdtObject
};

/// A tagged value that owns its text, array or object.
///
/// The getters convert: a float truncates and every integer saturates, text parses with ".", a boolean is 0 or 1, null
/// is 0 or empty. Text that is no number throws EConvertError; an array or object taken as a scalar throws
/// EJsonCastException. Date times are days since 1899-12-30.
class TJsonDataValue {
public:
    TJsonDataValue() noexcept : fScalar{jdtNone, 0, 0, 0, {}} {}
    TJsonDataValue(std::nullptr_t) noexcept : TJsonDataValue() {}
    TJsonDataValue(TJsonDataValue&& other) noexcept : fScalar(other.fScalar) { other.fScalar.typ = jdtNone; }
    TJsonDataValue& operator=(TJsonDataValue&& other) noexcept {
        std::swap(fScalar, other.fScalar);
        return *this;
    }
    ~TJsonDataValue() {
        if (OwnsHeap())
            Free();
    }

    TJsonDataValue(std::unique_ptr<TJsonArray> array) noexcept;
    TJsonDataValue(std::unique_ptr<TJsonObject> object) noexcept;
    TJsonDataValue(std::u16string_view text);
    template <class T>
    requires std::convertible_to<const T&, std::u16string_view> TJsonDataValue(const T& text)
        : TJsonDataValue(std::u16string_view(text)) {}
    template <std::floating_point T>
    TJsonDataValue(T value) noexcept : fScalar{jdtFloat, 0, 0, 0, {.real = double(value)}} {}
    /// The narrowest of jdtInt, jdtLong and jdtULong that holds every value of the type.
    template <std::integral T>
    requires(!std::same_as<T, char> && !std::same_as<T, char16_t>) TJsonDataValue(T value)
    noexcept : fScalar{TypeOf<T>(), 0, 0, 0, {.integer = std::int64_t(value)}} {}

    static TJsonDataValue DateTime(double value) { return TJsonDataValue(jdtDateTime, value); }
    static TJsonDataValue UtcDateTime(double value) { return TJsonDataValue(jdtUtcDateTime, value); }

    TJsonDataType GetTyp() const { return fScalar.typ; }
    /// True for null, and for an object or array that is not there.
    bool IsNull() const { return GetTyp() == jdtNone || (GetTyp() >= jdtArray && !fScalar.payload.container); }
    void Clear() { *this = TJsonDataValue(); }
    /// A copy, deep for containers.
    TJsonDataValue Clone() const;

    std::u16string GetStringValue() const;
    std::int32_t GetIntValue() const;
    std::int64_t GetLongValue() const;
    std::uint64_t GetULongValue() const;
    double GetFloatValue() const;
    /// Text is true when it is "true", a number when it is not 0.
    bool GetBoolValue() const;
    double GetDateTimeValue() const;
    double GetUtcDateTimeValue() const;
    /// The array or object; null for a null value. Throws EJsonCastException for any other.
    TJsonArray* GetArrayValue() const;
    TJsonObject* GetObjectValue() const;
    /// Makes a null value an empty array or object and returns it.
    TJsonArray& NeedArray();
    TJsonObject& NeedObject();
    /// Hands the container over and leaves null.
    std::unique_ptr<TJsonArray> ExtractArray();
    std::unique_ptr<TJsonObject> ExtractObject();

    /// The text of a jdtString as it is stored.
    std::u16string_view Text() const {
        return fScalar.shortLength == Long ? std::u16string_view(fScalar.payload.text, fScalar.length)
                                           : std::u16string_view(fShort.text, fShort.shortLength);
    }
    /// The container of a jdtArray or jdtObject, else null.
    TJsonBaseObject* Container() const { return GetTyp() >= jdtArray ? fScalar.payload.container : nullptr; }
    /// The stored integer of jdtInt, jdtLong, jdtULong (its bits) and jdtBool.
    std::int64_t Integer() const { return fScalar.payload.integer; }
    /// The stored number of jdtFloat and the date times.
    double Real() const { return fScalar.payload.real; }

    /// Makes it a text of exactly `length` code units, which the caller fills before the value moves.
    char16_t* NewText(std::size_t length);

private:
    friend class TJsonBaseObject;
    friend class TJsonTreeBuilder;
    static constexpr std::uint8_t ShortLimit = 7;
    static constexpr std::uint8_t Long = 0xFF;

    // Both begin alike, so the type and length read through either.
    struct TScalar {
        TJsonDataType typ;
        std::uint8_t shortLength;
        std::uint16_t unused; // named, for a short text stands here: copies leave padding out
        std::uint32_t length;
        union {
            std::int64_t integer;
            double real;
            char16_t* text;
            TJsonBaseObject* container;
        } payload;
    };
    struct TShort {
        TJsonDataType typ;
        std::uint8_t shortLength;
        char16_t text[ShortLimit];
    };

    TJsonDataValue(TJsonDataType typ, double value) noexcept : fScalar{typ, 0, 0, 0, {.real = value}} {}
    TJsonDataValue(TJsonDataType typ, TJsonBaseObject* container) noexcept
        : fScalar{typ, 0, 0, 0, {.container = container}} {}

    template <class T>
    static constexpr TJsonDataType TypeOf() {
        if (std::same_as<T, bool>)
            return jdtBool;
        if (sizeof(T) < 4 || (sizeof(T) == 4 && std::is_signed_v<T>))
            return jdtInt;
        return std::is_signed_v<T> || sizeof(T) == 4 ? jdtLong : jdtULong;
    }
    bool OwnsHeap() const { return GetTyp() >= jdtArray || (GetTyp() == jdtString && fScalar.shortLength == Long); }
    void Free();
    bool IsScalarNull(TJsonDataType wanted) const;

    union {
        TScalar fScalar;
        TShort fShort;
    };
};

static_assert(sizeof(TJsonDataValue) == 16);

/// What a value is made of.
template <class T>
concept TJsonPayload = std::convertible_to<T, std::u16string_view> || std::is_arithmetic_v<std::remove_cvref_t<T>> ||
    std::same_as<std::remove_cvref_t<T>, std::nullptr_t> || std::same_as<T, std::unique_ptr<TJsonArray>> ||
    std::same_as<T, std::unique_ptr<TJsonObject>>;

} // namespace vagrel
