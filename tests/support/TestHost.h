// SPDX-License-Identifier: MIT
// What tests of the document share: a host that paints nothing, and an observer that keeps what it is
// told.
#pragma once

#include <vagrel/document/PartialLabel.h>

#include <vector>

namespace vagrel::test {

/// A change and the payload that came with it.
struct TTold {
    TKSChange change;
    TKSChangeValue value;
};

/// Keeps every change that it is told. A component, so that its destruction detaches it.
class RecordingObserver : public TComponent, public IKSObserver {
public:
    explicit RecordingObserver(TKSDestUpdate dest) : fDest(dest) {}

    TKSDestUpdate GetDest() const override { return fDest; }
    void Update(TKSChange change, const TKSChangeValue& value) override {
        told.push_back({change, value});
        if (onUpdate)
            onUpdate(change);
    }

    /// The changes alone, and forgets them.
    std::vector<TKSChange> Take() {
        std::vector<TKSChange> changes;
        for (const TTold& one : told)
            changes.push_back(one.change);
        told.clear();
        return changes;
    }

    std::vector<TTold> told;
    std::function<void(TKSChange)> onUpdate;

private:
    TKSDestUpdate fDest;
};

/// A document of the given mode, unit and scale, with texts of fixed size, that paints nothing. It has the options of
/// the reference host.
class TestHost : public PartialLabel {
public:
    explicit TestHost(TKSLEditorMode mode = emLabelling, TKSLUnits units = unMM, std::int64_t scale = 1);
    ~TestHost() override { Teardown(); }

    TVGRBaseItem& MakeItem(TVGRLayer& layer, TKSLItemType type, int points, bool preview) override;
    using TVGRBaseLabel::FreeItem;
};

/// The types that it has a class for.
std::vector<TKSLItemType> AvailableItemTypes();

/// The document as indented JSON.
std::u16string JsonOf(const TVGRBaseLabel& label);

/// Until there is nothing left; the number of steps.
int UndoAll(TVGRBaseLabel& label);
int RedoAll(TVGRBaseLabel& label);

} // namespace vagrel::test
