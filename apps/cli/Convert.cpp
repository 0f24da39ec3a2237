// SPDX-License-Identifier: MIT
// vagrel convert: between the JSON and the binary form.
#include "Commands.h"

#include <host/HostLabel.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/foundation/Text.h>

#include <CLI/CLI.hpp>

#include <iostream>

namespace vagrel::cli {

namespace {

struct TConvert {
    std::string in;
    std::string out;
};

TKSLExt FormatOf(const std::string& name) {
    if (name.ends_with(".json"))
        return lfJSON;
    if (name.ends_with(".vgr"))
        return lfBin;
    throw CLI::ValidationError("OUT", "\"" + name + "\" ends neither in .json nor in .vgr");
}

// Each form has a number of the print run that the other one has no place for.
void WarnOfLoss(const HostLabel& label, TKSLExt format) {
    const TVGRBasePrintInfo& info = label.GetPrintInfo();
    const bool json = format == lfJSON;
    const std::int32_t value = json ? info.GetCopies() : info.GetNumLabs();
    if (value != 1)
        std::cerr << "vagrel: warning: the number of " << (json ? "copies" : "labels") << " (" << value
                  << ") is lost: " << (json ? "JSON" : "the binary form") << " has no place for it\n";
}

void Run(const TConvert& arguments) {
    const TKSLExt format = FormatOf(arguments.out);
    HostLabel label;
    label.LoadFromFile(FromUtf8(arguments.in));
    label.SaveToFile(FromUtf8(arguments.out), format);
    WarnOfLoss(label, format);
}

} // namespace

void AddConvert(CLI::App& app) {
    auto arguments = std::make_shared<TConvert>();
    CLI::App* command = app.add_subcommand("convert", "Convert a document between JSON and the binary form");
    command->add_option("IN", arguments->in, "the document, of either form by its content")->required();
    command->add_option("OUT", arguments->out, "the file to write: .json or .vgr")->required();
    command->footer("Example: vagrel convert label.json label.vgr");
    command->callback([arguments] { Run(*arguments); });
}

} // namespace vagrel::cli
