// SPDX-License-Identifier: MIT
// Paths such as a.b[2].c.
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/JsonExceptions.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

namespace vagrel {

namespace {

[[noreturn]] void FailInvalid(std::u16string_view path) {
    throw EJsonPathException("Invalid JSON path \"" + ToUtf8(path) + "\"");
}

// What is left of a path, taken name by name and index by index.
struct TPath {
    std::u16string_view whole;
    std::u16string_view rest = whole;

    bool AtEnd() const { return rest.empty(); }

    std::u16string_view TakeName() {
        const std::u16string_view name = rest.substr(0, rest.find_first_of(u".["));
        if (name.empty())
            FailInvalid(whole);
        rest.remove_prefix(name.size());
        return name;
    }

    // The index in "[index]".
    std::int32_t TakeIndex() {
        std::int64_t index = 0;
        std::size_t at = 1;
        for (; at < rest.size() && rest[at] >= u'0' && rest[at] <= u'9' && at < 11; ++at)
            index = index * 10 + (rest[at] - u'0');
        if (at == 1 || at >= rest.size() || rest[at] != u']' || index > 0x7FFFFFFF)
            FailInvalid(whole);
        rest.remove_prefix(at + 1);
        return std::int32_t(index);
    }
};

void RequireNoNull(const TJsonDataValue& value, std::u16string_view path) {
    if (value.IsNull())
        throw EJsonPathException("JSON path contains null value (\"" + ToUtf8(path) + "\")");
}

} // namespace

TJsonDataValueHelper TJsonObject::GetPath(std::u16string_view text) {
    TPath path{text};
    TJsonObject* object = this;
    for (;;) {
        const std::u16string_view name = path.TakeName();
        if (path.AtEnd())
            return object->GetValue(name);
        // A missing container is added; a null that stands there is not.
        const bool missing = !object->Contains(name);
        TJsonDataValue* value = &object->Need(name);
        if (missing)
            *value = path.rest[0] == u'[' ? TJsonDataValue(std::make_unique<TJsonArray>())
                                          : TJsonDataValue(std::make_unique<TJsonObject>());
        while (!path.AtEnd() && path.rest[0] == u'[') {
            RequireNoNull(*value, text);
            TJsonArray& array = *value->GetArrayValue();
            const std::int32_t index = path.TakeIndex();
            if (index >= array.Count())
                throw EJsonPathException("JSON path index out of bounds (" + std::to_string(index) + ") \"" +
                                         ToUtf8(text) + "\"");
            value = array.begin() + index;
        }
        if (path.AtEnd())
            return TJsonDataValueHelper(*value);
        RequireNoNull(*value, text);
        object = value->GetObjectValue();
        if (path.rest[0] != u'.')
            FailInvalid(text);
        path.rest.remove_prefix(1);
    }
}

void TJsonObject::SetPath(std::u16string_view path, TJsonDataValue value) { GetPath(path) = std::move(value); }

} // namespace vagrel
