// SPDX-License-Identifier: MIT
// The outlines of terminals.
#include <vagrel/svg/TermShape.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TDraw2D.h>

#include <initializer_list>

namespace vagrel {

namespace {

TTermPart Chain(TTermPart::TKind kind, std::initializer_list<TSpot> spots, bool filled = false) {
    TTermPart part{kind, filled, {}, int(spots.size()), 0};
    std::copy(spots.begin(), spots.end(), part.spots.begin());
    return part;
}

} // namespace

std::vector<TTermPart> TermShape(TKSLTermType type, TSpot tip, double direction, float size, int open) {
    const float half = size / 2;
    const float left = tip.x - half, right = tip.x + half, top = tip.y - half, bottom = tip.y + half;
    TSpot one, two;
    TDraw2D::DrawArrow(tip.x, tip.y, direction, float(Round(double(size))), one.x, one.y, two.x, two.y, open);
    const TTermPart falling = Chain(TTermPart::Line, {{left, top}, {right, bottom}});
    const TTermPart rising = Chain(TTermPart::Line, {{right, top}, {left, bottom}});

    switch (type) {
    case ttCircle:
    case ttFillCircle:
        return {{TTermPart::Circle, type == ttFillCircle, {tip}, 1, half}};
    case ttArrow:
        return {Chain(TTermPart::Line, {tip, one}), Chain(TTermPart::Line, {tip, two})};
    case ttFillArrow:
        return {Chain(TTermPart::Polygon, {tip, one, two}, true)};
    case ttSquare:
    case ttFillSquare:
        return {{TTermPart::Square, type == ttFillSquare, {TSpot{left, top}}, 1, size}};
    case ttRhombus:
    case ttFillRhombus:
        return {Chain(TTermPart::Polygon, {{tip.x, top}, {right, tip.y}, {tip.x, bottom}, {left, tip.y}},
                      type == ttFillRhombus)};
    case ttLeftDia:
        return {falling};
    case ttRightDia:
        return {rising};
    case ttCross:
        return {falling, rising};
    case ttNone:
        break;
    }
    return {};
}

} // namespace vagrel
