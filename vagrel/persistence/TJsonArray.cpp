// SPDX-License-Identifier: MIT
// Access by index.
#include <vagrel/persistence/TJsonArray.h>

#include <vagrel/persistence/TJsonObject.h>

namespace vagrel {

std::unique_ptr<TJsonArray> TJsonArray::Clone() const {
    return std::unique_ptr<TJsonArray>(static_cast<TJsonArray*>(TJsonBaseObject::Clone().release()));
}

const TJsonDataValue& TJsonArray::At(std::int32_t index) const {
    static const TJsonDataValue null;
    return index >= 0 && index < Count() ? Items()[index] : null;
}

TJsonDataValue& TJsonArray::Item(std::int32_t index) const {
    RequireIndex(index, Count());
    return Items()[index];
}

TJsonObject* TJsonArray::FindObject(std::int32_t index) const {
    return GetType(index) == jdtObject ? At(index).GetObjectValue() : nullptr;
}

TJsonArray* TJsonArray::FindArray(std::int32_t index) const {
    return GetType(index) == jdtArray ? At(index).GetArrayValue() : nullptr;
}

void TJsonArray::SetObject(std::int32_t index, std::unique_ptr<TJsonObject> value) {
    SetValue(index, std::move(value));
}
void TJsonArray::SetArray(std::int32_t index, std::unique_ptr<TJsonArray> value) { SetValue(index, std::move(value)); }

void TJsonArray::Insert(std::int32_t index, TJsonDataValue value) {
    RequireIndex(index, Count() + 1);
    Grow();
    InsertItem(index, std::move(value), nullptr);
}

TJsonObject& TJsonArray::InsertObject(std::int32_t index) {
    Insert(index, std::make_unique<TJsonObject>());
    return GetObject(index);
}

TJsonArray& TJsonArray::InsertArray(std::int32_t index) {
    Insert(index, std::make_unique<TJsonArray>());
    return GetArray(index);
}

TJsonDataValue TJsonArray::Extract(std::int32_t index) {
    RequireIndex(index, Count());
    return TakeItem(index);
}

std::unique_ptr<TJsonObject> TJsonArray::ExtractObject(std::int32_t index) {
    Item(index).GetObjectValue(); // an unfit value raises and stays
    return Extract(index).ExtractObject();
}

std::unique_ptr<TJsonArray> TJsonArray::ExtractArray(std::int32_t index) {
    Item(index).GetArrayValue();
    return Extract(index).ExtractArray();
}

} // namespace vagrel
