// SPDX-License-Identifier: MIT
// Draws the plan of a house at 1:50 through the public operations of a document: every kind of line and figure, dashes,
// terminals, filled, transparent and hollow figures, layers, turned items. Writes it as a JSON document and as SVG.
//
//     example_draw_sample FILE.json FILE.svg
#include <host/HostLabel.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Text.h>

#include <cmath>
#include <exception>
#include <iostream>

using namespace vagrel;

namespace {

constexpr TAlphaColor Wall = 0xFF37424D, Wood = 0xFF7A6F5D, Cream = 0xFFF6F0E2, Glass = 0xFF3F88B5, Sheet = 0xFFFFFFFF,
                      Leaf = 0xFF5C8A4A, Shade = 0x4D8DB36F, Rust = 0xFFB4532A, Ink = 0xFF51606E;

// Metres to base coordinates.
std::int64_t M(double metres) { return std::llround(metres * 1e6); }
TKSLPto P(double x, double y) { return {M(x), M(y)}; }

// How the next items look: pen width in millimetres on paper, colours, dash.
struct TStyle {
    float pen;
    TAlphaColor color;
    TAlphaColor fill = 0; // hollow
    TKSLineType dash = iiSolid;
};

struct TEnd {
    TKSLTermType type = ttNone;
    float size = 2.5f;
    TAlphaColor fill = Sheet;
};

class Plan {
public:
    Plan() {
        fLabel.SetEditorMode(emDrawing);
        fLabel.SetUnits(unM);
        fLabel.GetMeasure().SetLabelSizeMM(297, 210);
        fLabel.GetMeasure().SetDrawScale(50);
        fLabel.GetMeasure().fTitle = u"House by the lake";
    }

    HostLabel& Label() { return fLabel; }

    void Layer(std::u16string_view name) {
        fLabel.AddLayer().SetName(name);
        fLabel.SetActiveLayer(fLabel.LayersCount());
    }

    // Left, top, right, bottom.
    void Box(const TStyle& style, double x1, double y1, double x2, double y2, double radius = 0) {
        TVGRBaseItem& item = fLabel.CreateRectangle(M(x1), M(y1), M(x2 - x1), M(y2 - y1));
        Query<IKSLRadio>(&item)->SetRadio(float(radius));
        Dress(item, style);
    }
    void Line(const TStyle& style, double x1, double y1, double x2, double y2) {
        Dress(fLabel.CreateLine(M(x1), M(y1), M(x2), M(y2)), style);
    }
    void Circle(const TStyle& style, double x, double y, double radius) {
        Dress(fLabel.CreateCircle(P(x, y), M(radius)), style);
    }
    void Ellipse(const TStyle& style, double x, double y, double radiusX, double radiusY) {
        Dress(fLabel.CreateEllipse(P(x, y), M(radiusX), M(radiusY)), style);
    }
    void Polygon(const TStyle& style, const TKSLPtoA& points) { Dress(fLabel.CreatePolygon(points), style); }
    void Lines(const TStyle& style, const TKSLPtoA& points, TEnd from = {}, TEnd to = {}) {
        Dress(fLabel.CreatePolyLine(points), style, from, to);
    }
    void Curve(const TStyle& style, const TKSLPtoA& points, TEnd from = {}, TEnd to = {}) {
        Dress(fLabel.CreateBezier(points), style, from, to);
    }
    TVGRBaseItem& Slice(const TStyle& style, double x, double y, double radius, float start, float sweep) {
        return Dress(fLabel.CreateSector(P(x, y), M(radius), start, start + sweep), style);
    }
    void Point(double x, double y) { fLabel.CreatePoint(M(x), M(y)); }

    // A number in drawn digits, on a grid of 4 × 6, around a place, 2.4 mm high on paper; upwards when it stands at a
    // vertical line.
    void Number(std::string_view text, double x, double y, bool upwards = false) {
        static constexpr std::string_view digits[] = {
            "103041453616050110",   "112026",   "01103041420646",
            "004022324345361605",   "36300444", "4000023243453606",
            "30200205163645443303", "004016",   "13020110304142331304051636454433",
            "43130201103041442616"};
        const double unit = 0.02;
        double along = -0.5 * unit * (5.4 * double(text.size()));
        for (const char letter : text) {
            const bool digit = letter >= '0' && letter <= '9';
            const std::string_view way = digit ? digits[letter - '0'] : letter == '.' ? "2526" : "";
            TKSLPtoA points;
            for (std::size_t i = 0; i + 1 < way.size(); i += 2) {
                const double right = along + unit * (way[i] - '0'), down = unit * (way[i + 1] - '0' - 3);
                points.push_back(upwards ? P(x + down, y - right) : P(x + right, y + down));
            }
            Lines({0.2f, Ink}, points);
            along += 5.4 * unit;
        }
    }

private:
    static TVGRBaseItem& Dress(TVGRBaseItem& item, const TStyle& style, TEnd from = {}, TEnd to = {}) {
        item.SetPenWidth(style.pen);
        item.SetColor(style.color);
        Query<IKSLStyle>(&item)->SetLineType(style.dash);
        if (auto* back = Query<IKSLBack>(&item)) {
            back->SetFilled(style.fill != 0);
            back->SetBackColor(style.fill);
        }
        if (auto* ends = Query<IKSLSTerm>(&item)) {
            ends->SetFromType(from.type), ends->SetSizeFrom(from.size), ends->SetFromColor(from.fill);
            ends->SetToType(to.type), ends->SetSizeTo(to.size), ends->SetToColor(to.fill);
        }
        return item;
    }

    HostLabel fLabel;
};

void Site(Plan& plan) {
    plan.Box({0.5f, Ink, Sheet}, 0.35, 0.35, 14.5, 10.15);
    plan.Polygon({0.1f, Wood, 0x4DE3CFA4},
                 {P(3.3, 8.8), P(6.5, 8.8), P(6.5, 9.5), P(6.2, 9.8), P(3.6, 9.8), P(3.3, 9.5)});
    for (double x = 3.7; x < 6.4; x += 0.4)
        plan.Line({0.1f, 0x80A08A5A}, x, 8.8, x, 9.8);
    // The path: down on one side, along the edge of the sheet, up on the other.
    plan.Curve({0.1f, Wood, 0x66D8D8D0}, {P(7.75, 8.8), P(7.75, 9.6), P(8.2, 9.6), P(8.2, 10.15), P(8.5, 10.15),
                                          P(8.8, 10.15), P(9.2, 10.15), P(9.2, 9.6), P(8.75, 9.6), P(8.75, 8.8)});
    for (const auto& [x, y, r] :
         {std::array{0.95, 8.35, 0.5}, {2.35, 9.65, 0.4}, {0.95, 3.5, 0.45}, {13.95, 3.3, 0.4}}) {
        plan.Circle({0.2f, Leaf, Shade}, x, y, r);
        for (int i = 0; i < 5; ++i)
            plan.Slice({0.1f, Leaf, 0x4D5C8A4A}, x, y, r * 0.8, float(72 * i) + 8, 40);
        plan.Slice({0.1f, Leaf, Wood}, x, y, 0.06, 0, 360);
    }
    plan.Box({0.2f, Ink, 0, ii42}, 1.95, 1.95, 13.05, 9.15);
    // North.
    plan.Circle({0.2f, Ink}, 13.9, 1.05, 0.35);
    plan.Polygon({0.1f, Ink, Ink}, {P(13.9, 0.6), P(13.9, 1.15), P(13.72, 1.3)});
    plan.Polygon({0.1f, Ink}, {P(13.9, 0.6), P(13.9, 1.15), P(14.08, 1.3)});
}

void Walls(Plan& plan) {
    const TStyle wall{0.2f, Wall, Wall};
    for (const auto& [x1, y1, x2, y2] : {std::array{2.3, 2.2, 12.7, 2.5},
                                         {2.3, 8.5, 12.7, 8.8},
                                         {2.3, 2.5, 2.6, 8.5},
                                         {12.4, 2.5, 12.7, 8.5},
                                         {7.3, 2.5, 7.42, 8.5},
                                         {9.5, 2.5, 9.62, 8.5},
                                         {7.42, 4.9, 9.5, 5.02},
                                         {9.62, 5.9, 12.4, 6.02}})
        plan.Box(wall, x1, y1, x2, y2);
}

void Openings(Plan& plan) {
    const TStyle gap{0, Sheet, Sheet}, glass{0.1f, Glass, 0xFFE4F1F8};
    for (const auto& [x1, y1, x2, y2] : {std::array{7.75, 8.5, 8.75, 8.8},
                                         {4.0, 8.5, 5.8, 8.8},
                                         {7.3, 6.6, 7.42, 7.5},
                                         {8.4, 4.9, 9.2, 5.02},
                                         {9.5, 5.08, 9.62, 5.88},
                                         {9.5, 6.9, 9.62, 7.7}})
        plan.Box(gap, x1, y1 - 0.01, x2, y2 + 0.01);
    for (const auto& [x1, y1, x2, y2] : {std::array{3.4, 2.2, 5.0, 2.5},
                                         {8.1, 2.2, 8.9, 2.5},
                                         {10.3, 2.2, 11.8, 2.5},
                                         {2.3, 4.3, 2.6, 6.6},
                                         {12.4, 3.4, 12.7, 4.8},
                                         {12.4, 6.6, 12.7, 7.8}}) {
        plan.Box(glass, x1, y1, x2, y2);
        x2 - x1 > y2 - y1 ? plan.Line(glass, x1, (y1 + y2) / 2, x2, (y1 + y2) / 2)
                          : plan.Line(glass, (x1 + x2) / 2, y1, (x1 + x2) / 2, y2);
    }
    const TStyle door{0.2f, Rust, 0x33F0B48A};
    plan.Slice(door, 4.0, 8.8, 0.9, 0, 90);
    plan.Slice(door, 5.8, 8.8, 0.9, 90, 90);
    plan.Slice(door, 7.3, 6.6, 0.9, 90, 90);
    plan.Slice(door, 9.2, 4.9, 0.8, 180, 90);
    plan.Slice(door, 9.62, 5.88, 0.8, -90, 90);
    // Two that are drawn on a sheet turned aside: a quarter turn of the page, 10.5 m high, carries them to their place.
    plan.Slice(door, 10.5 - 8.5, 7.75, 1, 0, 90).RotateLeft();
    plan.Slice(door, 10.5 - 7.7, 9.62, 0.8, 0, 90).RotateLeft();
}

void Furniture(Plan& plan) {
    const TStyle wood{0.2f, Wood, Cream}, thin{0.1f, Wood}, white{0.1f, Wood, Sheet};
    // Kitchen.
    plan.Polygon(wood, {P(2.6, 2.5), P(6.2, 2.5), P(6.2, 3.1), P(3.2, 3.1), P(3.2, 3.9), P(2.6, 3.9)});
    plan.Box(white, 3.6, 2.6, 4.4, 3.0, 0.1);
    plan.Circle(thin, 3.8, 2.8, 0.05);
    plan.Box(white, 5.0, 2.55, 5.6, 3.05, 0.05);
    for (const auto& [x, y, r] :
         {std::array{5.15, 2.68, 0.08}, {5.45, 2.68, 0.1}, {5.15, 2.91, 0.1}, {5.45, 2.91, 0.08}})
        plan.Circle(thin, x, y, r);
    plan.Lines({0.1f, Wood, 0, ii33}, {P(6.2, 2.86), P(2.96, 2.86), P(2.96, 3.9)});
    // Dining and living.
    for (const auto& [x, y] : {std::array{6.15, 3.75}, {6.15, 5.25}, {5.4, 4.5}, {6.9, 4.5}})
        plan.Circle(white, x, y, 0.22);
    plan.Circle(wood, 6.15, 4.5, 0.6);
    plan.Ellipse({0.2f, Rust, 0x33D98C5F}, 4.75, 6.3, 1.25, 0.85);
    plan.Ellipse({0.1f, Rust, 0, ii11}, 4.75, 6.3, 1.12, 0.73);
    plan.Polygon(wood, {P(2.75, 4.5), P(4.7, 4.5), P(4.7, 5.3), P(3.6, 5.3), P(3.6, 7.0), P(2.75, 7.0)});
    plan.Polygon(thin, {P(2.95, 4.7), P(4.7, 4.7), P(4.7, 5.3), P(3.6, 5.3), P(3.6, 7.0), P(2.95, 7.0)});
    plan.Box(white, 4.3, 6.0, 5.2, 6.6, 0.08);
    plan.Curve({0.2f, Wall, 0xFF59636D}, {P(2.7, 8.4), P(2.7, 8.05), P(2.7, 7.7), P(2.7, 7.3), P(3.3, 7.2),
                                          P(3.25, 7.7), P(3.5, 7.75), P(3.8, 7.8), P(3.85, 8.1), P(3.85, 8.4)});
    // Bath.
    plan.Box(white, 7.47, 2.55, 8.22, 4.25, 0.1);
    plan.Ellipse(thin, 7.845, 3.4, 0.28, 0.72);
    plan.Box(white, 9.28, 2.8, 9.48, 3.25, 0.04);
    plan.Ellipse(white, 9.05, 3.025, 0.27, 0.19);
    plan.Box(white, 9.02, 3.5, 9.48, 4.05, 0.08);
    plan.Ellipse(thin, 9.22, 3.775, 0.14, 0.2);
    // Bedroom.
    plan.Box(wood, 10.4, 3.3, 12.38, 4.9, 0.08);
    plan.Box(white, 11.85, 3.42, 12.28, 4.02, 0.12);
    plan.Box(white, 11.85, 4.18, 12.28, 4.78, 0.12);
    plan.Curve({0.1f, Wood}, {P(11.65, 3.3), P(11.3, 3.8), P(11.9, 4.4), P(11.5, 4.9)});
    plan.Box(wood, 11.98, 2.82, 12.38, 3.22);
    plan.Box(wood, 11.98, 4.98, 12.38, 5.38);
    plan.Box(wood, 9.64, 2.52, 10.22, 4.6);
    plan.Line({0.1f, Wood, 0, ii22}, 9.64, 2.52, 10.22, 4.6);
    plan.Line({0.1f, Wood, 0, ii22}, 10.22, 2.52, 9.64, 4.6);
    // Study.
    plan.Box(wood, 11.7, 6.3, 12.38, 8.1);
    plan.Slice(white, 11.45, 7.2, 0.3, 90, 180);
    plan.Box(white, 11.85, 6.95, 12.1, 7.45, 0.03);
    plan.Box(wood, 9.9, 8.2, 11.4, 8.48);
    for (double x = 10.2; x < 11.3; x += 0.3)
        plan.Line(thin, x, 8.2, x, 8.48);
    plan.Box(wood, 10.6, 6.15, 11.3, 6.85, 0.2);
}

void Services(Plan& plan) {
    // Lamps and the switches that they hang on.
    const TStyle wire{0.1f, Rust, 0, ii21};
    const TEnd button{ttFillCircle, 1.5f, Rust}, lamp{ttCross, 3}, ring{ttCircle, 3};
    plan.Curve(wire, {P(7.15, 7.65), P(6.6, 7.9), P(5.9, 7.4), P(5.6, 7.2)}, button, lamp);
    plan.Curve(wire, {P(5.6, 7.2), P(5.2, 6.2), P(5.6, 5.4), P(6.15, 4.5)}, ring, lamp);
    plan.Curve(wire, {P(7.6, 6.4), P(7.9, 6.2), P(8.2, 6.4), P(8.45, 6.7)}, button, lamp);
    plan.Curve(wire, {P(9.8, 6.75), P(10.3, 6.9), P(10.7, 7.4), P(10.9, 7.6)}, button, lamp);
    // Water from the main to the basin, and the radiator of the bedroom.
    const TStyle pipe{0.3f, Glass, 0, ii41};
    plan.Lines(pipe, {P(9.05, 2.08), P(9.05, 2.65), P(8.6, 2.65), P(8.6, 3.775), P(9.0, 3.775)}, {ttRhombus, 2},
               {ttFillRhombus, 2, Glass});
    plan.Lines({0.3f, Rust, 0, ii31}, {P(12.3, 5.75), P(10.6, 5.75)}, {ttSquare, 2}, {ttFillSquare, 2, Rust});
}

void Dimensions(Plan& plan) {
    const TStyle thin{0.1f, Ink}, axis{0.1f, Ink, 0, ii411};
    const TEnd slash{ttRightDia, 2}, backslash{ttLeftDia, 2}, bubble{ttFillCircle, 7}, arrow{ttFillArrow, 3, Ink};
    const double axes[] = {2.45, 7.36, 9.56, 12.55};
    const char* widths[] = {"4.91", "2.20", "2.99"};
    for (int i = 0; i < 4; ++i) {
        plan.Lines(axis, {P(axes[i], 0.75), P(axes[i], 2.2)}, bubble);
        plan.Number(std::string(1, char('1' + i)), axes[i], 0.75);
        if (i < 3) {
            plan.Lines(thin, {P(axes[i], 1.75), P(axes[i + 1], 1.75)}, slash, slash);
            plan.Number(widths[i], (axes[i] + axes[i + 1]) / 2, 1.62);
        }
    }
    plan.Lines(thin, {P(2.3, 1.35), P(12.7, 1.35)}, arrow, arrow);
    plan.Number("10.40", 7.9, 1.22);
    const double rows[] = {2.2, 5.96, 8.8};
    for (const double y : rows)
        plan.Line(thin, 12.75, y, 13.45, y);
    for (int i = 0; i < 2; ++i) {
        plan.Lines(thin, {P(13.35, rows[i]), P(13.35, rows[i + 1])}, backslash, backslash);
        plan.Number(i == 0 ? "3.76" : "2.84", 13.22, (rows[i] + rows[i + 1]) / 2 + 0.1, true);
    }
    plan.Line(thin, 1.55, 2.2, 2.25, 2.2);
    plan.Line(thin, 1.55, 8.8, 2.25, 8.8);
    plan.Lines(thin, {P(1.65, 2.2), P(1.65, 8.8)}, {ttArrow, 3}, {ttArrow, 3});
    plan.Number("6.60", 1.52, 5.2, true);
    // The section.
    const TStyle cut{0.5f, Rust, 0, ii411};
    plan.Lines(cut, {P(0.8, 5.2), P(0.8, 5.7), P(1.45, 5.7)}, {ttFillArrow, 4, Rust});
    plan.Lines(cut, {P(14.2, 5.2), P(14.2, 5.7), P(13.55, 5.7)}, {ttFillArrow, 4, Rust});
    for (const double x : axes)
        plan.Point(x, 2.35);
}

// Scale bar, dashes and terminals.
void Legend(Plan& plan) {
    plan.Box({0.3f, Ink, Sheet}, 9.7, 9.3, 14.5, 10.15);
    plan.Line({0.2f, Ink}, 12.0, 9.3, 12.0, 10.15);
    for (int i = 0; i < 4; ++i)
        plan.Box({0.1f, Ink, i % 2 == 0 ? Ink : Sheet}, 12.2 + i * 0.5, 9.85, 12.7 + i * 0.5, 9.93);
    for (int i = 0; i < 3; ++i)
        plan.Number(std::string(1, char('0' + i)), 12.2 + i, 9.72);
    for (int type = iiSolid; type <= ii411; ++type)
        plan.Line({0.2f, Ink, 0, TKSLineType(type)}, 9.85 + type / 4 * 0.7, 9.44 + type % 4 * 0.1,
                  10.4 + type / 4 * 0.7, 9.44 + type % 4 * 0.1);
    for (int type = ttCircle; type <= ttCross; ++type)
        plan.Lines({0.1f, Ink}, {P(9.85 + (type - 1) * 0.19, 10.08), P(9.85 + (type - 1) * 0.19, 9.95)}, {},
                   {TKSLTermType(type), 2, Rust});
}

} // namespace

int main(int argc, char** argv) try {
    if (argc != 3) {
        std::cerr << "usage: example_draw_sample FILE.json FILE.svg\n";
        return 2;
    }
    Plan plan;
    Site(plan);
    plan.Layer(u"Walls");
    Walls(plan);
    plan.Layer(u"Doors and windows");
    Openings(plan);
    plan.Layer(u"Furniture");
    Furniture(plan);
    plan.Layer(u"Services");
    Services(plan);
    plan.Layer(u"Dimensions");
    Dimensions(plan);
    Legend(plan);
    plan.Label().SaveToFile(FromUtf8(argv[1]), lfJSON);
    plan.Label().SaveSVG(FromUtf8(argv[2]), svCurrentUnit, 1, false);
    return 0;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
