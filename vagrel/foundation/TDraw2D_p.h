// SPDX-License-Identifier: MIT
// Exact differences and products, and the equations that several topics of the geometry share.
#pragma once

#include <vagrel/foundation/Rounding.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <optional>

namespace vagrel::detail {

constexpr double Pi = std::numbers::pi;
constexpr double TwoPi = 2 * std::numbers::pi;

/// a − b, limited to ±(2⁶³ − 1): a sum of two products of spans always fits 128 bits.
inline std::int64_t Span(std::int64_t a, std::int64_t b) {
    return std::max(SubSat(a, b), -std::numeric_limits<std::int64_t>::max());
}

inline double Delta(std::int64_t a, std::int64_t b) { return double(Span(a, b)); }

/// Cross and dot product of two vectors of spans.
inline TInt128 Cross(std::int64_t ax, std::int64_t ay, std::int64_t bx, std::int64_t by) {
    return TInt128(ax) * by - TInt128(ay) * bx;
}
inline TInt128 Dot(std::int64_t ax, std::int64_t ay, std::int64_t bx, std::int64_t by) {
    return TInt128(ax) * bx + TInt128(ay) * by;
}

inline bool Between(std::int64_t value, std::int64_t a, std::int64_t b) {
    return value >= std::min(a, b) && value <= std::max(a, b);
}

/// (a + b) ÷ 2, truncated.
inline std::int64_t Middle(std::int64_t a, std::int64_t b) { return std::int64_t((TInt128(a) + b) / 2); }

struct TCircle2D {
    double x = 0;
    double y = 0;
    double r = 0;
};

/// The circle through three points; none for points on one line.
std::optional<TCircle2D> CircumCircle(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                                      std::int64_t x3, std::int64_t y3);

/// a·t² + b·t + c = 0 for the points p + t·d of a line on a circle or ellipse.
struct TQuadratic {
    double a = 0;
    double b = 0;
    double discriminant = 0;

    double Tangent() const { return -b / (2 * a); }
    double First() const { return (-b - std::sqrt(std::max(0.0, discriminant))) / (2 * a); }
    double Second() const { return (-b + std::sqrt(std::max(0.0, discriminant))) / (2 * a); }
};

/// The equation for a circle about the origin, with the line's point (fx, fy), its direction (dx, dy) and their cross
/// product. b² − 4ac equals 4(|d|²r² − cross²), which loses no digits when the point lies far away.
inline TQuadratic LineOnCircle(double fx, double fy, double dx, double dy, double cross, double r) {
    const double a = dx * dx + dy * dy, reach = std::sqrt(a) * std::fabs(r), off = std::fabs(cross);
    return {a, 2 * (dx * fx + dy * fy), 4 * (reach - off) * (reach + off)};
}

/// The line through (x1, y1) and (x2, y2), t = 0 and 1 there, against an ellipse, whose radii become 1.
TQuadratic LineOnEllipse(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2, std::int64_t cx,
                         std::int64_t cy, std::int64_t rx, std::int64_t ry);

/// Round(from + t × (to − from)).
inline std::int64_t Along(std::int64_t from, std::int64_t to, double t) {
    return Round(double(from) + t * Delta(to, from));
}

} // namespace vagrel::detail
