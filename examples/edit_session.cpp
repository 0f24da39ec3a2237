// SPDX-License-Identifier: MIT
// Drives the editor as a host does whose user draws with the pointer: tools, a drag, the keyboard, undo and redo.
// Writes the drawing at four moments, side by side.
//
//     example_edit_session FILE.svg
#include <host/HostLabel.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/platform/Files.h>

#include <exception>
#include <iostream>

using namespace vagrel;

namespace {

constexpr std::int64_t Mm = 1000; // base units
constexpr std::int32_t Gap = 500; // tolerance of the pointer

// A user with a pointer. A real host turns the pixels of its events into base coordinates here.
class Pointer {
public:
    explicit Pointer(HostLabel& label) : fLabel(label) {}

    void Click(std::int64_t x, std::int64_t y, TShiftState shift = {ssLeft}) {
        fLabel.PickEditor(x * Mm, y * Mm, Gap, shift, false);
        fLabel.UpEditor(x * Mm, y * Mm);
    }
    // Picks up what is selected, moves it in steps and lets it go.
    void Drag(std::int64_t x, std::int64_t y, std::int64_t dx, std::int64_t dy) {
        constexpr int steps = 10;
        fLabel.PickEditor(x * Mm, y * Mm, Gap, {ssLeft}, true);
        for (int i = 0; i < steps; ++i) // a whole item takes the last place less the new one
            fLabel.MoveEditor(-dx * Mm / steps, -dy * Mm / steps, 0, 0, true, false);
        fLabel.UpEditor((x + dx) * Mm, (y + dy) * Mm);
    }
    void Draw(TKSLEdAction tool, std::initializer_list<std::pair<int, int>> picks) {
        fLabel.SetAction(tool);
        for (const auto& [x, y] : picks)
            Click(x, y);
    }

private:
    HostLabel& fLabel;
};

// The drawing at one moment, as a frame of the picture.
class Strip {
public:
    void Add(const HostLabel& label, const std::string& title) {
        const std::string svg = label.SVG(svFactorPx, 3, false);
        fFrames += "<g transform=\"translate(" + std::to_string(fCount++ * 250) + " 0)\"><text x=\"120\" y=\"16\" " +
                   "text-anchor=\"middle\" font-family=\"sans-serif\" font-size=\"13\">" + title +
                   "</text><g transform=\"translate(0 24)\">" + svg.substr(svg.find("<svg")) + "</g></g>\n";
    }
    std::string Svg() const {
        return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + std::to_string(fCount * 250) +
               "\" height=\"210\">\n<rect width=\"100%\" height=\"100%\" fill=\"#fff\"/>\n" + fFrames + "</svg>\n";
    }

private:
    std::string fFrames;
    int fCount = 0;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " FILE.svg\n";
        return 2;
    }
    try {
        HostLabel label;
        label.SetEditorMode(emDrawing);
        label.GetMeasure().SetLabelSizeMM(80, 60);
        Pointer pointer(label);
        Strip strip;

        pointer.Draw(eaRectangle, {{10, 30}, {40, 55}});
        pointer.Draw(eaPolygon, {{7, 30}, {25, 12}, {43, 30}});
        label.RightButton(43 * Mm, 30 * Mm, Gap, {ssRight}); // ends the chain of points
        pointer.Draw(eaCircle2P, {{20, 20}, {30, 20}});
        for (int i = 1; i <= label.ItemsCount(); ++i)
            label.GetItem(i)->StorePenWidth(2 * Mm); // for the picture; not recorded
        strip.Add(label, "drawn");

        label.ResetAction();
        pointer.Click(25, 15); // selects the circle by its rim
        pointer.Drag(25, 15, 36, -6);
        strip.Add(label, "dragged");

        label.MoveEditor(0, -10 * Mm, 0, 0, false, true); // an arrow key: a step down
        pointer.Click(10, 40, {ssLeft, ssShift});
        label.AlignObjects(oaBottom); // the others to the first that was selected
        strip.Add(label, "aligned");

        while (label.ItemsCount() == 3 && !label.IsUndoEmpty())
            label.Undo();
        label.Redo();
        strip.Add(label, "undone");
        WriteFile(argv[1], strip.Svg());
        return label.ItemsCount() == 3 && TAct::GetAction() == eaSelection ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
