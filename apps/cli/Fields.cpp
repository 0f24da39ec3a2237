// SPDX-License-Identifier: MIT
// vagrel fields: what a label is bound to, what a source offers.
#include "Commands.h"
#include "Source.h"

#include <host/HostLabel.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/TVGRData.h>

#include <CLI/CLI.hpp>

#include <algorithm>

namespace vagrel::cli {

namespace {

constexpr std::u16string_view KindNames[] = {u"text",   u"yes or no", u"whole number", u"whole number",
                                             u"number", u"date",      u"picture",      u"picture"};

struct TFields {
    std::string file;
    TSourceArguments source;
};

void AppendFields(std::u16string& text, const TVGRDataItem& item, std::u16string_view indent) {
    for (const TVGRFieldItem& field : item.fFields) {
        const auto kind = std::size_t(field.fFieldType);
        ((text += indent) += field.fName) += u" (";
        (text += kind < std::size(KindNames) ? KindNames[kind] : u"?") += u")\n";
    }
}

void AppendSources(std::u16string& text, const TVGRData& data) {
    for (const TVGRDatasetItem& source : data.GetDatasets()) {
        (text += u"source ") += source.fCaption + u'\n';
        AppendFields(text, source, u"    ");
        for (const TVGRDetailItem& detail : source.fDetails) {
            (text += u"    list ") += detail.fCaption + u'\n';
            AppendFields(text, detail, u"        ");
        }
    }
}

// Which items of a label are bound to what, and which could be.
void AppendBindings(std::u16string& text, const HostLabel& label) {
    const std::vector<std::u16string> offered = label.GetDataFields(u"", true);
    std::u16string unbound;
    for (int i = 1; i <= label.ItemsCount(); ++i) {
        const TVGRBaseItem& item = *label.GetItem(i);
        const auto* data = Query<const IKSLData>(&item);
        if (!data)
            continue;
        if (!item.IsBound()) {
            unbound += u"    " + item.GetID() + u'\n';
            continue;
        }
        const std::u16string name = data->SymFillName();
        const bool known = offered.empty() || std::ranges::any_of(offered, [&](const std::u16string& one) {
                               return SameText(std::u16string_view(one).substr(1), data->FillName());
                           });
        text += u"bound " + item.GetID() + u" to " + name + (known ? u"\n" : u" (nothing offers it)\n");
    }
    if (!unbound.empty())
        text += u"unbound\n" + unbound;
    text += u"offered\n";
    for (const std::u16string& name : offered)
        text += u"    " + name + u'\n';
}

void Run(const TFields& arguments) {
    if (arguments.file.empty() && !arguments.source.Given())
        throw CLI::ValidationError("fields", "a template, --csv, --json or --sqlite is missing");
    HostLabel label;
    if (!arguments.file.empty())
        label.LoadFromFile(FromUtf8(arguments.file));
    label.GetData().SetLinkData(true);
    const Source source(label, arguments.source);
    std::u16string text;
    AppendSources(text, label.GetData());
    if (!arguments.file.empty())
        AppendBindings(text, label);
    Print(ToUtf8(text));
}

} // namespace

void AddFields(CLI::App& app) {
    auto arguments = std::make_shared<TFields>();
    CLI::App* command = app.add_subcommand("fields", "Tell what a label is bound to and what a source offers");
    command->add_option("TEMPLATE", arguments->file, "the label")->type_name("");
    AddSourceOptions(*command, arguments->source);
    command->footer("A symbol in front of a name tells where it comes from: { or ~ a field, @ a counter, = a list,\n"
                    "? a question.\n"
                    "Example: vagrel fields label.json --csv products.csv\n");
    command->callback([arguments] { Run(*arguments); });
}

} // namespace vagrel::cli
