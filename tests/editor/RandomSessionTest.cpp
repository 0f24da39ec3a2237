// SPDX-License-Identifier: MIT
// Thousands of seeded events, as a user who knows no manual would send them. What was recorded is undone and redone as
// a whole; and whatever comes, the document stays one that can be written, read and undone.
#include <tests/editor/SessionFixture.h>

#include <vagrel/persistence/TJsonObject.h>

#include <map>
#include <random>

namespace vagrel::test {
namespace {

using TForms = std::map<std::int32_t, std::string>;

// The items by their numbers: one that is made anew comes last.
TForms FormsOf(const TVGRBaseLabel& label) {
    TForms forms;
    for (int i = 1; i <= label.ItemsCount(); ++i)
        forms[label.GetItem(i)->GetInID()] = label.GetItem(i)->WriteJson()->ToUtf8JSON();
    return forms;
}

class Player {
public:
    explicit Player(unsigned seed) : fRandom(seed) {
        label.GetMeasure().SetLabelSizeMM(400, 400);
        for (int i = 0; i < 6; ++i)
            label.CreateRectangle(40000 * i + 10000, 40000 * i + 10000, 20000, 10000);
        label.Clear({cleUndoRedo}, false);
    }
    ~Player() { TAct::ResetForTests(); }

    // One whole gesture of which everything is recorded.
    void Gesture() {
        switch (Below(11)) {
        case 0:
        case 1:
        case 2:
            return Draw();
        case 3:
        case 4:
            return DragItem();
        case 5:
            return DragHandle();
        case 6:
            return SelectByRectangle();
        case 7:
            if (Below(3) == 0)
                Play(R"({"op":"DeleteSelection"})");
            return;
        case 8:
            return SetSomething();
        case 9:
            return Play(R"({"op":"AlignObjects","edge":)" + Any<TKSLObjectAlign>(oaBottom) + "}");
        default:
            return Play(OneOf({R"({"op":"CenterHorizontal"})", R"({"op":"CenterVertical"})", R"({"op":"SameWidth"})",
                               R"({"op":"SpaceHorizontal"})", R"({"op":"SpaceVertical","gap":2})",
                               R"({"op":"SelectNext"})", R"({"op":"SelectPrior"})", R"({"op":"SameHeight"})",
                               R"({"op":"MoveEditor","x":1000,"y":-500,"keyboard":true})",
                               R"({"op":"MoveEditor","x":1,"y":-1,"gridX":1000,"gridY":1000,"keyboard":true})"}));
        }
    }

    // Some steps back or forth.
    void Travel() {
        Play(R"({"op":")" + OneOf({"Undo", "Redo"}) + R"(","times":)" + std::to_string(1 + Below(6)) + "}");
    }

    // Any operation with any parameters.
    void Anything() {
        static const std::vector<Session::TOperation> operations = Session::Operations();
        const Session::TOperation& operation = operations[std::size_t(Below(int(operations.size())))];
        if (operation.name == u"expect")
            return Play(Event("PickEditor", Place()));
        std::string line = R"({"op":")" + ToUtf8(operation.name) + "\"";
        std::istringstream words(ToUtf8(operation.parameters));
        for (std::string word; words >> word;) {
            const bool optional = word.starts_with('[');
            if (optional && Below(2) == 0)
                continue;
            const std::string name = optional ? word.substr(1, word.size() - 2) : word;
            if ((name == "radius" && Below(4) != 0) || ((name == "right" || name == "down") && Below(4) != 0))
                continue;
            line += ",\"" + name + "\":" + Value(operation.name, name);
        }
        Play(line + "}");
    }

    // While a transaction is open nothing is undone.
    void EndTransactions() {
        while (!fSession.transactions.empty())
            fSession.transactions.pop_back();
    }

    // What a host relies on between two events.
    void Check() const {
        for (int i = 1; i <= label.SelectionCount(); ++i)
            ASSERT_TRUE(Present(label.GetSelection(i)));
        for (int i = 1; i <= label.SelPointCount(); ++i)
            ASSERT_TRUE(Present(label.GetSelPoint(i).Item));
        for (int i = 1; i <= label.ItemsCount(); ++i)
            ASSERT_TRUE(&label.GetItem(i)->GetLayer());
    }

    TestHost label{emDrawing, unMM, 1};
    std::string last; ///< the lines until now

private:
    bool Present(const TVGRBaseItem* item) const {
        for (int i = 1; i <= label.ItemsCount(); ++i)
            if (label.GetItem(i) == item)
                return true;
        return false;
    }
    int Below(int limit) { return int(fRandom() % unsigned(limit)); }
    std::string OneOf(const std::vector<std::string>& lines) { return lines[std::size_t(Below(int(lines.size())))]; }
    template <class E>
    std::string Any(E last_) {
        return "\"" + std::string(EnumName(E(Below(last_ + 1)))) + "\"";
    }
    // Even, so that the halves of centres and radii are whole.
    TKSLPto Place() { return {10000 + 2 * Below(190000), 10000 + 2 * Below(190000)}; }
    TKSLPto Near(TKSLPto place) { return {place.bX + 2 * (Below(8000) - 4000), place.bY + 2 * (Below(8000) - 4000)}; }

    void Play(const std::string& line) {
        last += line + "\n";
        try {
            fSession.PlayLine(line);
        } catch (const EVagrel&) {
            // Refused: unknown items, families to come, three points on a line.
        }
    }

    void Draw() {
        constexpr TKSLEdAction tools[] = {eaPoint,    eaLine,     eaRectangle, eaPolyline, eaPolygon,  eaBezier,
                                          eaCirclePR, eaCircle2P, eaCircle3P,  eaEllipse,  eaSectorPR, eaText,
                                          eaArc,      eaQRCode,   eaTrim,      eaDimRad1};
        const TKSLEdAction tool = tools[Below(int(std::size(tools)))];
        Play(Tool(std::string(EnumName(tool))));
        const TKSLPto start = Place();
        for (int i = 0; i < 4 && TAct::GetAction() == tool; ++i)
            Play(Event("PickEditor", i == 0 ? start : Near(start)));
        if (TAct::GetState() == edPickNext && Below(3) != 0)
            Play(Event("RightButton", start));
        if (TAct::GetAction() != eaSelection || Below(2) == 0)
            Play(R"({"op":"ResetAction"})");
    }

    // A click on an item, then steps with the button down.
    void DragItem() {
        if (label.ItemsCount() == 0)
            return;
        const TKSLRect box = label.GetItem(1 + Below(label.ItemsCount()))->BoundsRect();
        const std::string at = Event("PickEditor", {box.Left, box.Top});
        const std::string shift = at.substr(0, at.size() - 1) + R"(,"shift":["ssShift"]})";
        Play(Below(4) == 0 ? shift : at);
        Play(Event("UpEditor", {box.Left, box.Top}));
        if (TAct::GetAction() == eaEdText)
            return Play(R"({"op":"ResetAction"})");
        Play(at);
        Steps();
    }

    void DragHandle() {
        if (label.SelectionCount() != 1 || label.SelPointCount() == 0)
            return;
        // The handles whose drags are recorded, and what they drag.
        const std::map<TKSLSelType, TKSLMoveType> drags{
            {stSizePoint, mtPoint},       {stPolyPoint, mtPolyPoint}, {stBezier, mtBezier},
            {stBezierCtrl, mtBezierCtrl}, {stSizeRectNW, mtNW},       {stSizeRectN, mtN},
            {stSizeRectE, mtE},           {stSizeRectSE, mtSE},       {stRadio, mtRadio}};
        const TKSSelectionValue handle = label.GetSelPoint(1 + Below(label.SelPointCount()));
        const auto drag = drags.find(handle.SelType);
        // The radius of a sector is recorded by the drag alone: its way back has no way forth.
        if (drag == drags.end() || (handle.SelType == stRadio && handle.Item->GetItemType() == itSector))
            return;
        Play(R"({"op":"SetMove","type":")" + std::string(EnumName(drag->second)) + R"(","pos":)" +
             std::to_string(handle.Pos) + "}");
        Steps();
    }

    void Steps() {
        for (int i = Below(4); i >= 0; --i) {
            const TKSLPto to = TAct::GetMoveType() >= mtNW || TAct::GetMoveType() == mtObjects ? Near({0, 0}) : Place();
            Play(Event(Below(4) == 0 && TAct::GetMoveType() == mtObjects ? "MoveGridEditor" : "MoveEditor", to));
        }
        Play(Event("UpEditor", {0, 0}));
    }

    void SetSomething() {
        if (label.ItemsCount() == 0)
            return;
        TVGRBaseItem& item = *label.GetItem(1 + Below(label.ItemsCount()));
        last += "a property of item " + std::to_string(item.GetInID()) + "\n";
        auto* back = Query<IKSLBack>(&item);
        auto* style = Query<IKSLStyle>(&item);
        auto* ends = Query<IKSLSTerm>(&item);
        switch (Below(5)) {
        case 0:
            return item.SetColor(TAlphaColor(Below(3)));
        case 1:
            return item.SetPenWidth(0.25f * float(Below(4)));
        case 2:
            return style ? style->SetLineType(TKSLineType(Below(4))) : void();
        case 3:
            return !back ? void() : Below(2) ? back->SetBackColor(TAlphaColor(Below(3))) : back->SetFilled(Below(2));
        default:
            return !ends      ? void()
                   : Below(2) ? ends->SetFromType(TKSLTermType(Below(4)))
                              : ends->SetSizeTo(float(Below(9)));
        }
    }

    void SelectByRectangle() {
        Play(R"({"op":"ResetAction"})");
        Play(Event("PickEditor", {1000, 1000}));
        Play(Event("UpEditor", Place()));
        if (TAct::GetAction() == eaEdText)
            Play(R"({"op":"ResetAction"})");
    }

    std::string Value(std::u16string_view operation, const std::string& name) {
        if (name == "action")
            return Any<TKSLEdAction>(eaDimAng);
        if (name == "state")
            return Any<TKSLEdState>(edPickCircle);
        if (name == "snap")
            return Any<TKSLSnap>(snPerpendicular);
        if (name == "edge")
            return Any<TKSLObjectAlign>(oaBottom);
        if (name == "side")
            return Any<TKSLMoveOpt>(moBotRight);
        if (name == "type")
            return operation == u"SetMove"      ? Any<TKSLMoveType>(mtDispWidth)
                   : operation == u"FlowAction" ? Any<TKSLFlowType>(ftEnd)
                                                : Any<TKSLinkType>(ltRoundCorner);
        if (name == "shift")
            return OneOf({"[]", R"(["ssShift"])", R"(["ssCtrl","ssLeft"])"});
        if (name == "item" || name == "pos" || name == "index" || name == "times")
            return std::to_string(1 + Below(12));
        if (name == "gap" || name == "value")
            return std::to_string(Below(3000));
        if (name == "gridX" || name == "gridY")
            return OneOf({"0", "1000", "2500", "-1"});
        if (name == "x" || name == "y" || name == "radius") {
            const std::string far = name == "radius" ? "2147483647" : "9223372036854775807";
            return Below(40) == 0 ? OneOf({far, "-" + far, "0"}) : std::to_string(Below(400000) - 20000);
        }
        return Below(2) ? "true" : "false";
    }

    std::mt19937 fRandom;
    Session fSession{label};
};

class RandomSessions : public testing::TestWithParam<unsigned> {};

TEST_P(RandomSessions, WhatWasRecordedIsUndoneAndRedone) {
    TAct::ResetForTests();
    Player player(GetParam());
    const TForms start = FormsOf(player.label);
    for (int i = 0; i < 300; ++i)
        player.Gesture();
    ASSERT_NO_FATAL_FAILURE(player.Check());
    const TForms end = FormsOf(player.label);
    EXPECT_NE(start, end);
    for (int i = 0; i < 2; ++i) {
        UndoAll(player.label);
        ASSERT_EQ(FormsOf(player.label), start) << player.last;
        RedoAll(player.label);
        ASSERT_EQ(FormsOf(player.label), end) << player.last;
    }
}

// What stands on the redo stack then grows old, and what it does is free. The way back to the start stays.
TEST_P(RandomSessions, StepsInBetweenLeaveTheWayBack) {
    TAct::ResetForTests();
    Player player(GetParam());
    const TForms start = FormsOf(player.label);
    for (int i = 0; i < 300; ++i)
        i % 8 == 7 ? player.Travel() : player.Gesture();
    for (int i = 0; i < 2; ++i) {
        UndoAll(player.label);
        ASSERT_EQ(FormsOf(player.label), start) << player.last;
        RedoAll(player.label);
    }
}

TEST_P(RandomSessions, WhateverComesTheDocumentStaysWhole) {
    TAct::ResetForTests();
    Player player(GetParam());
    for (int i = 0; i < 1500; ++i) {
        player.Anything();
        ASSERT_NO_FATAL_FAILURE(player.Check()) << player.last;
    }
    player.EndTransactions();
    UndoAll(player.label);
    RedoAll(player.label);
    UndoAll(player.label);
    TestHost other;
    other.ReadDocument(ToUtf8(JsonOf(player.label)));
    EXPECT_EQ(other.ItemsCount(), player.label.ItemsCount());
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSessions, testing::Range(1u, 9u));

} // namespace
} // namespace vagrel::test
