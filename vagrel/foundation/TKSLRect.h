// SPDX-License-Identifier: MIT
// Rectangles of base coordinates and the point that goes with them.
#pragma once

#include <cstdint>

namespace vagrel {

/// A point of base coordinates, used with rectangles.
struct TKSLPto64 {
    std::int64_t X = 0;
    std::int64_t Y = 0;

    static TKSLPto64 Zero() { return {}; }
    bool IsZero() const { return X == 0 && Y == 0; }
    void SetLocation(std::int64_t x, std::int64_t y) { X = x, Y = y; }
    void Offset(std::int64_t dx, std::int64_t dy);
    TKSLPto64 Add(TKSLPto64 other) const;
    TKSLPto64 Subtract(TKSLPto64 other) const;
    double Distance(TKSLPto64 other) const;
    /// Direction from `other` to this point, radians in −π to π, y downward.
    float Angle(TKSLPto64 other) const;
    static bool PointInCircle(TKSLPto64 point, TKSLPto64 center, std::int64_t radius);

    friend TKSLPto64 operator+(TKSLPto64 a, TKSLPto64 b) { return a.Add(b); }
    friend TKSLPto64 operator-(TKSLPto64 a, TKSLPto64 b) { return a.Subtract(b); }
    friend bool operator==(TKSLPto64, TKSLPto64) = default;
};

/// A rectangle of base coordinates, y downward. Left and top belong to it, right and bottom do not.
struct TKSLRect {
    std::int64_t Left = 0;
    std::int64_t Top = 0;
    std::int64_t Right = 0;
    std::int64_t Bottom = 0;

    TKSLRect() = default;
    TKSLRect(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom)
        : Left(left), Top(top), Right(right), Bottom(bottom) {}
    TKSLRect(TKSLPto64 point, std::int64_t width, std::int64_t height);

    TKSLPto64 TopLeft() const { return {Left, Top}; }
    TKSLPto64 BottomRight() const { return {Right, Bottom}; }
    std::int64_t GetWidth() const;
    std::int64_t GetHeight() const;
    void SetWidth(std::int64_t value);
    void SetHeight(std::int64_t value);

    bool Contains(std::int64_t x, std::int64_t y) const { return x >= Left && x < Right && y >= Top && y < Bottom; }
    bool Contains(TKSLPto64 point) const { return Contains(point.X, point.Y); }
    /// Edges included.
    bool Contains(const TKSLRect& other) const;
    bool IsEmpty() const { return Right <= Left || Bottom <= Top; }
    /// Sets all four to 0.
    void Empty() { *this = {}; }
    /// Sets all four to -1: no value yet.
    void EmptyRect() { *this = {-1, -1, -1, -1}; }
    /// True for a common area; a common edge is none.
    bool IntersectsWith(const TKSLRect& other) const;
    void NormalizeRect();
    void Inflate(std::int64_t dx, std::int64_t dy) { Inflate(dx, dy, dx, dy); }
    void Inflate(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom);
    void Offset(std::int64_t dx, std::int64_t dy);

    /// The common area; an empty one is all zero and the answer false.
    static bool IntersectRect(TKSLRect& out, const TKSLRect& a, const TKSLRect& b);
    /// `a` grown by `b`. An empty `b` is ignored, an empty `a` still gives its edges; an empty result is all zero and
    /// the answer false.
    static bool UnionRect(TKSLRect& out, const TKSLRect& a, const TKSLRect& b);
    static TKSLRect Intersect(const TKSLRect& a, const TKSLRect& b);
    static TKSLRect Union(const TKSLRect& a, const TKSLRect& b);

    friend TKSLRect operator*(const TKSLRect& a, const TKSLRect& b) { return Intersect(a, b); }
    friend TKSLRect operator+(const TKSLRect& a, const TKSLRect& b) { return Union(a, b); }
    friend bool operator==(const TKSLRect&, const TKSLRect&) = default;
};

} // namespace vagrel
