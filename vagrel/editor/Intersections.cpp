// SPDX-License-Identifier: MIT
// The document's side of the intersection worker.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/editor/CrossingsWorker.h>

namespace vagrel {

std::vector<TFigure> FiguresOf(const TVGRBaseLabel& label) {
    std::vector<TFigure> figures;
    for (int i = 1; i <= label.ItemsCount(); ++i)
        if (const TVGRBaseItem& item = *label.GetItem(i); item.Shows({lopVisible}))
            if (TKSLShape shape = item.Shape(); shape.kind != skNone)
                figures.push_back({item.GetInID(), std::move(shape)});
    return figures;
}

void TVGRBaseLabel::CheckIntersetions() { fCrossings->Request(); }
bool TVGRBaseLabel::GetComputActive() const { return fCrossings->IsActive(); }
bool TVGRBaseLabel::GetFreshCrossings() const { return fCrossings->Remembers(); }
void TVGRBaseLabel::SetFreshCrossings(bool value) { fCrossings->SetRemembers(value); }
void TVGRBaseLabel::RemoveElementFromIntersections(std::int32_t id) { fCrossings->Published().Remove(id); }
std::vector<TIntSecPoint> TVGRBaseLabel::GetIntersections() const { return fCrossings->Published().List(); }

} // namespace vagrel
