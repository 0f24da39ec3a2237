// SPDX-License-Identifier: MIT
// Fields that follow from a dataset.
#include <vagrel/merge/DataSources.h>

#include <vagrel/merge/IKSLDataset.h>

#include <array>
#include <utility>

namespace vagrel {

namespace {

// By kind of field.
constexpr std::array FieldTypes{ftString, ftInt, ftBool, ftFloat, ftDateTimeFloat, ftBlobImg};
static_assert(FieldTypes[fkBlob] == ftBlobImg && FieldTypes.size() == fkBlob + 1);

} // namespace

void TVGRFieldItem::SetName(std::u16string_view name, const IKSLDataset* dataset) {
    fName = name;
    const int field = dataset ? dataset->FindField(name) : -1;
    fFieldType = field < 0 ? ftString : FieldTypes[std::size_t(dataset->FieldKind(field))];
    if (fCaption.empty())
        fCaption = fName;
}

void TVGRDataItem::SetDataset(IKSLDataset* value) {
    if (value == fDataset)
        return;
    fDataset = value;
    fType = dtyDataset;
    if (!fDataset)
        return;
    if (fCaption.empty())
        fCaption = fDataset->GetName();
    if (fFields.empty())
        for (int i = 0; i < fDataset->FieldCount(); ++i)
            fFields.emplace_back().SetName(fDataset->FieldName(i), fDataset);
}

} // namespace vagrel
