// SPDX-License-Identifier: MIT
// The papers that a measure knows by name.
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Text.h>

#include <algorithm>
#include <array>

namespace vagrel {

namespace {

struct TPaper {
    std::u16string_view name;
    float width, height; // millimetres
    std::int16_t code;
};

constexpr std::int16_t UserCode = 256;

constexpr std::array<TPaper, 27> Papers{{
    {u"A4", 210, 297, 9},
    {u"STATEMENT", 139.7f, 215.9f, 6},
    {u"EXECUTIVE", 184.15f, 266.7f, 7},
    {u"LETTER", 215.9f, 279.4f, 1},
    {u"LEGAL", 215.9f, 355.6f, 5},
    {u"A5", 148, 210, 11},
    {u"A3", 297, 420, 8},
    {u"TABLOID", 279.4f, 431.8f, 3},
    {u"LEDGER", 431.8f, 279.4f, 4},
    {u"B4", 250, 354, 12},
    {u"B5", 182, 257, 13},
    {u"Quarto", 215, 275, 15},
    {u"Sobre DL", 110, 220, 27},
    {u"Sobre C5", 162, 229, 28},
    {u"Sobre C3", 324, 458, 29},
    {u"Sobre C4", 229, 324, 30},
    {u"Sobre C6", 114, 162, 31},
    {u"Sobre C65", 114, 229, 32},
    {u"Sobre B4", 250, 353, 33},
    {u"Sobre B5", 176, 250, 34},
    {u"Sobre B6", 176, 125, 35},
    {u"Italy", 110, 230, 36},
    {u"B4 (ISO)", 250, 353, 42},
    {u"Japanese Postcard", 100, 148, 43},
    {u"Japanese Doble", 200, 148, 82},
    {u"Sobre Invite", 220, 220, 47},
    {u"User", 200, 200, UserCode},
}};

} // namespace

std::int16_t GetPaperSize(std::u16string_view name, float& widthMM, float& heightMM) {
    for (const TPaper& paper : Papers) {
        if (SameText(paper.name, name)) {
            widthMM = paper.width;
            heightMM = paper.height;
            return paper.code;
        }
    }
    return -1;
}

int UserPaperIndex() {
    const auto found = std::ranges::find(Papers, UserCode, &TPaper::code);
    return found == Papers.end() ? -1 : int(found - Papers.begin());
}

} // namespace vagrel
