// SPDX-License-Identifier: MIT
// Crossings of figures pair by pair: segments, circles and arcs in closed form, two ellipses by a numeric solution.
#include <vagrel/foundation/Crossings.h>

#include <vagrel/foundation/TDraw2D.h>
#include <vagrel/foundation/TDraw2D_p.h>

namespace vagrel {

using namespace detail;

TKSLShape TKSLShape::Segments(TKSLPtoA vertices, bool isClosed) {
    TKSLShape shape;
    shape.kind = skSegments, shape.points = std::move(vertices), shape.closed = isClosed;
    return shape;
}

TKSLShape TKSLShape::Circle(std::int64_t x, std::int64_t y, std::int64_t radius) {
    TKSLShape shape = Ellipse(x, y, radius, radius);
    shape.kind = skCircle;
    return shape;
}

TKSLShape TKSLShape::Arc(std::int64_t x, std::int64_t y, std::int64_t radius, double start, double end,
                         bool isClockwise) {
    TKSLShape shape = Ellipse(x, y, radius, radius);
    shape.kind = skArc;
    shape.angStart = start, shape.angEnd = end, shape.clockwise = isClockwise;
    return shape;
}

TKSLShape TKSLShape::Ellipse(std::int64_t x, std::int64_t y, std::int64_t radiusX, std::int64_t radiusY) {
    TKSLShape shape;
    shape.kind = skEllipse, shape.cx = x, shape.cy = y, shape.rx = radiusX, shape.ry = radiusY;
    return shape;
}

TKSLRect BoundsOf(const TKSLShape& shape) {
    TKSLRect box;
    if (shape.kind == skSegments) {
        for (const TKSLPto& point : shape.points) {
            if (&point == &shape.points.front())
                box = {point.bX, point.bY, point.bX, point.bY};
            box = {std::min(box.Left, point.bX), std::min(box.Top, point.bY), std::max(box.Right, point.bX),
                   std::max(box.Bottom, point.bY)};
        }
        return box;
    }
    box = {shape.cx, shape.cy, shape.cx, shape.cy};
    box.Inflate(shape.rx, shape.kind == skEllipse ? shape.ry : shape.rx);
    return box;
}

namespace {

// What figures may miss each other by and still touch, in base units.
constexpr double Touch = 1;

using Points = std::vector<TKSLPto>;

// An arc or circle as the ellipse on which it lies.
struct Oval {
    double rx;
    double ry;
    std::int64_t cx;
    std::int64_t cy;

    explicit Oval(const TKSLShape& shape)
        : rx(double(shape.rx)), ry(double(shape.kind == skEllipse ? shape.ry : shape.rx)), cx(shape.cx), cy(shape.cy) {}
    bool IsValid() const { return rx >= 1 && ry >= 1; }
    friend bool operator==(const Oval&, const Oval&) = default;
};

// Whether the direction of a point of the circle lies on the arc; within `Touch` of its ends counts.
bool OnArc(const TKSLShape& arc, TKSLPto point) {
    if (arc.kind != skArc)
        return true;
    const double slack = Touch / double(arc.rx);
    const double angle = std::atan2(Delta(point.bY, arc.cy), Delta(point.bX, arc.cx));
    const double start = TDraw2D::NormalizeAngle(arc.angStart), end = TDraw2D::NormalizeAngle(arc.angEnd);
    const double along = TDraw2D::ArcParam(start, end, arc.clockwise, TDraw2D::NormalizeAngle(angle));
    return along <= TDraw2D::ArcSweep(start, end, arc.clockwise) + slack || along >= TwoPi - slack;
}

// The two roundings of one crossing may differ by a unit.
void AddApart(Points& out, TKSLPto point) {
    for (TKSLPto known : out)
        if (std::fabs(Delta(known.bX, point.bX)) < 2 && std::fabs(Delta(known.bY, point.bY)) < 2)
            return;
    out.push_back(point);
}

template <class Use>
void ForEachSegment(const TKSLShape& shape, Use use) {
    const std::size_t count = shape.points.size();
    for (std::size_t i = 0; i + 1 < count; ++i)
        use(shape.points[i], shape.points[i + 1]);
    if (shape.closed && count > 2)
        use(shape.points[count - 1], shape.points[0]);
}

bool Apart(std::int64_t a1, std::int64_t a2, std::int64_t b1, std::int64_t b2) {
    return std::max(a1, a2) < std::min(b1, b2) || std::max(b1, b2) < std::min(a1, a2);
}

bool Misses(const TKSLRect& box, TKSLPto p, TKSLPto q) {
    return Apart(box.Left, box.Right, p.bX, q.bX) || Apart(box.Top, box.Bottom, p.bY, q.bY);
}

void CrossSegments(const TKSLShape& a, const TKSLShape& b, const TKSLRect& boxOfB, Points& out) {
    ForEachSegment(a, [&](TKSLPto p, TKSLPto q) {
        if (Misses(boxOfB, p, q))
            return;
        const TKSLRect box{p.bX, p.bY, q.bX, q.bY};
        ForEachSegment(b, [&](TKSLPto r, TKSLPto s) {
            TKSLPto point;
            if (!Misses(box, r, s) &&
                TDraw2D::IntersectLines(p.bX, p.bY, q.bX, q.bY, r.bX, r.bY, s.bX, s.bY, true, true, point.bX, point.bY))
                out.push_back(point);
        });
    });
    const auto order = [](TKSLPto p, TKSLPto q) { return p.bX != q.bX ? p.bX < q.bX : p.bY < q.bY; };
    std::sort(out.begin(), out.end(), order);
    out.erase(std::unique(out.begin(), out.end()), out.end());
}

void CrossOval(const TKSLShape& segments, const TKSLShape& curve, const TKSLRect& boxOfCurve, Points& out) {
    const Oval oval(curve);
    const std::int64_t rx = curve.rx, ry = curve.kind == skEllipse ? curve.ry : curve.rx;
    ForEachSegment(segments, [&](TKSLPto p, TKSLPto q) {
        const double length = TDraw2D::Magnitude(Delta(q.bX, p.bX), Delta(q.bY, p.bY));
        if (length == 0 || Misses(boxOfCurve, p, q))
            return;
        // In the frame in which the oval is a unit circle, the line lies `off` from the centre, and a shift by one base
        // unit moves it by `unit`.
        const TQuadratic line = LineOnEllipse(p.bX, p.bY, q.bX, q.bY, oval.cx, oval.cy, rx, ry);
        const double unit = length / (oval.rx * oval.ry * std::sqrt(line.a));
        const double off = std::sqrt(std::max(0.0, 1 - line.discriminant / (4 * line.a)));
        if (off > 1 + Touch * unit)
            return;
        for (double t : {line.First(), line.Second()}) {
            const TKSLPto point{Along(p.bX, q.bX, t), Along(p.bY, q.bY, t)};
            if (t * length >= -Touch && (t - 1) * length <= Touch && OnArc(curve, point))
                AddApart(out, point);
        }
    });
}

void CrossCircles(const TKSLShape& a, const TKSLShape& b, Points& out) {
    TKSLPto p[2];
    const int count =
        TDraw2D::CircleCrossCircle(a.cx, a.cy, a.rx, b.cx, b.cy, b.rx, p[0].bX, p[0].bY, p[1].bX, p[1].bY);
    for (int i = 0; i < count; ++i)
        // Circles about nearly the same centre pass the test of distances without a point in common.
        if (TDraw2D::PointOnCircle(a.cx, a.cy, a.rx, p[i].bX, p[i].bY, 2) &&
            TDraw2D::PointOnCircle(b.cx, b.cy, b.rx, p[i].bX, p[i].bY, 2) && OnArc(a, p[i]) && OnArc(b, p[i]))
            AddApart(out, p[i]);
}

// The implicit function of one oval along the outline of another, by the angle of the outline: 0 on a crossing,
// negative inside. It is a trigonometric polynomial of second degree, so it turns at most four times.
class OutlineFunction {
public:
    OutlineFunction(const Oval& outline, const Oval& other)
        : fRx(outline.rx / other.rx), fRy(outline.ry / other.ry), fX(Delta(outline.cx, other.cx) / other.rx),
          fY(Delta(outline.cy, other.cy) / other.ry), fOther(other) {}

    double Value(double angle) const {
        const auto [u, v] = At(std::cos(angle), std::sin(angle));
        return u * u + v * v - 1;
    }
    double Slope(double angle) const {
        const double c = std::cos(angle), s = std::sin(angle);
        const auto [u, v] = At(c, s);
        return 2 * (v * fRy * c - u * fRx * s);
    }
    /// How much the value changes over one base unit across the line of the other oval.
    double UnitStep(double angle) const {
        const auto [u, v] = At(std::cos(angle), std::sin(angle));
        return 2 * TDraw2D::Magnitude(u / fOther.rx, v / fOther.ry);
    }

private:
    TPoint2D At(double c, double s) const { return {fX + fRx * c, fY + fRy * s}; }

    double fRx, fRy, fX, fY;
    Oval fOther;
};

// The zero of a function between two angles at which its signs differ.
template <class Function>
double Bisect(Function function, double low, double high) {
    const bool rises = function(low) < 0;
    for (int step = 0; step < 60; ++step) {
        const double middle = (low + high) / 2;
        ((function(middle) < 0) == rises ? low : high) = middle;
    }
    return (low + high) / 2;
}

// The angles at which the function turns, in order. Half a step of offset keeps the samples away from the axes, where
// the turns of figures with a common axis lie.
std::vector<double> Turns(const OutlineFunction& function) {
    constexpr int samples = 240;
    const auto slope = [&function](double angle) { return function.Slope(angle); };
    const auto angleOf = [](int sample) { return (sample + 0.5) * TwoPi / samples; };
    std::vector<double> turns;
    bool falls = slope(angleOf(0)) < 0;
    for (int i = 1; i <= samples; ++i)
        if (const bool fell = falls; (falls = slope(angleOf(i)) < 0) != fell)
            turns.push_back(Bisect(slope, angleOf(i - 1), angleOf(i)));
    return turns;
}

void CrossOvals(const TKSLShape& a, const TKSLShape& b, Points& out) {
    const Oval outline(a), other(b);
    if (outline == other)
        return;
    const OutlineFunction function(outline, other);
    const auto value = [&function](double angle) { return function.Value(angle); };
    const auto add = [&](double angle) {
        const TKSLPto point{Round(double(outline.cx) + outline.rx * std::cos(angle)),
                            Round(double(outline.cy) + outline.ry * std::sin(angle))};
        if (OnArc(a, point) && OnArc(b, point))
            AddApart(out, point);
    };
    const std::vector<double> turns = Turns(function);
    // More turns than the degree allows are rounding noise on a constant: circles about one centre.
    if (turns.size() > 4)
        return;
    for (std::size_t i = 0; i < turns.size(); ++i) {
        // From one turn to the next the function is monotonic.
        const double from = turns[i], to = i + 1 < turns.size() ? turns[i + 1] : turns[0] + TwoPi;
        const double here = value(from), next = value(to);
        if ((here < 0) != (next < 0))
            add(Bisect(value, from, to));
        const bool lowest = next > here;
        if ((lowest ? here >= 0 : here < 0) && std::fabs(here) <= Touch * function.UnitStep(from))
            add(from);
    }
}

} // namespace

void CrossShapes(const TKSLShape& a, const TKSLShape& b, std::vector<TKSLPto>& out) {
    out.clear();
    const auto isCurve = [](const TKSLShape& shape) { return shape.kind >= skCircle && shape.kind <= skEllipse; };
    for (const TKSLShape* shape : {&a, &b})
        if (isCurve(*shape) ? !Oval(*shape).IsValid() : shape->kind != skSegments || shape->points.size() < 2)
            return;
    TKSLRect boxOfA = BoundsOf(a), boxOfB = BoundsOf(b);
    boxOfB.Inflate(2, 2);
    if (Apart(boxOfA.Left, boxOfA.Right, boxOfB.Left, boxOfB.Right) ||
        Apart(boxOfA.Top, boxOfA.Bottom, boxOfB.Top, boxOfB.Bottom))
        return;
    if (!isCurve(a) && !isCurve(b))
        CrossSegments(a, b, boxOfB, out);
    else if (!isCurve(b))
        boxOfA.Inflate(2, 2), CrossOval(b, a, boxOfA, out);
    else if (!isCurve(a))
        CrossOval(a, b, boxOfB, out);
    else if (a.kind == skEllipse || b.kind == skEllipse)
        CrossOvals(a, b, out);
    else
        CrossCircles(a, b, out);
}

} // namespace vagrel
