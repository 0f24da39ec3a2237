// SPDX-License-Identifier: MIT
// The audience of each change, and the walk over it.
#include <vagrel/document/Observers.h>

#include <vagrel/foundation/TComponent.h>

#include <algorithm>
#include <array>
#include <exception>

namespace vagrel {

namespace {

using TDests = TKSLSet<TKSDestUpdate>;

constexpr TDests Editor{duEditor};
constexpr TDests Inspector{duInspector};
constexpr TDests EditorPreview{duEditor, duPreview};
constexpr TDests EditorInspector{duEditor, duInspector};

// Who is told of a change.
constexpr std::array<TDests, chSelSymbol + 1> Audience = [] {
    std::array<TDests, chSelSymbol + 1> table{};
    for (TKSChange change :
         {chLabelDef, chBackSurf, chAligns, chUnits, chClearSelect, chCursor, chSelCur, chPickSel, chSelSymbol})
        table[change] = Editor;
    for (TKSChange change : {chMeasure, chPaint, chDraw})
        table[change] = EditorPreview;
    for (TKSChange change : {chPropItem, chSelect, chScrollSelect, chText, chChText})
        table[change] = EditorInspector;
    for (TKSChange change : {chInspect, chEditInspect, chInspectPoint})
        table[change] = Inspector;
    return table;
}();
static_assert(Audience[chEndInspect].Empty());

} // namespace

bool Observers::Has(const IKSObserver* observer) const {
    return std::ranges::find(fObservers, observer, &TAttached::observer) != fObservers.end();
}

bool Observers::Attach(IKSObserver& observer) {
    if (Has(&observer))
        return false;
    fObservers.push_back({&observer, dynamic_cast<const TComponent*>(&observer), observer.GetDest()});
    return true;
}

void Observers::Detach(const IKSObserver* observer) {
    std::erase_if(fObservers, [=](const TAttached& attached) { return attached.observer == observer; });
}

void Observers::Forget(const TComponent* component) {
    std::erase_if(fObservers, [=](const TAttached& attached) { return attached.component == component; });
}

bool Observers::HasEditors() const {
    return std::ranges::find(fObservers, duEditor, &TAttached::dest) != fObservers.end();
}

void Observers::Tell(TKSChange change, const TKSChangeValue& value, bool tellInspectors) {
    TDests told = std::size_t(change) < Audience.size() ? Audience[std::size_t(change)] : TDests();
    if (!tellInspectors)
        told.Put(duInspector, false);
    if (told.Empty())
        return;
    const TKSChange delivered = change == chChText ? chText : change;
    std::exception_ptr first;
    const std::vector<TAttached> observers = fObservers;
    for (const TAttached& attached : observers) {
        try {
            if (Has(attached.observer) && told.Has(attached.observer->GetDest()))
                attached.observer->Update(delivered, value);
        } catch (...) {
            if (!first)
                first = std::current_exception();
        }
    }
    if (first)
        std::rethrow_exception(first);
}

} // namespace vagrel
