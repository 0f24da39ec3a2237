// SPDX-License-Identifier: MIT
// The data of a document: its sources, the cursor over the selected one, the value lists and the questions.
#pragma once

#include <vagrel/merge/MergeCursor.h>
#include <vagrel/merge/MergeQuestions.h>
#include <vagrel/merge/MergeSources.h>

namespace vagrel {

/// Which source fills the document, and the record that fills the current label.
///
/// A merge runs while `LinkData` is set: `Reset` opens the selected source, counts its labels and stands on the first
/// record; selecting another source closes it. Unmerged, a field's value is its name.
class TVGRData : public MergeSources, public MergeCursor, public MergeQuestions {
public:
    explicit TVGRData(TVGRBaseLabel& owner);
    TVGRData(const TVGRData&) = delete;
    TVGRData& operator=(const TVGRData&) = delete;

    /// Whether a binding of this kind has a value now.
    bool IsValidData(TKSLFillType fill, std::u16string_view name) const;
    void Assign(const TVGRData& source);

    void WriteJson(TJsonObject& parent) const;
    void ReadJson(std::int32_t version, TJsonObject& json);
    void WriteData(TBinaryWriter& writer) const;
    void ReadData(std::int32_t version, TBinaryReader& reader);

    /// All definitions: not the cursor, nor the host's own sources.
    void Members(TMembers& members);
    /// The cursor no longer stands on what is defined.
    void Close() override { CloseRecords(); }

private:
    void Changing() override;
    /// Only labels have lists and questions in their files.
    bool StoresQuestions() const;

    TVGRBaseLabel& fOwner;
};

} // namespace vagrel
