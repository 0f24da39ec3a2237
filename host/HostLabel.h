// SPDX-License-Identifier: MIT
// The reference host's document.
#pragma once

#include <vagrel/document/PartialLabel.h>

namespace vagrel {

class CairoDraw;
class TextMeasurer;

/// A document without a window: its items measure their texts and are painted on Cairo. What needs a printer throws
/// ENotAvailable.
class HostLabel : public PartialLabel {
public:
    explicit HostLabel(TComponent* owner = nullptr);
    /// A document whose texts are measured by `measurer`, which must outlive it.
    HostLabel(TComponent* owner, const TextMeasurer& measurer);
    ~HostLabel() override;

    const TextMeasurer& Measurer() const { return fMeasurer; }
    /// Paints the items that are visible and exported, in their order. In the states of preview and export the copies
    /// of the context's cell stand for the items that are bound to data.
    void PaintItems(const CairoDraw& draw) const;

    TVGRBaseItem& MakeItem(TVGRLayer& layer, TKSLItemType type, int points, bool preview) override;
    void Print() override;
    /// Writes the sheet `page`, or all of them for 0. A picture has 96 × `scale` dots per inch. `checkData` prepares
    /// the merge first; without it the merge must stand. `fit` writes the label alone, cut to what stands on it. Throws
    /// ENotAvailable for XPS and GIF, EOutOfRange for a page that does not exist.
    void ExportDoc(TKSLExport type, std::u16string_view filename, int page, float scale, int quality, bool checkData,
                   bool transparent, bool fit) override;

private:
    const TextMeasurer& fMeasurer;
};

} // namespace vagrel
