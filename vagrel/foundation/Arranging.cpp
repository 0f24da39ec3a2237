// SPDX-License-Identifier: MIT
// Spacing and aligning on one axis.
#include <vagrel/foundation/Arranging.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Utils.h>

namespace vagrel {

std::int64_t TKSLSpan::Length() const { return SubSat(to, from); }
std::int64_t TKSLSpan::Middle() const { return AddSat(from, Length() / 2); }

std::vector<std::int64_t> SpaceByGap(const std::vector<TKSLSpan>& spans, std::int64_t gap) {
    std::vector<std::int64_t> offsets(spans.size(), 0);
    for (std::size_t i = 1; i < spans.size(); ++i) {
        const std::int64_t before = AddSat(spans[i - 1].to, offsets[i - 1]);
        offsets[i] = SubSat(AddSat(before, gap), spans[i].from);
    }
    return offsets;
}

std::optional<std::vector<std::int64_t>> SpaceEvenly(const std::vector<TKSLSpan>& spans) {
    if (spans.size() < 2)
        return {};
    TInt128 room = TInt128(spans.back().from) - spans.front().to;
    for (std::size_t i = 1; i + 1 < spans.size(); ++i)
        room -= spans[i].Length();
    if (room <= 0)
        return {};
    const auto gap = std::int64_t(std::min<TInt128>(room / TInt128(spans.size() - 1), INT64_MAX));
    auto offsets = SpaceByGap(spans, gap);
    offsets.back() = 0;
    return offsets;
}

std::int64_t SmallerOffset(std::int64_t a, std::int64_t b) {
    auto size = [](std::int64_t value) { return value < 0 ? SubSat(0, value) : value; };
    return size(b) < size(a) ? b : a;
}

std::int64_t GridTarget(std::int64_t value, std::int64_t offset, std::int64_t grid) {
    return grid > 0 && offset != 0 ? AdjustGrid(AddSat(value, offset), grid, offset > 0) : -1;
}

} // namespace vagrel
