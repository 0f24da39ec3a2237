// SPDX-License-Identifier: MIT
// Labels on lines. A horizontal line is the general case with its own axes; a vertical one is it turned; an oblique
// line goes by its direction.
#include <vagrel/items/text/LabelPosition.h>

#include <vagrel/foundation/Rounding.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vagrel {

namespace {

constexpr float Upright = float(-std::numbers::pi / 2);

constexpr bool IsMiddle(int textPos) { return textPos == tpMiddle || textPos == tpMiddleRemove; }

TKSLPto Rounded(double x, double y) { return {Round(x), Round(y)}; }

double Distance(TKSLPto a, TKSLPto b) { return std::hypot(double(b.bX) - double(a.bX), double(b.bY) - double(a.bY)); }

// A label that stands upright on the page across an oblique line: the gap is where the line crosses the label's
// rectangle of half-sizes `halfX`, `halfY`. The left and top sides give the second end, the right and bottom sides the
// first.
void GapThroughBox(TKSLPto from, TKSLPto to, double mx, double my, double halfX, double halfY, TLabelPlace& place) {
    const double slope = (double(to.bY) - double(from.bY)) / (double(to.bX) - double(from.bX));
    auto onSide = [&](double side, TKSLPto& end) {
        const double y = my + side * slope;
        if (std::fabs(y - my) <= halfY)
            end = Rounded(mx + side, y);
    };
    auto onLevel = [&](double level, TKSLPto& end) {
        const double x = mx + level / slope;
        if (std::fabs(x - mx) <= halfX)
            end = Rounded(x, my + level);
    };
    onSide(-halfX, place.gap2);
    onLevel(-halfY, place.gap2);
    onSide(halfX, place.gap1);
    onLevel(halfY, place.gap1);
    if (Distance(from, place.gap1) > Distance(from, place.gap2))
        std::swap(place.gap1, place.gap2);
}

TLabelPlace OnHorizontal(TKSLPto from, TKSLPto to, const TLabelSize& size, TKSLTextPos textPos) {
    const double mx = (double(from.bX) + double(to.bX)) / 2;
    const auto y = double(from.bY);
    const double w = double(size.width) / 2, t = double(size.tall) / 2;
    const std::int64_t h = size.ascent + size.descent;
    const bool rising = from.bX <= to.bX;
    TLabelPlace place;
    auto gap = [&](double half) {
        place.gap1 = Rounded(mx + (rising ? -half : half), y);
        place.gap2 = Rounded(mx + (rising ? half : -half), y);
    };
    if (textPos == tpVert) {
        gap(t);
        place.angle = Upright;
        place.text = Rounded(mx - t + double(size.ascent - size.descent), y + w);
        place.box = {SubSat(Trunc(mx), h / 2), Round(y + w)};
        return place;
    }
    const std::int64_t left = Round(mx - w), line = from.bY;
    if (textPos == tpAbove) {
        place.text = {left, SubSat(line, size.descent)};
        place.box = {left, SubSat(line, h)};
    } else if (textPos == tpBelow) {
        place.text = {left, AddSat(line, size.ascent)};
        place.box = {left, line};
    } else {
        gap(w);
        place.text = {left, AddSat(line, size.descent)};
        place.box = {left, SubSat(line, h / 2)};
    }
    return place;
}

TLabelPlace OnVertical(TKSLPto from, TKSLPto to, const TLabelSize& size, TKSLTextPos textPos) {
    const double my = (double(from.bY) + double(to.bY)) / 2;
    const auto x = double(from.bX);
    const double w = double(size.width) / 2, t = double(size.tall) / 2;
    const std::int64_t h = size.ascent + size.descent;
    const bool falling = from.bY <= to.bY;
    TLabelPlace place;
    auto gap = [&](double half) {
        place.gap1 = Rounded(x, my + (falling ? -half : half));
        place.gap2 = Rounded(x, my + (falling ? half : -half));
    };
    if (textPos == tpHorz) {
        gap(t);
        place.text = Rounded(x - w, my - t + double(size.ascent - size.descent));
        place.box = {Round(x - w), SubSat(Trunc(my), h / 2)};
        return place;
    }
    place.angle = Upright;
    const std::int64_t start = Round(my + w), line = from.bX;
    if (textPos == tpAbove) {
        place.text = {SubSat(line, size.descent), start};
        place.box = {SubSat(line, h), start};
    } else if (textPos == tpBelow) {
        place.text = {AddSat(line, size.ascent), start};
        place.box = {line, start};
    } else {
        gap(w);
        place.text = {AddSat(line, size.descent), start};
        place.box = {SubSat(line, h / 2), start};
    }
    return place;
}

TLabelPlace OnOblique(TKSLPto from, TKSLPto to, const TLabelSize& size, TKSLTextPos textPos) {
    const double mx = (double(from.bX) + double(to.bX)) / 2, my = (double(from.bY) + double(to.bY)) / 2;
    const double w = double(size.width) / 2, t = double(size.tall) / 2;
    const auto ascent = double(size.ascent), descent = double(size.descent), h = ascent + descent;
    const std::int64_t halfBox = (size.ascent + size.descent) / 2;
    TLabelPlace place;
    if (textPos == tpHorz) {
        place.text = Rounded(mx - w, my - t + ascent - descent);
        place.box = {Round(mx - w), SubSat(Trunc(my), halfBox)};
        GapThroughBox(from, to, mx, my, w, t, place);
        return place;
    }
    if (textPos == tpVert) {
        place.angle = Upright;
        place.text = Rounded(mx - t + ascent - descent, my + w);
        place.box = {SubSat(Trunc(mx), halfBox), Round(my + w)};
        GapThroughBox(from, to, mx, my, t, w, place);
        return place;
    }
    const double a = std::atan((double(to.bY) - double(from.bY)) / (double(to.bX) - double(from.bX)));
    const double ax = mx - w * std::cos(a), ay = my - w * std::sin(a);
    place.angle = float(a);
    place.gap1 = Rounded(ax, ay);
    place.gap2 = Rounded(mx + w * std::cos(a), my + w * std::sin(a));
    if (from.bX >= to.bX)
        std::swap(place.gap1, place.gap2);
    // A place at a distance across the line, above it where the distance is positive.
    auto across = [&](double distance) { return Rounded(ax + distance * std::sin(a), ay - distance * std::cos(a)); };
    if (textPos == tpAbove) {
        place.box = across(h);
        place.text = across(descent);
    } else if (textPos == tpBelow) {
        place.box = across(0);
        place.text = across(-ascent);
    } else {
        place.box = across(double(halfBox));
        place.text = across(-(ascent - h / 2));
    }
    return place;
}

} // namespace

TLabelPlace PosBaseLinesText(TKSLPto from, TKSLPto to, const TLabelSize& size, TKSLTextPos textPos) {
    if (from.bY == to.bY)
        return OnHorizontal(from, to, size, textPos);
    if (from.bX == to.bX)
        return OnVertical(from, to, size, textPos);
    return OnOblique(from, to, size, textPos);
}

void PosPrintText(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2, std::int32_t width,
                  std::int32_t height, std::int16_t textPos, std::int32_t& tx, std::int32_t& ty) {
    if (textPos < tpAbove || textPos > tpMiddleRemove)
        return;
    const TLabelPlace place = PosBaseLinesText({x1, y1}, {x2, y2}, {height, width, height, 0}, TKSLTextPos(textPos));
    tx = ToInt32(place.box.bX), ty = ToInt32(place.box.bY);
}

void PosText(float x1, float y1, float x2, float y2, float ascent, float descent, float width, std::int16_t textPos,
             float& tx, float& ty, float& g1x, float& g1y, float& g2x, float& g2y, float& angle) {
    const float mx = (x1 + x2) / 2, my = (y1 + y2) / 2, w = width / 2, h = (ascent + descent) / 2;
    const double length = std::hypot(double(x2) - double(x1), double(y2) - double(y1));
    const float ux = length > 0 ? float((double(x2) - double(x1)) / length) : 1;
    const float uy = length > 0 ? float((double(y2) - double(y1)) / length) : 0;
    g1x = mx - w * ux, g1y = my - w * uy;
    g2x = mx + w * ux, g2y = my + w * uy;
    // Off the line: what the baseline moves by below it.
    const bool placed = textPos == tpAbove || textPos == tpBelow || IsMiddle(textPos);
    const float below = textPos == tpAbove ? -descent : textPos == tpBelow ? ascent : ascent - h;
    if (y1 == y2) {
        angle = 0;
        tx = std::min(g1x, g2x);
        if (placed)
            ty = y1 + below;
    } else if (x1 == x2) {
        angle = Upright;
        ty = std::max(g1y, g2y);
        if (placed)
            tx = x1 + below;
    } else {
        const double a = std::atan((double(y2) - double(y1)) / (double(x2) - double(x1)));
        angle = float(a);
        tx = std::min(g1x, g2x);
        ty = g1x < g2x ? g1y : g2y;
        if (!placed)
            return;
        const double up = textPos == tpAbove   ? double(descent)
                          : textPos == tpBelow ? -double(ascent)
                                               : -std::fabs(ascent - h);
        tx += float(up * std::sin(a));
        ty -= float(up * std::cos(a));
    }
}

void PosBaseText(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2, std::int64_t height,
                 std::int64_t width, std::int16_t textPos, std::int64_t& left, std::int64_t& right, std::int64_t& top,
                 std::int64_t& bottom) {
    const bool horizontal = y1 == y2;
    if (!horizontal && x1 != x2)
        return;
    const double middle = horizontal ? (double(x1) + double(x2)) / 2 : (double(y1) + double(y2)) / 2;
    const std::int64_t line = horizontal ? y1 : x1;
    // A label along the line, or across it when it runs the other way.
    const bool across = textPos == (horizontal ? tpVert : tpHorz);
    const double halfLong = double(across ? height : width) / 2, halfTall = double(across ? width : height) / 2;
    std::int64_t& low = horizontal ? left : top;
    std::int64_t& high = horizontal ? right : bottom;
    std::int64_t& near = horizontal ? top : left;
    std::int64_t& far = horizontal ? bottom : right;
    low = Round(middle - halfLong);
    high = Round(middle + halfLong);
    const bool above = textPos == tpAbove || (horizontal && textPos == tpHorz);
    if (above) {
        near = SubSat(line, height), far = line;
    } else if (textPos == tpBelow) {
        near = line, far = AddSat(line, height);
    } else {
        near = Round(double(line) - halfTall);
        far = Round(double(line) + halfTall);
    }
}

} // namespace vagrel
