// SPDX-License-Identifier: MIT
// vagrel new: an empty document.
#include "Commands.h"

#include <host/HostLabel.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Text.h>

#include <CLI/CLI.hpp>

#include <charconv>

namespace vagrel::cli {

namespace {

struct TNew {
    int mode = emLabelling;
    int units = unMM;
    std::int64_t scale = 1;
    std::string size;
    std::string out;
};

struct TSize {
    float width = 0, height = 0;
};

constexpr float SmallestSide = 5;
constexpr float LargestSide = 2000000;

// "210x297"
TSize ParseSize(const std::string& text) {
    TSize size;
    const char* end = text.data() + text.size();
    const auto width = std::from_chars(text.data(), end, size.width);
    if (width.ec == std::errc() && width.ptr != end && *width.ptr == 'x') {
        const auto height = std::from_chars(width.ptr + 1, end, size.height);
        auto fits = [](float side) { return side >= SmallestSide && side <= LargestSide; };
        if (height.ec == std::errc() && height.ptr == end && fits(size.width) && fits(size.height))
            return size;
    }
    throw CLI::ValidationError("--size", "\"" + text + "\" is no WxH with sides of 5 to 2000000 mm");
}

std::string CheckScale(const std::string& text) {
    const auto scale = TryStrToInt64(FromUtf8(text));
    return scale && *scale >= 1 ? "" : "\"" + text + "\" is no whole number from 1";
}

void Run(const TNew& arguments) {
    HostLabel label;
    label.SetEditorMode(TKSLEditorMode(arguments.mode));
    label.SetUnits(TKSLUnits(arguments.units));
    TVGRMeasure& measure = label.GetMeasure();
    if (!arguments.size.empty()) {
        const TSize size = ParseSize(arguments.size);
        if (arguments.mode != emLabelling)
            measure.SetPaperName(u"User");
        measure.SetLabelSizeMM(size.width, size.height);
    }
    if (arguments.units != label.GetUnits())
        throw CLI::ValidationError("--units", "labels and flow charts take mm, inch or cm");
    if (arguments.scale != 1 && !label.HasDrawScale())
        throw CLI::ValidationError("--scale", "only drawings and interactive documents have a scale");
    try {
        measure.SetDrawScale(arguments.scale);
    } catch (const EOutOfRange& error) {
        throw CLI::ValidationError("--scale", error.what());
    }
    label.SaveToFile(FromUtf8(arguments.out), lfJSON);
}

} // namespace

void AddNew(CLI::App& app) {
    auto arguments = std::make_shared<TNew>();
    CLI::App* command = app.add_subcommand("new", "Write an empty document");
    command->add_option("--mode", arguments->mode, "labelling, flowchart, drawing or interactive")
        ->transform(OneOf(ModeNames))
        ->type_name("NAME");
    command->add_option("--units", arguments->units, "mm, inch, cm, dm, m, ft or yd")
        ->transform(OneOf(UnitNames))
        ->type_name("NAME");
    command->add_option("--scale", arguments->scale, "denominator N of the scale 1:N of a drawing")
        ->check(CheckScale)
        ->type_name("N");
    command->add_option("--size", arguments->size, "label size WxH in millimetres on paper")->type_name("WxH");
    command->add_option("-o,--output", arguments->out, "the file to write")->required()->type_name("FILE");
    command->footer("Example: vagrel new --mode drawing --units m --scale 50 --size 420x297 -o plan.json\n");
    command->callback([arguments] { Run(*arguments); });
}

} // namespace vagrel::cli
