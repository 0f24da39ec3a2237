// SPDX-License-Identifier: MIT
// The parameters of one event.
#include <host/SessionArguments_p.h>

#include <vagrel/document/TVGRBaseLabel.h>

namespace vagrel {

const TJsonDataValue& SessionArguments::Need(std::u16string_view name) const {
    const std::int32_t index = fJson.IndexOf(name);
    if (index < 0)
        throw EConvertError(u"\"" + std::u16string(name) + u"\" is missing");
    return fJson.ItemAt(index);
}

std::int64_t SessionArguments::Whole(std::u16string_view name, const TJsonDataValue& value) {
    if (value.GetTyp() != jdtInt && value.GetTyp() != jdtLong)
        throw EConvertError(std::u16string(name) + u": not a whole number");
    return value.GetLongValue();
}

std::int64_t SessionArguments::Long(std::u16string_view name, std::optional<std::int64_t> fallback) const {
    return fallback && !Has(name) ? *fallback : Whole(name, Need(name));
}

std::int32_t SessionArguments::Int(std::u16string_view name, std::optional<std::int32_t> fallback) const {
    const std::int64_t value = Long(name, fallback);
    if (value != std::int32_t(value))
        throw Refusal<EConvertError>(ToUtf8(name), std::to_string(value), "whole numbers of 32 bits");
    return std::int32_t(value);
}

float SessionArguments::Float(std::u16string_view name, std::optional<float> fallback) const {
    if (fallback && !Has(name))
        return *fallback;
    const TJsonDataValue& value = Need(name);
    if (value.GetTyp() != jdtInt && value.GetTyp() != jdtLong && value.GetTyp() != jdtFloat)
        throw EConvertError(std::u16string(name) + u": not a number");
    return float(value.GetFloatValue());
}

bool SessionArguments::Bool(std::u16string_view name, std::optional<bool> fallback) const {
    if (fallback && !Has(name))
        return *fallback;
    const TJsonDataValue& value = Need(name);
    if (value.GetTyp() != jdtBool)
        throw EConvertError(std::u16string(name) + u": neither true nor false");
    return value.GetBoolValue();
}

std::u16string SessionArguments::Text(std::u16string_view name) const {
    if (!Has(name))
        return {};
    if (Need(name).GetTyp() != jdtString)
        throw EConvertError(std::u16string(name) + u": not a text");
    return Need(name).GetStringValue();
}

TVGRBaseItem& SessionArguments::Item(TVGRBaseLabel& label, std::u16string_view name) const {
    const bool byName = Need(name).GetTyp() == jdtString;
    TVGRBaseItem* item =
        byName ? label.SearchItem(Need(name).GetStringValue(), false) : label.SearchItem(Int(name), false);
    if (!item)
        throw EConvertError(std::u16string(name) + u": no such item");
    return *item;
}

TJsonArray& SessionArguments::Array(std::u16string_view name) const {
    TJsonArray* array = fJson.FindArray(name);
    if (!array)
        throw EConvertError(std::u16string(name) + u": not a list");
    return *array;
}

std::vector<std::int64_t> SessionArguments::Longs(std::u16string_view name) const {
    std::vector<std::int64_t> numbers;
    const TJsonArray& array = Array(name);
    numbers.reserve(std::size_t(array.Count()));
    for (int i = 0; i < array.Count(); ++i)
        numbers.push_back(Whole(name, array.ItemAt(i)));
    return numbers;
}

} // namespace vagrel
