// SPDX-License-Identifier: MIT
// What tests of the document share: the reference host with texts of fixed size, and an observer that keeps what it is
// told.
#pragma once

#include <host/HostLabel.h>
#include <host/TextMeasurer.h>

#include <vector>

namespace vagrel::test {

/// Every code unit is 0.6 em wide; ascent 0.8 em, descent 0.2 em.
class FixedTextMeasurer final : public TextMeasurer {
public:
    TTextSize Measure(std::u16string_view text, const TFontFace& font) const override {
        return {0.6 * double(text.size()) * font.height, 0.8 * font.height, 0.2 * font.height};
    }
};

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

/// A document of the given mode, unit and scale, with texts of fixed size.
class TestHost : public HostLabel {
public:
    explicit TestHost(TKSLEditorMode mode = emLabelling, TKSLUnits units = unMM, std::int64_t scale = 1);

    using TVGRBaseLabel::FreeItem;
};

/// The document as indented JSON.
std::u16string JsonOf(const TVGRBaseLabel& label);

/// Until there is nothing left; the number of steps.
int UndoAll(TVGRBaseLabel& label);
int RedoAll(TVGRBaseLabel& label);

} // namespace vagrel::test
