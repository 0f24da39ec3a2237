// SPDX-License-Identifier: MIT
// The operations of a session: one row for each.
#include <host/SessionOperations_p.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/editor/TAct.h>

namespace vagrel {

namespace {

// What a pointer of half a millimetre picks.
constexpr std::int32_t Gap = 500;

using S = Session;
using A = SessionArguments;

std::int64_t X(const A& a) { return a.Long(u"x"); }
std::int64_t Y(const A& a) { return a.Long(u"y"); }
std::int64_t GridX(const A& a) { return a.Long(u"gridX", 0); }
std::int64_t GridY(const A& a) { return a.Long(u"gridY", 0); }
std::int32_t GapOf(const A& a) { return a.Int(u"gap", Gap); }
TShiftState Shift(const A& a) { return a.Set<TShift>(u"shift"); }
bool RefLines(const A& a) { return a.Bool(u"refLines", false); }
bool CheckBounds(const A& a) { return a.Bool(u"checkBounds", true); }
float SpaceGap(const A& a) { return a.Float(u"gap", -1.0f); }

void Pick(S& s, const A& a) {
    if (a.Has(u"radius"))
        s.label.PickEditor(a.Int(u"radius"), Shift(a), RefLines(a));
    else
        s.label.PickEditor(X(a), Y(a), GapOf(a), Shift(a), RefLines(a));
}

void MoveToGrid(S& s, const A& a) {
    s.answer = a.Has(u"right") || a.Has(u"down")
                   ? s.label.MoveBaseGridSelection(GridX(a), GridY(a), a.Bool(u"right"), a.Bool(u"down"), RefLines(a))
                   : s.label.MoveBaseGridSelection(GridX(a), GridY(a), X(a), Y(a), RefLines(a), CheckBounds(a));
}

template <void (TVGRBaseLabel::*Step)()>
void Repeat(S& s, const A& a) {
    for (std::int32_t times = a.Int(u"times", 1); times > 0; --times)
        (s.label.*Step)();
}

// The innermost transaction, which ends now.
std::unique_ptr<Transaction> TakeTransaction(S& s) {
    if (s.transactions.empty())
        throw EInvalidOperation(u"There is no open transaction");
    auto last = std::move(s.transactions.back());
    s.transactions.pop_back();
    return last;
}

template <class Value>
void Compare(const std::string& what, const Value& expected, const Value& found) {
    if (expected != found)
        throw EInvalidOperation(what + " is " + found + ", not " + expected);
}

std::string Numbers(const std::vector<std::int64_t>& numbers) {
    std::string text;
    for (const std::int64_t number : numbers)
        text += (text.empty() ? "[" : ", ") + std::to_string(number);
    return text.empty() ? "[]" : text + "]";
}

std::string Answer(std::optional<bool> answer) { return !answer ? "none" : *answer ? "true" : "false"; }

void Expect(S& s, const A& a) {
    if (a.Has(u"action"))
        Compare("the action", std::string(EnumName(a.Enum<TKSLEdAction>(u"action"))),
                std::string(EnumName(TAct::GetAction())));
    if (a.Has(u"state"))
        Compare("the state", std::string(EnumName(a.Enum<TKSLEdState>(u"state"))),
                std::string(EnumName(TAct::GetState())));
    auto compare = [&](std::u16string_view name, const std::string& what, int found) {
        if (a.Has(name))
            Compare(what, std::to_string(a.Int(name)), std::to_string(found));
    };
    compare(u"items", "the number of items", s.label.ItemsCount());
    compare(u"selection", "the number of selected items", s.label.SelectionCount());
    compare(u"handles", "the number of handles", s.label.SelPointCount());
    compare(u"guides", "the number of guides", s.label.NumRefLines());
    auto decide = [&](std::u16string_view name, const std::string& what, std::optional<bool> found) {
        if (a.Has(name))
            Compare(what, Answer(a.Bool(name)), Answer(found));
    };
    decide(u"undoEmpty", "that nothing can be undone", s.label.IsUndoEmpty());
    decide(u"redoEmpty", "that nothing can be redone", s.label.IsRedoEmpty());
    decide(u"answer", "the answer", s.answer);
    if (a.Has(u"selected")) {
        std::vector<std::int64_t> selected;
        for (int i = 1; i <= s.label.SelectionCount(); ++i)
            selected.push_back(s.label.GetSelection(i)->GetInID());
        Compare("the selection", Numbers(a.Longs(u"selected")), Numbers(selected));
    }
    if (a.Has(u"snap"))
        Compare("the snap", Numbers(a.Longs(u"snap")), Numbers({s.snap.bX, s.snap.bY}));
}

constexpr TSessionRow Rows[] = {
    // Tools
    {{u"SetAction", u"action"}, [](S& s, const A& a) { s.label.SetAction(a.Enum<TKSLEdAction>(u"action")); }},
    {{u"FlowAction", u"type"}, [](S& s, const A& a) { s.label.FlowAction(a.Enum<TKSLFlowType>(u"type")); }},
    {{u"LinkAction", u"type"}, [](S& s, const A& a) { s.label.LinkAction(a.Enum<TKSLinkType>(u"type")); }},
    {{u"ResetAction", u""}, [](S& s, const A&) { s.label.ResetAction(); }},
    {{u"LastAction", u""}, [](S& s, const A&) { s.label.LastAction(); }},
    {{u"SetState", u"state"}, [](S&, const A& a) { TAct::SetState(a.Enum<TKSLEdState>(u"state")); }},
    // The pointer
    {{u"PickEditor", u"x y radius [gap] [shift] [refLines]"}, Pick},
    {{u"SetMove", u"type [pos]"},
     [](S&, const A& a) { TAct::SetMove(a.Enum<TKSLMoveType>(u"type"), std::int16_t(a.Int(u"pos", 0))); }},
    {{u"MoveEditor", u"x y [gridX] [gridY] [refLines] [keyboard]"},
     [](S& s, const A& a) {
         s.label.MoveEditor(X(a), Y(a), GridX(a), GridY(a), RefLines(a), a.Bool(u"keyboard", false));
     }},
    {{u"MoveGridEditor", u"x y [gridX] [gridY] [refLines]"},
     [](S& s, const A& a) { s.answer = s.label.MoveGridEditor(X(a), Y(a), GridX(a), GridY(a), RefLines(a)); }},
    {{u"UpEditor", u"x y"}, [](S& s, const A& a) { s.label.UpEditor(X(a), Y(a)); }},
    {{u"RightButton", u"x y [gap] [shift]"},
     [](S& s, const A& a) { s.label.RightButton(X(a), Y(a), GapOf(a), Shift(a)); }},
    {{u"DoDblClick", u""}, [](S& s, const A&) { s.answer = s.label.DoDblClick(); }},
    {{u"EditSelText", u""}, [](S& s, const A&) { s.label.EditSelText(); }},
    {{u"SearchPoint", u"x y snap [gap] [excludeSelected]"},
     [](S& s, const A& a) {
         s.answer = s.label.SearchPoint(X(a), Y(a), GapOf(a), a.Enum<TKSLSnap>(u"snap"), s.snap,
                                        a.Bool(u"excludeSelected", false));
     }},
    {{u"ResetSnap", u""}, [](S& s, const A&) { s.snap.Reset(true); }},
    {{u"SearchSelectedText", u"x y [gap] [shift]"},
     [](S& s, const A& a) { s.answer = s.label.SearchSelectedText(X(a), Y(a), GapOf(a), Shift(a)); }},
    // Undo
    {{u"Undo", u"[times]"}, Repeat<&TVGRBaseLabel::Undo>},
    {{u"Redo", u"[times]"}, Repeat<&TVGRBaseLabel::Redo>},
    {{u"BeginUpdate", u"[paintOnEnd]"}, [](S& s, const A& a) { s.label.BeginUpdate(a.Bool(u"paintOnEnd", true)); }},
    {{u"EndUpdate", u""}, [](S& s, const A&) { s.label.EndUpdate(); }},
    {{u"BeginTransaction", u"[name]"},
     [](S& s, const A& a) {
         s.transactions.push_back(std::make_unique<Transaction>(s.label, a.Text(u"name"), u"session"));
     }},
    {{u"CommitTransaction", u""}, [](S& s, const A&) { s.answer = TakeTransaction(s)->Commit(); }},
    {{u"RollbackTransaction", u""}, [](S& s, const A&) { TakeTransaction(s)->Rollback(); }},
    // The selection
    {{u"SetSelection", u"item"}, [](S& s, const A& a) { s.label.SetSelection(&a.Item(s.label, u"item"), isSelected); }},
    {{u"AddToSelection", u"item [notify]"},
     [](S& s, const A& a) { s.label.AddToSelection(a.Item(s.label, u"item"), a.Bool(u"notify", true)); }},
    {{u"ClearSelection", u"[notify]"}, [](S& s, const A& a) { s.label.ClearSelection(a.Bool(u"notify", true)); }},
    {{u"SelectNext", u""}, [](S& s, const A&) { s.answer = s.label.SelectNext(); }},
    {{u"SelectPrior", u""}, [](S& s, const A&) { s.answer = s.label.SelectPrior(); }},
    {{u"DeleteItem", u"item [removeSelection]"},
     [](S& s, const A& a) { s.label.DeleteItem(a.Item(s.label, u"item"), a.Bool(u"removeSelection", true)); }},
    {{u"DeleteSelection", u""}, [](S& s, const A&) { s.label.DeleteSelection(); }},
    {{u"DeletePoint", u"index"}, [](S& s, const A& a) { s.answer = s.label.DeletePoint(a.Int(u"index")); }},
    {{u"CopySelection", u""}, [](S& s, const A&) { s.label.CopySelection(); }},
    {{u"PasteSelection", u""}, [](S& s, const A&) { s.label.PasteSelection(); }},
    // Moves
    {{u"MoveSelection", u"x y [refLines] [checkBounds]"},
     [](S& s, const A& a) {
         s.answer = s.label.MoveSelection(a.Float(u"x"), a.Float(u"y"), RefLines(a), CheckBounds(a));
     }},
    {{u"MoveSize", u"value side [refLines] [checkBounds]"},
     [](S& s, const A& a) {
         s.answer = s.label.MoveSize(a.Float(u"value"), a.Enum<TKSLMoveOpt>(u"side"), RefLines(a), CheckBounds(a));
     }},
    {{u"MoveBaseSelection", u"x y [refLines] [checkBounds]"},
     [](S& s, const A& a) { s.answer = s.label.MoveBaseSelection(X(a), Y(a), RefLines(a), CheckBounds(a)); }},
    {{u"MoveBaseGridSelection", u"x y right down [gridX] [gridY] [refLines] [checkBounds]"}, MoveToGrid},
    {{u"MoveBaseSize", u"x y side [gridX] [gridY] [refLines] [checkBounds]"},
     [](S& s, const A& a) {
         s.answer = s.label.MoveBaseSize(X(a), Y(a), GridX(a), GridY(a), a.Enum<TKSLMoveOpt>(u"side"), RefLines(a),
                                         CheckBounds(a));
     }},
    {{u"MoveBasePoint", u"x y [gridX] [gridY] [refLines] [checkBounds]"},
     [](S& s, const A& a) {
         s.answer = s.label.MoveBasePoint(X(a), Y(a), GridX(a), GridY(a), RefLines(a), CheckBounds(a));
     }},
    // Arrangement
    {{u"AlignObjects", u"edge"}, [](S& s, const A& a) { s.label.AlignObjects(a.Enum<TKSLObjectAlign>(u"edge")); }},
    {{u"CenterHorizontal", u""}, [](S& s, const A&) { s.label.CenterHorizontal(); }},
    {{u"CenterVertical", u""}, [](S& s, const A&) { s.label.CenterVertical(); }},
    {{u"SpaceHorizontal", u"[gap]"}, [](S& s, const A& a) { s.label.SpaceHorizontal(SpaceGap(a)); }},
    {{u"SpaceVertical", u"[gap]"}, [](S& s, const A& a) { s.label.SpaceVertical(SpaceGap(a)); }},
    {{u"SameWidth", u""}, [](S& s, const A&) { s.label.SameWidth(); }},
    {{u"SameHeight", u""}, [](S& s, const A&) { s.label.SameHeight(); }},
    {{u"RotateLeft", u""}, [](S& s, const A&) { s.label.RotateLeft(); }},
    {{u"RotateRight", u""}, [](S& s, const A&) { s.label.RotateRight(); }},
    {{u"SendToBack", u""}, [](S& s, const A&) { s.label.SendToBack(); }},
    {{u"BringToFront", u""}, [](S& s, const A&) { s.label.BringToFront(); }},
    // Tests
    {{u"expect",
      u"[action] [state] [items] [selection] [selected] [handles] [guides] [undoEmpty] [redoEmpty] [answer] [snap]"},
     Expect},
};

} // namespace

std::span<const TSessionRow> SessionRows() { return Rows; }

} // namespace vagrel
