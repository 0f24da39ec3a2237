// SPDX-License-Identifier: MIT
// Exact copies of the members of an object, which it lists once.
#pragma once

#include <cstring>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace vagrel {

/// What the members of one object were. Taken, compared and exchanged by TMembers.
class TImage {
public:
    bool Empty() const { return fBytes.empty() && fOthers.empty(); }

private:
    friend class TMembers;

    struct TOther {
        virtual ~TOther() = default;
    };
    template <class T>
    struct TValue final : TOther {
        explicit TValue(const T& member) : value(member) {}
        T value;
    };

    std::vector<std::byte> fBytes; ///< members that are copied byte by byte, one after another
    std::vector<std::unique_ptr<TOther>> fOthers;
};

/// Walks over the members of an object in the order in which its class lists them:
///
///     void TVGRBaseThing::Members(TMembers& members) { members(fName, fColor, fPoints); }
///
/// A new member that is not listed is not brought back when a transaction is undone.
class TMembers {
public:
    enum TMode : std::uint8_t { Take, Exchange, Compare };

    TMembers(TImage& image, TMode mode) : fImage(image), fMode(mode) {
        if (mode != Take)
            return;
        image.fBytes.reserve(128); // most items need less
        image.fOthers.reserve(4);
    }

    template <class... T>
    void operator()(T&... members) {
        (Visit(members), ...);
    }
    bool Exchanges() const { return fMode == Exchange; }
    /// After a comparison: whether all members are what they were, bit by bit.
    bool Same() const { return fSame; }

private:
    template <class T>
    void Visit(T& member) {
        static_assert(std::is_nothrow_swappable_v<T>, "an exchange must not throw");
        if constexpr (std::is_trivially_copyable_v<T>)
            VisitBytes(member);
        else
            VisitOther(member);
    }

    template <class T>
    void VisitBytes(T& member) {
        const std::size_t at = fByte;
        fByte += sizeof(T);
        auto* bytes = reinterpret_cast<std::byte*>(&member);
        if (fMode == Take) {
            fImage.fBytes.insert(fImage.fBytes.end(), bytes, bytes + sizeof(T));
            return;
        }
        std::byte* kept = fImage.fBytes.data() + at;
        if (fMode == Exchange) {
            std::swap_ranges(bytes, bytes + sizeof(T), kept);
        } else if constexpr (std::has_unique_object_representations_v<T> || std::is_scalar_v<T>) {
            fSame = fSame && std::memcmp(bytes, kept, sizeof(T)) == 0;
        } else {
            T was;
            std::memcpy(static_cast<void*>(&was), kept, sizeof(T));
            fSame = fSame && was == member;
        }
    }

    template <class T>
    void VisitOther(T& member) {
        if (fMode == Take) {
            fImage.fOthers.push_back(std::make_unique<TImage::TValue<T>>(member));
            return;
        }
        T& kept = static_cast<TImage::TValue<T>&>(*fImage.fOthers[fOther++]).value;
        if (fMode == Exchange)
            std::swap(member, kept);
        else
            fSame = fSame && kept == member;
    }

    TImage& fImage;
    TMode fMode;
    std::size_t fByte = 0, fOther = 0;
    bool fSame = true;
};

/// An image of an object that lists its members.
template <class T>
TImage ImageOf(T& object) {
    TImage image;
    TMembers members(image, TMembers::Take);
    object.Members(members);
    return image;
}

/// Gives an object the members of an image, and the image those of the object.
template <class T>
void ExchangeImage(T& object, TImage& image) noexcept {
    TMembers members(image, TMembers::Exchange);
    object.Members(members);
}

template <class T>
bool SameAsImage(T& object, const TImage& image) {
    TMembers members(const_cast<TImage&>(image), TMembers::Compare); // a comparison changes neither
    object.Members(members);
    return members.Same();
}

} // namespace vagrel
