// SPDX-License-Identifier: MIT
// vagrel play: a session of host events on a document.
#include "Commands.h"

#include <host/HostLabel.h>
#include <host/Session.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/platform/Files.h>

#include <CLI/CLI.hpp>

namespace vagrel::cli {

namespace {

struct TPlay {
    std::string file;
    std::string session;
    std::string out;
    bool trace = false;
};

void Run(const TPlay& arguments) {
    const std::string events = ReadFile(arguments.session);
    HostLabel label;
    label.LoadFromFile(FromUtf8(arguments.file));
    Session::TTrace trace;
    if (arguments.trace)
        trace = [](const std::string& line) { Print(line + "\n"); };
    Session session(label, trace);
    AtPlace(arguments.session, [&] { session.Play(events); });
    if (!arguments.out.empty())
        label.SaveToFile(FromUtf8(arguments.out), lfJSON);
}

} // namespace

void AddPlay(CLI::App& app) {
    auto arguments = std::make_shared<TPlay>();
    CLI::App* command = app.add_subcommand("play", "Play pointer events and commands on a document");
    command->add_option("FILE", arguments->file, "the document")->required()->type_name("");
    command->add_option("SESSION", arguments->session, "the events, one JSON object a line")->required()->type_name("");
    command->add_option("-o,--output", arguments->out, "the document afterwards, as JSON")->type_name("FILE");
    command->add_flag("--trace", arguments->trace, "print what each line causes");
    command->footer("Example: vagrel play plan.json house.jsonl -o house.json --trace\n");
    command->callback([arguments] { Run(*arguments); });
}

} // namespace vagrel::cli
