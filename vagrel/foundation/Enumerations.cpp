// SPDX-License-Identifier: MIT
// Names and point counts of the item types, angles of the quarter turns.
#include <vagrel/foundation/Enumerations.h>

#include <array>

namespace vagrel {

namespace {

struct TItemTypeRow {
    std::u16string_view name;
    int points;
};

constexpr std::array<TItemTypeRow, 30> ItemTypes{{
    {u"Undefined", 1}, {u"Point", 1},   {u"Line", 2},       {u"ArrowLine", 4}, {u"Polyline", 0},   {u"Arc", 2},
    {u"Rectangle", 2}, {u"Polygon", 0}, {u"Circle", 2},     {u"Ellipse", 2},   {u"Text", 2},       {u"Paragraph", 2},
    {u"Barcode", 2},   {u"PDF417", 2},  {u"DataMatrix", 2}, {u"QRCode", 2},    {u"Image", 2},      {u"FlowDiagram", 2},
    {u"Link", 1},      {u"Table", 2},   {u"Polytext", 2},   {u"Rank", 2},      {u"NutriScore", 2}, {u"Level", 2},
    {u"Symbol", 3},    {u"Bezier", 0},  {u"Dimension", 10}, {u"Sector", 2},    {u"Package", 2},    {u"RichText", 2},
}};
static_assert(ItemTypes[itRichText].name == u"RichText" && ItemTypes[itSymbol].points == 3);

bool IsItemType(TKSLItemType type) { return type >= 0 && std::size_t(type) < ItemTypes.size(); }

} // namespace

std::u16string_view NameItem(TKSLItemType type) {
    return IsItemType(type) ? ItemTypes[std::size_t(type)].name : u"None";
}

int NumPointsItem(TKSLItemType type) { return IsItemType(type) ? ItemTypes[std::size_t(type)].points : 1; }

int DegAngle(TKSLAngle angle) { return angle >= ag0 && angle <= ag270 ? -90 * int(angle) : 0; }

float PrintAngle(TKSLAngle angle) {
    constexpr std::array<float, 4> radians{0.0f, -1.5707964f, -3.1415927f, -4.712389f};
    return angle >= ag0 && angle <= ag270 ? radians[std::size_t(angle)] : 0.0f;
}

} // namespace vagrel
