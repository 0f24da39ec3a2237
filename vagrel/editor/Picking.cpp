// SPDX-License-Identifier: MIT
// Which items lie under the pointer, and what a click makes of them.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/editor/ItemWalk_p.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Rounding.h>

#include <algorithm>

namespace vagrel {

namespace {

bool IsTrimOrExtend(TKSLEdAction action) { return action == eaTrim || action == eaExtend; }

} // namespace

bool TVGRBaseLabel::PickItem(TVGRBaseItem* item, std::int64_t bx, std::int64_t by, std::int64_t gap,
                             bool inside) const {
    return item && item->Pick(bx, by, gap, inside);
}

void TVGRBaseLabel::Unselect(TVGRBaseItem& item) {
    item.SetState(isNormal);
    if (OnUnSelectItem)
        OnUnSelectItem(*this, item);
    std::erase(fSelection, &item); // its address alone: the event may have ended it
}

void TVGRBaseLabel::SelectionPicked(TItemTraits texts) {
    if (fSelection.size() == 1 && fSelection[0]->TypeRow().traits.HasAny(texts) && !fSelection[0]->IsBound())
        EditSelText();
    else
        ChangeValue(chSelect);
}

bool TVGRBaseLabel::SearchSelection(std::int64_t bx, std::int64_t by, std::int64_t gap, TShiftState shift,
                                    bool refLines) {
    TVGRBaseItem* hit = TopItem([&](TVGRBaseItem& item) { return item.Pick(bx, by, gap, true); });
    if (!hit) {
        if (!fSelection.empty() && TAct::GetAction() == eaEdText)
            fInfo = TAct::Reset();
        if (!fSelection.empty())
            ClearSelection(true);
        return false;
    }
    const bool selected = Selected(*hit);
    if (selected && !shift.Has(ssShift)) {
        if (GetEditable()) {
            fInfo = TAct::SetMove(mtObjects, 0);
            FireInfoEvent(true);
        }
        ChangeValue(chPickSel);
        return true;
    }
    if (selected) {
        Unselect(*hit);
    } else {
        const TItemHandle alive(*hit);
        if (!shift.Has(ssShift))
            ClearSelection(false);
        if (alive)
            AddToSelection(*hit, false);
    }
    if (refLines)
        FillRefLines();
    FillSelPoints();
    FillLinkList();
    SelectionPicked(GetEditable() ? TItemTraits{trInPlace} : TItemTraits());
    return true;
}

bool TVGRBaseLabel::SearchRectangle(const TKSLRect& rect, bool cross) {
    std::vector<const TVGRBaseItem*> before(fSelection.begin(), fSelection.end());
    std::ranges::sort(before);
    bool any = false;
    TopItem([&](TVGRBaseItem& item) {
        if (item.SearchRect(rect, cross) && !std::ranges::binary_search(before, &item)) {
            AddToSelection(item, false);
            any = true;
        }
        return false;
    });
    if (!any)
        return false;
    FillSelPoints();
    FillLinkList();
    SelectionPicked(fGuardedTexts && !GetEditable() ? TItemTraits() : TItemTraits{trText});
    return true;
}

bool TVGRBaseLabel::SearchRef(std::int64_t bx, std::int64_t by, std::int64_t gap, TShiftState, bool apply) {
    const TKSLEdAction action = TAct::GetAction();
    if (apply && IsTrimOrExtend(action)) {
        // A change may replace a reference by another item.
        const std::vector<TVGRBaseItem*> references = fSelection;
        for (TVGRBaseItem* item : references)
            if (std::ranges::count(fSelection, item) > 0 && item->HasTrait(trGeometry) &&
                item->Pick(bx, by, gap, false) && UpdateCurAction(*item, bx, by))
                return true;
    }
    TItemTraits wanted{trReference};
    wanted.Put(trCurve, action == eaEquidist);
    TVGRBaseItem* hit = TopItem([&](TVGRBaseItem& item) {
        if (!item.TypeRow().traits.HasAny(wanted) || !item.Pick(bx, by, gap, false))
            return false;
        return !apply || (!(IsTrimOrExtend(action) && Selected(item)) && UpdateCurAction(item, bx, by));
    });
    if (!hit || apply)
        return hit;

    if (!Selected(*hit)) {
        hit->SetState(isRef);
        fSelection.push_back(hit);
        if (OnSelectItem)
            OnSelectItem(*this, *hit);
    } else if (action == eaDimAng && hit->HasTrait(trChain)) {
        return true; // its second segment may be picked next
    } else {
        Unselect(*hit);
    }
    FillRefPoints();
    ChangeValue(chSelect);
    return true;
}

bool TVGRBaseLabel::SearchCircleAt(std::int64_t bx, std::int64_t by, std::int64_t gap) {
    const auto found = std::ranges::find_if(
        fItems, [&](const auto& item) { return item->GetItemType() == itCircle && item->Pick(bx, by, gap, false); });
    if (found == fItems.end())
        return false;
    const TVGRBaseItem& circle = **found;
    const TKSLBase center = circle.CenterPoint();
    const auto* radio = Query<const IKSLRadio>(&circle);
    TAct::DataBase(1, center.X, center.Y);
    TAct::DataInt(1, radio ? ToInt32(radio->GetBaseRadio()) : 0, 0);
    return true;
}

bool TVGRBaseLabel::SearchLink(std::int64_t ax, std::int64_t ay, TKSLink& link) const {
    link.Reset(false, TAct::GetState() == edPickFirst);
    return TopItem([&](const TVGRBaseItem& item) {
        const auto* target = Query<const IKSLLink>(&item);
        return target && target->CheckLink(ax, ay, link);
    });
}

bool TVGRBaseLabel::SearchSelectedText(std::int64_t ax, std::int64_t ay, std::int64_t gap, TShiftState) {
    if (fSelection.empty() || !fSelection[0]->Shows({lopVisible, lopSelectable}) ||
        !fSelection[0]->Pick(ax, ay, gap, false))
        return false;
    fInfo = TAct::SetMove(mtText, 0);
    FireInfoEvent(true);
    ChangeValue(chPickSel);
    return true;
}

bool TVGRBaseLabel::UpdateCurAction(TVGRBaseItem&, std::int64_t, std::int64_t) {
    fInfo = TAct::Reset();
    ClearSelection(true);
    ChangeValue(chCursor);
    FireInfoEvent(true);
    throw ENotAvailable(u"Trimming, extending, joining and equidistant copies are not available yet");
}

void TVGRBaseLabel::FillLinkList() {
    std::vector<std::int32_t> ids;
    for (const TVGRBaseItem* item : fSelection)
        ids.push_back(item->GetInID());
    std::ranges::sort(ids);
    for (TVGRBaseItem* link : fLinks)
        link->SetState(std::ranges::binary_search(ids, link->GetInID()) ? isSelected : isNormal);
    fLinks.clear();
    for (const auto& item : fItems) {
        const auto* link = item->HasTrait(trLink) ? Query<const IKSLLinkItem>(item.get()) : nullptr;
        if (link &&
            (std::ranges::binary_search(ids, link->GetFromID()) || std::ranges::binary_search(ids, link->GetToID()))) {
            item->SetState(isSelected);
            fLinks.push_back(item.get());
        }
    }
}

void TVGRBaseLabel::EditSelText() {
    if (fSelection.empty())
        return;
    TVGRBaseItem* text = fSelection[0];
    auto show = [text](bool visible) {
        TKSLayerOpts options = text->GetOptions();
        options.Put(lopVisible, visible);
        text->SetOptions(options);
    };
    const bool visible = text->GetOptions().Has(lopVisible);
    show(false);
    const TFinally restore{[=, this] {
        // The host may have deleted it.
        if (std::ranges::any_of(fItems, [=](const auto& item) { return item.get() == text; }))
            show(visible);
    }};
    fInfo = TAct::SetCurAction(eaEdText);
    FireInfoEvent(true);
    ChangeValue(chText);
}

} // namespace vagrel
