// SPDX-License-Identifier: MIT
// The factories: each one places an item of the host by its points.
#include <vagrel/document/PartialLabel.h>

#include <vagrel/barcode/TVGRBaseBarcode.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TDraw2D.h>
#include <vagrel/items/figures/TVGRBaseSector.h>

namespace vagrel {

namespace {

// The corners of the box around a centre.
TKSLPtoA Around(TKSLPto center, std::int64_t radiusX, std::int64_t radiusY) {
    return {{SubSat(center.bX, radiusX), SubSat(center.bY, radiusY)},
            {AddSat(center.bX, radiusX), AddSat(center.bY, radiusY)}};
}

TKSLPtoA Box(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) {
    return {{x, y}, {AddSat(x, width), AddSat(y, height)}};
}

// Gives a new symbol its text; it does not wait for the end of a bracket.
auto Coded(std::u16string_view text) {
    return [text](TVGRBaseItem& item) {
        dynamic_cast<TVGRBaseCode&>(item).SetCode(text);
        item.CalcValues(2);
    };
}

struct TCircle {
    TKSLPto center;
    std::int64_t radius = 0;
};

TCircle Through(TKSLPto a, TKSLPto b) {
    TCircle circle;
    TDraw2D::CircleTwoPoints(a.bX, a.bY, b.bX, b.bY, circle.center.bX, circle.center.bY, circle.radius);
    return circle;
}

TCircle Through(TKSLPto a, TKSLPto b, TKSLPto c) {
    TCircle circle;
    if (!TDraw2D::CircleThreePoints(a.bX, a.bY, b.bX, b.bY, c.bX, c.bY, circle.center.bX, circle.center.bY,
                                    circle.radius))
        throw EInvalidOperation(u"No circle goes through three points of a line");
    return circle;
}

} // namespace

TVGRBaseItem& PartialLabel::Make(TKSLItemType type, const TKSLPtoA& points,
                                 const std::function<void(TVGRBaseItem&)>& finish) {
    return NewItem([&]() -> TVGRBaseItem& { return MakeItem(ActiveLayer(), type, int(points.size()), false); },
                   [&](TVGRBaseItem& item) {
                       item.AssignPoints(points);
                       if (finish)
                           finish(item);
                       item.StateUpdate();
                   });
}

TVGRBaseItem& PartialLabel::CreatePoint(std::int64_t x, std::int64_t y) { return Make(itPoint, {{x, y}}); }

TVGRBaseItem& PartialLabel::CreateLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2) {
    return Make(itLine, {{x1, y1}, {x2, y2}});
}

TVGRBaseItem& PartialLabel::CreatePolyLine(const TKSLPtoA& points) { return Make(itPolyLine, points); }
TVGRBaseItem& PartialLabel::CreateBezier(const TKSLPtoA& points) { return Make(itBezier, points); }
TVGRBaseItem& PartialLabel::CreatePolygon(const TKSLPtoA& points) { return Make(itPolygon, points); }

TVGRBaseItem& PartialLabel::CreateRectangle(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) {
    return Make(itRectangle, Box(x, y, width, height));
}

TVGRBaseItem& PartialLabel::CreateCircle(TKSLPto center, std::int64_t radius) {
    return Make(itCircle, Around(center, radius, radius));
}

TVGRBaseItem& PartialLabel::CreateCircle2P(TKSLPto first, TKSLPto second) {
    const TCircle circle = Through(first, second);
    return CreateCircle(circle.center, circle.radius);
}

TVGRBaseItem& PartialLabel::CreateCircle3P(TKSLPto first, TKSLPto second, TKSLPto third) {
    const TCircle circle = Through(first, second, third);
    return CreateCircle(circle.center, circle.radius);
}

TVGRBaseItem& PartialLabel::CreateSector(TKSLPto center, std::int64_t radius, float start, float end) {
    return Make(itSector, Around(center, radius, radius), [=](TVGRBaseItem& item) {
        auto& sector = dynamic_cast<TVGRBaseSector&>(item);
        sector.SetStartAngle(start);
        sector.SetSweepAngle(end - start);
    });
}

TVGRBaseItem& PartialLabel::CreateSector2P(TKSLPto first, TKSLPto second, float start, float end) {
    const TCircle circle = Through(first, second);
    return CreateSector(circle.center, circle.radius, start, end);
}

TVGRBaseItem& PartialLabel::CreateSector3P(TKSLPto first, TKSLPto second, TKSLPto third, float start, float end) {
    const TCircle circle = Through(first, second, third);
    return CreateSector(circle.center, circle.radius, start, end);
}

TVGRBaseItem& PartialLabel::CreateEllipse(TKSLPto center, std::int64_t radiusX, std::int64_t radiusY) {
    return Make(itEllipse, Around(center, radiusX, radiusY));
}

TVGRBaseItem& PartialLabel::CreateBarcode(std::int64_t x, std::int64_t y, std::u16string_view text, TKSLBarType type) {
    return Make(itBarcode, {{x, y}}, [=](TVGRBaseItem& item) {
        dynamic_cast<TVGRBaseBarcode&>(item).SetCodeType(type);
        Coded(text)(item);
    });
}

TVGRBaseItem& PartialLabel::CreatePDF417(std::int64_t x, std::int64_t y, std::u16string_view text) {
    return Make(itPDF417, {{x, y}}, Coded(text));
}

TVGRBaseItem& PartialLabel::CreateDataMatrix(std::int64_t x, std::int64_t y, std::u16string_view text) {
    return Make(itDataMatrix, {{x, y}}, Coded(text));
}

TVGRBaseItem& PartialLabel::CreateQRCode(std::int64_t x, std::int64_t y, std::u16string_view text) {
    return Make(itQRCode, {{x, y}}, Coded(text));
}

TVGRBaseItem& PartialLabel::CreateText(std::int64_t x, std::int64_t y) {
    return Make(itText, {{x, y}}, [](TVGRBaseItem& text) { text.CalcValues(2); });
}

// Families to come: the host throws as long as it has no class for them.

TVGRBaseItem& PartialLabel::CreatePara(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) {
    return Make(itPara, Box(x, y, width, height));
}
TVGRBaseItem& PartialLabel::CreateRichText(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) {
    return Make(itRichText, Box(x, y, width, height));
}
TVGRBaseItem& PartialLabel::CreateArrowLine(std::int64_t, std::int64_t, std::int64_t, std::int64_t) {
    return Make(itArrowLine);
}
TVGRBaseItem& PartialLabel::CreateArc(TKSLPto, TKSLPto, TKSLPto) { return Make(itArc); }
TVGRBaseItem& PartialLabel::CreatePackage(std::int64_t, std::int64_t, std::int64_t, std::int64_t) {
    return Make(itPackage);
}
TVGRBaseItem& PartialLabel::CreateLevel(TKSLPto, std::int64_t) { return Make(itLevel); }
TVGRBaseItem& PartialLabel::CreateImage(std::int64_t, std::int64_t, std::int64_t, std::int64_t, bool,
                                        std::u16string_view) {
    return Make(itImage);
}
TVGRBaseItem& PartialLabel::CreateFlow(std::int64_t, std::int64_t, std::int64_t, std::int64_t, TKSLFlowType) {
    return Make(itFlow);
}
TVGRBaseItem& PartialLabel::CreateLink(const TKSLink&, const TKSLink&, TKSLinkType) { return Make(itLink); }
TVGRBaseItem& PartialLabel::CreatePolyLink(const TKSLink&, const TKSLink&, TKSLinkType, const TKSLPtoA&) {
    return Make(itLink);
}
TVGRBaseItem& PartialLabel::CreateTable(std::int64_t, std::int64_t, std::int64_t, std::int64_t) {
    return Make(itTable);
}
TVGRBaseItem& PartialLabel::CreatePolyText(std::int64_t, std::int64_t) { return Make(itPolyText); }
TVGRBaseItem& PartialLabel::CreateRank(std::int64_t, std::int64_t, std::int64_t, std::int64_t) { return Make(itRank); }
TVGRBaseItem& PartialLabel::CreateNutriScore(std::int64_t, std::int64_t, std::int64_t, std::int64_t) {
    return Make(itNutriScore);
}
TVGRBaseItem& PartialLabel::CreateSymbol(std::int64_t, std::int64_t) { return Make(itSymbol); }
TVGRBaseItem& PartialLabel::CreateDim(TKSLPto, TKSLPto, TKSLPto) { return Make(itDim); }
TVGRBaseItem* PartialLabel::CreateDimAng(const TKSLRefLine&, const TKSLRefLine&, TKSLPto) { return &Make(itDim); }
TVGRBaseItem& PartialLabel::CreateDimRad1(TKSLPto, std::int64_t, double) { return Make(itDim); }
TVGRBaseItem& PartialLabel::CreateDimRad2(TKSLPto, std::int64_t, double) { return Make(itDim); }
TVGRBaseItem& PartialLabel::CreateDimDia1(TKSLPto, std::int64_t, double) { return Make(itDim); }
TVGRBaseItem& PartialLabel::CreateDimDia2(TKSLPto, std::int64_t, double) { return Make(itDim); }

} // namespace vagrel
