// SPDX-License-Identifier: MIT
// The title block of a drawing: frame, lines and texts on a layer of their own, with fixed identifiers.
#include <vagrel/document/TVGR2DItem.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/Transaction.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/messages/TVGRMsg.h>

#include <algorithm>
#include <optional>

namespace vagrel {

namespace {

// Places count in thousandths of a millimetre on paper from the bottom right corner of the label.
struct TBoxLine {
    std::u16string_view id;
    std::int64_t left, top, right, bottom;
    bool onlyDrawing;
};
constexpr TBoxLine BoxLines[] = {
    {u"bxIDLine1", 90000, 40000, 10000, 40000, false},
    {u"bxIDLine2", 40000, 40000, 40000, 10000, true},
    {u"bxIDLine3", 90000, 30000, 40000, 30000, false},
};

struct TBoxText {
    std::u16string_view id;
    std::int64_t right, bottom;
    float height; // millimetres
    bool bold;
    bool onlyDrawing;
};
constexpr TBoxText BoxTexts[] = {
    {u"bxIDScale", 25000, 25000, 8, true, true},
    {u"bxIDTitle", 50000, 45000, 5, false, false},
    {u"bxIDAuthor", 65000, 35000, 4, false, false},
};

std::u16string TextFor(std::u16string_view id, const TVGRMeasure& measure) {
    if (SameText(id, u"bxIDScale"))
        return u"1:" + IntToStr(measure.GetDrawScale());
    return SameText(id, u"bxIDTitle") ? measure.fTitle : measure.fAuthor;
}

} // namespace

void TVGRBaseLabel::FillBoxLayer(bool reset) {
    if (fEditorMode != emFlowChart && fEditorMode != emDrawing)
        return;
    ClearSelection(false);
    auto box = std::ranges::find_if(fLayers, [](const auto& layer) { return layer->GetOptions().Has(lopBox); });
    // Neither a new layer nor the items that go have commands: an image of them makes the step.
    std::optional<Transaction> step;
    if ((reset || box == fLayers.end()) && !HasAnyState({lsReading}) && !IsReplaying())
        step.emplace(*this);
    if (box == fLayers.end()) {
        auto* layer = new TVGRLayer(*this, TVGRMsg::GetInfoValue(u"BoxLayer"), OpaqueBlack, OpaqueWhite);
        layer->SetOptions(layer->GetOptions() + TKSLayerOpts{lopBox} - TKSLayerOpts{lopSelectable});
        box = std::prev(fLayers.end());
        reset = true;
    }
    {
        const UpdateScope bracket(*this);
        if (reset)
            FillBoxItems(**box);
        else
            FillBoxTexts();
    }
    if (step)
        step->Commit();
}

void TVGRBaseLabel::FillBoxTexts() {
    for (int i = ItemsCount(); i >= 1; --i) {
        TVGRBaseItem& item = *GetItem(i);
        const bool isBoxText =
            std::ranges::any_of(BoxTexts, [&](const TBoxText& row) { return SameText(row.id, item.GetID()); });
        if (auto* text = Query<IKSLText>(&item); text && isBoxText)
            text->SetText(TextFor(item.GetID(), *fMeasure));
    }
}

void TVGRBaseLabel::FillBoxItems(TVGRLayer& layer) {
    for (int i = ItemsCount(); i >= 1; --i)
        if (&GetItem(i)->GetLayer() == &layer)
            FreeItem(*GetItem(i));

    const bool drawing = fEditorMode == emDrawing;
    const std::int64_t scale = fMeasure->GetDrawScale();
    const std::int64_t width = fMeasure->GetSize(mtLabelWidth, true), height = fMeasure->GetSize(mtLabelHeight, true);
    auto fromRight = [&](std::int64_t paper) { return SubSat(width, MulSat(paper, scale)); };
    auto fromBottom = [&](std::int64_t paper) { return SubSat(height, MulSat(paper, scale)); };
    auto place = [&](TVGRBaseItem& item, std::u16string_view id, float pen) {
        item.SetLayer(layer);
        item.SetFixedID(id);
        item.SetColor(OpaqueBlack);
        if (pen > 0)
            item.SetPenWidth(pen);
    };
    auto frame = [&](std::u16string_view id, std::int64_t x, std::int64_t y, std::int64_t w, std::int64_t h) {
        TVGRBaseItem& item = CreateRectangle(x, y, w, h);
        place(item, id, 1);
        if (auto* radius = Query<IKSLRadio>(&item))
            radius->SetBaseRadio(0);
        if (auto* back = Query<IKSLBack>(&item))
            back->SetFilled(false);
    };

    for (const TBoxLine& row : BoxLines)
        if (drawing || !row.onlyDrawing)
            place(CreateLine(fromRight(row.left), fromBottom(row.top), fromRight(row.right), fromBottom(row.bottom)),
                  row.id, 0.5f);
    frame(u"bxIDFrame", fromRight(90000), fromBottom(50000), MulSat(80000, scale), MulSat(40000, scale));
    frame(u"bxIDPageFrame", MulSat(10000, scale), MulSat(10000, scale), SubSat(width, MulSat(20000, scale)),
          SubSat(height, MulSat(20000, scale)));
    for (const TBoxText& row : BoxTexts) {
        if (!drawing && row.onlyDrawing)
            continue;
        TVGRBaseItem& item = CreateText(fromRight(row.right), fromBottom(row.bottom));
        place(item, row.id, 0);
        if (auto* font = Query<IKSLFont>(&item)) {
            font->SetFontName(u"Verdana");
            font->SetFontHeight(row.height);
            font->SetBold(row.bold);
        }
        if (auto* align = Query<IKSLAlign>(&item)) {
            align->SetHorzAlign(haCenter);
            align->SetVertAlign(vaCenter);
        }
        if (auto* text = Query<IKSLText>(&item))
            text->SetText(TextFor(row.id, *fMeasure));
    }
}

} // namespace vagrel
