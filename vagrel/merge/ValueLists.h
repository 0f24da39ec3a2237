// SPDX-License-Identifier: MIT
// Value lists and questions, which the user answers before printing.
#pragma once

#include <vagrel/foundation/Dates.h>
#include <vagrel/foundation/Enumerations.h>

#include <string>
#include <string_view>
#include <vector>

namespace vagrel {

/// A list from which the user picks one value.
struct TKSValList {
    std::u16string fName;
    std::u16string fAnsText; ///< the value that was picked
    bool fActive = false;    ///< an item to be printed uses it
    std::vector<std::u16string> fValues;

    /// A value that is there already is not added again.
    void AddValue(std::u16string_view value);
    /// False when it is absent.
    bool DeleteValue(std::u16string_view value) { return std::erase(fValues, value) > 0; }
    void AssignValues(std::vector<std::u16string> values) { fValues = std::move(values); }
    bool operator==(const TKSValList&) const = default;
};

/// A question and its answer, in the member of its type.
struct TKSAskField {
    std::u16string fName;
    std::u16string fQuestion;
    TKSLAskType fAskType = atText;
    std::u16string fAnsText;
    std::int32_t fAnsInt = 0;
    double fAnsDT = Now();
    double fAnsNumber = 0;
    bool fActive = false; ///< an item to be printed uses it

    /// The answer as text, by a number or date pattern; without one in decimal or as the short date.
    std::u16string Text(std::u16string_view format) const;
    /// The answer as a number, 0 for a text that is none.
    double Number() const;
    bool operator==(const TKSAskField&) const = default;
};

} // namespace vagrel
