// SPDX-License-Identifier: MIT
// Value lists and questions: their names, which of them are in use, the answers, the stored forms.
#include <vagrel/merge/MergeQuestions.h>

#include <vagrel/document/TMembers.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/Merge_p.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

#include <algorithm>

namespace vagrel {

namespace {

template <class List>
auto At(List& list, int index) {
    return index >= 1 && std::size_t(index) <= list.size() ? &list[std::size_t(index - 1)] : nullptr;
}

template <class List>
auto Find(List& list, std::u16string_view name) {
    const auto found = std::ranges::find_if(list, [&](const auto& entry) { return SameText(entry.fName, name); });
    return found == list.end() ? nullptr : &*found;
}

template <class Entry>
bool Add(std::vector<Entry>& list, std::u16string_view name) {
    if (std::ranges::find(list, name, &Entry::fName) != list.end())
        return false;
    list.emplace_back().fName = name;
    return true;
}

template <class Entry>
void Rename(std::vector<Entry>& list, int index, std::u16string_view name) {
    Entry* entry = At(list, index);
    if (!entry)
        return;
    if (name.empty())
        throw EVagrel(TVGRMsg::GetErrorValue(u"EmptyText"));
    const auto isTaken = [&](const Entry& other) { return &other != entry && SameText(other.fName, name); };
    if (std::ranges::any_of(list, isTaken))
        throw EVagrel(TVGRMsg::GetErrorValue(u"RepeatName"));
    entry->fName = name;
}

template <class Entry>
bool Delete(TVGRBaseLabel& owner, std::vector<Entry>& list, int index, TKSLFillType type) {
    const Entry* entry = At(list, index);
    if (!entry)
        return false;
    detail::Unbind(owner, type, entry->fName);
    list.erase(list.begin() + (index - 1));
    return true;
}

template <class Entry>
bool IsActive(const Entry* entry) {
    return entry && entry->fActive;
}

} // namespace

void TKSValList::AddValue(std::u16string_view value) {
    if (std::ranges::find(fValues, value) == fValues.end())
        fValues.emplace_back(value);
}

std::u16string TKSAskField::Text(std::u16string_view format) const {
    switch (fAskType) {
    case atInteger:
        return FormatInt(format, fAnsInt);
    case atNumber:
        return FormatFloat(format, fAnsNumber);
    case atDateTime:
        return FormatDateTime(format, fAnsDT);
    default:
        return fAnsText;
    }
}

double TKSAskField::Number() const {
    switch (fAskType) {
    case atInteger:
        return fAnsInt;
    case atNumber:
        return fAnsNumber;
    case atDateTime:
        return fAnsDT;
    default:
        return TryStrToFloat(fAnsText).value_or(0);
    }
}

void MergeQuestions::Changing() { fOwner.TouchData(); }

void MergeQuestions::ClearListVal() {
    Changing();
    fListVal.clear();
}
void MergeQuestions::ClearAskList() {
    Changing();
    fListAsk.clear();
}

void MergeQuestions::Members(TMembers& members) { members(fListVal, fListAsk); }

TKSValList* MergeQuestions::GetListVal(int index) {
    Changing();
    return At(fListVal, index);
}
TKSAskField* MergeQuestions::GetAskField(int index) {
    Changing();
    return At(fListAsk, index);
}
TKSValList* MergeQuestions::GetListVal(std::u16string_view name) {
    Changing();
    return Find(fListVal, name);
}
TKSAskField* MergeQuestions::GetAskField(std::u16string_view name) {
    Changing();
    return Find(fListAsk, name);
}
const TKSValList* MergeQuestions::GetListVal(std::u16string_view name) const { return Find(fListVal, name); }
const TKSAskField* MergeQuestions::GetAskField(std::u16string_view name) const { return Find(fListAsk, name); }

bool MergeQuestions::AddListVal(std::u16string_view name) {
    Changing();
    return Add(fListVal, name);
}
bool MergeQuestions::AddAskVal(std::u16string_view name) {
    Changing();
    return Add(fListAsk, name);
}
void MergeQuestions::SetListName(int index, std::u16string_view name) {
    Changing();
    Rename(fListVal, index, name);
}
void MergeQuestions::SetAskName(int index, std::u16string_view name) {
    Changing();
    Rename(fListAsk, index, name);
}
bool MergeQuestions::DeleteList(int index) {
    Changing();
    return Delete(fOwner, fListVal, index, ftList);
}
bool MergeQuestions::DeleteAsk(int index) {
    Changing();
    return Delete(fOwner, fListAsk, index, ftAsk);
}

bool MergeQuestions::NameListExists(std::u16string_view name) const { return IsActive(GetListVal(name)); }
bool MergeQuestions::NameAskExists(std::u16string_view name) const { return IsActive(GetAskField(name)); }

void MergeQuestions::ResetListAsk() {
    fHasList = fHasQuest = false;
    for (TKSValList& list : fListVal)
        list.fActive = false;
    for (TKSAskField& question : fListAsk)
        question.fActive = false;
}

void MergeQuestions::ActivateList(std::u16string_view name) {
    if (TKSValList* list = GetListVal(name))
        list->fActive = fHasList = true;
}

void MergeQuestions::ActivateAsk(std::u16string_view name) {
    if (TKSAskField* question = GetAskField(name))
        question->fActive = fHasQuest = true;
}

std::u16string MergeQuestions::DataList(std::u16string_view name, std::u16string_view) const {
    const TKSValList* list = GetListVal(name);
    return list ? list->fAnsText : std::u16string(name);
}

std::u16string MergeQuestions::DataAsk(std::u16string_view name, std::u16string_view format) const {
    const TKSAskField* question = GetAskField(name);
    return question ? question->Text(format) : std::u16string(name);
}

std::int32_t MergeQuestions::DataAskInt(std::u16string_view name) const {
    const TKSAskField* question = GetAskField(name);
    if (!question)
        return 0;
    if (question->fAskType == atText)
        return detail::IntegerOf(question->fAnsText);
    return ToInt32(Trunc(question->Number()));
}

float MergeQuestions::DataAskNum(std::u16string_view name) const {
    const TKSAskField* question = GetAskField(name);
    return question ? float(question->Number()) : 0;
}

void MergeQuestions::WriteQuestions(TJsonObject& json) const {
    TJsonArray& lists = json.AddArray(u"ValList");
    for (const TKSValList& list : fListVal) {
        TJsonObject& item = lists.AddObject();
        item.SetString(u"Name", list.fName);
        item.SetString(u"Values", JoinLines(list.fValues));
    }
    TJsonArray& questions = json.AddArray(u"ListAsk");
    for (const TKSAskField& question : fListAsk) {
        TJsonObject& item = questions.AddObject();
        item.SetInt(u"AskType", question.fAskType);
        item.SetString(u"Name", question.fName);
        item.SetString(u"Question", question.fQuestion);
    }
}

void MergeQuestions::ReadQuestions(TJsonObject& json) {
    TJsonArray& lists = json.GetArray(u"ValList");
    for (int i = 0; i < lists.Count(); ++i) {
        TJsonObject& item = lists.GetObject(i);
        fListVal.push_back({item.GetString(u"Name"), {}, false, SplitLines(item.GetString(u"Values"))});
    }
    TJsonArray& questions = json.GetArray(u"ListAsk");
    for (int i = 0; i < questions.Count(); ++i) {
        TJsonObject& item = questions.GetObject(i);
        TKSAskField question;
        question.fAskType = TKSLAskType(item.GetInt(u"AskType"));
        question.fName = item.GetString(u"Name");
        question.fQuestion = item.GetString(u"Question");
        fListAsk.push_back(std::move(question));
    }
}

void MergeQuestions::WriteQuestions(TBinaryWriter& writer) const {
    writer.Write(std::int32_t(fListVal.size()));
    for (const TKSValList& list : fListVal) {
        writer.Write(list.fName);
        writer.Write(JoinLines(list.fValues));
    }
    writer.Write(std::int32_t(fListAsk.size()));
    for (const TKSAskField& question : fListAsk) {
        writer.Write(std::int16_t(question.fAskType));
        writer.Write(question.fName);
        writer.Write(question.fQuestion);
    }
}

void MergeQuestions::ReadQuestions(TBinaryReader& reader) {
    for (auto count = reader.Read<std::int32_t>(); count > 0; --count) {
        TKSValList& list = fListVal.emplace_back();
        list.fName = reader.ReadString();
        list.fValues = SplitLines(reader.ReadString());
    }
    for (auto count = reader.Read<std::int32_t>(); count > 0; --count) {
        TKSAskField& question = fListAsk.emplace_back();
        question.fAskType = TKSLAskType(reader.Read<std::int16_t>());
        question.fName = reader.ReadString();
        question.fQuestion = reader.ReadString();
    }
}

} // namespace vagrel
