// SPDX-License-Identifier: MIT
// A tree of boxes that is joined with itself. Each node splits its boxes at their median on the longer axis.
#include <vagrel/foundation/BoxPairs.h>

#include <vagrel/foundation/Rounding.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace vagrel {

namespace {

constexpr std::uint32_t LeafSize = 12;

bool Meet(const TKSLRect& a, const TKSLRect& b) {
    return a.Left <= b.Right && b.Left <= a.Right && a.Top <= b.Bottom && b.Top <= a.Bottom;
}

class BoxTree {
public:
    using TUse = std::function<bool(std::uint32_t, std::uint32_t)>;

    BoxTree(std::span<const TKSLRect> boxes, const TUse& use) : fUse(use) {
        fEntries.reserve(boxes.size());
        for (const TKSLRect& box : boxes)
            fEntries.push_back({box, std::uint32_t(fEntries.size())});
        fNodes.reserve(1 + 4 * boxes.size() / LeafSize);
        if (!boxes.empty())
            Build(0, std::uint32_t(boxes.size()));
    }

    void Join() {
        if (!fNodes.empty())
            JoinWithin(0);
    }

private:
    struct TEntry {
        TKSLRect box;
        std::uint32_t position;
    };
    struct TNode {
        TKSLRect box;
        std::uint32_t first, last;       // its entries
        std::uint32_t low = 0, high = 0; // its children; the root is nobody's child
        bool IsLeaf() const { return high == 0; }
        std::uint32_t Count() const { return last - first; }
    };

    std::uint32_t Build(std::uint32_t first, std::uint32_t last) {
        TKSLRect box = fEntries[first].box;
        for (std::uint32_t i = first + 1; i < last; ++i) {
            const TKSLRect& other = fEntries[i].box;
            box = {std::min(box.Left, other.Left), std::min(box.Top, other.Top), std::max(box.Right, other.Right),
                   std::max(box.Bottom, other.Bottom)};
        }
        const auto node = std::uint32_t(fNodes.size());
        fNodes.push_back({box, first, last});
        if (last - first <= LeafSize)
            return node;
        const bool wide = SubSat(box.Right, box.Left) >= SubSat(box.Bottom, box.Top);
        // Twice the centre, halved first: the sum could leave 64 bits.
        auto center = [wide](const TEntry& entry) {
            return wide ? entry.box.Left / 2 + entry.box.Right / 2 : entry.box.Top / 2 + entry.box.Bottom / 2;
        };
        const std::uint32_t middle = first + (last - first) / 2;
        std::nth_element(fEntries.begin() + first, fEntries.begin() + middle, fEntries.begin() + last,
                         [&](const TEntry& a, const TEntry& b) { return center(a) < center(b); });
        const std::uint32_t low = Build(first, middle), high = Build(middle, last);
        fNodes[node].low = low, fNodes[node].high = high;
        return node;
    }

    bool Use(const TEntry& a, const TEntry& b) const {
        return a.position < b.position ? fUse(a.position, b.position) : fUse(b.position, a.position);
    }

    bool JoinWithin(std::uint32_t index) const {
        const TNode& node = fNodes[index];
        if (!node.IsLeaf())
            return JoinWithin(node.low) && JoinWithin(node.high) && JoinNodes(node.low, node.high);
        for (std::uint32_t i = node.first; i < node.last; ++i)
            for (std::uint32_t j = i + 1; j < node.last; ++j)
                if (Meet(fEntries[i].box, fEntries[j].box) && !Use(fEntries[i], fEntries[j]))
                    return false;
        return true;
    }

    bool JoinNodes(std::uint32_t one, std::uint32_t other) const {
        const TNode &a = fNodes[one], &b = fNodes[other];
        if (!Meet(a.box, b.box))
            return true;
        if (!a.IsLeaf() && (b.IsLeaf() || a.Count() >= b.Count()))
            return JoinNodes(a.low, other) && JoinNodes(a.high, other);
        if (!b.IsLeaf())
            return JoinNodes(one, b.low) && JoinNodes(one, b.high);
        for (std::uint32_t i = a.first; i < a.last; ++i) {
            if (!Meet(fEntries[i].box, b.box))
                continue;
            for (std::uint32_t j = b.first; j < b.last; ++j)
                if (Meet(fEntries[i].box, fEntries[j].box) && !Use(fEntries[i], fEntries[j]))
                    return false;
        }
        return true;
    }

    const TUse& fUse;
    std::vector<TEntry> fEntries;
    std::vector<TNode> fNodes;
};

} // namespace

void ForEachBoxPair(std::span<const TKSLRect> boxes, const std::function<bool(std::uint32_t, std::uint32_t)>& use) {
    BoxTree(boxes, use).Join();
}

} // namespace vagrel
