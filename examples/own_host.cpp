// SPDX-License-Identifier: MIT
// A host of one's own: a document that measures texts in cells of a terminal and paints itself with characters. It
// makes lines, boxes, circles and texts; all else says that it is not there.
//
//     example_own_host FILE.txt
#include <vagrel/document/PartialLabel.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/TVGRBaseDraw.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/items/figures/TVGRBaseCircle.h>
#include <vagrel/items/figures/TVGRBaseRectangle.h>
#include <vagrel/items/lines/TVGRBaseLine.h>
#include <vagrel/items/text/TVGRBaseText.h>
#include <vagrel/platform/Files.h>

#include <cmath>
#include <numbers>

using namespace vagrel;

namespace {

constexpr std::int32_t CellWidth = 1000, CellHeight = 2000; // base units: 1 mm × 2 mm

// What items are painted on: a context holds whatever the host's painters need.
struct Screen : TVGRBaseDraw {
    mutable std::vector<std::string> rows; // items get a context that they only read

    void Put(double x, double y, char character) const {
        const auto column = std::size_t(x) / CellWidth, row = std::size_t(y) / CellHeight;
        if (row < rows.size() && column < rows[row].size())
            rows[row][column] = character;
    }
    void Line(TKSLPto from, TKSLPto to, char character) const {
        const double dx = double(to.bX - from.bX), dy = double(to.bY - from.bY);
        const double steps = 1 + std::max(std::abs(dx) / CellWidth, std::abs(dy) / CellHeight);
        for (double i = 0; i <= steps; ++i)
            Put(double(from.bX) + dx * i / steps, double(from.bY) + dy * i / steps, character);
    }
};

void Paint(const TVGRBaseLine& line, const Screen& screen) { screen.Line(line.GetPoint(1), line.GetPoint(2), '.'); }

void Paint(const TVGRBaseRectangle& box, const Screen& screen) {
    const TKSLPto a = box.GetPoint(1), b = box.GetPoint(2);
    for (const std::int64_t y : {a.bY, b.bY})
        screen.Line({a.bX, y}, {b.bX, y}, '-');
    for (const std::int64_t x : {a.bX, b.bX})
        screen.Line({x, a.bY}, {x, b.bY}, '|');
}

void Paint(const TVGRBaseCircle& circle, const Screen& screen) {
    const double radius = double(circle.GetPoint(2).bX - circle.GetPoint(1).bX) / 2;
    for (double angle = 0; angle < 2 * std::numbers::pi; angle += 0.02)
        screen.Put(double(circle.GetBaseCenterX()) + radius * std::cos(angle),
                   double(circle.GetBaseCenterY()) + radius * std::sin(angle), 'o');
}

void Paint(const TVGRBaseText& text, const Screen& screen) {
    for (double x = double(text.BoundsRect().Left); const char16_t letter : text.GetDText())
        screen.Put(x, double(text.BoundsRect().Top), letter < 128 ? char(letter) : '?'), x += CellWidth;
}

// Makes any family an item of this host.
template <class Family>
struct Own : Family {
    using Family::Family;
    void DrawItem(const TVGRBaseDraw& draw) override { Paint(*this, static_cast<const Screen&>(draw)); }
    void PrintItem(const TVGRBaseDraw& draw) override { DrawItem(draw); }
};

// A text measures itself: a cell for each character, one cell high.
struct OwnText : Own<TVGRBaseText> {
    using Own::Own;
    void CalcValues(int kind) override {
        Own::CalcValues(kind);
        const auto cells = std::int32_t(GetDText().size());
        StoreMeasure({cells * CellWidth, CellHeight, CellHeight * 4 / 5, CellHeight / 5, 0, 1});
    }
};

class TextLabel : public PartialLabel {
public:
    TextLabel() : PartialLabel(nullptr) { Loaded(); }
    ~TextLabel() override { Teardown(); } // while the items' own code still stands

    std::string Picture() const {
        Screen screen;
        screen.rows.assign(std::size_t(GetMeasure().GetSize(mtLabelHeight, true) / CellHeight),
                           std::string(std::size_t(GetMeasure().GetSize(mtLabelWidth, true) / CellWidth), ' '));
        for (int i = 1; i <= ItemsCount(); ++i)
            GetItem(i)->DrawElement(screen);
        std::string picture;
        for (const std::string& row : screen.rows)
            picture += row + '\n';
        return picture;
    }

    // All items of this host come from here.
    Item& MakeItem(TVGRLayer& layer, TKSLItemType type, int, bool preview) override {
        switch (type) {
        case itLine:
            return *new Own<TVGRBaseLine>(*this, layer, preview);
        case itRectangle:
            return *new Own<TVGRBaseRectangle>(*this, layer, preview);
        case itCircle:
            return *new Own<TVGRBaseCircle>(*this, layer, preview);
        case itText:
            return *new OwnText(*this, layer, preview);
        default:
            throw ENotAvailable(u"This host has no items of this type");
        }
    }
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    TextLabel label;
    label.GetMeasure().SetLabelSizeMM(64, 40);
    label.CreateRectangle(1000, 1000, 61000, 37000);
    TVGRBaseItem& circle = label.CreateCircle({48000, 20000}, 12000);
    label.CreateLine(4000, 34000, 34000, 26000);
    auto& text = dynamic_cast<TVGRBaseText&>(label.CreateText(48000, 20000));
    label.BeginUpdate(true);
    text.SetHorzAlign(haCenter);
    text.SetVertAlign(vaCenter);
    text.SetText(u"A host of my own");
    label.EndUpdate(); // measures
    label.DeleteItem(circle, true);
    label.Undo(); // made anew, out of its bytes
    WriteFile(argv[1], label.Picture());
}
