// SPDX-License-Identifier: MIT
// The document of tests.
#include <tests/support/TestHost.h>

#include <vagrel/document/TVGRMeasure.h>

namespace vagrel::test {

namespace {

const FixedTextMeasurer FixedMeasurer;

} // namespace

TestHost::TestHost(TKSLEditorMode mode, TKSLUnits units, std::int64_t scale) : HostLabel(nullptr, FixedMeasurer) {
    SetEditorMode(mode);
    SetUnits(units);
    GetMeasure().SetDrawScale(scale);
}

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
