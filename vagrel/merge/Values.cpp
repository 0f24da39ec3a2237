// SPDX-License-Identifier: MIT
// The values that items take from the document, and its counters by name.
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/FillSymbols.h>
#include <vagrel/merge/Merge_p.h>
#include <vagrel/merge/TVGRData.h>

#include <algorithm>
#include <limits>

namespace vagrel {

std::int32_t detail::IntegerOf(std::u16string_view text) {
    const std::int64_t number = TryStrToInt64(text).value_or(0);
    return number == std::int32_t(number) ? std::int32_t(number) : 0;
}

void detail::Unbind(TVGRBaseLabel& label, TKSLFillType type, std::u16string_view name) {
    // Some items tell their fill type only while a merge runs; the name with its symbol stands in any case.
    const std::u16string symName = IncSymData(type, name);
    for (int i = 1; i <= label.ItemsCount(); ++i) {
        auto* data = Query<IKSLData>(label.GetItem(i));
        if (data &&
            ((data->FillType() == type && SameText(data->FillName(), name)) || SameText(data->SymFillName(), symName)))
            data->SetData(ftNone, u"", u"");
    }
}

std::u16string TVGRBaseLabel::DataValue(std::u16string_view name, std::u16string_view format, TKSLFillType type) const {
    switch (type) {
    case ftField:
    case ftJson:
    case ftCsv:
        return fData->DataValue(name, format);
    case ftCounter:
        return CounterValue(name);
    case ftAsk:
        return fData->DataAsk(name, format);
    case ftList:
        return fData->DataList(name, format);
    default:
        return {};
    }
}

std::int32_t TVGRBaseLabel::DataIntValue(std::u16string_view name, TKSLFillType type) const {
    if (type == ftAsk)
        return fData->DataAskInt(name);
    return type == ftList ? 0 : detail::IntegerOf(DataValue(name, {}, type));
}

float TVGRBaseLabel::DataNumValue(std::u16string_view name, TKSLFillType type) const {
    if (type == ftAsk)
        return fData->DataAskNum(name);
    return type == ftList ? 0 : float(TryStrToFloat(DataValue(name, {}, type)).value_or(0));
}

bool TVGRBaseLabel::DataGraphic(std::u16string_view name, std::string& stream) const {
    return fData->DataGraphic(name, stream);
}

TVGRCounter* TVGRBaseLabel::FindCounter(std::u16string_view name) const {
    const auto found =
        std::ranges::find_if(fCounters, [&](const auto& counter) { return SameText(counter->GetName(), name); });
    return found == fCounters.end() ? nullptr : found->get();
}

std::u16string TVGRBaseLabel::CounterValue(std::u16string_view name) const {
    const TVGRCounter* counter = FindCounter(name);
    return counter ? counter->GetValue() : std::u16string();
}

bool TVGRBaseLabel::CounterName(std::u16string_view name, const TVGRCounter* counter) const {
    return std::ranges::any_of(
        fCounters, [&](const auto& other) { return other.get() != counter && SameText(other->GetName(), name); });
}

bool TVGRBaseLabel::RemoveCounter(TVGRCounter* counter) {
    const auto found = std::ranges::find(fCounters, counter, &std::unique_ptr<TVGRCounter>::get);
    if (found == fCounters.end())
        return false;
    detail::Unbind(*this, ftCounter, counter->GetName());
    TakeOutPart(fCounters, std::size_t(found - fCounters.begin()));
    return true;
}

} // namespace vagrel
