// SPDX-License-Identifier: MIT
// Storage and conversions of one JSON value.
#include <vagrel/persistence/TJsonDataValue.h>

#include "JsonDateTime_p.h"

#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/JsonExceptions.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>
#include <vagrel/persistence/TJsonSerializationConfig.h>

#include <charconv>
#include <cstring>

namespace vagrel {

namespace {

const char* NameOf(TJsonDataType typ) {
    static constexpr const char* names[] = {"null",     "String",      "Integer", "Long",  "ULong", "Float",
                                            "DateTime", "UtcDateTime", "Boolean", "Array", "Object"};
    return names[typ];
}

[[noreturn]] void FailCast(TJsonDataType from, TJsonDataType to) {
    throw EJsonCastException(std::string("Cannot cast ") + NameOf(from) + " into " + NameOf(to));
}

[[noreturn]] void FailConvert(std::u16string_view text, const char* what) {
    throw EConvertError("'" + ToUtf8(text) + "' is not a valid " + what + " value");
}

std::int64_t ParseInteger(std::u16string_view text) {
    const auto value = TryStrToInt64(text);
    if (!value)
        FailConvert(text, "integer");
    return *value;
}

std::uint64_t ParseUnsigned(std::u16string_view text) {
    if (const auto value = TryStrToInt64(text))
        return *value < 0 ? 0 : std::uint64_t(*value);
    const std::string digits = ToUtf8(Trim(text));
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size())
        FailConvert(text, "integer");
    return value;
}

double ParseFloat(std::u16string_view text) {
    const auto value = TryStrToFloat(text);
    if (!value)
        FailConvert(text, "floating point");
    return *value;
}

std::uint64_t TruncUnsigned(double value) {
    if (!(value > 0))
        return 0;
    return value >= 18446744073709551616.0 ? ~std::uint64_t(0) : std::uint64_t(value);
}

} // namespace

TJsonDataValue::TJsonDataValue(std::u16string_view text) : TJsonDataValue() {
    std::copy(text.begin(), text.end(), NewText(text.size()));
}

char16_t* TJsonDataValue::NewText(std::size_t length) {
    Clear();
    if (length <= ShortLimit) {
        fShort.typ = jdtString;
        fShort.shortLength = std::uint8_t(length);
        return fShort.text;
    }
    if (length > 0x7FFFFFFF)
        throw EJsonException("Text too long");
    auto* units = new char16_t[length];
    fScalar = {jdtString, Long, 0, std::uint32_t(length), {.text = units}};
    return units;
}

TJsonDataValue::TJsonDataValue(std::unique_ptr<TJsonArray> array) noexcept
    : TJsonDataValue(jdtArray, array.release()) {}
TJsonDataValue::TJsonDataValue(std::unique_ptr<TJsonObject> object) noexcept
    : TJsonDataValue(jdtObject, object.release()) {}

TJsonDataValue TJsonDataValue::Clone() const {
    if (TJsonBaseObject* container = Container())
        return TJsonDataValue(GetTyp(), container->Clone().release());
    if (GetTyp() == jdtString)
        return TJsonDataValue(Text());
    TJsonDataValue copy;
    copy.fScalar = fScalar;
    return copy;
}

void TJsonDataValue::Free() {
    if (GetTyp() == jdtString)
        delete[] fScalar.payload.text;
    else
        delete fScalar.payload.container;
}

// True when the value reads as the zero of `wanted`; raises for containers.
bool TJsonDataValue::IsScalarNull(TJsonDataType wanted) const {
    if (GetTyp() < jdtArray)
        return GetTyp() == jdtNone;
    if (!IsNull() || !TJsonSerializationConfig::Instance().NullConvertsToValueTypes)
        FailCast(GetTyp(), wanted);
    return true;
}

std::u16string TJsonDataValue::GetStringValue() const {
    if (IsScalarNull(jdtString))
        return {};
    switch (GetTyp()) {
    case jdtString:
        return std::u16string(Text());
    case jdtULong: {
        const std::string digits = std::to_string(std::uint64_t(Integer()));
        return {digits.begin(), digits.end()};
    }
    case jdtFloat:
        return FloatToStr(Real());
    case jdtDateTime:
        return TJsonBaseObject::DateTimeToJSON(Real(), TJsonSerializationConfig::Instance().UseUtcTime);
    case jdtUtcDateTime:
        return TJsonBaseObject::UtcDateTimeToJSON(Real());
    case jdtBool:
        return Integer() ? u"true" : u"false";
    default:
        return IntToStr(Integer());
    }
}

std::int32_t TJsonDataValue::GetIntValue() const {
    if (GetTyp() == jdtInt)
        return std::int32_t(Integer());
    if (GetTyp() == jdtString) {
        const std::int64_t value = ParseInteger(Text());
        if (value != ToInt32(value))
            FailConvert(Text(), "integer");
        return std::int32_t(value);
    }
    return ToInt32(GetLongValue());
}

std::int64_t TJsonDataValue::GetLongValue() const {
    if (IsScalarNull(jdtLong))
        return 0;
    switch (GetTyp()) {
    case jdtString:
        return ParseInteger(Text());
    case jdtULong:
        return Integer() < 0 ? std::numeric_limits<std::int64_t>::max() : Integer();
    case jdtFloat:
    case jdtDateTime:
    case jdtUtcDateTime:
        return Trunc(Real());
    default:
        return Integer();
    }
}

std::uint64_t TJsonDataValue::GetULongValue() const {
    if (IsScalarNull(jdtULong))
        return 0;
    switch (GetTyp()) {
    case jdtString:
        return ParseUnsigned(Text());
    case jdtULong:
        return std::uint64_t(Integer());
    case jdtFloat:
    case jdtDateTime:
    case jdtUtcDateTime:
        return TruncUnsigned(Real());
    default:
        return Integer() < 0 ? 0 : std::uint64_t(Integer());
    }
}

double TJsonDataValue::GetFloatValue() const {
    if (IsScalarNull(jdtFloat))
        return 0;
    switch (GetTyp()) {
    case jdtString:
        return ParseFloat(Text());
    case jdtULong:
        return double(std::uint64_t(Integer()));
    case jdtFloat:
    case jdtDateTime:
    case jdtUtcDateTime:
        return Real();
    default:
        return double(Integer());
    }
}

bool TJsonDataValue::GetBoolValue() const {
    if (IsScalarNull(jdtBool))
        return false;
    if (GetTyp() == jdtString)
        return Text() == u"true";
    return GetTyp() == jdtULong ? Integer() != 0 : GetFloatValue() != 0;
}

double TJsonDataValue::GetDateTimeValue() const {
    if (GetTyp() == jdtString)
        return TJsonBaseObject::JSONToDateTime(Text(), false);
    return GetTyp() == jdtUtcDateTime ? UtcToLocal(Real()) : IsScalarNull(jdtDateTime) ? 0 : GetFloatValue();
}

double TJsonDataValue::GetUtcDateTimeValue() const {
    if (GetTyp() == jdtString)
        return TJsonBaseObject::JSONToDateTime(Text(), true);
    return GetTyp() == jdtDateTime ? LocalToUtc(Real()) : IsScalarNull(jdtUtcDateTime) ? 0 : GetFloatValue();
}

TJsonArray* TJsonDataValue::GetArrayValue() const {
    if (!IsNull() && GetTyp() != jdtArray)
        FailCast(GetTyp(), jdtArray);
    return static_cast<TJsonArray*>(Container());
}

TJsonObject* TJsonDataValue::GetObjectValue() const {
    if (!IsNull() && GetTyp() != jdtObject)
        FailCast(GetTyp(), jdtObject);
    return static_cast<TJsonObject*>(Container());
}

TJsonArray& TJsonDataValue::NeedArray() {
    if (IsNull())
        *this = std::make_unique<TJsonArray>();
    return *GetArrayValue();
}

TJsonObject& TJsonDataValue::NeedObject() {
    if (IsNull())
        *this = std::make_unique<TJsonObject>();
    return *GetObjectValue();
}

std::unique_ptr<TJsonArray> TJsonDataValue::ExtractArray() {
    std::unique_ptr<TJsonArray> array(GetArrayValue());
    fScalar.typ = jdtNone;
    return array;
}

std::unique_ptr<TJsonObject> TJsonDataValue::ExtractObject() {
    std::unique_ptr<TJsonObject> object(GetObjectValue());
    fScalar.typ = jdtNone;
    return object;
}

} // namespace vagrel
