// SPDX-License-Identifier: MIT
// What the sources of this folder share about counters and bindings.
#pragma once

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/merge/TVGRCounter.h>

namespace vagrel::detail {

/// Whether a merge of this kind runs on counters.
constexpr bool RunsOnCounters(TKSLFillType type) {
    return type == ftCounter || type == ftFieldCount || type == ftJsonCount || type == ftCsvCount;
}

/// From the last one to the first.
template <class Action>
void ForActiveCounters(const TVGRBaseLabel& label, Action action) {
    for (int i = label.CounterCount(); i >= 1; --i)
        if (TVGRCounter& counter = *label.GetCounter(i); counter.GetActive())
            action(counter);
}

/// Every item bound to this name stands without a binding.
void Unbind(TVGRBaseLabel& label, TKSLFillType type, std::u16string_view name);

/// A whole text as an integer, 0 when it is none.
std::int32_t IntegerOf(std::u16string_view text);

} // namespace vagrel::detail
