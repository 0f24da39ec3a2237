// SPDX-License-Identifier: MIT
// Lists whose elements take themselves out when they die: an owner takes the pointer out before it deletes.
#pragma once

#include <memory>
#include <vector>

namespace vagrel::detail {

/// Takes an element out of its list.
template <class T>
std::unique_ptr<T> TakeOut(std::vector<std::unique_ptr<T>>& list, std::size_t index) {
    std::unique_ptr<T> taken = std::move(list[index]);
    list.erase(list.begin() + std::ptrdiff_t(index));
    return taken;
}

/// Deletes from the last element down to `count` elements.
template <class T>
void Shrink(std::vector<std::unique_ptr<T>>& list, std::size_t count) {
    while (list.size() > count)
        TakeOut(list, list.size() - 1);
}

} // namespace vagrel::detail
