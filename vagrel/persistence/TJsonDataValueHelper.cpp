// SPDX-License-Identifier: MIT
// Writing through a helper.
#include <vagrel/persistence/TJsonDataValueHelper.h>

#include <vagrel/persistence/TJsonObject.h>

namespace vagrel {

void TJsonDataValueHelper::Write(TJsonDataValue value) {
    if (fNameResolver) {
        fNameResolver->SetValue(fName, std::move(value));
        fIntern = &fNameResolver->GetItem(fNameResolver->IndexOf(fName));
        fNameResolver = nullptr;
    } else {
        (fIntern ? *fIntern : fValue) = std::move(value);
    }
}

} // namespace vagrel
