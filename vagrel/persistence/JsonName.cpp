// SPDX-License-Identifier: MIT
// Shared names and their hash index.
#include "JsonName_p.h"
#include "JsonTokens_p.h"

#include <vagrel/persistence/JsonExceptions.h>

#include <cstring>
#include <new>

namespace vagrel {

TJsonName* TJsonName::Create(std::u16string_view text, std::uint32_t hash) {
    if (text.size() > 0x7FFFFFFF)
        throw EJsonException("Name too long");
    void* block = ::operator new(sizeof(TJsonName) + text.size() * sizeof(char16_t));
    const bool isPlain =
        std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x80 && vagrel::IsPlain(char(unit)); });
    auto* name = new (block) TJsonName(hash, std::uint32_t(text.size()), isPlain);
    if (!text.empty())
        std::memcpy(static_cast<void*>(name + 1), text.data(), text.size() * sizeof(char16_t));
    return name;
}

namespace {

// The names that trees built by hand repeat: whoever writes a key writes it again for the next object.
class TRecentNames {
public:
    TRecentNames() = default;
    TRecentNames(const TRecentNames&) = delete;
    TRecentNames& operator=(const TRecentNames&) = delete;
    ~TRecentNames() {
        for (TJsonName* name : fNames)
            if (name)
                name->Release();
    }

    TJsonName* Obtain(std::u16string_view text) {
        const std::uint32_t hash = TJsonName::Hash(text);
        TJsonName*& recent = fNames[hash % std::size(fNames)];
        if (!recent || recent->Hash() != hash || recent->Text() != text) {
            TJsonName* name = TJsonName::Create(text, hash);
            if (recent)
                recent->Release();
            recent = name;
        }
        return recent->AddRef();
    }

private:
    TJsonName* fNames[256] = {};
};

// Longer names are rarely keys that repeat.
constexpr std::size_t LongestRecent = 64;

} // namespace

TJsonName* TJsonName::Obtain(std::u16string_view text) {
    thread_local TRecentNames recent;
    return text.size() <= LongestRecent ? recent.Obtain(text) : Create(text, Hash(text));
}

std::uint32_t TJsonName::Hash(std::u16string_view text) {
    std::uint64_t hash = 0x9E3779B97F4A7C15u ^ text.size();
    for (char16_t unit : text)
        hash = (hash ^ unit) * 0x100000001B3u;
    return std::uint32_t(hash ^ (hash >> 29));
}

std::int32_t TJsonNameIndex::Find(TJsonName* const* names, std::u16string_view text, std::uint32_t hash) const {
    if (fSlots.empty())
        return -1;
    const std::size_t mask = fSlots.size() - 1;
    for (std::size_t slot = hash & mask; fSlots[slot] != 0; slot = (slot + 1) & mask) {
        const std::uint32_t position = fSlots[slot] - 1;
        if (names[position]->Hash() == hash && names[position]->Text() == text)
            return std::int32_t(position);
    }
    return -1;
}

void TJsonNameIndex::Add(TJsonName* const* names) {
    if ((fCount + 1) * 2 > fSlots.size()) {
        fSlots.assign(fSlots.empty() ? 64 : fSlots.size() * 2, 0);
        for (std::uint32_t position = 0; position < fCount; ++position)
            Enter(names, position);
    }
    Enter(names, fCount++);
}

void TJsonNameIndex::Enter(TJsonName* const* names, std::uint32_t position) {
    const std::size_t mask = fSlots.size() - 1;
    std::size_t slot = names[position]->Hash() & mask;
    while (fSlots[slot] != 0)
        slot = (slot + 1) & mask;
    fSlots[slot] = position + 1;
}

} // namespace vagrel
