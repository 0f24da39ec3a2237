// SPDX-License-Identifier: MIT
// What concerns sources, cursor and questions together.
#include <vagrel/merge/TVGRData.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/merge/Merge_p.h>
#include <vagrel/persistence/TJsonObject.h>

namespace vagrel {

TVGRData::TVGRData(TVGRBaseLabel& owner) : MergeCursor(owner, *this), MergeQuestions(owner), fOwner(owner) {}

bool TVGRData::StoresQuestions() const { return fOwner.GetEditorMode() == emLabelling; }

bool TVGRData::IsValidData(TKSLFillType fill, std::u16string_view name) const {
    switch (fill) {
    case ftField:
    case ftJson:
    case ftCsv:
    case ftImg64:
        return GetHasData();
    case ftCounter:
        return detail::RunsOnCounters(fOwner.GetPrintInfo().GetFillType());
    case ftAsk:
        return NameAskExists(name);
    case ftList:
        return NameListExists(name);
    default:
        return false;
    }
}

void TVGRData::Changing() { fOwner.TouchData(); }

void TVGRData::Members(TMembers& members) {
    MergeSources::Members(members);
    MergeQuestions::Members(members);
}

void TVGRData::Assign(const TVGRData& source) {
    Changing();
    Close();
    MergeSources::operator=(source);
    AssignQuestions(source);
}

void TVGRData::WriteJson(TJsonObject& parent) const {
    TJsonObject& json = parent.AddObject(u"Data");
    WriteSources(json);
    if (StoresQuestions())
        WriteQuestions(json);
}

void TVGRData::ReadJson(std::int32_t, TJsonObject& json) {
    Changing();
    Close();
    ClearListVal();
    ClearAskList();
    ReadSources(json);
    if (StoresQuestions())
        ReadQuestions(json);
}

void TVGRData::WriteData(TBinaryWriter& writer) const {
    WriteSources(writer);
    if (StoresQuestions())
        WriteQuestions(writer);
}

void TVGRData::ReadData(std::int32_t, TBinaryReader& reader) {
    Changing();
    Close();
    ClearListVal();
    ClearAskList();
    ReadSources(reader);
    if (StoresQuestions())
        ReadQuestions(reader);
}

} // namespace vagrel
