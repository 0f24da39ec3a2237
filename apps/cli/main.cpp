// SPDX-License-Identifier: MIT
// vagrel: documents from the command line. Exit code 0 done, 1 bad input, 2 wrong use.
#include "Commands.h"

#include <vagrel/foundation/Enumerations.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Text.h>

#include <CLI/CLI.hpp>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>

namespace vagrel::cli {

const TNames ModeNames{
    {"labelling", emLabelling}, {"flowchart", emFlowChart}, {"drawing", emDrawing}, {"interactive", emInteractive}};
const TNames UnitNames{{"mm", unMM}, {"inch", unINCH}, {"cm", unCM}, {"dm", unDM},
                       {"m", unM},   {"ft", unFt},     {"yd", unYd}};

CLI::Validator OneOf(const TNames& names) {
    auto take = [names](std::string& text) -> std::string {
        std::string all;
        for (const auto& [name, number] : names) {
            if (name == text) {
                text = std::to_string(number);
                return {};
            }
            (all += all.empty() ? "" : ", ") += name;
        }
        return "\"" + text + "\" is none of " + all;
    };
    return CLI::Validator(take, "");
}

CLI::Validator Between(double low, double high) {
    auto check = [low, high](std::string& text) -> std::string {
        const auto value = TryStrToFloat(FromUtf8(text));
        if (value && *value >= low && *value <= high)
            return {};
        return "\"" + text + "\" is no number from " + ToUtf8(FloatToStr(low)) + " to " + ToUtf8(FloatToStr(high));
    };
    return CLI::Validator(check, "");
}

void Print(std::string_view text) {
    const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (std::fflush(stdout) != 0 || !written)
        throw EStreamError(std::string("cannot write standard output: ") + std::strerror(errno));
}

namespace {

int Fail(int code, std::string_view message) {
    // One line, whatever the message holds.
    std::string line(message.substr(0, message.find_last_not_of("\r\n") + 1));
    for (char& c : line)
        if (c == '\n' || c == '\r')
            c = ' ';
    std::cerr << "vagrel: " << line << '\n';
    return code;
}

int Run(int argc, char** argv) {
    CLI::App app("Labels, flow diagrams and technical drawings from the command line.", "vagrel");
    app.require_subcommand(0, 1); // none is told below, behind what was not understood
    app.set_version_flag("--version", "vagrel 0.1.0");
    app.footer("Examples:\n"
               "  vagrel new --mode drawing --units m --scale 50 --size 420x297 -o plan.json\n"
               "  vagrel render plan.json -o plan.svg\n"
               "  vagrel info plan.json --json\n"
               "  vagrel barcode EAN13 590123412345 --check -o code.svg\n"
               "  vagrel merge label.json --csv products.csv -o labels.pdf\n"
               "\n"
               "Exit code: 0 done, 1 bad input, 2 wrong use.");
    AddNew(app);
    AddRender(app);
    AddInfo(app);
    AddConvert(app);
    AddBarcode(app);
    AddMerge(app);
    AddFields(app);
    AddPlay(app);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) {
        return app.exit(success);
    } catch (const CLI::ParseError& error) {
        return Fail(2, std::string(error.what()) + " (see vagrel --help)");
    }
    if (app.get_subcommands().empty())
        return Fail(2,
                    "A command is missing: new, render, merge, fields, info, convert or barcode (see vagrel --help)");
    return 0;
}

} // namespace

} // namespace vagrel::cli

int main(int argc, char** argv) {
    try {
        return vagrel::cli::Run(argc, argv);
    } catch (const std::exception& error) {
        return vagrel::cli::Fail(1, error.what());
    }
}
