// SPDX-License-Identifier: MIT
// The parameters of one event.
#pragma once

#include <host/EnumNames.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/TKSLSet.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace vagrel {

class TVGRBaseItem;
class TVGRBaseLabel;

/// Reads parameters by name. What is missing without a fallback, or of another kind, throws EConvertError.
class SessionArguments {
public:
    explicit SessionArguments(TJsonObject& json) : fJson(json) {}

    bool Has(std::u16string_view name) const { return fJson.Contains(name); }
    std::int64_t Long(std::u16string_view name, std::optional<std::int64_t> fallback = {}) const;
    std::int32_t Int(std::u16string_view name, std::optional<std::int32_t> fallback = {}) const;
    float Float(std::u16string_view name, std::optional<float> fallback = {}) const;
    bool Bool(std::u16string_view name, std::optional<bool> fallback = {}) const;
    /// Empty when it is missing.
    std::u16string Text(std::u16string_view name) const;
    /// The number or the identifier of an item of the document.
    TVGRBaseItem& Item(TVGRBaseLabel& label, std::u16string_view name) const;
    std::vector<std::int64_t> Longs(std::u16string_view name) const;

    template <class E>
    E Enum(std::u16string_view name) const {
        return Named<E>(name, Need(name));
    }
    template <class E>
    TKSLSet<E> Set(std::u16string_view name) const {
        TKSLSet<E> set;
        if (!Has(name))
            return set;
        TJsonArray& names = Array(name);
        for (int i = 0; i < names.Count(); ++i)
            set.Put(Named<E>(name, names.ItemAt(i)), true);
        return set;
    }

private:
    const TJsonDataValue& Need(std::u16string_view name) const;
    TJsonArray& Array(std::u16string_view name) const;
    static std::int64_t Whole(std::u16string_view name, const TJsonDataValue& value);
    template <class E>
    static E Named(std::u16string_view name, const TJsonDataValue& value) {
        const std::string text = ToUtf8(value.GetTyp() == jdtString ? value.GetStringValue() : u"");
        if (const auto found = EnumValue<E>(text))
            return *found;
        throw EConvertError(ToUtf8(name) + ": \"" + text + "\" is none of " + EnumList<E>());
    }

    TJsonObject& fJson;
};

} // namespace vagrel
