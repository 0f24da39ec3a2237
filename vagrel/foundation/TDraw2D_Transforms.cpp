// SPDX-License-Identifier: MIT
// Fitting, turning and ordering, and the arcs of a partly filled circle.
#include <vagrel/foundation/TDraw2D.h>

#include <vagrel/foundation/TDraw2D_p.h>

#include <functional>

namespace vagrel {

using namespace detail;

namespace {

struct Fit {
    std::int64_t left = 0;
    std::int64_t top = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;

    Fit(double originalWidth, double originalHeight, double windowWidth, double windowHeight) {
        if (originalWidth > 0 && originalHeight > 0) {
            const double factor = std::min(windowWidth / originalWidth, windowHeight / originalHeight);
            width = Round(originalWidth * factor), height = Round(originalHeight * factor);
        }
        left = Trunc((windowWidth - double(width)) / 2), top = Trunc((windowHeight - double(height)) / 2);
    }
};

// A quarter-turn; `minus` and `plus` are the arithmetic of the coordinates.
template <class Point, class Center, class Minus, class Plus>
void Turn(Point& point, Center center, TKSLAngle angle, Minus minus, Plus plus) {
    const auto dx = minus(point.X, center.X), dy = minus(point.Y, center.Y);
    const auto zero = dx - dx;
    switch (angle) {
    case ag90:
        point = {plus(center.X, dy), plus(center.Y, minus(zero, dx))};
        break;
    case ag180:
        point = {plus(center.X, minus(zero, dx)), plus(center.Y, minus(zero, dy))};
        break;
    case ag270:
        point = {plus(center.X, minus(zero, dy)), plus(center.Y, dx)};
        break;
    default:
        break;
    }
}

// The point at (dx, dy) from a centre, turned about it.
TPoint2D Turned(double dx, double dy, double cx, double cy, double degrees) {
    const double angle = degrees * Pi / 180, c = std::cos(angle), s = std::sin(angle);
    return {cx + dx * c - dy * s, cy + dx * s + dy * c};
}

} // namespace

TKSLRect TDraw2D::CenteredRect(double OriginalWidth, double OriginalHeight, const TKSLRect& WindowRect) {
    const Fit fit(OriginalWidth, OriginalHeight, Delta(WindowRect.Right, WindowRect.Left),
                  Delta(WindowRect.Bottom, WindowRect.Top));
    return {{AddSat(WindowRect.Left, fit.left), AddSat(WindowRect.Top, fit.top)}, fit.width, fit.height};
}

TRectF TDraw2D::CenteredRect(double OriginalWidth, double OriginalHeight, const TRectF& WindowRect) {
    const Fit fit(OriginalWidth, OriginalHeight, double(WindowRect.Right) - double(WindowRect.Left),
                  double(WindowRect.Bottom) - double(WindowRect.Top));
    const double left = double(WindowRect.Left) + double(fit.left), top = double(WindowRect.Top) + double(fit.top);
    return {float(left), float(top), float(left + double(fit.width)), float(top + double(fit.height))};
}

TSlotPolygon TDraw2D::CalculateSlotPolygon(double X1, double Y1, double X2, double Y2, double Diameter) {
    const double half = Diameter / 2, length = Magnitude(X2 - X1, Y2 - Y1);
    if (length == 0)
        return {{{X1 - half, Y1 - half}, {X1 + half, Y1 - half}, {X1 + half, Y1 + half}, {X1 - half, Y1 + half}}};
    const double nx = (Y1 - Y2) / length * half, ny = (X2 - X1) / length * half;
    return {{{X1 + nx, Y1 + ny}, {X2 + nx, Y2 + ny}, {X2 - nx, Y2 - ny}, {X1 - nx, Y1 - ny}}};
}

void TDraw2D::OrderPoints(std::span<TKSLPto, 3> aPoint) {
    for (int first : {0, 1, 0})
        if (aPoint[first].bX > aPoint[first + 1].bX)
            std::swap(aPoint[first], aPoint[first + 1]);
}

void TDraw2D::RotatePoint(TKSLPto& aPo, TKSLPto Center, TKSLAngle Angle) {
    TKSLPto64 point{aPo.bX, aPo.bY};
    Turn(point, TKSLPto64{Center.bX, Center.bY}, Angle, SubSat, AddSat);
    aPo = {point.X, point.Y};
}

void TDraw2D::RotatePoint(TPoint& aPo, TPoint Center, TKSLAngle Angle) {
    TKSLPto64 point{aPo.X, aPo.Y};
    Turn(point, Center, Angle, SubSat, AddSat);
    aPo = {ToInt32(point.X), ToInt32(point.Y)};
}

void TDraw2D::Rotate(TRectF& Re, TKSLSPoint Center, TKSLAngle Angle) {
    TKSLSPoint first{Re.Left, Re.Top}, second{Re.Right, Re.Bottom};
    for (TKSLSPoint* corner : {&first, &second})
        Turn(*corner, Center, Angle, std::minus<float>(), std::plus<float>());
    Re = {std::min(first.X, second.X), std::min(first.Y, second.Y), std::max(first.X, second.X),
          std::max(first.Y, second.Y)};
}

TKSLPto TDraw2D::RotatePoint(Base pX, Base pY, Base aCx, Base aCy, double aAngle) {
    const TPoint2D turned = Turned(Delta(pX, aCx), Delta(pY, aCy), double(aCx), double(aCy), aAngle);
    return {Round(turned.X), Round(turned.Y)};
}

TKSLSPoint TDraw2D::RotatePoint(float pX, float pY, float aCx, float aCy, double aAngle) {
    const TPoint2D turned = Turned(double(pX) - double(aCx), double(pY) - double(aCy), aCx, aCy, aAngle);
    return {float(turned.X), float(turned.Y)};
}

void TDraw2D::AngleSegment(double aUPercent, bool aRadian, bool aVert, double& angFrom, double& angMove) {
    const double share = std::clamp(aUPercent, 0.0, 1.0);
    if (share > 0.5) {
        const double A = std::asin((share - 0.5) / 0.5);
        angFrom = -A, angMove = Pi + 2 * A;
    } else if (share < 0.5) {
        const double B = std::asin(1 - 2 * share);
        angFrom = B, angMove = Pi - 2 * B;
    } else {
        angFrom = Pi, angMove = -Pi;
    }
    if (aVert)
        angFrom -= Pi / 2;
    if (!aRadian)
        angFrom *= 180 / Pi, angMove *= 180 / Pi;
}

void TDraw2D::ArcSegment(double aUPercent, bool aVert, double& angFrom, double& angTo) {
    const double share = std::clamp(aUPercent, 0.0, 1.0);
    if (share > 0.5) {
        const double A = std::asin((share - 0.5) / 0.5);
        angFrom = A - Pi, angTo = -A;
    } else if (share < 0.5) {
        const double B = std::asin(1 - 2 * share);
        angFrom = Pi - B, angTo = B;
    } else {
        angFrom = -Pi, angTo = 0;
    }
    if (aVert)
        angFrom -= Pi / 2, angTo -= Pi / 2;
}

} // namespace vagrel
