// SPDX-License-Identifier: MIT
// The reader's way into containers.
#pragma once

#include "JsonName_p.h"

#include <vagrel/persistence/TJsonBaseObject.h>

namespace vagrel {

class TJsonTreeBuilder {
public:
    /// A container of exactly these values, which are moved out, under these names, which get a reference more. No
    /// other thread knows the names yet.
    static std::unique_ptr<TJsonBaseObject> Build(bool isObject, TJsonDataValue* values, TJsonName* const* names,
                                                  std::size_t count);
    static TJsonDataValue Value(std::unique_ptr<TJsonBaseObject> container);
};

} // namespace vagrel
