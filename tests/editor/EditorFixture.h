// SPDX-License-Identifier: MIT
// What tests of the editor share: a document of 60 × 35 mm that is watched, and items that stand in for families to
// come.
#pragma once

#include <tests/document/ProbeItem.h>

#include <tests/support/StubItem.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/items/text/TVGRBaseText.h>

#include <gtest/gtest.h>

namespace vagrel {

inline void PrintTo(const TKSLPto& point, std::ostream* out) { *out << "(" << point.bX << ", " << point.bY << ")"; }

namespace test {

class Editor : public testing::Test {
protected:
    Editor() {
        TAct::ResetForTests();
        TAct::Reset();
        label.Attach(&editor);
        label.Attach(&inspector);
        editor.Take();
    }
    ~Editor() override { TAct::ResetForTests(); }

    void Select(std::initializer_list<TVGRBaseItem*> items) {
        label.ClearSelection(false);
        for (TVGRBaseItem* item : items)
            label.AddToSelection(*item, false);
    }
    /// What the editor was told since it was asked last.
    std::vector<TKSChange> Told() { return editor.Take(); }

    RecordingObserver editor{duEditor}, inspector{duInspector};
    TestHost label;
};

/// A link as the editor sees it, without a router.
class ProbeLink final : public ProbeItem, public IKSLLinkItem {
public:
    ProbeLink(TVGRBaseLabel& owner, std::int32_t from, std::int32_t to, TKSLinkType type, const TKSLPtoA& points)
        : Probe(owner, itLink, {{0, 0}, {1, 1}}), fFrom(from), fTo(to), fType(type), fCourse(points) {}

    std::int32_t GetFromID() const override { return fFrom; }
    std::int32_t GetToID() const override { return fTo; }
    TKSLinkType GetLinkType() const override { return fType; }
    int NumLinkPoints() const override { return int(fCourse.size()); }
    TKSLPto GetLinkPoint(int index) const override { return fCourse.at(std::size_t(index - 1)); }
    bool SetBasePoint(int index, std::int64_t bx, std::int64_t by, bool) override {
        if (index < 1 || index > NumLinkPoints())
            return false;
        fCourse[std::size_t(index - 1)] = {bx, by};
        return true;
    }

private:
    std::int32_t fFrom, fTo;
    TKSLinkType fType;
    TKSLPtoA fCourse;
};

/// An arc as the editor sees it.
class ProbeArc final : public ProbeItem, public IKSLArc {
public:
    explicit ProbeArc(TVGRBaseLabel& owner) : Probe(owner, itArc, {{0, 0}, {2000, 2000}}) {}

    TKSLPto GetPto(int index) const override { return rim[std::size_t(index - 1)]; }
    void MoveBasePoint(int index, std::int64_t x, std::int64_t y) override { rim[std::size_t(index - 1)] = {x, y}; }

    TKSLPto rim[3]{{1000, 0}, {2000, 1000}, {1000, 2000}};
};

/// A text of 10 × 4 mm with its anchor at (20, 10) mm.
inline TVGRBaseText& MakeText(TVGRBaseLabel& label) {
    auto& text = *new StubItem<TVGRBaseText>(label, false);
    text.SetBase(1, 20000, 10000);
    text.StoreMeasure({10000, 4000, 3200, 800, 0, 1});
    return text;
}

} // namespace test
} // namespace vagrel
