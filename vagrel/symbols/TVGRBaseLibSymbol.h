// SPDX-License-Identifier: MIT
// A library symbol that a document uses.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <string>

namespace vagrel {

class TJsonArray;

/// A reusable drawing with a GUID. Documents keep one copy of each that they use; its elements join with the symbol
/// library.
class TVGRBaseLibSymbol {
public:
    virtual ~TVGRBaseLibSymbol() = default;

    const std::u16string& GetGuid() const { return fGuid; }
    virtual void WriteJson(TJsonArray& symbols) const = 0;

    bool fUsed = false; ///< mark of the clean-up of unused symbols

protected:
    std::u16string fName, fCategory, fNote;
    TKSLUnits fUnits = unMM;
    std::u16string fGuid;
};

} // namespace vagrel
