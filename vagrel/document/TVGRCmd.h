// SPDX-License-Identifier: MIT
// The commands that remember what a setter is about to change. Each setter calls `AddCommand` of one of these first.
//
// Recording itself is not built yet: the calls stand at their places and keep nothing, and `Undo` of the document says
// so.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <cstdint>

namespace vagrel {

class TVGRBaseItem;

/// The properties inside a kind of command.
namespace cmd {

enum TColorIndex : std::uint16_t { Color, Back, BackInterface, Font, Value = 5, FromTerm, ToTerm, FromLink, ToLink };
enum TBaseValueIndex : std::uint16_t { PenWidth, Radio = 2, SizeFrom, SizeTo };
enum TBoolIndex : std::uint16_t { Filled = 1, Bold, Italic, Underline, Strikeout };
enum TEnumIndex : std::uint16_t { LineType, FromType, ToType, FromLinkType, ToLinkType, Angle = 20, Frame, Filter };
enum TFloatIndex : std::uint16_t { BarWidth, BarHeight, Factor, CenterX, CenterY };
enum TTextIndex : std::uint16_t { FontName = 1, Text, LevelText, ArrowText };

/// Whose point it is.
enum TPointKind : std::int32_t { ItemPoint = 8, LinkPoint };

} // namespace cmd

struct TVGRColorCmd {
    /// Also notes a pending repaint in the document's states.
    static void AddCommand(TVGRBaseItem& item, cmd::TColorIndex index);
};
struct TVGRCreateCmd {
    static void AddCommand(TVGRBaseItem& item);
};
struct TVGRBaseValueCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TBaseValueIndex index);
};
struct TVGRBoolCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TBoolIndex index);
};
struct TVGREnumValueCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TEnumIndex index);
};
struct TVGRPosCmd {
    static void AddCommand(TVGRBaseItem& item, int point, TKSLPosType type);
};
struct TVGRBasePosCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TPointKind kind, int point);
};
struct TVGRElePosCmd {
    static void AddCommand(TVGRBaseItem& item);
};
struct TVGRFloatCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TFloatIndex index);
};
struct TVGRTxtCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TTextIndex index);
};

} // namespace vagrel
