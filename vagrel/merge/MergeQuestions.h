// SPDX-License-Identifier: MIT
// The value lists and questions of a merge.
#pragma once

#include <vagrel/merge/ValueLists.h>

#include <cstdint>

namespace vagrel {

class TBinaryReader;
class TBinaryWriter;
class TJsonObject;
class TMembers;
class TVGRBaseLabel;

/// What the user answers before printing. Names count without regard to case, indexes from 1; a pointer is good until
/// its list changes.
class MergeQuestions {
public:
    int GetNumListVal() const { return int(fListVal.size()); }
    int GetNumQuestions() const { return int(fListAsk.size()); }
    TKSValList* GetListVal(int index);
    TKSAskField* GetAskField(int index);
    const TKSValList* GetListVal(std::u16string_view name) const;
    const TKSAskField* GetAskField(std::u16string_view name) const;
    TKSValList* GetListVal(std::u16string_view name);
    TKSAskField* GetAskField(std::u16string_view name);
    const std::vector<TKSValList>& ListVal() const { return fListVal; }
    const std::vector<TKSAskField>& ListAsk() const { return fListAsk; }
    /// False when the name exists.
    bool AddListVal(std::u16string_view name);
    bool AddAskVal(std::u16string_view name);
    /// Nothing out of range. Throw EVagrel for an empty name and for one that another entry has.
    void SetListName(int index, std::u16string_view name);
    void SetAskName(int index, std::u16string_view name);
    /// Also unbind the items; false out of range.
    bool DeleteList(int index);
    bool DeleteAsk(int index);
    void ClearListVal();
    void ClearAskList();

    /// True for an entry that an item to be printed uses.
    bool NameListExists(std::u16string_view name) const;
    bool NameAskExists(std::u16string_view name) const;
    bool GetHasList() const { return fHasList; }
    bool GetHasQuest() const { return fHasQuest; }
    /// No entry is in use.
    void ResetListAsk();
    /// The entry of this name is in use.
    void ActivateList(std::u16string_view name);
    void ActivateAsk(std::u16string_view name);
    /// The value that was picked; the name when it is unknown.
    std::u16string DataList(std::u16string_view name, std::u16string_view format) const;
    /// The answer; the name, or 0, when it is unknown.
    std::u16string DataAsk(std::u16string_view name, std::u16string_view format) const;
    std::int32_t DataAskInt(std::u16string_view name) const;
    float DataAskNum(std::u16string_view name) const;

protected:
    /// The items of `owner` are bound to entries.
    explicit MergeQuestions(TVGRBaseLabel& owner) : fOwner(owner) {}
    MergeQuestions(const MergeQuestions&) = delete;
    MergeQuestions& operator=(const MergeQuestions&) = delete;
    ~MergeQuestions() = default;

    void Members(TMembers& members);
    void AssignQuestions(const MergeQuestions& source) { fListVal = source.fListVal, fListAsk = source.fListAsk; }
    void WriteQuestions(TJsonObject& json) const;
    void ReadQuestions(TJsonObject& json);
    void WriteQuestions(TBinaryWriter& writer) const;
    void ReadQuestions(TBinaryReader& reader);

private:
    /// Says to the document that a definition is about to change.
    void Changing();

    TVGRBaseLabel& fOwner;
    std::vector<TKSValList> fListVal;
    std::vector<TKSAskField> fListAsk;
    bool fHasList = false, fHasQuest = false;
};

} // namespace vagrel
