// SPDX-License-Identifier: MIT
// The places where changes will be recorded.
#include <vagrel/document/TVGRCmd.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBaseLabel.h>

namespace vagrel {

void TVGRColorCmd::AddCommand(TVGRBaseItem& item, cmd::TColorIndex) { item.KSLab().AddState(lsUpdate); }
void TVGRCreateCmd::AddCommand(TVGRBaseItem&) {}
void TVGRBaseValueCmd::AddCommand(TVGRBaseItem&, cmd::TBaseValueIndex) {}
void TVGRBoolCmd::AddCommand(TVGRBaseItem&, cmd::TBoolIndex) {}
void TVGREnumValueCmd::AddCommand(TVGRBaseItem&, cmd::TEnumIndex) {}
void TVGRPosCmd::AddCommand(TVGRBaseItem&, int, TKSLPosType) {}
void TVGRBasePosCmd::AddCommand(TVGRBaseItem&, cmd::TPointKind, int) {}
void TVGRElePosCmd::AddCommand(TVGRBaseItem&) {}
void TVGRFloatCmd::AddCommand(TVGRBaseItem&, cmd::TFloatIndex) {}
void TVGRTxtCmd::AddCommand(TVGRBaseItem&, cmd::TTextIndex) {}

} // namespace vagrel
