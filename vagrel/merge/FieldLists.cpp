// SPDX-License-Identifier: MIT
// The names that a user chooses a binding from.
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/FillSymbols.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/messages/TVGRMsg.h>

namespace vagrel {

namespace {

using TFieldTypes = TKSLSet<TKSLFieldType>;
using TAskTypes = TKSLSet<TKSLAskType>;

constexpr TFieldTypes AllFields{ftString, ftBool, ftInt, ftInt64, ftFloat, ftDateTimeFloat, ftBase64, ftBlobImg};
constexpr TFieldTypes ImageFields{ftBase64, ftBlobImg};
constexpr TAskTypes AllQuestions{atText, atInteger, atNumber, atDateTime};
constexpr char16_t MasterSymbol = u'¬';
constexpr char16_t DetailSymbol = u':';

// Collects entries; without symbols they are bare names.
class TNames {
public:
    TNames(const TVGRBaseLabel& label, std::u16string_view data, bool incSymbol)
        : fLabel(label), fData(label.GetData()), fIncSymbol(incSymbol) {
        if (!data.empty())
            fNames.push_back(u"-" + TVGRMsg::GetListValue(u"Unassign") + u"-");
    }

    void Add(std::u16string_view name, char16_t symbol) {
        fNames.push_back(fIncSymbol ? symbol + std::u16string(name) : std::u16string(name));
    }
    void Add(std::u16string_view name, TKSLFillType type) { Add(name, FillSymbols[std::size_t(type)]); }
    void AddFields(const TVGRDataItem* item, TFieldTypes types) {
        if (!item)
            return;
        for (const TVGRFieldItem& field : item->fFields)
            if (types.Has(field.fFieldType))
                Add(field.fName, Source());
    }
    void AddSourceFields(TFieldTypes types) { AddFields(fData.SelectedSource(), types); }
    void AddCounters() {
        for (int i = 1; i <= fLabel.CounterCount(); ++i)
            Add(fLabel.GetCounter(i)->GetName(), ftCounter);
    }
    void AddLists() {
        for (const TKSValList& list : fData.ListVal())
            Add(list.fName, ftList);
    }
    void AddQuestions(TAskTypes types) {
        for (const TKSAskField& question : fData.ListAsk())
            if (types.Has(question.fAskType))
                Add(question.fName, ftAsk);
    }
    TKSLFillType Source() const { return fData.GetType() == dtyDataset ? ftField : ftJson; }
    std::vector<std::u16string> Take() { return std::move(fNames); }

private:
    const TVGRBaseLabel& fLabel;
    const TVGRData& fData;
    bool fIncSymbol;
    std::vector<std::u16string> fNames;
};

} // namespace

std::vector<std::u16string> TVGRBaseLabel::GetDataFields(std::u16string_view data, bool addCounters) const {
    TNames names(*this, data, true);
    names.AddSourceFields(AllFields);
    if (addCounters)
        names.AddCounters();
    names.AddLists();
    names.AddQuestions(AllQuestions);
    return names.Take();
}

std::vector<std::u16string> TVGRBaseLabel::GetImgFields(std::u16string_view data, bool incSymbol) const {
    TNames names(*this, data, incSymbol);
    if (const TVGRDataItem* source = fData->SelectedSource())
        for (const TVGRFieldItem& field : source->fFields)
            if (ImageFields.Has(field.fFieldType))
                names.Add(field.fName, field.fFieldType == ftBase64 ? u'6' : u'[');
    return names.Take();
}

std::vector<std::u16string> TVGRBaseLabel::GetIntFields(std::u16string_view data, bool incSymbol,
                                                        bool addCounters) const {
    TNames names(*this, data, incSymbol);
    names.AddSourceFields({ftInt, ftInt64});
    if (addCounters)
        names.AddCounters();
    names.AddQuestions({atInteger});
    return names.Take();
}

std::vector<std::u16string> TVGRBaseLabel::GetNumFields(std::u16string_view data, bool incSymbol,
                                                        bool addCounters) const {
    TNames names(*this, data, incSymbol);
    names.AddSourceFields({ftInt, ftInt64, ftFloat});
    if (addCounters)
        names.AddCounters();
    names.AddQuestions({atInteger, atNumber});
    return names.Take();
}

std::vector<std::u16string> TVGRBaseLabel::GetTxtFields(std::u16string_view data, bool incSymbol) const {
    TNames names(*this, data, incSymbol);
    names.AddSourceFields({ftString});
    names.AddQuestions(AllQuestions);
    return names.Take();
}

std::vector<std::u16string> TVGRBaseLabel::GetDetailFields(std::u16string_view data,
                                                           std::u16string_view detailName) const {
    TNames names(*this, data, false);
    names.AddFields(fData->GetDetail(detailName), AllFields);
    return names.Take();
}

std::vector<std::u16string> TVGRBaseLabel::GetDetails(bool incSymbol) const {
    TNames names(*this, {}, incSymbol);
    if (const TVGRDatasetItem* source = fData->SelectedSource())
        for (const TVGRDetailItem& detail : source->fDetails)
            names.Add(detail.fCaption, names.Source());
    return names.Take();
}

std::vector<std::u16string> TVGRBaseLabel::GetDataDetails(std::u16string_view data, bool incSymbol) const {
    TNames names(*this, data, incSymbol);
    if (const TVGRDatasetItem* source = fData->SelectedSource()) {
        names.Add(source->fCaption, MasterSymbol);
        for (const TVGRDetailItem& detail : source->fDetails)
            names.Add(detail.fCaption, DetailSymbol);
    }
    return names.Take();
}

std::vector<std::u16string> TVGRBaseLabel::GetMasterDetailFields(std::u16string_view symName, bool incSymbol,
                                                                 bool excludeImg) const {
    TNames names(*this, {}, incSymbol);
    const char16_t symbol = symName.empty() ? u' ' : symName.front();
    if (symbol == MasterSymbol || symbol == DetailSymbol)
        symName.remove_prefix(1);
    const TVGRDetailItem* detail = symbol == MasterSymbol ? nullptr : fData->GetDetail(symName);
    const TVGRDataItem* master = symbol == DetailSymbol ? nullptr : fData->GetDataset(symName);
    names.AddFields(detail ? detail : master, excludeImg ? AllFields - ImageFields : AllFields);
    return names.Take();
}

} // namespace vagrel
