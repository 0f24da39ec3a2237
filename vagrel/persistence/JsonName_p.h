// SPDX-License-Identifier: MIT
// Names of object members. Most documents repeat few of them, so a name is one shared, counted block.
#pragma once

#include <atomic>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vagrel {

/// The text and hash of a name; text follows the header in the same block. Trees that share names may live in
/// different threads, hence the atomic count.
class TJsonName {
public:
    /// A name with one reference.
    static TJsonName* Create(std::u16string_view text, std::uint32_t hash);
    /// A reference to a name of this text, which an earlier call of this thread may have made.
    static TJsonName* Obtain(std::u16string_view text);
    static std::uint32_t Hash(std::u16string_view text);

    std::u16string_view Text() const { return {reinterpret_cast<const char16_t*>(this + 1), fLength}; }
    std::uint32_t Hash() const { return fHash; }
    /// True when the text is ASCII that JSON writes as it is.
    bool IsPlain() const { return fIsPlain; }

    TJsonName* AddRef() {
        fRefs.fetch_add(1, std::memory_order_relaxed);
        return this;
    }
    /// AddRef of a name that no other thread can have seen yet.
    TJsonName* AddRefUnshared() {
        fRefs.store(fRefs.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
        return this;
    }
    void Release() {
        if (fRefs.load(std::memory_order_acquire) == 1 || fRefs.fetch_sub(1, std::memory_order_acq_rel) == 1)
            ::operator delete(this);
    }

private:
    TJsonName(std::uint32_t hash, std::uint32_t length, bool isPlain)
        : fRefs(1), fHash(hash), fLength(length), fIsPlain(isPlain) {}

    std::atomic<std::uint32_t> fRefs;
    std::uint32_t fHash;
    std::uint32_t fLength;
    bool fIsPlain;
};

/// Positions in an array of names, found by text.
class TJsonNameIndex {
public:
    /// The position of `text`, or -1.
    std::int32_t Find(TJsonName* const* names, std::u16string_view text, std::uint32_t hash) const;
    /// Enters names[fCount], the next position.
    void Add(TJsonName* const* names);
    std::uint32_t Count() const { return fCount; }

private:
    void Enter(TJsonName* const* names, std::uint32_t position);

    std::vector<std::uint32_t> fSlots; // position + 1; 0 is free
    std::uint32_t fCount = 0;
};

} // namespace vagrel
