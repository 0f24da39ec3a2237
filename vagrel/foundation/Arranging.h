// SPDX-License-Identifier: MIT
// The arithmetic of arranging along one axis: spans in, distances to move out.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace vagrel {

/// What something takes up on an axis.
struct TKSLSpan {
    std::int64_t from = 0;
    std::int64_t to = 0;

    std::int64_t Length() const;
    /// `from` + half of the length, truncated.
    std::int64_t Middle() const;
};

/// How far each span moves so that it begins `gap` behind the one before it. The first stays.
std::vector<std::int64_t> SpaceByGap(const std::vector<TKSLSpan>& spans, std::int64_t gap);

/// How far each span moves so that all gaps between the first and the last are equal, down to a unit. Those two stay.
/// Nothing when there is no room between them.
std::optional<std::vector<std::int64_t>> SpaceEvenly(const std::vector<TKSLSpan>& spans);

/// The offset with the smaller size.
std::int64_t SmallerOffset(std::int64_t a, std::int64_t b);

/// Where a coordinate goes that is dragged by `offset` to a grid, as moves of items take it: -1 when the offset is to
/// be added, which is the case without a grid.
std::int64_t GridTarget(std::int64_t value, std::int64_t offset, std::int64_t grid);

/// Sorts the elements that have a key by it, stably, among the places where they stand; the others stay.
template <class T, class Key>
void SortInPlaces(std::vector<T>& list, Key key) {
    using TKey = typename decltype(key(list.front()))::value_type;
    std::vector<std::pair<TKey, T>> keyed;
    for (const T& element : list)
        if (const auto value = key(element))
            keyed.emplace_back(*value, element);
    std::ranges::stable_sort(keyed, {}, &std::pair<TKey, T>::first);
    auto next = keyed.begin();
    for (T& element : list)
        if (key(element))
            element = (next++)->second;
}

} // namespace vagrel
