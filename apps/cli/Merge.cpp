// SPDX-License-Identifier: MIT
// vagrel merge: a label template and a data source become sheets of labels.
#include "Commands.h"
#include "Source.h"

#include <host/HostLabel.h>
#include <host/PageWriter.h>
#include <vagrel/barcode/TVGRBaseCode.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Dates.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/TVGRData.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>
#include <tuple>

#include <unistd.h>

namespace vagrel::cli {

namespace {

struct TMerge {
    std::string file, out;
    TSourceArguments source;
    int copies = 1;
    std::string firstCell, pages;
    std::vector<std::string> answers;
    TPageStyle style;
};

std::optional<std::int32_t> WholeNumber(std::u16string_view text) {
    const auto number = TryStrToInt64(text);
    if (!number || *number != ToInt32(*number))
        return {};
    return ToInt32(*number);
}

// A date as 2024-01-31.
std::optional<double> IsoDate(std::u16string_view text) {
    TDateParts parts;
    if (std::sscanf(ToUtf8(text).c_str(), "%d-%d-%d", &parts.year, &parts.month, &parts.day) != 3)
        return {};
    const double date = DateTimeOf(parts);
    const bool exists = FormatDateTime(u"yyyy-mm-dd", date) == text;
    return exists ? std::optional(date) : std::nullopt;
}

// Two numbers of at least 1 with a mark between them; `single` lets the first stand for both.
std::pair<int, int> TwoNumbers(const std::string& option, const std::string& text, char mark, bool single) {
    const std::size_t at = text.find(mark);
    const bool both = at != text.npos;
    const auto first = WholeNumber(FromUtf8(text.substr(0, at)));
    const auto second = both ? WholeNumber(FromUtf8(text.substr(at + 1))) : first;
    if (!first || !second || *first < 1 || *second < 1 || (!both && !single))
        throw CLI::ValidationError(option, "\"" + text + "\" are no two numbers from 1 with \"" + mark + "\" between");
    return {*first, *second};
}

// A progress bar on standard error, when somebody sees it.
class Progress {
public:
    explicit Progress(int pages) : fPages(pages), fShown(isatty(STDERR_FILENO) != 0) {}
    ~Progress() {
        if (fShown)
            std::fputs("\r\x1b[K", stderr);
    }
    void Show(int done) const {
        constexpr int width = 40;
        const int filled = int(std::int64_t(done) * width / fPages);
        if (fShown)
            std::fprintf(stderr, "\r[%s%s] %d of %d pages", std::string(std::size_t(filled), '#').c_str(),
                         std::string(std::size_t(width - filled), '.').c_str(), done, fPages);
    }

private:
    int fPages;
    bool fShown;
};

// Every field that an item wants must be there: a label with the name of a field on it is waste paper.
void CheckFields(const HostLabel& label) {
    const TVGRDatasetItem* source = label.GetData().SelectedSource();
    if (!source)
        return;
    for (int i = 1; i <= label.ItemsCount(); ++i) {
        const TVGRBaseItem& item = *label.GetItem(i);
        const auto* bound = Query<const IKSLData>(&item);
        if (!bound || !item.IsBound() || !TKSLSet<TKSLFillType>{ftField, ftJson, ftCsv, ftImg64}.Has(bound->FillType()))
            continue;
        const std::u16string name = bound->FillName();
        if (std::ranges::find(source->fFields, name, &TVGRFieldItem::fName) != source->fFields.end())
            continue;
        std::string fields;
        for (const TVGRFieldItem& field : source->fFields)
            fields += (fields.empty() ? "" : ", ") + ToUtf8(field.fName);
        throw EVagrel("\"" + ToUtf8(item.GetID()) + "\" is bound to the field \"" + ToUtf8(name) +
                      "\", but the source offers only " + fields);
    }
}

// A symbol of another text than its record's is worse than none, and a QR Code keeps the one that it had. A record may
// leave a code empty.
void CheckCodes(const HostLabel& label) {
    const std::vector<TSheetCell> cells = label.GetPrintInfo().Cells();
    for (const auto& copy : label.Preview()) {
        const auto* code = dynamic_cast<const TVGRBaseCode*>(copy.get());
        if (!code || code->IsValid() || code->GetCode().empty())
            continue;
        const bool printed = std::ranges::any_of(
            cells, [&](const TSheetCell& cell) { return cell.row == code->GetRow() && cell.column == code->GetCol(); });
        if (printed)
            throw EVagrel("\"" + ToUtf8(code->GetID()) + "\" has no symbol for \"" + ToUtf8(code->GetCode()) + "\"");
    }
}

void Answer(TKSAskField& question, const std::u16string& answer) {
    const auto number = TryStrToFloat(answer);
    const auto refuse = [&](const char* kind) {
        throw EVagrel("--answer: \"" + ToUtf8(answer) + "\" is no " + kind + ", which \"" + ToUtf8(question.fName) +
                      "\" asks for");
    };
    switch (question.fAskType) {
    case atText:
        question.fAnsText = answer;
        return;
    case atInteger:
        if (const auto whole = WholeNumber(answer))
            question.fAnsInt = *whole;
        else
            refuse("whole number");
        return;
    case atNumber:
        if (number)
            question.fAnsNumber = *number;
        else
            refuse("number");
        return;
    case atDateTime:
        if (const auto date = IsoDate(answer))
            question.fAnsDT = *date;
        else
            refuse("date like 2024-01-31");
        return;
    }
}

void GiveAnswers(TVGRData& data, const std::vector<std::string>& answers) {
    std::vector<std::u16string> given;
    for (const std::string& text : answers) {
        const std::size_t equals = text.find('=');
        if (equals == text.npos)
            throw CLI::ValidationError("--answer", "\"" + text + "\" is not NAME=VALUE");
        const std::u16string name = FromUtf8(text.substr(0, equals)), value = FromUtf8(text.substr(equals + 1));
        if (TKSAskField* question = data.GetAskField(name)) {
            Answer(*question, value);
        } else if (TKSValList* list = data.GetListVal(name)) {
            if (std::ranges::find(list->fValues, value) == list->fValues.end())
                throw EVagrel("--answer: \"" + ToUtf8(value) + "\" is none of the values of \"" + ToUtf8(name) + "\"");
            list->fAnsText = value;
        } else {
            throw EVagrel("--answer: the document asks nothing named \"" + ToUtf8(name) + "\"");
        }
        given.push_back(name);
    }
    auto check = [&](const auto& asked) {
        for (const auto& one : asked)
            if (one.fActive && std::ranges::none_of(given, [&](const auto& name) { return SameText(name, one.fName); }))
                throw EVagrel("the document asks for \"" + ToUtf8(one.fName) + "\": give --answer \"" +
                              ToUtf8(one.fName) + "=...\"");
    };
    check(data.ListAsk());
    check(data.ListVal());
}

void Run(TMerge& arguments) {
    const auto start = std::chrono::steady_clock::now();
    const TPageKind kind = PageKindOf(arguments.out);
    HostLabel label;
    label.LoadFromFile(FromUtf8(arguments.file));
    const Source source(label, arguments.source);
    TVGRBasePrintInfo& info = label.GetPrintInfo();
    info.SetRepetition(arguments.copies);
    if (!arguments.firstCell.empty()) {
        const auto [row, column] = TwoNumbers("--first-cell", arguments.firstCell, ',', false);
        const TVGRMeasure& measure = label.GetMeasure();
        if (row > measure.GetNuHor() || column > measure.GetNuVer())
            throw EVagrel("--first-cell: the sheet has " + std::to_string(measure.GetNuHor()) + " rows and " +
                          std::to_string(measure.GetNuVer()) + " columns");
        info.SetFirstRow(row);
        info.SetFirstCol(column);
    }
    label.CheckPrintData();
    if (arguments.source.Given()) {
        CheckFields(label);
        if (label.GetData().GetNumlabels() == 0)
            throw EVagrel(u"the source has no records");
    }
    GiveAnswers(label.GetData(), arguments.answers);

    int first = 1, last = info.GetPagesToPrint();
    if (!arguments.pages.empty()) {
        std::tie(first, last) = TwoNumbers("--pages", arguments.pages, '-', true);
        if (first > last || last > info.GetPagesToPrint())
            throw EVagrel("--pages: " + arguments.pages + " is no range of the " +
                          std::to_string(info.GetPagesToPrint()) + " pages");
    }
    arguments.style.view = TPageView::Sheet;
    const auto pages = OpenPages(arguments.out, kind, arguments.style, last - first + 1, first);
    std::int64_t labels = 0;
    {
        const Progress progress(last - first + 1);
        label.MakePreview();
        for (int page = first; page <= last; ++page) {
            label.GoToPage(page, true, false);
            CheckCodes(label);
            pages->Add(label);
            labels += std::int64_t(info.Cells().size());
            progress.Show(page - first + 1);
        }
        pages->Commit();
    }
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    char line[120];
    std::snprintf(line, sizeof line, "%lld labels on %d pages in %.2f s\n", static_cast<long long>(labels),
                  last - first + 1, seconds.count());
    Print(line);
}

} // namespace

void AddMerge(CLI::App& app) {
    auto arguments = std::make_shared<TMerge>();
    CLI::App* command = app.add_subcommand("merge", "Fill a label from a data source, a sheet of labels a page");
    command->add_option("TEMPLATE", arguments->file, "the label")->required()->type_name("");
    command
        ->add_option("-o,--output", arguments->out,
                     "the file, .pdf, .svg, .png, .jpg or .bmp; several pages of all but PDF become OUT-0001.svg ...")
        ->required()
        ->type_name("FILE");
    AddSourceOptions(*command, arguments->source);
    command->add_option("--repeat", arguments->source.repeat, "the field that tells the copies of its record")
        ->type_name("FIELD");
    command->add_option("--copies", arguments->copies, "copies of each record")
        ->check(Between(1, 1000000))
        ->type_name("N");
    command->add_option("--first-cell", arguments->firstCell, "where the first sheet begins: row and column from 1")
        ->type_name("R,C");
    command->add_option("--answer", arguments->answers, "the answer to a question, or the value of a list")
        ->type_name("NAME=VALUE");
    command->add_option("--pages", arguments->pages, "only these pages")->type_name("A-B");
    command->add_option("--dpi", arguments->style.dpi, "dots per inch of pictures, 96 without it")
        ->check(Between(1, 4800))
        ->type_name("N");
    command->add_flag("--transparent", arguments->style.transparent, "no white ground behind PNG");
    command->add_flag("--portable", arguments->style.svgPortable,
                      "place the texts of SVG by their baselines, which every renderer shows alike");
    command->footer("Examples:\n"
                    "  vagrel merge label.json --csv products.csv -o labels.pdf\n"
                    "  vagrel merge label.json --sqlite shop.db --table stock --repeat pieces -o labels.pdf\n");
    command->callback([arguments] { Run(*arguments); });
}

} // namespace vagrel::cli
