// SPDX-License-Identifier: MIT
// Access by name.
#include <vagrel/persistence/TJsonObject.h>

#include "JsonName_p.h"

#include <vagrel/persistence/TJsonArray.h>

namespace vagrel {

namespace {

// From here on a hash index is faster than the search from the start.
constexpr std::int32_t LinearLimit = 32;

} // namespace

TJsonObject::TJsonObject() : TJsonBaseObject(true) {}
TJsonObject::~TJsonObject() = default;

std::unique_ptr<TJsonObject> TJsonObject::Clone() const {
    return std::unique_ptr<TJsonObject>(static_cast<TJsonObject*>(TJsonBaseObject::Clone().release()));
}

void TJsonObject::ForgetSearch() {
    fLastValueItem = 0;
    fIndex.reset();
}

std::int32_t TJsonObject::IndexOf(std::u16string_view name) const {
    TJsonName* const* names = Names();
    if (fLastValueItem < Count() && names[fLastValueItem]->Text() == name)
        return fLastValueItem;
    std::int32_t found = -1;
    if (Count() > LinearLimit) {
        if (!fIndex)
            fIndex = std::make_unique<TJsonNameIndex>();
        while (fIndex->Count() < std::uint32_t(Count()))
            fIndex->Add(names);
        found = fIndex->Find(names, name, TJsonName::Hash(name));
    } else {
        for (std::int32_t i = 0; i < Count() && found < 0; ++i)
            if (names[i]->Text() == name)
                found = i;
    }
    if (found >= 0)
        fLastValueItem = found;
    return found;
}

const TJsonDataValue& TJsonObject::At(std::u16string_view name) const {
    static const TJsonDataValue null;
    const std::int32_t index = IndexOf(name);
    return index >= 0 ? Items()[index] : null;
}

TJsonDataValue& TJsonObject::Need(std::u16string_view name) {
    const std::int32_t index = IndexOf(name);
    return index >= 0 ? Items()[index] : Append(name);
}

TJsonDataValue& TJsonObject::Append(std::u16string_view name) {
    Grow();
    return InsertItem(Count(), nullptr, TJsonName::Obtain(name));
}

std::u16string_view TJsonObject::GetName(std::int32_t index) const {
    RequireIndex(index, Count());
    return Names()[index]->Text();
}

TJsonDataValue& TJsonObject::GetItem(std::int32_t index) {
    RequireIndex(index, Count());
    return Items()[index];
}

TJsonObject* TJsonObject::FindObject(std::u16string_view name) const {
    const TJsonDataValue& value = At(name);
    return value.GetTyp() == jdtObject ? value.GetObjectValue() : nullptr;
}

TJsonArray* TJsonObject::FindArray(std::u16string_view name) const {
    const TJsonDataValue& value = At(name);
    return value.GetTyp() == jdtArray ? value.GetArrayValue() : nullptr;
}

TJsonDataValueHelper TJsonObject::GetValue(std::u16string_view name) {
    const std::int32_t index = IndexOf(name);
    return index >= 0 ? TJsonDataValueHelper(Items()[index]) : TJsonDataValueHelper(*this, name);
}

void TJsonObject::SetObject(std::u16string_view name, std::unique_ptr<TJsonObject> value) {
    SetValue(name, std::move(value));
}
void TJsonObject::SetArray(std::u16string_view name, std::unique_ptr<TJsonArray> value) {
    SetValue(name, std::move(value));
}

TJsonObject& TJsonObject::AddObject(std::u16string_view name) {
    TJsonDataValue& value = Need(name);
    value = std::make_unique<TJsonObject>();
    return value.NeedObject();
}

TJsonArray& TJsonObject::AddArray(std::u16string_view name) {
    TJsonDataValue& value = Need(name);
    value = std::make_unique<TJsonArray>();
    return value.NeedArray();
}

void TJsonObject::Delete(std::int32_t index) {
    RequireIndex(index, Count());
    ForgetSearch();
    TakeItem(index);
}

TJsonDataValue TJsonObject::Extract(std::u16string_view name) {
    const std::int32_t index = IndexOf(name);
    if (index < 0)
        return nullptr;
    ForgetSearch();
    return TakeItem(index);
}

std::unique_ptr<TJsonObject> TJsonObject::ExtractObject(std::u16string_view name) {
    At(name).GetObjectValue(); // an unfit value raises and stays
    return Extract(name).ExtractObject();
}

std::unique_ptr<TJsonArray> TJsonObject::ExtractArray(std::u16string_view name) {
    At(name).GetArrayValue();
    return Extract(name).ExtractArray();
}

} // namespace vagrel
