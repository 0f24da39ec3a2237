// SPDX-License-Identifier: MIT
// Points that the pointer snaps to, and guides of the selection.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/editor/CrossingsWorker.h>
#include <vagrel/editor/Guides.h>
#include <vagrel/editor/ItemWalk_p.h>

namespace vagrel {

bool TVGRBaseLabel::SearchPoint(std::int64_t ax, std::int64_t ay, std::int64_t gap, TKSLSnap snap, TKSLRef& ref,
                                bool excludeSelected) const {
    if (snap != snCross)
        return TopItem([&](const TVGRBaseItem& item) {
            return !(excludeSelected && item.GetState() == isSelected) && item.CheckPoint(ax, ay, gap, snap, ref);
        });
    const auto crossing = fCrossings->Published().FindLast({ax, ay}, gap, [&](const TIntSecPoint& found) {
        return !excludeSelected || (!IsInSelection(found.fID1) && !IsInSelection(found.fID2));
    });
    if (!crossing)
        return false;
    ref.bX = crossing->bX, ref.bY = crossing->bY;
    ref.FindRef(rtyRect);
    return true;
}

void TVGRBaseLabel::ResetRefLines() { fGuides->Reset(); }
int TVGRBaseLabel::NumRefLines() const { return fGuides->Count(); }
TKSLRefLine TVGRBaseLabel::GetRefLine(int index) const { return fGuides->Get(index); }

void TVGRBaseLabel::FillRefLines() {
    ResetRefLines();
    if (fSelection.size() != 1)
        return;
    const TVGRBaseItem& own = *fSelection[0];
    for (int i = 1; i <= own.GetNumRefPoints(); ++i)
        for (const auto& other : fItems)
            if (other.get() != &own && other->Shows({lopVisible}))
                for (int k = 1; k <= other->GetNumRefPoints() && !fGuides->IsFull(); ++k)
                    fGuides->Align(own.GetRefPoint(i), other->GetRefPoint(k));
}

} // namespace vagrel
