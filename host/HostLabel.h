// SPDX-License-Identifier: MIT
// The reference host's document.
#pragma once

#include <vagrel/document/TVGRBaseLabel.h>

namespace vagrel {

class CairoDraw;
class TextMeasurer;
class TJsonObject;

/// A document without a window: it makes items, measures their texts, paints them, reads and writes files. What needs a
/// printer throws ENotAvailable.
class HostLabel : public TVGRBaseLabel {
public:
    explicit HostLabel(TComponent* owner = nullptr);
    /// A document whose texts are measured by `measurer`, which must outlive it.
    HostLabel(TComponent* owner, const TextMeasurer& measurer);
    ~HostLabel() override;

    const TextMeasurer& Measurer() const { return fMeasurer; }
    /// Paints the items that are visible and exported, in their order. In the states of preview and export the copies
    /// of the context's cell stand for the items that are bound to data.
    void PaintItems(const CairoDraw& draw) const;
    /// Makes the preview copies anew: one of each item that is bound to data for each cell of the sheet.
    /// Throws EOutOfRange for a sheet of more than 10,000 cells.
    void MakePreview();

    /// Reads a document, JSON or binary by its first character. Throws EVagrel with the file and the place in it; the
    /// document that stood before is untouched then.
    void LoadFromFile(std::u16string_view filename) override;
    /// Writes the document whole or not at all. Throws EStreamError.
    void SaveToFile(std::u16string_view filename, TKSLExt format) override;
    /// Reads a whole document from its tree or from the bytes of a file. Throws EVagrel with the place; what was read
    /// until then stands.
    void ReadDocument(TJsonObject& root);
    void ReadDocument(std::string_view bytes);
    /// The bytes of the binary file: the document's blocks, then the counted symbols, then the counted items.
    std::string ToBinary() const;

    TVGRBaseItem& CreateText(std::int64_t x, std::int64_t y) override;
    TVGRBaseItem& CreatePara(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) override;
    TVGRBaseItem& CreateRichText(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) override;
    TVGRBaseItem& CreatePoint(std::int64_t x, std::int64_t y) override;
    TVGRBaseItem& CreateLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2) override;
    TVGRBaseItem& CreateArrowLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2) override;
    TVGRBaseItem& CreatePolyLine(const TKSLPtoA& points) override;
    TVGRBaseItem& CreateBezier(const TKSLPtoA& points) override;
    TVGRBaseItem& CreateArc(TKSLPto first, TKSLPto second, TKSLPto third) override;
    TVGRBaseItem& CreateRectangle(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) override;
    TVGRBaseItem& CreatePackage(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) override;
    TVGRBaseItem& CreatePolygon(const TKSLPtoA& points) override;
    TVGRBaseItem& CreateCircle(TKSLPto center, std::int64_t radius) override;
    TVGRBaseItem& CreateCircle2P(TKSLPto first, TKSLPto second) override;
    TVGRBaseItem& CreateCircle3P(TKSLPto first, TKSLPto second, TKSLPto third) override;
    TVGRBaseItem& CreateSector(TKSLPto center, std::int64_t radius, float start, float end) override;
    TVGRBaseItem& CreateSector2P(TKSLPto first, TKSLPto second, float start, float end) override;
    TVGRBaseItem& CreateSector3P(TKSLPto first, TKSLPto second, TKSLPto third, float start, float end) override;
    TVGRBaseItem& CreateLevel(TKSLPto center, std::int64_t radius) override;
    TVGRBaseItem& CreateEllipse(TKSLPto center, std::int64_t radiusX, std::int64_t radiusY) override;
    TVGRBaseItem& CreateBarcode(std::int64_t x, std::int64_t y, std::u16string_view text, TKSLBarType type) override;
    TVGRBaseItem& CreatePDF417(std::int64_t x, std::int64_t y, std::u16string_view text) override;
    TVGRBaseItem& CreateDataMatrix(std::int64_t x, std::int64_t y, std::u16string_view text) override;
    TVGRBaseItem& CreateQRCode(std::int64_t x, std::int64_t y, std::u16string_view text) override;
    TVGRBaseItem& CreateImage(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height, bool keepAspect,
                              std::u16string_view source) override;
    TVGRBaseItem& CreateFlow(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height,
                             TKSLFlowType type) override;
    TVGRBaseItem& CreateLink(const TKSLink& from, const TKSLink& to, TKSLinkType type) override;
    TVGRBaseItem& CreatePolyLink(const TKSLink& from, const TKSLink& to, TKSLinkType type,
                                 const TKSLPtoA& points) override;
    TVGRBaseItem& CreateTable(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) override;
    TVGRBaseItem& CreatePolyText(std::int64_t x, std::int64_t y) override;
    TVGRBaseItem& CreateRank(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) override;
    TVGRBaseItem& CreateNutriScore(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) override;
    TVGRBaseItem& CreateSymbol(std::int64_t x, std::int64_t y) override;
    TVGRBaseItem& CreateDim(TKSLPto first, TKSLPto second, TKSLPto position) override;
    TVGRBaseItem* CreateDimAng(const TKSLRefLine& first, const TKSLRefLine& second, TKSLPto side) override;
    TVGRBaseItem& CreateDimRad1(TKSLPto center, std::int64_t radius, double angle) override;
    TVGRBaseItem& CreateDimRad2(TKSLPto center, std::int64_t radius, double angle) override;
    TVGRBaseItem& CreateDimDia1(TKSLPto center, std::int64_t radius, double angle) override;
    TVGRBaseItem& CreateDimDia2(TKSLPto center, std::int64_t radius, double angle) override;
    TVGRBaseItem& CreateElementFromStream(std::string_view snapshot) override;
    void PasteSelection() override;
    void Print() override;
    /// Writes the sheet `page`, or all of them for 0. A picture has 96 × `scale` dots per inch. `checkData` prepares
    /// the merge first; without it the merge must stand. `fit` writes the label alone, cut to what stands on it. Throws
    /// ENotAvailable for XPS and GIF, EOutOfRange for a page that does not exist.
    void ExportDoc(TKSLExport type, std::u16string_view filename, int page, float scale, int quality, bool checkData,
                   bool transparent, bool fit) override;

private:
    /// What stands between the brackets of a read.
    void ReadParts(TJsonObject& root);
    void ReadBlocks(TBinaryReader& reader);
    void ReadBracket(const std::function<void()>& read);
    /// The next item of a snapshot or of the clipboard; none is left when it is damaged.
    TVGRBaseItem& ReadItem(std::int32_t version, TBinaryReader& reader, TKSLReadType type);
    /// An item on the active layer at the given points, which `finish` completes before anybody is told of it.
    TVGRBaseItem& Make(TKSLItemType type, const TKSLPtoA& points = {},
                       const std::function<void(TVGRBaseItem&)>& finish = {});

    const TextMeasurer& fMeasurer;
};

} // namespace vagrel
