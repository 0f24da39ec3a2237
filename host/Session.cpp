// SPDX-License-Identifier: MIT
// Playing events and tracing what they cause.
#include <host/Session.h>

#include <host/SessionOperations_p.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/platform/MainThreadQueue.h>

namespace vagrel {

namespace {

constexpr std::chrono::milliseconds Pause{10};

bool Names(std::u16string_view parameters, std::u16string_view name) {
    while (!parameters.empty()) {
        const std::size_t end = std::min(parameters.find(u' '), parameters.size());
        std::u16string_view one = parameters.substr(0, end);
        if (one.starts_with(u'['))
            one = one.substr(1, one.size() - 2);
        if (one == name)
            return true;
        parameters.remove_prefix(std::min(end + 1, parameters.size()));
    }
    return false;
}

const TSessionRow& Find(TJsonObject& json) {
    const int op = json.IndexOf(u"op");
    if (op < 0 || json.ItemAt(op).GetTyp() != jdtString)
        throw EConvertError(u"\"op\" is missing");
    const std::u16string name = json.ItemAt(op).GetStringValue();
    for (const TSessionRow& row : SessionRows()) {
        if (row.operation.name != name)
            continue;
        for (int i = 0; i < json.Count(); ++i)
            if (i != op && !Names(row.operation.parameters, json.GetName(i)))
                throw EConvertError(name + u" has no parameter \"" + std::u16string(json.GetName(i)) + u"\"");
        return row;
    }
    throw EConvertError(u"There is no operation \"" + name + u"\"");
}

std::string Payload(TKSChange change, const TKSChangeValue& value) {
    switch (change) {
    case chDraw:
    case chCursor:
        return " " + std::string(EnumName(TKSLEdAction(value.fInt1))) + " " +
               std::string(EnumName(TKSLEdState(value.fInt2)));
    case chEditInspect:
        return " " + std::string(EnumName(TKSLInsProp(value.fInt1))) + " " + std::to_string(value.fInt2) +
               (value.fBool ? " true" : " false");
    case chLabelDef:
    case chMeasure:
        return " " + std::to_string(value.fInt1) + " " + std::to_string(value.fInt2);
    case chUnits:
        return " " + std::string(EnumName(TKSLUnits(value.fInt1)));
    case chBackSurf:
    case chAligns:
    case chPaint:
        return " " + std::to_string(value.fInt1);
    default:
        return "";
    }
}

constexpr std::string_view ObserverNames[] = {"editor", "inspector", "preview", "symbol"};

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t from = text.find_first_not_of(" \t\r");
    return from == std::string_view::npos ? "" : text.substr(from, text.find_last_not_of(" \t\r") + 1 - from);
}

} // namespace

class Session::Watcher final : public IKSObserver {
public:
    Watcher(Session& session, TKSDestUpdate dest) : fSession(session), fDest(dest) { fSession.label.Attach(this); }
    ~Watcher() { fSession.label.Detach(this); }
    TKSDestUpdate GetDest() const override { return fDest; }
    void Update(TKSChange change, const TKSChangeValue& value) override { fSession.Watch(fDest, change, value); }

private:
    Session& fSession;
    TKSDestUpdate fDest;
};

Session::Session(TVGRBaseLabel& document, TTrace trace) : label(document) {
    snap.Reset(true);
    for (const TKSDestUpdate dest : {duEditor, duInspector, duPreview})
        fWatchers.push_back(std::make_unique<Watcher>(*this, dest));
    fTrace = std::move(trace); // what is told when an observer is attached belongs to no line
    if (!fTrace)
        return;
    label.OnInfoMsg = [this](TVGRBaseLabel&, const std::u16string& action, const std::u16string& state) {
        Tell("info \"" + ToUtf8(action) + "\" \"" + ToUtf8(state) + "\"");
    };
    label.OnSelectItem = [this](TVGRBaseLabel&, TVGRBaseItem& item) { Tell("select " + ToUtf8(item.GetID())); };
    label.OnUnSelectItem = [this](TVGRBaseLabel&, TVGRBaseItem& item) { Tell("unselect " + ToUtf8(item.GetID())); };
    label.OnUndoRedo = [this](TVGRBaseLabel&, bool emptyUndo, bool emptyRedo) {
        Tell(std::string("undo ") + (emptyUndo ? "empty" : "filled") + ", redo " + (emptyRedo ? "empty" : "filled"));
    };
}

Session::~Session() {
    while (!transactions.empty())
        transactions.pop_back();
    if (fTrace)
        label.OnInfoMsg = nullptr, label.OnSelectItem = label.OnUnSelectItem = nullptr, label.OnUndoRedo = nullptr;
}

std::vector<Session::TOperation> Session::Operations() {
    std::vector<TOperation> operations;
    for (const TSessionRow& row : SessionRows())
        operations.push_back(row.operation);
    return operations;
}

void Session::Tell(std::string text) {
    Flush();
    if (fTrace)
        fTrace("  " + text);
}

void Session::Watch(TKSDestUpdate dest, TKSChange change, const TKSChangeValue& value) {
    if (!fTrace)
        return;
    // Observers of one change are told in the order in which they were attached.
    const std::string told = std::string(EnumName(change)) + Payload(change, value);
    if (fChange.starts_with(told + " ->") && dest > fLastTold) {
        fChange += " " + std::string(ObserverNames[dest]);
    } else {
        Flush();
        fChange = told + " -> " + std::string(ObserverNames[dest]);
    }
    fLastTold = dest;
}

void Session::Flush() {
    if (!fChange.empty())
        fTrace("  " + std::exchange(fChange, {}));
}

void Session::Play(std::string_view text) {
    for (std::size_t number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = WithoutBlanks(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty() || line.starts_with('#'))
            continue;
        AtPlace("line " + std::to_string(number), [&] {
            if (fTrace)
                fTrace(std::to_string(number) + " " + std::string(line));
            PlayLine(line);
        });
    }
}

void Session::PlayLine(std::string_view line) {
    fChange.clear(); // what happened outside
    TJsonObject json;
    json.ParseUtf8(line);
    const TSessionRow& row = Find(json);
    if (row.operation.name != u"expect")
        answer.reset();
    const TFinally flush{[this] { Flush(); }};
    row.play(*this, SessionArguments(json));
    // The results of the intersection worker belong to the line that started it.
    while (label.GetComputActive() && MainThread().CanPump())
        MainThread().WaitAndPump(Pause);
    Flush();
    if (!fTrace || row.operation.name == u"expect")
        return;
    if (answer)
        Tell(*answer ? "true" : "false");
    fTrace("  = " + std::string(EnumName(TAct::GetAction())) + " " + std::string(EnumName(TAct::GetState())));
}

} // namespace vagrel
