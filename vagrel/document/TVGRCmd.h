// SPDX-License-Identifier: MIT
// The commands that remember what a setter is about to change. Each setter calls `AddCommand` of one of these first.
//
// Nothing is recorded while the document's option loUndoRedo is off, nor for preview copies. Where it is said, a
// command is not recorded either when the last one is of the same property of the same item: the state before the first
// change of a run is what undo restores.
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
enum TPointKind : std::uint16_t { ItemPoint = 8, LinkPoint };

} // namespace cmd

/// Runs count once. Also notes a pending repaint in the document's states.
struct TVGRColorCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TColorIndex index);
};
/// Undo deletes the item.
struct TVGRCreateCmd {
    static void AddCommand(TVGRBaseItem& item);
};
/// Undo makes the item anew, with its number, at the end of the document's items. Nothing is recorded of an item that
/// the binary form cannot hold.
struct TVGRDeleteCmd {
    static void AddCommand(TVGRBaseItem& item);
};
/// Runs count once.
struct TVGRBaseValueCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TBaseValueIndex index);
};
struct TVGRBoolCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TBoolIndex index);
};
/// Runs count once.
struct TVGREnumValueCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TEnumIndex index);
};
/// One coordinate of a point, from 1, in the document's unit; `type` is ptX or ptY. Runs count once.
struct TVGRPosCmd {
    static void AddCommand(TVGRBaseItem& item, int point, TKSLPosType type);
};
/// A point, from 1, in base units. Runs count once.
struct TVGRBasePosCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TPointKind kind, int point);
};
/// All points in base units. Runs count once.
struct TVGRElePosCmd {
    static void AddCommand(TVGRBaseItem& item);
};
/// Runs count once.
struct TVGRTxtCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TTextIndex index);
};
struct TVGRFloatCmd {
    static void AddCommand(TVGRBaseItem& item, cmd::TFloatIndex index);
};

} // namespace vagrel
