// SPDX-License-Identifier: MIT
// A command as the undo stacks keep it: which property of which item, and what it was.
#pragma once

#include <vagrel/document/TVGRCmd.h>
#include <vagrel/document/TVGRReceiver_p.h>
#include <vagrel/foundation/Records.h>
#include <vagrel/foundation/TKSLSet.h>

#include <memory>
#include <string>
#include <variant>

namespace vagrel {

namespace detail {
struct TStateLog;
}

/// Integers, colours, enumerations and booleans are one alternative; std::string is the snapshot of a deleted item.
using TVGRCmdValue = std::variant<std::monostate, std::int64_t, float, std::u16string, TKSLPto, TKSLPtoA, std::string,
                                  std::shared_ptr<detail::TStateLog>>;

struct TVGRCmd {
    TVGRCmdKind fKind;
    std::int32_t fIndex; ///< property of the kind, or number of the point
    std::int32_t fUndRedID;
    std::shared_ptr<TVGRReceiver> fReceiver;
    TVGRCmdValue fValue;

    bool Is(TVGRCmdKind kind, std::int32_t index, const std::shared_ptr<TVGRReceiver>& receiver) const {
        return fKind == kind && fIndex == index && fReceiver == receiver;
    }
};

/// Of these a run of changes leaves one command.
inline constexpr TKSLSet<TVGRCmdKind> CoalescingCmds{ckColor,     ckBaseValue, ckEnumValue, ckPosX, ckPosY,
                                                     ckItemPoint, ckLinkPoint, ckElePos,    ckTxt};
/// After these the bounds of the item and the handles of the selection are rebuilt.
inline constexpr TKSLSet<TVGRCmdKind> PlacingCmds{ckColor, ckPosX, ckPosY, ckItemPoint, ckLinkPoint, ckElePos};

/// What a command of this kind has to remember of the item as it is now.
TVGRCmdValue StoreState(TVGRBaseItem& item, TVGRCmdKind kind, std::int32_t index);

/// Gives a property back, through its setter, which records the opposite. For all kinds but creation and deletion.
void RestoreState(TVGRBaseItem& item, const TVGRCmd& command);

} // namespace vagrel
