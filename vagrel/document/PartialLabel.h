// SPDX-License-Identifier: MIT
// A document whose host can do nothing yet: what a host of one's own starts from.
#pragma once

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Exceptions.h>

namespace vagrel {

/// Each operation of a host throws ENotAvailable and names itself, until the host overrides it.
class PartialLabel : public TVGRBaseLabel {
protected:
    using Item = TVGRBaseItem;
    using TLength = std::int64_t;
    using TView = std::u16string_view;

    using TVGRBaseLabel::TVGRBaseLabel;

public:
    Item& CreateText(TLength, TLength) override { NotMade(itText); }
    Item& CreatePara(TLength, TLength, TLength, TLength) override { NotMade(itPara); }
    Item& CreateRichText(TLength, TLength, TLength, TLength) override { NotMade(itRichText); }
    Item& CreatePoint(TLength, TLength) override { NotMade(itPoint); }
    Item& CreateLine(TLength, TLength, TLength, TLength) override { NotMade(itLine); }
    Item& CreateArrowLine(TLength, TLength, TLength, TLength) override { NotMade(itArrowLine); }
    Item& CreatePolyLine(const TKSLPtoA&) override { NotMade(itPolyLine); }
    Item& CreateBezier(const TKSLPtoA&) override { NotMade(itBezier); }
    Item& CreateArc(TKSLPto, TKSLPto, TKSLPto) override { NotMade(itArc); }
    Item& CreateRectangle(TLength, TLength, TLength, TLength) override { NotMade(itRectangle); }
    Item& CreatePackage(TLength, TLength, TLength, TLength) override { NotMade(itPackage); }
    Item& CreatePolygon(const TKSLPtoA&) override { NotMade(itPolygon); }
    Item& CreateCircle(TKSLPto, TLength) override { NotMade(itCircle); }
    Item& CreateCircle2P(TKSLPto, TKSLPto) override { NotMade(itCircle); }
    Item& CreateCircle3P(TKSLPto, TKSLPto, TKSLPto) override { NotMade(itCircle); }
    Item& CreateSector(TKSLPto, TLength, float, float) override { NotMade(itSector); }
    Item& CreateSector2P(TKSLPto, TKSLPto, float, float) override { NotMade(itSector); }
    Item& CreateSector3P(TKSLPto, TKSLPto, TKSLPto, float, float) override { NotMade(itSector); }
    Item& CreateLevel(TKSLPto, TLength) override { NotMade(itLevel); }
    Item& CreateEllipse(TKSLPto, TLength, TLength) override { NotMade(itEllipse); }
    Item& CreateBarcode(TLength, TLength, TView, TKSLBarType) override { NotMade(itBarcode); }
    Item& CreatePDF417(TLength, TLength, TView) override { NotMade(itPDF417); }
    Item& CreateDataMatrix(TLength, TLength, TView) override { NotMade(itDataMatrix); }
    Item& CreateQRCode(TLength, TLength, TView) override { NotMade(itQRCode); }
    Item& CreateImage(TLength, TLength, TLength, TLength, bool, TView) override { NotMade(itImage); }
    Item& CreateFlow(TLength, TLength, TLength, TLength, TKSLFlowType) override { NotMade(itFlow); }
    Item& CreateLink(const TKSLink&, const TKSLink&, TKSLinkType) override { NotMade(itLink); }
    Item& CreatePolyLink(const TKSLink&, const TKSLink&, TKSLinkType, const TKSLPtoA&) override { NotMade(itLink); }
    Item& CreateTable(TLength, TLength, TLength, TLength) override { NotMade(itTable); }
    Item& CreatePolyText(TLength, TLength) override { NotMade(itPolyText); }
    Item& CreateRank(TLength, TLength, TLength, TLength) override { NotMade(itRank); }
    Item& CreateNutriScore(TLength, TLength, TLength, TLength) override { NotMade(itNutriScore); }
    Item& CreateSymbol(TLength, TLength) override { NotMade(itSymbol); }
    Item& CreateDim(TKSLPto, TKSLPto, TKSLPto) override { NotMade(itDim); }
    Item* CreateDimAng(const TKSLRefLine&, const TKSLRefLine&, TKSLPto) override { NotMade(itDim); }
    Item& CreateDimRad1(TKSLPto, TLength, double) override { NotMade(itDim); }
    Item& CreateDimRad2(TKSLPto, TLength, double) override { NotMade(itDim); }
    Item& CreateDimDia1(TKSLPto, TLength, double) override { NotMade(itDim); }
    Item& CreateDimDia2(TKSLPto, TLength, double) override { NotMade(itDim); }
    Item& CreateElementFromStream(std::string_view) override { NotDone(u"CreateElementFromStream"); }
    void PasteSelection() override { NotDone(u"PasteSelection"); }
    void Print() override { NotDone(u"Print"); }
    void ExportDoc(TKSLExport, TView, int, float, int, bool, bool, bool) override { NotDone(u"ExportDoc"); }
    void LoadFromFile(TView) override { NotDone(u"LoadFromFile"); }
    void SaveToFile(TView, TKSLExt) override { NotDone(u"SaveToFile"); }

private:
    [[noreturn]] static void NotMade(TKSLItemType type) {
        throw ENotAvailable(u"This host makes no items of the type " + std::u16string(NameItem(type)));
    }
    [[noreturn]] static void NotDone(TView operation) {
        throw ENotAvailable(u"This host has no " + std::u16string(operation));
    }
};

} // namespace vagrel
