// SPDX-License-Identifier: MIT
// One table of the names of all list properties.
#include <vagrel/messages/ListNames.h>

#include <vagrel/messages/TVGRMsg.h>

#include <algorithm>
#include <span>

namespace vagrel {

namespace {

using TName = std::u16string_view;

constexpr TName Frames[]{u"None", u"Rectangle", u"Circle", u"CropCircle"};
constexpr TName Lines[]{u"____________", u". . . . . . ", u"_ _ _ _ _ _ ", u"__ __ __ __ ",
                        u"_  _  _  _  ", u"__  __  __  ", u"___ ___ ___ ", u"___   ___   ",
                        u"____ ____ __", u"____  ____  ", u"____    ____", u"____ _ ____ "};
constexpr TName Barcodes[]{u"EAN13",      u"EAN8",      u"UPCA",     u"UPCE0",    u"CODE39",      u"CODE39EX",
                           u"CODE93",     u"CODE93EX",  u"CODABAR",  u"EAN128A",  u"EAN128B",     u"EAN128C",
                           u"EAN128AUTO", u"CODE128A",  u"CODE128B", u"CODE128C", u"CODE128AUTO", u"INTER_25",
                           u"INDUS_25",   u"MATRIX_25", u"CODE11",   u"MSI",      u"POSTNET"};
constexpr TName Terms[]{u"None",         u"Circle",  u"FilledCircle",  u"Arrow",        u"FilledArrow",   u"Square",
                        u"FilledSquare", u"Rhombus", u"FilledRhombus", u"DiagonalLeft", u"DiagonalRight", u"Cross"};
constexpr TName Ranks[]{u"Square", u"Circle", u"Star", u"Rhombus"};
constexpr TName RankPositions[]{u"HorzLeft", u"HorzRight", u"VertLeft", u"VertRight"};
constexpr TName Angles[]{u"0º", u"90º", u"180º", u"270º"};
constexpr TName Filters[]{u"None", u"GrayScale", u"BlackWhite"};
constexpr TName Grids[]{u"None", u"Vertical", u"Horizontal", u"Both"};
constexpr TName PolyTexts[]{u"Text", u"Barcode", u"QR", u"DataMatrix"};
constexpr TName Levels[]{u"HorizontalFluid", u"VerticalFluid", u"HorizontalRadial", u"VerticalRadial"};
constexpr TName TextPositions[]{u"Above", u"Below", u"Middle", u"MiddleRemove", u"Horizontal", u"Vertical"};
constexpr TName NutriValues[]{u"A", u"B", u"C", u"D", u"E"};
constexpr TName NutriTypes[]{u"Style1", u"Style2"};
constexpr TName BoxStyles[]{u"WireFrameNoDim", u"WireFrameDim", u"SolidNoDim",
                            u"SolidDim",       u"PartDrill",    u"PartDrillDim"};

static_assert(std::size(Lines) == ii411 + 1 && std::size(Barcodes) == btPOSTNET + 1 && std::size(Terms) == ttCross + 1);

std::u16string Literal(TName name) { return std::u16string(name); }

// The places above and below a line are names of properties as well and stand only there.
std::u16string TextPosition(TName name) {
    const bool ofList = name == u"Horizontal" || name == u"Vertical";
    return ofList ? TVGRMsg::GetListValue(name) : TVGRMsg::GetPropValue(name);
}

struct TListRow {
    TKSListProp kind;
    std::span<const TName> names;
    std::u16string (*display)(TName);
};

constexpr TListRow Rows[]{
    {lpFrame, Frames, TVGRMsg::GetListValue},
    {lpLine, Lines, Literal},
    {lpBarcode, Barcodes, Literal},
    {lpTerm, Terms, TVGRMsg::GetListValue},
    {lpRank, Ranks, TVGRMsg::GetListValue},
    {lpRankPos, RankPositions, TVGRMsg::GetListValue},
    {lpAngle, Angles, Literal},
    {lpFilterImg, Filters, TVGRMsg::GetListValue},
    {lpGridType, Grids, TVGRMsg::GetListValue},
    {lpPolyText, PolyTexts, TVGRMsg::GetListValue},
    {lpLevel, Levels, TVGRMsg::GetListValue},
    {lpTextPos, TextPositions, TextPosition},
    {lpNutriVal, NutriValues, Literal},
    {lpNutriType, NutriTypes, TVGRMsg::GetListValue},
    {lpBoxStyle, BoxStyles, TVGRMsg::GetListValue},
};

const TListRow* RowOf(TKSListProp kind) {
    const auto row = std::find_if(std::begin(Rows), std::end(Rows), [&](const TListRow& r) { return r.kind == kind; });
    return row == std::end(Rows) ? nullptr : row;
}

} // namespace

void FillList(TKSListProp kind, std::vector<std::u16string>& list) {
    list.clear();
    if (const TListRow* row = RowOf(kind))
        std::transform(row->names.begin(), row->names.end(), std::back_inserter(list), row->display);
}

std::u16string ItemList(TKSListProp kind, int index) {
    const TListRow* row = RowOf(kind);
    if (!row || kind == lpTerm || index < 0 || std::size_t(index) >= row->names.size())
        return {};
    return std::u16string(row->names[std::size_t(index)]);
}

} // namespace vagrel
