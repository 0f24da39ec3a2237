// SPDX-License-Identifier: MIT
// vagrel render: a document as SVG.
#include "Commands.h"

#include <host/HostLabel.h>
#include <vagrel/foundation/Text.h>

#include <CLI/CLI.hpp>

namespace vagrel::cli {

namespace {

const TNames ExportNames{{"unit", svCurrentUnit}, {"plain", svCurUnitNoMed}, {"factor", svFactor}, {"px", svFactorPx}};

struct TRender {
    std::string file;
    std::string out;
    int mode = svCurrentUnit;
    float factor = 1;
    bool ids = false;
};

void Run(const TRender& arguments) {
    HostLabel label;
    label.LoadFromFile(FromUtf8(arguments.file));
    const auto mode = TKSLExportSVG(arguments.mode);
    if (arguments.out.empty())
        Print(label.SVG(mode, arguments.factor, arguments.ids));
    else
        label.SaveSVG(FromUtf8(arguments.out), mode, arguments.factor, arguments.ids);
}

} // namespace

void AddRender(CLI::App& app) {
    auto arguments = std::make_shared<TRender>();
    CLI::App* command = app.add_subcommand("render", "Write a document as SVG");
    command->add_option("FILE", arguments->file, "the document")->required()->type_name("");
    command->add_option("-o,--output", arguments->out, "the SVG file; standard output without it")->type_name("FILE");
    command
        ->add_option("--mode", arguments->mode,
                     "unit (millimetres, the default), plain (no unit), factor (times F, millimetres) or px (times F)")
        ->transform(OneOf(ExportNames))
        ->type_name("NAME");
    command->add_option("--factor", arguments->factor, "the factor F of the modes factor and px")
        ->check(Between(0.000001, 1000000))
        ->type_name("F");
    command->add_flag("--ids", arguments->ids, "give every element the identifier of its item");
    command->footer("Example: vagrel render label.json --mode px --factor 3.78 -o label.svg\n");
    command->callback([arguments] { Run(*arguments); });
}

} // namespace vagrel::cli
