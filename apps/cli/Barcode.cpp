// SPDX-License-Identifier: MIT
// vagrel barcode: one symbol, as a picture or as data.
#include "Commands.h"

#include <host/HostLabel.h>
#include <host/PageWriter.h>
#include <vagrel/barcode/TVGRBaseBarcode.h>
#include <vagrel/barcode/TVGRBaseMatrixCode.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/messages/ListNames.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cmath>

namespace vagrel::cli {

namespace {

struct TArguments {
    int type = 0;
    std::string text;
    std::string out;
    float module = 0, height = 0; // 0: as the kind has it
    bool noText = false, check = false, json = false, list = false;
};

// Of a picture: a narrow bar of 0.3 mm has seven pixels.
constexpr double Dpi = 600;

// Kinds that are not linear have numbers behind those that are.
enum { QR = btPOSTNET + 1, DataMatrix, Pdf417 };

const TNames& TypeNames() {
    static const TNames names = [] {
        TNames all;
        for (int type = btEAN13; type <= btPOSTNET; ++type)
            all.emplace_back(ToUtf8(ItemList(lpBarcode, type)), type);
        all.insert(all.end(), {{"QR", QR}, {"DATAMATRIX", DataMatrix}, {"PDF417", Pdf417}});
        return all;
    }();
    return names;
}

std::string NameOf(int type) { return TypeNames()[std::size_t(type)].first; }

TVGRBaseCode& MakeCode(HostLabel& label, int type) {
    const TKSLItemType item = type == QR           ? itQRCode
                              : type == DataMatrix ? itDataMatrix
                              : type == Pdf417     ? itPDF417
                                                   : itBarcode;
    return dynamic_cast<TVGRBaseCode&>(label.MakeItem(label.ActiveLayer(), item, 0, false));
}

// Quiet zones of the published symbologies, in modules.
struct TQuiet {
    float x, y;
};
TQuiet QuietOf(int type) {
    if (type == QR)
        return {4, 4};
    if (type == DataMatrix || type == Pdf417)
        return {2, 2};
    return {type <= btUPCE0 ? 11.0f : 10.0f, 0};
}

void Set(float asked, const char* option, int type, IKSLBar1D2D& code, float (IKSLBar1D2D::*get)() const,
         void (IKSLBar1D2D::*set)(float)) {
    if (asked == 0)
        return;
    (code.*set)(asked);
    if (std::fabs((code.*get)() - asked) > 0.0006f)
        throw CLI::ValidationError(option, NameOf(type) + " takes " + ToUtf8(FloatToStr(RoundTo3((code.*get)()))) +
                                               " mm or more");
}

void Shape(TVGRBaseCode& code, const TArguments& arguments) {
    auto* linear = dynamic_cast<TVGRBaseBarcode*>(&code);
    if (linear) {
        linear->SetCodeType(TKSLBarType(arguments.type));
        linear->SetFontName(u"sans-serif"); // which every renderer has
        linear->SetCheckSum(arguments.check);
        linear->SetShowNumber(!arguments.noText);
    } else if (arguments.check || arguments.noText) {
        throw CLI::ValidationError(arguments.check ? "--check" : "--no-text",
                                   "only linear codes have check digits and a text below");
    }
    Set(arguments.module, "--module", arguments.type, code, &IKSLBar1D2D::GetBarWidth, &IKSLBar1D2D::SetBarWidth);
    // Modules of QR Code and Data Matrix stay squares unless told otherwise.
    const bool square = arguments.type == QR || arguments.type == DataMatrix;
    Set(arguments.height == 0 && square ? arguments.module : arguments.height, "--height", arguments.type, code,
        &IKSLBar1D2D::GetBarHeight, &IKSLBar1D2D::SetBarHeight);
    const TQuiet quiet = QuietOf(arguments.type);
    code.SetPaddingX(quiet.x * code.GetBarWidth());
    code.SetPaddingY(quiet.y * code.GetBarWidth());
    code.SetCode(FromUtf8(arguments.text));
}

std::string Named(char16_t unit) {
    const bool plain = unit > u' ' && unit != 0x7F && (unit < 0xD800 || unit > 0xDFFF);
    return plain ? "\"" + ToUtf8(std::u16string(1, unit)) + "\"" : "the character " + std::to_string(int(unit));
}

// Why a linear kind does not take a text.
std::string Reason(const std::u16string& text, TKSLBarType type, bool check) {
    for (const char16_t unit : text) {
        // One character is never too long where lengths are checked with the check digit to come.
        if (unit > 0xFF || !TBarcode::IsValidCode(std::string(1, char(unit)), type, true, false))
            return "does not take " + Named(unit);
    }
    std::size_t length = 1;
    while (length < 100 && !TBarcode::IsValidCode(std::string(length, '0'), type, false, false))
        ++length;
    return "takes " + std::to_string(length) + " digits" + (check ? " at most" : "") + ", not " +
           std::to_string(text.size()) + (check ? "" : " (with --check, shorter ones are completed)");
}

void CheckSymbol(const TVGRBaseCode& code, const TArguments& arguments) {
    if (const auto* linear = dynamic_cast<const TVGRBaseBarcode*>(&code)) {
        if (!code.IsValid())
            throw EVagrel(NameOf(arguments.type) + " " +
                          Reason(FromUtf8(arguments.text), linear->GetBarType(), arguments.check));
        if (linear->GetDrCode().empty())
            throw EVagrel(NameOf(arguments.type) + " cannot hold this mix of characters");
        return;
    }
    // What these two would replace or drop.
    const bool pdf = arguments.type == Pdf417;
    const std::u16string text = FromUtf8(arguments.text);
    const auto lacking =
        std::ranges::find_if(text, [&](char16_t unit) { return pdf ? unit < u' ' || unit > u'~' : unit > 0xFF; });
    if (arguments.type != QR && lacking != text.end())
        throw EVagrel(NameOf(arguments.type) + " does not take " + Named(*lacking) + ": its text is " +
                      (pdf ? "ASCII without control characters" : "ISO 8859-1"));
    if (!code.IsValid())
        throw EVagrel(NameOf(arguments.type) + (text.empty() ? " needs a text"
                                                : pdf        ? " cannot hold this text: too long, or a word above 928"
                                                             : " cannot hold this text: it is too long"));
}

void Describe(const TVGRBaseCode& code, const TArguments& arguments) {
    TJsonObject json;
    json.SetString(u"Type", FromUtf8(NameOf(arguments.type)));
    json.SetString(u"Text", code.GetCode());
    if (const auto* linear = dynamic_cast<const TVGRBaseBarcode*>(&code)) {
        TKSL128AutoType mode = at128None;
        std::string digits;
        TBarcode::PrepareBarcode(linear->GetAnsiCode(), linear->GetBarType(), arguments.check, false, digits, mode);
        json.SetString(u"Code", linear->GetCCode());
        json.SetString(u"CheckDigits", FromUtf8(digits));
        json.SetString(u"Pattern", linear->GetDrCode());
    } else {
        const TModuleGrid& grid = dynamic_cast<const TVGRBaseMatrixCode&>(code).Modules();
        json.SetInt(u"Columns", grid.columns);
        json.SetInt(u"Rows", grid.rows);
        TJsonArray& rows = json.AddArray(u"Modules");
        for (int y = 0; y < grid.rows; ++y) {
            std::u16string row;
            for (int x = 0; x < grid.columns; ++x)
                row += grid.IsDark(x, y) ? u'1' : u'0';
            rows.Add(std::u16string_view(row));
        }
    }
    Print(json.ToUtf8JSON(false) + "\n");
}

void Export(const HostLabel& label, const std::string& out) {
    if (out.empty())
        return Print(label.SVG(svCurrentUnit, 1, false, true));
    const TPageStyle style{.view = TPageView::Label, .dpi = Dpi, .svgPortable = true};
    const auto pages = OpenPages(out, PageKindOf(out), style, 1);
    pages->Add(label);
    pages->Commit();
}

void List() {
    std::string text;
    for (const auto& [name, type] : TypeNames())
        (text += name) += '\n';
    Print(text);
}

void Run(const TArguments& arguments, bool complete) {
    if (arguments.list)
        return List();
    if (!complete)
        throw CLI::ValidationError("barcode", "TYPE and TEXT are required, or --list");
    if (!arguments.out.empty())
        PageKindOf(arguments.out); // refuses a name before anything is printed
    HostLabel label;
    TVGRBaseCode& code = MakeCode(label, arguments.type);
    {
        const UpdateScope bracket(label);
        Shape(code, arguments);
    }
    CheckSymbol(code, arguments);
    label.GetMeasure().SetLabelSizeMM(GetBaseValue(code.BarCodeWidth()), GetBaseValue(code.BarCodeHeight()));
    if (arguments.json)
        Describe(code, arguments);
    if (!arguments.json || !arguments.out.empty())
        Export(label, arguments.out);
}

} // namespace

void AddBarcode(CLI::App& app) {
    auto arguments = std::make_shared<TArguments>();
    CLI::App* command = app.add_subcommand("barcode", "Write one barcode as SVG, PNG or PDF");
    command->add_option("TYPE", arguments->type, "the symbology: a name of --list")
        ->transform(OneOf(TypeNames()))
        ->type_name("");
    CLI::Option* text = command->add_option("TEXT", arguments->text, "what to encode")->type_name("");
    command
        ->add_option("-o,--output", arguments->out,
                     "the file: .svg, .png, .pdf, .jpg or .bmp; SVG on standard output without it")
        ->type_name("FILE");
    command->add_option("--module", arguments->module, "width of a narrow bar or of a module, millimetres")
        ->check(Between(0.01, 100))
        ->type_name("MM");
    command->add_option("--height", arguments->height, "height of the bars, of a row or of a module, millimetres")
        ->check(Between(0.01, 1000))
        ->type_name("MM");
    command->add_flag("--no-text", arguments->noText, "no digits under the bars");
    command->add_flag("--check", arguments->check, "append the check digits of the symbology");
    command->add_flag("--json", arguments->json, "tell the code, its check digits and the pattern or the modules");
    command->add_flag("--list", arguments->list, "the names of the symbologies");
    command->footer("Example: vagrel barcode EAN13 590123412345 --check -o label.svg\n");
    command->callback([arguments, text] { Run(*arguments, text->count() > 0); });
}

} // namespace vagrel::cli
