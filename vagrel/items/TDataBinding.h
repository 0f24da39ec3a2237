// SPDX-License-Identifier: MIT
// What binds an item to data, with its forms in files.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <string>
#include <string_view>

namespace vagrel {

class TBinaryFields;
class TJsonFields;

/// A field of a data source, and the number or date pattern of its value.
struct TDataBinding {
    TKSLFillType type = ftNone;
    std::u16string field, format;

    /// A leading "@", "{", "~", "=", "?" or "^" of the name tells the source, else `source` does; a name that holds the
    /// text "Unassign" of the lists ends the binding.
    void Set(TKSLFillType source, std::u16string_view name, std::u16string_view pattern);
    bool IsSet() const { return type != ftNone && !field.empty(); }
    /// The field with the symbol of its source in front.
    std::u16string Symbolic() const;

    /// The object "Data".
    void Keys(TJsonFields& keys);
    void Fields(TBinaryFields& fields);

    bool operator==(const TDataBinding&) const = default;
};

} // namespace vagrel
