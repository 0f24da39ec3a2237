// SPDX-License-Identifier: MIT
// vagrel render: a document as SVG, PDF or picture.
#include "Commands.h"

#include <host/HostLabel.h>
#include <host/PageWriter.h>
#include <vagrel/foundation/Text.h>

#include <CLI/CLI.hpp>

namespace vagrel::cli {

namespace {

const TNames ExportNames{{"unit", svCurrentUnit}, {"plain", svCurUnitNoMed}, {"factor", svFactor}, {"px", svFactorPx}};

struct TRender {
    std::string file;
    std::string out;
    int mode = svCurrentUnit;
    bool fit = false;
    TPageStyle style;
};

void Run(TRender& arguments) {
    HostLabel label;
    label.LoadFromFile(FromUtf8(arguments.file));
    TPageStyle& style = arguments.style;
    style.svgType = TKSLExportSVG(arguments.mode);
    style.view = arguments.fit ? TPageView::Fit : TPageView::Label;
    if (arguments.out.empty())
        return Print(label.SVG(style.svgType, style.svgFactor, style.svgIDs, style.svgPortable));
    const auto pages = OpenPages(arguments.out, PageKindOf(arguments.out), style, 1);
    pages->Add(label);
    pages->Commit();
}

} // namespace

void AddRender(CLI::App& app) {
    auto arguments = std::make_shared<TRender>();
    TPageStyle& style = arguments->style;
    CLI::App* command = app.add_subcommand("render", "Write a document as SVG, PDF, PNG, JPEG or BMP");
    command->add_option("FILE", arguments->file, "the document")->required()->type_name("");
    command
        ->add_option("-o,--output", arguments->out,
                     "the file, .svg, .pdf, .png, .jpg or .bmp; without it SVG on standard output")
        ->type_name("FILE");
    command->add_option("--dpi", style.dpi, "dots per inch of a picture, 96 without it")
        ->check(Between(1, 4800))
        ->type_name("N");
    command->add_option("--quality", style.quality, "quality of a JPEG, 0 to 100, 90 without it")
        ->check(Between(0, 100))
        ->type_name("N");
    command->add_flag("--transparent", style.transparent, "no white ground behind a PNG");
    command->add_flag("--fit", arguments->fit, "cut a PDF or a picture to what stands on it");
    command
        ->add_option("--mode", arguments->mode,
                     "of SVG: unit (millimetres, the default), plain (no unit), factor (times F, millimetres) or px "
                     "(times F)")
        ->transform(OneOf(ExportNames))
        ->type_name("NAME");
    command->add_option("--factor", style.svgFactor, "the factor F of the modes factor and px")
        ->check(Between(0.000001, 1000000))
        ->type_name("F");
    command->add_flag("--ids", style.svgIDs, "give every element of SVG the identifier of its item");
    command->add_flag("--portable", style.svgPortable,
                      "place the texts of SVG by their baselines, which every renderer shows alike");
    command->footer("Examples:\n"
                    "  vagrel render label.json --mode px --factor 3.78 -o label.svg\n"
                    "  vagrel render label.json --dpi 300 -o label.png\n");
    command->callback([arguments] { Run(*arguments); });
}

} // namespace vagrel::cli
