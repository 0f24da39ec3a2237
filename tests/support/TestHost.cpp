// SPDX-License-Identifier: MIT
// The document of tests.
#include <tests/support/TestHost.h>

#include <tests/support/StubItem.h>
#include <vagrel/document/TVGRMeasure.h>

namespace vagrel::test {

TestHost::TestHost(TKSLEditorMode mode, TKSLUnits units, std::int64_t scale) : PartialLabel(nullptr) {
    SetFreshCrossings(true);
    SetExactJson(true);
    SetGuardedTexts(true);
    Loaded();
    SetEditorMode(mode);
    SetUnits(units);
    GetMeasure().SetDrawScale(scale);
}

TVGRBaseItem& TestHost::MakeItem(TVGRLayer& layer, TKSLItemType type, int points, bool preview) {
    return StubTable::Make(*this, layer, type, points, preview);
}

std::vector<TKSLItemType> AvailableItemTypes() { return StubTable::Types(); }

std::u16string JsonOf(const TVGRBaseLabel& label) { return label.GetJsonString(false); }

int UndoAll(TVGRBaseLabel& label) {
    int steps = 0;
    for (; !label.IsUndoEmpty(); ++steps)
        label.Undo();
    return steps;
}

int RedoAll(TVGRBaseLabel& label) {
    int steps = 0;
    for (; !label.IsRedoEmpty(); ++steps)
        label.Redo();
    return steps;
}

} // namespace vagrel::test
