// SPDX-License-Identifier: MIT
// The description of data sources: their fields and details.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <string>
#include <string_view>
#include <vector>

namespace vagrel {

class IKSLDataset;

/// A field of a source.
struct TVGRFieldItem {
    std::u16string fName;
    std::u16string fCaption;
    TKSLFieldType fFieldType = ftString;
    bool fFloatAsDateTime = false;

    bool operator==(const TVGRFieldItem&) const = default;
    /// Stores the name, and as caption when there is none. The type is that of the dataset's field, else text.
    void SetName(std::u16string_view name, const IKSLDataset* dataset = nullptr);
};
using TVGRFields = std::vector<TVGRFieldItem>;

/// What sources and details have in common.
struct TVGRDataItem {
    std::u16string fCaption; ///< the name by which it is selected
    TKSLDataType fType = dtyNone;
    TVGRFields fFields;
    IKSLDataset* fDataset = nullptr; ///< the host's own; it outlives its use here

    /// Takes the dataset's name and fields where there are none yet.
    void SetDataset(IKSLDataset* value);
    bool operator==(const TVGRDataItem&) const = default;
};

/// A list inside the records of a source.
struct TVGRDetailItem : TVGRDataItem {
    std::int32_t fPos = 0; ///< its current row, from 0

    bool operator==(const TVGRDetailItem&) const = default;
};
using TVGRDetails = std::vector<TVGRDetailItem>;

/// One source.
struct TVGRDatasetItem : TVGRDataItem {
    TVGRDetails fDetails;

    bool operator==(const TVGRDatasetItem&) const = default;
};
using TVGRDatasets = std::vector<TVGRDatasetItem>;

} // namespace vagrel
