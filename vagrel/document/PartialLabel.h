// SPDX-License-Identifier: MIT
// The engine's own document: what a host of one's own starts from.
#pragma once

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Exceptions.h>

namespace vagrel {

/// A document that does everything but what only a host can know. A host says which class stands for an item type, by
/// `MakeItem`; geometry of factories, whole documents in both forms, paste, the copies of a preview are here. What
/// needs a printer or a painter throws ENotAvailable until the host overrides it.
class PartialLabel : public TVGRBaseLabel {
public:
    using Item = TVGRBaseItem;
    using TLength = std::int64_t;
    using TView = std::u16string_view;

    /// Constructs this host's item of a type, or a preview copy of it, on a layer; the document owns it. `points` is
    /// the number of its points, for the types that have any number. Throws ENotAvailable for a type that this host has
    /// no class for, EVagrel for a number that is no type.
    virtual Item& MakeItem(TVGRLayer& layer, TKSLItemType type, int points, bool preview) = 0;

    // Whole documents. Reading is all or nothing: when it throws, the document that stood before stands again, with its
    // handles and its undo, and the exception, an EVagrel, carries the place. Of that document nothing stays but
    // folders, options, language, the host's data sources, the clipboard and the printer.

    /// By the first character: JSON in UTF-8 or UTF-16, or the binary form.
    void LoadFromFile(TView filename) override;
    /// Writes the document whole or not at all. Throws EStreamError.
    void SaveToFile(TView filename, TKSLExt format) override;
    void ReadDocument(TJsonObject& root);
    void ReadDocument(std::string_view bytes);
    /// The bytes of the binary file: the document's blocks, then the counted symbols, then the counted items.
    std::string ToBinary();

    /// Makes the preview copies anew: one of each item that is bound to data for each cell of the sheet.
    /// Throws EOutOfRange for a sheet of more than 10,000 cells.
    void MakePreview();

    Item& CreateText(TLength x, TLength y) override;
    Item& CreatePara(TLength x, TLength y, TLength width, TLength height) override;
    Item& CreateRichText(TLength x, TLength y, TLength width, TLength height) override;
    Item& CreatePoint(TLength x, TLength y) override;
    Item& CreateLine(TLength x1, TLength y1, TLength x2, TLength y2) override;
    Item& CreateArrowLine(TLength x1, TLength y1, TLength x2, TLength y2) override;
    Item& CreatePolyLine(const TKSLPtoA& points) override;
    Item& CreateBezier(const TKSLPtoA& points) override;
    Item& CreateArc(TKSLPto first, TKSLPto second, TKSLPto third) override;
    Item& CreateRectangle(TLength x, TLength y, TLength width, TLength height) override;
    Item& CreatePackage(TLength x, TLength y, TLength width, TLength height) override;
    Item& CreatePolygon(const TKSLPtoA& points) override;
    Item& CreateCircle(TKSLPto center, TLength radius) override;
    /// Throws EInvalidOperation for three points of a line, as `CreateSector3P`.
    Item& CreateCircle3P(TKSLPto first, TKSLPto second, TKSLPto third) override;
    Item& CreateCircle2P(TKSLPto first, TKSLPto second) override;
    Item& CreateSector(TKSLPto center, TLength radius, float start, float end) override;
    Item& CreateSector2P(TKSLPto first, TKSLPto second, float start, float end) override;
    Item& CreateSector3P(TKSLPto first, TKSLPto second, TKSLPto third, float start, float end) override;
    Item& CreateLevel(TKSLPto center, TLength radius) override;
    Item& CreateEllipse(TKSLPto center, TLength radiusX, TLength radiusY) override;
    Item& CreateBarcode(TLength x, TLength y, TView text, TKSLBarType type) override;
    Item& CreatePDF417(TLength x, TLength y, TView text) override;
    Item& CreateDataMatrix(TLength x, TLength y, TView text) override;
    Item& CreateQRCode(TLength x, TLength y, TView text) override;
    Item& CreateImage(TLength x, TLength y, TLength width, TLength height, bool keepAspect, TView source) override;
    Item& CreateFlow(TLength x, TLength y, TLength width, TLength height, TKSLFlowType type) override;
    Item& CreateLink(const TKSLink& from, const TKSLink& to, TKSLinkType type) override;
    Item& CreatePolyLink(const TKSLink& from, const TKSLink& to, TKSLinkType type, const TKSLPtoA& points) override;
    Item& CreateTable(TLength x, TLength y, TLength width, TLength height) override;
    Item& CreatePolyText(TLength x, TLength y) override;
    Item& CreateRank(TLength x, TLength y, TLength width, TLength height) override;
    Item& CreateNutriScore(TLength x, TLength y, TLength width, TLength height) override;
    Item& CreateSymbol(TLength x, TLength y) override;
    Item& CreateDim(TKSLPto first, TKSLPto second, TKSLPto position) override;
    Item* CreateDimAng(const TKSLRefLine& first, const TKSLRefLine& second, TKSLPto side) override;
    Item& CreateDimRad1(TKSLPto center, TLength radius, double angle) override;
    Item& CreateDimRad2(TKSLPto center, TLength radius, double angle) override;
    Item& CreateDimDia1(TKSLPto center, TLength radius, double angle) override;
    Item& CreateDimDia2(TKSLPto center, TLength radius, double angle) override;
    Item& CreateElementFromStream(std::string_view snapshot) override;
    void PasteSelection() override;
    void Print() override { NotDone(u"Print"); }
    void ExportDoc(TKSLExport, TView, int, float, int, bool, bool, bool) override { NotDone(u"ExportDoc"); }

protected:
    using TVGRBaseLabel::TVGRBaseLabel;

private:
    [[noreturn]] static void NotDone(TView operation) {
        throw ENotAvailable(u"This host has no " + std::u16string(operation));
    }
    /// An item on the active layer at the given points, which `finish` completes before anybody is told of it.
    Item& Make(TKSLItemType type, const TKSLPtoA& points = {}, const std::function<void(Item&)>& finish = {});
    /// The next item of a snapshot or of the clipboard; none is left when it is damaged.
    Item& ReadItem(std::int32_t version, TBinaryReader& reader, TKSLReadType type);
    void ReadParts(TJsonObject& root);
    void ReadBlocks(TBinaryReader& reader);
};

} // namespace vagrel
