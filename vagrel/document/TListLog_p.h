// SPDX-License-Identifier: MIT
// What changed in one list of a document since some point: the members of its elements, which of them came and went,
// and their order. Elements that left the list are parked here, so that they come back as they were, at the same
// address.
#pragma once

#include <vagrel/document/TMembers.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRReceiver_p.h>

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace vagrel::detail {

/// Who an element is. Undo may make an item anew at another address: it is known by its receiver.
template <class T>
struct TIdentity {
    using TKey = T*;
    static TKey Of(T& element) { return &element; }
    static T* Element(TKey key) { return key; }
};
template <>
struct TIdentity<TVGRBaseItem> {
    using TKey = std::shared_ptr<TVGRReceiver>;
    static TKey Of(TVGRBaseItem& item) { return item.Receiver(); }
    static TVGRBaseItem* Element(const TKey& key) { return key->item; } // null while it is parked
};

template <class T>
class TListLog {
public:
    using TList = std::vector<std::unique_ptr<T>>;
    using TKey = typename TIdentity<T>::TKey;

    /// The members of an element are about to change.
    void Touch(T& element) {
        const TKey key = TIdentity<T>::Of(element);
        if (const auto [entry, fresh] = fImages.try_emplace(key); fresh)
            entry->second = ImageOf(element);
    }
    /// A new element is about to be appended. What it was before is of no interest.
    void Appending(const TList& list, T& element) {
        if (!fBefore && !fCount)
            fCount = list.size();
        fImages.try_emplace(TIdentity<T>::Of(element));
    }
    /// The order is about to change, or an element to leave.
    void Reordering(const TList& list) {
        if (!fBefore)
            fBefore = Keys(list, fCount.value_or(list.size()));
    }
    void Park(std::unique_ptr<T> element) { fParked.push_back(std::move(element)); }
    std::size_t CountParked() const { return fParked.size(); }

    /// Ends the keeping: finds what came, went and was moved, and drops images that equal what stands. True when
    /// anything is left.
    bool Settle(const TList& list) {
        FindMoves(list);
        const TPark parked = Parked();
        std::erase_if(fImages, [&](auto& entry) {
            T* element = entry.second.Empty() ? nullptr : Element(entry.first, parked);
            return !element || SameAsImage(*element, entry.second);
        });
        // Elements that came and went in the meantime are gone for good.
        std::unordered_set<TKey> wanted;
        for (const TSpot& spot : fEntering)
            wanted.insert(spot.key);
        if (fBefore)
            wanted.insert(fBefore->begin(), fBefore->end());
        std::erase_if(fParked, [&](auto& element) { return !wanted.contains(TIdentity<T>::Of(*element)); });
        return fBefore || !fLeaving.empty() || !fEntering.empty() || !fImages.empty();
    }
    bool ChangesList() const { return fBefore || !fLeaving.empty() || !fEntering.empty(); }

    /// After `Settle`: exchanges what is kept with what stands. `left` is told of each element that goes into the park,
    /// `back` of each that returns; elements that the log does not know stay. Nothing has changed when it throws.
    template <class Left, class Back>
    void Exchange(TList& list, Left left, Back back) {
        // All that may fail comes first.
        TPark parked = Parked();
        std::vector<TKey> next = Next(list);
        TList changed;
        changed.reserve(next.size());
        std::unordered_map<TKey, std::unique_ptr<T>*> owners, away;
        if (ChangesList()) {
            fParked.reserve(fParked.size() + list.size());
            for (std::unique_ptr<T>& element : list)
                owners.emplace(TIdentity<T>::Of(*element), &element);
            // One that is back by another way stays parked.
            for (std::unique_ptr<T>& element : fParked)
                if (!owners.contains(TIdentity<T>::Of(*element)))
                    away.emplace(TIdentity<T>::Of(*element), &element);
        }
        for (auto& [key, image] : fImages)
            if (T* element = Element(key, parked))
                ExchangeImage(*element, image);
        if (!ChangesList())
            return;
        for (const TKey& key : next)
            if (const auto owner = owners.find(key); owner != owners.end()) {
                changed.push_back(std::move(*owner->second));
            } else if (const auto absent = away.find(key); absent != away.end()) {
                changed.push_back(std::move(*absent->second));
                back(*changed.back());
            }
        std::erase(fParked, nullptr);
        for (std::unique_ptr<T>& element : list)
            if (element) {
                left(*element);
                fParked.push_back(std::move(element));
            }
        list = std::move(changed);
        std::swap(fLeaving, fEntering);
        if (fBefore)
            std::swap(*fBefore, fAfter);
    }

    /// Takes over what a later log kept before it was settled: images of this one are older and stay.
    void Absorb(TListLog&& later) {
        for (auto& [key, image] : later.fImages)
            fImages.try_emplace(key, std::move(image));
        if (!fBefore && later.fBefore) {
            // Until then elements were only appended.
            fBefore = std::move(later.fBefore);
            fBefore->resize(std::min(fBefore->size(), fCount.value_or(fBefore->size())));
        } else if (!fBefore && !fCount) {
            fCount = later.fCount;
        }
        std::ranges::move(later.fParked, std::back_inserter(fParked));
    }

private:
    using TPark = std::unordered_map<TKey, T*>;
    struct TSpot {
        std::size_t index;
        TKey key;
    };

    static std::vector<TKey> Keys(const TList& list, std::size_t count) {
        std::vector<TKey> keys;
        keys.reserve(count);
        for (std::size_t i = 0; i < std::min(count, list.size()); ++i)
            keys.push_back(TIdentity<T>::Of(*list[i]));
        return keys;
    }
    static std::vector<TSpot> Missing(const std::vector<TKey>& from, const std::unordered_set<TKey>& in) {
        std::vector<TSpot> missing;
        for (std::size_t i = 0; i < from.size(); ++i)
            if (!in.contains(from[i]))
                missing.push_back({i, from[i]});
        return missing;
    }
    static std::vector<TKey> Without(std::vector<TKey> keys, const std::vector<TSpot>& spots) {
        std::unordered_set<TKey> dropped;
        for (const TSpot& spot : spots)
            dropped.insert(spot.key);
        std::erase_if(keys, [&](const TKey& key) { return dropped.contains(key); });
        return keys;
    }

    void FindMoves(const TList& list) {
        if (!fBefore) {
            for (std::size_t i = fCount.value_or(list.size()); i < list.size(); ++i)
                fLeaving.push_back({i, TIdentity<T>::Of(*list[i])});
            fCount.reset();
            return;
        }
        fCount.reset();
        fAfter = Keys(list, list.size());
        fLeaving = Missing(fAfter, {fBefore->begin(), fBefore->end()});
        fEntering = Missing(*fBefore, {fAfter.begin(), fAfter.end()});
        if (Without(*fBefore, fEntering) != Without(fAfter, fLeaving)) {
            fLeaving.clear(), fEntering.clear();
            return; // the whole order is kept
        }
        fBefore.reset();
        fAfter.clear();
    }

    // The list as it will be; empty when it does not change.
    std::vector<TKey> Next(const TList& list) const {
        if (!ChangesList())
            return {};
        const std::vector<TKey> now = Keys(list, list.size());
        std::vector<TKey> next;
        if (fBefore) {
            next = *fBefore;
            std::unordered_set<TKey> known(fAfter.begin(), fAfter.end());
            known.insert(fBefore->begin(), fBefore->end());
            for (const TSpot& strange : Missing(now, known))
                next.push_back(strange.key);
            return next;
        }
        std::vector<TSpot> here = fLeaving;
        std::ranges::copy(fEntering, std::back_inserter(here)); // those that are back by another way
        const std::vector<TKey> staying = Without(now, here);
        auto entering = fEntering.begin();
        for (auto stays = staying.begin(); stays != staying.end() || entering != fEntering.end();)
            if (entering != fEntering.end() && (stays == staying.end() || entering->index <= next.size()))
                next.push_back((entering++)->key);
            else
                next.push_back(*stays++);
        return next;
    }

    TPark Parked() const {
        TPark parked;
        for (const std::unique_ptr<T>& element : fParked)
            parked.emplace(TIdentity<T>::Of(*element), element.get());
        return parked;
    }
    static T* Element(const TKey& key, const TPark& parked) {
        if (T* living = TIdentity<T>::Element(key))
            return living;
        const auto found = parked.find(key);
        return found == parked.end() ? nullptr : found->second;
    }

    std::unordered_map<TKey, TImage> fImages; ///< empty for elements that were born here
    std::optional<std::size_t> fCount;        ///< the size before elements were appended, while nothing else happened
    std::optional<std::vector<TKey>> fBefore; ///< the order before
    std::vector<TKey> fAfter;                 ///< the order after, where elements were moved
    std::vector<TSpot> fLeaving, fEntering;   ///< else: what an exchange takes out, and what it puts where
    TList fParked;
};

} // namespace vagrel::detail
