// SPDX-License-Identifier: MIT
// The commands that remember what a setter is about to change. Each setter calls `AddCommand` of one of these first.
//
// Each answers false when the event that tells of the recording has ended the item: the setter then touches it no more.
// What that event throws goes on, and the command is taken out again: the setter changes nothing then.
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

enum TVGRCmdKind : std::int32_t {
    ckNone = -1,
    ckColor,
    ckCreate,
    ckDelete,
    ckBaseValue,
    ckBool,
    ckEnumValue,
    ckPosX,
    ckPosY,
    ckItemPoint,
    ckLinkPoint,
    ckElePos,
    ckTxt,
    ckFloat,
    ckState ///< what a transaction changed
};

/// Which property a setter records; as it stands, none.
struct TUndoRow {
    TVGRCmdKind kind = ckNone;
    std::int32_t index = 0;

    constexpr TUndoRow() = default;
    constexpr TUndoRow(TVGRCmdKind aKind, std::int32_t aIndex) : kind(aKind), index(aIndex) {}
    constexpr TUndoRow(cmd::TColorIndex aIndex) : TUndoRow(ckColor, aIndex) {}
    constexpr TUndoRow(cmd::TBaseValueIndex aIndex) : TUndoRow(ckBaseValue, aIndex) {}
    constexpr TUndoRow(cmd::TBoolIndex aIndex) : TUndoRow(ckBool, aIndex) {}
    constexpr TUndoRow(cmd::TEnumIndex aIndex) : TUndoRow(ckEnumValue, aIndex) {}
    constexpr TUndoRow(cmd::TFloatIndex aIndex) : TUndoRow(ckFloat, aIndex) {}
    constexpr TUndoRow(cmd::TTextIndex aIndex) : TUndoRow(ckTxt, aIndex) {}
};

/// Runs count once. Also notes a pending repaint in the document's states.
struct TVGRColorCmd {
    static bool AddCommand(TVGRBaseItem& item, cmd::TColorIndex index);
};
/// Undo deletes the item.
struct TVGRCreateCmd {
    static bool AddCommand(TVGRBaseItem& item);
};
/// Undo makes the item anew, with its number, at the end of the document's items. Nothing is recorded of an item that
/// the binary form cannot hold.
struct TVGRDeleteCmd {
    static bool AddCommand(TVGRBaseItem& item);
};
/// Runs count once.
struct TVGRBaseValueCmd {
    static bool AddCommand(TVGRBaseItem& item, cmd::TBaseValueIndex index);
};
struct TVGRBoolCmd {
    static bool AddCommand(TVGRBaseItem& item, cmd::TBoolIndex index);
};
/// Runs count once.
struct TVGREnumValueCmd {
    static bool AddCommand(TVGRBaseItem& item, cmd::TEnumIndex index);
};
/// One coordinate of a point, from 1, in the document's unit; `type` is ptX or ptY. Runs count once.
struct TVGRPosCmd {
    static bool AddCommand(TVGRBaseItem& item, int point, TKSLPosType type);
};
/// A point, from 1, in base units. Runs count once.
struct TVGRBasePosCmd {
    static bool AddCommand(TVGRBaseItem& item, cmd::TPointKind kind, int point);
};
/// All points in base units. Runs count once.
struct TVGRElePosCmd {
    static bool AddCommand(TVGRBaseItem& item);
};
/// Runs count once.
struct TVGRTxtCmd {
    static bool AddCommand(TVGRBaseItem& item, cmd::TTextIndex index);
};
struct TVGRFloatCmd {
    static bool AddCommand(TVGRBaseItem& item, cmd::TFloatIndex index);
};

} // namespace vagrel
