// SPDX-License-Identifier: MIT
// The message table, and the reading and writing of language files.
#include <vagrel/messages/TVGRMsg.h>

#include <vagrel/foundation/Text.h>
#include <vagrel/messages/MessageTable_p.h>
#include <vagrel/platform/Files.h>

#include <map>
#include <utility>
#include <vector>

namespace vagrel {

namespace {

// Full keys and their texts, sorted by code unit.
using TTable = std::map<std::u16string, std::u16string, std::less<>>;

TTable Defaults() {
    TTable table;
    for (const TMessageGroup& group : MessageGroups())
        for (const TMessage& message : group.defaults)
            table.emplace(std::u16string(group.prefix).append(message.key), message.text);
    return table;
}

TTable& Table() {
    static TTable table = Defaults();
    return table;
}

std::u16string Lookup(std::u16string_view prefix, std::u16string_view key) {
    const auto found = Table().find(std::u16string(prefix).append(key));
    return found == Table().end() ? u"not found" : found->second;
}

struct TIniLine {
    std::u16string_view section;
    std::u16string_view name;
    std::u16string_view value;
};

// The lines name=value of an INI text in their order. A value is everything behind the first "=".
std::vector<TIniLine> IniLines(std::u16string_view text) {
    std::vector<TIniLine> lines;
    std::u16string_view section;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(u'\n'), text.size());
        const std::u16string_view line = Trim(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty() || line.front() == u';')
            continue;
        const std::size_t equals = line.find(u'=');
        if (line.front() == u'[' && line.back() == u']')
            section = Trim(line.substr(1, line.size() - 2));
        else if (equals != 0 && equals != std::u16string_view::npos)
            lines.push_back({section, Trim(line.substr(0, equals)), Trim(line.substr(equals + 1))});
    }
    return lines;
}

} // namespace

std::u16string TVGRMsg::GetErrorValue(std::u16string_view aKey) { return Lookup(u"err", aKey); }
std::u16string TVGRMsg::GetInfoValue(std::u16string_view aKey) { return Lookup(u"inf", aKey); }
std::u16string TVGRMsg::GetCommandValue(std::u16string_view aKey) { return Lookup(u"cmd", aKey); }
std::u16string TVGRMsg::GetPropValue(std::u16string_view aKey) { return Lookup(u"pro", aKey); }
std::u16string TVGRMsg::GetDialogsValue(std::u16string_view aKey) { return Lookup(u"dia", aKey); }
std::u16string TVGRMsg::GetEditorValue(std::u16string_view aKey) { return Lookup(u"edi", aKey); }
std::u16string TVGRMsg::GetActionsValue(std::u16string_view aKey) { return Lookup(u"act", aKey); }
std::u16string TVGRMsg::GetListValue(std::u16string_view aKey) { return Lookup(u"lis", aKey); }
bool TVGRMsg::Has(std::u16string_view fullKey) { return Table().contains(fullKey); }

void TVGRMsg::LoadResources(std::u16string_view aFileName) {
    TTable table = Defaults();
    const std::string name = ToUtf8(aFileName);
    if (FileExists(name)) {
        std::u16string text = FromUtf8(ReadFile(name));
        if (text.starts_with(u'\uFEFF'))
            text.erase(0, 1);
        const std::vector<TIniLine> lines = IniLines(text);
        for (const TMessageGroup& group : MessageGroups())
            for (const TIniLine& line : lines)
                if (SameText(line.section, group.section))
                    table.insert_or_assign(std::u16string(line.name), line.value);
    }
    Table() = std::move(table);
}

void TVGRMsg::SaveToIniFile(std::u16string_view aFileName) {
    std::string out = "[language]\r\nname=english\r\n";
    for (const TMessageGroup& group : MessageGroups()) {
        std::string lines;
        for (auto it = Table().lower_bound(group.prefix); it != Table().end() && it->first.starts_with(group.prefix);
             ++it)
            lines += ToUtf8(it->first) + '=' + ToUtf8(it->second) + "\r\n";
        if (!lines.empty())
            out += "\r\n[" + ToUtf8(group.section) + "]\r\n" + lines;
    }
    WriteFile(ToUtf8(aFileName), out);
}

} // namespace vagrel
