// SPDX-License-Identifier: MIT
// Rectangles of base coordinates. Sums saturate: coordinates of a file may lie anywhere in 64 bits.
#include <vagrel/foundation/TKSLRect.h>

#include <vagrel/foundation/Rounding.h>

#include <algorithm>
#include <cmath>

namespace vagrel {

void TKSLPto64::Offset(std::int64_t dx, std::int64_t dy) { X = AddSat(X, dx), Y = AddSat(Y, dy); }

TKSLPto64 TKSLPto64::Add(TKSLPto64 other) const { return {AddSat(X, other.X), AddSat(Y, other.Y)}; }

TKSLPto64 TKSLPto64::Subtract(TKSLPto64 other) const { return {SubSat(X, other.X), SubSat(Y, other.Y)}; }

double TKSLPto64::Distance(TKSLPto64 other) const {
    const double dx = Difference(X, other.X), dy = Difference(Y, other.Y);
    return std::sqrt(dx * dx + dy * dy);
}

float TKSLPto64::Angle(TKSLPto64 other) const {
    return float(std::atan2(Difference(Y, other.Y), Difference(X, other.X)));
}

bool TKSLPto64::PointInCircle(TKSLPto64 point, TKSLPto64 center, std::int64_t radius) {
    return point.Distance(center) <= double(radius);
}

TKSLRect::TKSLRect(TKSLPto64 point, std::int64_t width, std::int64_t height)
    : TKSLRect(point.X, point.Y, AddSat(point.X, width), AddSat(point.Y, height)) {}

std::int64_t TKSLRect::GetWidth() const { return SubSat(Right, Left); }
std::int64_t TKSLRect::GetHeight() const { return SubSat(Bottom, Top); }
void TKSLRect::SetWidth(std::int64_t value) { Right = AddSat(Left, value); }
void TKSLRect::SetHeight(std::int64_t value) { Bottom = AddSat(Top, value); }

bool TKSLRect::Contains(const TKSLRect& other) const {
    return other.Left >= Left && other.Top >= Top && other.Right <= Right && other.Bottom <= Bottom;
}

bool TKSLRect::IntersectsWith(const TKSLRect& other) const {
    return Left < other.Right && other.Left < Right && Top < other.Bottom && other.Top < Bottom;
}

void TKSLRect::NormalizeRect() {
    if (Left > Right)
        std::swap(Left, Right);
    if (Top > Bottom)
        std::swap(Top, Bottom);
}

void TKSLRect::Inflate(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom) {
    Left = SubSat(Left, left), Top = SubSat(Top, top);
    Right = AddSat(Right, right), Bottom = AddSat(Bottom, bottom);
}

void TKSLRect::Offset(std::int64_t dx, std::int64_t dy) {
    Left = AddSat(Left, dx), Top = AddSat(Top, dy);
    Right = AddSat(Right, dx), Bottom = AddSat(Bottom, dy);
}

bool TKSLRect::IntersectRect(TKSLRect& out, const TKSLRect& a, const TKSLRect& b) {
    out = {std::max(a.Left, b.Left), std::max(a.Top, b.Top), std::min(a.Right, b.Right), std::min(a.Bottom, b.Bottom)};
    if (!out.IsEmpty())
        return true;
    out = {};
    return false;
}

bool TKSLRect::UnionRect(TKSLRect& out, const TKSLRect& a, const TKSLRect& b) {
    TKSLRect grown = a;
    if (!b.IsEmpty())
        grown = {std::min(a.Left, b.Left), std::min(a.Top, b.Top), std::max(a.Right, b.Right),
                 std::max(a.Bottom, b.Bottom)};
    out = grown.IsEmpty() ? TKSLRect() : grown;
    return !out.IsEmpty();
}

TKSLRect TKSLRect::Intersect(const TKSLRect& a, const TKSLRect& b) {
    TKSLRect out;
    IntersectRect(out, a, b);
    return out;
}

TKSLRect TKSLRect::Union(const TKSLRect& a, const TKSLRect& b) {
    TKSLRect out;
    UnionRect(out, a, b);
    return out;
}

} // namespace vagrel
