// SPDX-License-Identifier: MIT
// Storage of containers. Freeing and copying take trees of any depth, so neither recurses.
#include <vagrel/persistence/TJsonBaseObject.h>

#include "JsonName_p.h"
#include "JsonTree_p.h"

#include <vagrel/persistence/JsonExceptions.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

#include <cstring>

namespace vagrel {

namespace {

constexpr std::size_t CapacityLimit = 1 << 30;

// Values move by their bytes: neither they nor names point into themselves.
template <class T>
void Move(T* to, const T* from, std::size_t count) {
    if (count > 0)
        std::memmove(static_cast<void*>(to), static_cast<const void*>(from), count * sizeof(T));
}

} // namespace

TJsonBaseObject::~TJsonBaseObject() {
    if (fCount > 0)
        Clear();
    if (!fInOneBlock)
        ::operator delete(fItems);
}

// Walks down to the leaves and frees on the way back. On the way down the link to a child is turned to the parent, so
// that the way back needs no memory.
void TJsonBaseObject::Clear() {
    ForgetSearch();
    TJsonBaseObject* parent = nullptr;
    for (TJsonBaseObject* current = this;;) {
        if (current->fCount == 0) {
            if (current == this)
                return;
            delete std::exchange(current, parent);
            TJsonDataValue& link = current->fItems[current->fCount - 1];
            parent = std::exchange(link.fScalar.payload.container, nullptr);
            current->DropLast();
        } else if (TJsonDataValue& last = current->fItems[current->fCount - 1];
                   TJsonBaseObject* child = last.Container()) {
            last.fScalar.payload.container = parent;
            parent = std::exchange(current, child);
        } else {
            current->DropLast();
        }
    }
}

void TJsonBaseObject::DropLast() {
    --fCount;
    fItems[fCount].~TJsonDataValue();
    if (fIsObject)
        Names()[fCount]->Release();
}

void TJsonBaseObject::Reserve(std::size_t capacity) {
    if (capacity <= fCapacity)
        return;
    if (capacity >= CapacityLimit)
        throw EJsonException("Too many values");
    auto* items = static_cast<TJsonDataValue*>(::operator new(capacity* SlotSize()));
    Move(items, fItems, fCount);
    if (fIsObject)
        Move(reinterpret_cast<TJsonName**>(items + capacity), Names(), fCount);
    if (!fInOneBlock)
        ::operator delete(fItems);
    fItems = items;
    fCapacity = capacity & (CapacityLimit - 1);
    fInOneBlock = false;
}

TJsonDataValue& TJsonBaseObject::InsertItem(std::int32_t index, TJsonDataValue value, TJsonName* name) {
    const std::size_t behind = fCount - std::uint32_t(index);
    TJsonDataValue* at = fItems + index;
    Move(at + 1, at, behind);
    new (at) TJsonDataValue(std::move(value));
    if (fIsObject) {
        Move(Names() + index + 1, Names() + index, behind);
        Names()[index] = name;
    }
    ++fCount;
    return *at;
}

TJsonDataValue TJsonBaseObject::TakeItem(std::int32_t index) {
    TJsonDataValue value = std::move(fItems[index]);
    const std::size_t behind = fCount - std::uint32_t(index) - 1;
    Move(fItems + index, fItems + index + 1, behind);
    if (fIsObject) {
        Names()[index]->Release();
        Move(Names() + index, Names() + index + 1, behind);
    }
    --fCount;
    return value;
}

void TJsonBaseObject::Grow() {
    if (fCount == fCapacity)
        Reserve(std::max<std::size_t>(4, fCapacity + fCapacity / 2));
}

void TJsonBaseObject::RequireIndex(std::int32_t index, std::int32_t limit) const {
    if (index < 0 || index >= limit)
        throw EOutOfRange("Index out of range (" + std::to_string(index) + ")");
}

// Takes the content of one of the same kind.
void TJsonBaseObject::Adopt(std::unique_ptr<TJsonBaseObject> content) {
    Clear();
    if (!content)
        return;
    Reserve(content->fCount);
    Move(fItems, content->fItems, content->fCount);
    if (fIsObject)
        Move(Names(), content->Names(), content->fCount);
    fCount = std::exchange(content->fCount, 0);
}

template <class Container>
std::unique_ptr<TJsonBaseObject> TJsonBaseObject::NewInOneBlock(std::size_t capacity) {
    static_assert(sizeof(Container) % alignof(TJsonDataValue) == 0);
    const std::size_t slot = sizeof(TJsonDataValue) + (std::same_as<Container, TJsonObject> ? sizeof(TJsonName*) : 0);
    if (capacity >= CapacityLimit)
        throw EJsonException("Too many values");
    void* block = ::operator new(sizeof(Container) + capacity * slot);
    std::unique_ptr<TJsonBaseObject> container(::new (block) Container);
    container->fItems = reinterpret_cast<TJsonDataValue*>(static_cast<std::byte*>(block) + sizeof(Container));
    container->fCapacity = capacity & (CapacityLimit - 1);
    container->fInOneBlock = true;
    return container;
}

std::unique_ptr<TJsonBaseObject> TJsonBaseObject::New(bool isObject, std::size_t capacity) {
    return isObject ? NewInOneBlock<TJsonObject>(capacity) : NewInOneBlock<TJsonArray>(capacity);
}

std::unique_ptr<TJsonBaseObject> TJsonTreeBuilder::Build(bool isObject, TJsonDataValue* values, TJsonName* const* names,
                                                         std::size_t count) {
    auto container = TJsonBaseObject::New(isObject, count);
    TJsonDataValue* items = container->fItems;
    for (std::size_t i = 0; i < count; ++i)
        new (items + i) TJsonDataValue(std::move(values[i]));
    TJsonName** ownNames = container->Names();
    for (std::size_t i = 0; isObject && i < count; ++i)
        ownNames[i] = names[i]->AddRefUnshared();
    container->fCount = std::uint32_t(count);
    return container;
}

TJsonDataValue TJsonTreeBuilder::Value(std::unique_ptr<TJsonBaseObject> container) {
    const TJsonDataType typ = container->IsObject() ? jdtObject : jdtArray;
    return TJsonDataValue(typ, container.release());
}

std::unique_ptr<TJsonBaseObject> TJsonBaseObject::Clone() const {
    struct TStep {
        const TJsonBaseObject* from;
        TJsonBaseObject* to;
    };
    auto root = New(fIsObject, fCount);
    std::vector<TStep> open{{this, root.get()}};
    while (!open.empty()) {
        const auto [from, to] = open.back();
        if (to->fCount == from->fCount) {
            open.pop_back();
            continue;
        }
        const TJsonDataValue& value = from->fItems[to->fCount];
        const TJsonBaseObject* child = value.Container();
        TJsonDataValue copy;
        if (child) {
            auto childCopy = New(child->fIsObject, child->fCount);
            open.push_back({child, childCopy.get()});
            copy = TJsonDataValue(value.GetTyp(), childCopy.release());
        } else {
            copy = value.Clone();
        }
        TJsonName* name = from->fIsObject ? from->Names()[to->fCount]->AddRef() : nullptr;
        to->InsertItem(to->Count(), std::move(copy), name);
    }
    return root;
}

} // namespace vagrel
