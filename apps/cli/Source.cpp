// SPDX-License-Identifier: MIT
// The data source that the arguments of a command name.
#include "Source.h"

#include "Commands.h"

#include <host/HostLabel.h>
#include <host/SqliteDataset.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/TCsvReader.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>
#include <vagrel/platform/Encoding.h>
#include <vagrel/platform/Files.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <iterator>

#include <unistd.h>

namespace vagrel::cli {

namespace {

const TNames SeparatorNames{{";", scvSemicolon}, {",", scvComma}, {"tab", scvTabulator}, {"space", scvSpace}};
const TNames QuoteNames{{"none", scqNone}, {"single", scqQuotes}, {"double", scqDoubleQuotes}};
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

std::string ReadBytes(const std::string& file) {
    if (file != "-")
        return ReadFile(file);
    return {std::istreambuf_iterator<char>(std::cin), {}};
}

// The separator that the first line holds most of.
TKSLCsvSep GuessSeparator(std::string_view text) {
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    struct TRow {
        char character;
        TKSLCsvSep separator;
    };
    constexpr TRow rows[] = {{';', scvSemicolon}, {',', scvComma}, {'\t', scvTabulator}};
    return std::ranges::max_element(rows, {}, [&](const TRow& row) { return std::ranges::count(line, row.character); })
        ->separator;
}

bool IsWanted(std::u16string_view copies) { return TryStrToInt64(copies).value_or(1) > 0; }

// A name between quotes as SQL has it.
std::string Quoted(const std::string& name) {
    return ToUtf8(u"\"" + ReplaceAll(FromUtf8(name), u"\"", u"\"\"") + u"\"");
}

} // namespace

Source::Source(HostLabel& label, const TSourceArguments& arguments) : fLabel(label) {
    TVGRData& data = label.GetData();
    if (!arguments.csv.empty())
        ConnectCsv(arguments);
    else if (!arguments.json.empty())
        ConnectJson(arguments);
    else if (!arguments.sqlite.empty())
        ConnectSqlite(arguments);
    if (!arguments.repeat.empty())
        data.SetFieldRepeat(FromUtf8(arguments.repeat));
    if (arguments.Given())
        data.SetLinkData(true);
}

Source::~Source() {
    if (!fTemporary.empty())
        std::remove(fTemporary.c_str());
}

const std::string& Source::Keep(const std::string& bytes) {
    std::string name = (std::filesystem::temp_directory_path() / "vagrel-XXXXXX").string();
    const int handle = mkstemp(name.data());
    if (handle < 0)
        throw EStreamError("cannot write \"" + name + "\"");
    close(handle);
    fTemporary = name;
    WriteFile(fTemporary, bytes);
    return fTemporary;
}

void Source::ConnectCsv(const TSourceArguments& arguments) {
    std::string file = arguments.csv;
    const std::string bytes = ReadBytes(file);
    const bool marked = bytes.starts_with(Utf8Mark);
    if (!arguments.encoding.empty())
        SetAnsiCodePage(arguments.encoding);
    else if (!marked && IsUtf8(bytes))
        SetAnsiCodePage("UTF-8");
    const auto separator = arguments.separator == scvNone ? GuessSeparator(bytes) : TKSLCsvSep(arguments.separator);
    TVGRData& data = fLabel.GetData();
    auto connect = [&](const std::string& name) {
        AtPlace(arguments.csv, [&] {
            data.SetCsvData(FromUtf8(name), !arguments.noHeader, separator, TKSLCsvQuote(arguments.quote));
        });
        data.SetDataSel(data.GetDatasets().back().fCaption);
    };
    connect(file == "-" ? Keep(bytes) : file);
    if (arguments.repeat.empty())
        return;

    const std::int32_t column = data.GetCsvPos(FromUtf8(arguments.repeat));
    if (column < 0)
        throw EVagrel("--repeat: the source has no field \"" + arguments.repeat + "\"");
    const TCsvReader records = data.ReadCsv();
    TCsvReader::TCells cells;
    std::string wanted(Utf8Mark);
    bool all = true;
    for (int i = 0; i < records.Count(); ++i) {
        records.Read(i, cells);
        const bool header = i == 0 && !arguments.noHeader;
        if (header || std::size_t(column) >= cells.size() || IsWanted(cells[std::size_t(column)]))
            (wanted += records.Text(i)) += '\n';
        else
            all = false;
    }
    if (!all)
        connect(Keep(wanted));
}

void Source::ConnectJson(const TSourceArguments& arguments) {
    AtPlace(arguments.json, [&] {
        TVGRData& data = fLabel.GetData();
        data.SetJson(TJsonBaseObject::DecodeBytes(ReadBytes(arguments.json)));
        std::u16string name = FromUtf8(arguments.source);
        std::string names;
        for (const TVGRDatasetItem& source : data.GetDatasets())
            if (source.fType == dtyJson) {
                names += (names.empty() ? "" : ", ") + ToUtf8(source.fCaption);
                if (name.empty())
                    name = source.fCaption;
            }
        if (!data.GetDataset(name))
            throw EVagrel("there is no list \"" + ToUtf8(name) + "\"" + (names.empty() ? "" : ", only " + names));
        data.SetDataSel(name);
        if (arguments.repeat.empty())
            return;
        TJsonObject root;
        root.Parse(data.GetJson());
        TJsonArray& records = root.GetArray(data.GetDataSel());
        const std::u16string repeat = FromUtf8(arguments.repeat);
        for (int i = records.Count() - 1; i >= 0; --i)
            if (TJsonObject* record = records.FindObject(i);
                record && record->Contains(repeat) && record->GetInt(repeat) <= 0)
                records.Delete(i);
        data.SetJson(root.ToJSON(true));
    });
}

void Source::ConnectSqlite(const TSourceArguments& arguments) {
    std::string query;
    if (!arguments.repeat.empty())
        query =
            "SELECT * FROM " + Quoted(arguments.table) + " WHERE CAST(" + Quoted(arguments.repeat) + " AS INTEGER) > 0";
    fDataset = std::make_unique<SqliteDataset>(arguments.sqlite, arguments.table, query);
    TVGRData& data = fLabel.GetData();
    data.GetDatasets().emplace_back().SetDataset(fDataset.get());
    data.SetDataSel(fDataset->GetName());
}

void AddSourceOptions(CLI::App& command, TSourceArguments& arguments) {
    CLI::Option* csv = command.add_option("--csv", arguments.csv, "a CSV file; - for standard input");
    csv->type_name("FILE");
    command
        .add_option("--separator", arguments.separator,
                    "between cells: ;, ,, tab or space; without it the one that the first line holds most of")
        ->transform(OneOf(SeparatorNames))
        ->type_name("NAME")
        ->needs(csv);
    command.add_option("--quote", arguments.quote, "around cells: none, single or double (the default)")
        ->transform(OneOf(QuoteNames))
        ->type_name("NAME")
        ->needs(csv);
    command.add_flag("--no-header", arguments.noHeader, "the first line is a record, too")->needs(csv);
    command
        .add_option("--encoding", arguments.encoding,
                    "of a CSV file without a mark; without it UTF-8 when it is that, else windows-1252")
        ->type_name("NAME")
        ->needs(csv);
    CLI::Option* json = command.add_option("--json", arguments.json, "a JSON file; - for standard input");
    json->type_name("FILE")->excludes(csv);
    command.add_option("--source", arguments.source, "the list in the JSON file, the first one without it")
        ->type_name("NAME")
        ->needs(json);
    CLI::Option* sqlite = command.add_option("--sqlite", arguments.sqlite, "an SQLite file");
    sqlite->type_name("FILE")->excludes(csv)->excludes(json);
    CLI::Option* table = command.add_option("--table", arguments.table, "its table or view")->needs(sqlite);
    table->type_name("NAME");
    sqlite->needs(table);
}

} // namespace vagrel::cli
