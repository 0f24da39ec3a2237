// SPDX-License-Identifier: MIT
// Texts in anchored boxes. Everything is told along and across the text and turned into page axes in one place.
#include <vagrel/items/text/LabelPosition.h>

#include <vagrel/foundation/Rounding.h>

#include <algorithm>
#include <optional>

namespace vagrel {

namespace {

// Adds to (x, y) a step along the text and one across it; a missing step leaves its coordinate as it is.
template <class T>
void Step(T& x, T& y, TKSLAngle angle, std::optional<T> along, std::optional<T> across) {
    const bool upright = angle == ag90 || angle == ag270;
    T& alongAxis = upright ? y : x;
    T& acrossAxis = upright ? x : y;
    if (along)
        alongAxis += angle == ag90 || angle == ag180 ? -*along : *along;
    if (across)
        acrossAxis += angle == ag180 || angle == ag270 ? -*across : *across;
}

// Puts (x, y) at the anchor and then steps; a coordinate without a step keeps what it was.
template <class T>
void StepFrom(T px, T py, T& x, T& y, TKSLAngle angle, std::optional<T> along, std::optional<T> across) {
    const bool upright = angle == ag90 || angle == ag270;
    if (upright ? across.has_value() : along.has_value())
        x = px;
    if (upright ? along.has_value() : across.has_value())
        y = py;
    Step(x, y, angle, along, across);
}

// What an alignment chooses of three values; nothing for one without a meaning.
template <class T, class Align>
std::optional<T> Choose(Align align, T first, T second, T third) {
    switch (int(align)) {
    case 0:
        return first;
    case 1:
        return second;
    case 2:
        return third;
    default:
        return std::nullopt;
    }
}

template <class T>
void TextPos(T& x, T& y, T px, T py, T padX, T padY, T width, T height, TKSLHorzAlign horz, TKSLVertAlign vert,
             TKSLAngle angle) {
    StepFrom<T>(px, py, x, y, angle, Choose<T>(horz, padX, -(width / 2), -width - padX),
                Choose<T>(vert, padY, -(height / 2), -height - padY));
}

// The move of the left top corner of a box W × H around its anchor, before its sides are exchanged.
template <class T>
struct TBoxMove {
    T left, top;
    bool turned;
};

template <class T>
std::optional<TBoxMove<T>> BoxMove(T width, T height, TKSLHorzAlign horz, TKSLVertAlign vert, TKSLAngle angle) {
    const T v = Choose<T>(vert, 0, height / 2, height).value_or(0);
    const auto justified = Choose<T>(horz, 0, width / 2, width);
    if (!justified)
        return angle == ag0 ? std::optional(TBoxMove<T>{0, -v, false}) : std::nullopt;
    const T u = *justified;
    switch (angle) {
    case ag90:
        return TBoxMove<T>{-v, -(width - u), true};
    case ag180:
        return TBoxMove<T>{-(width - u), -(height - v), false};
    case ag270:
        return TBoxMove<T>{-(height - v), -u, true};
    default:
        return TBoxMove<T>{-u, -v, false};
    }
}

} // namespace

void AdjustRect(TKSLRect& rect, TKSLHorzAlign horz, TKSLVertAlign vert, TKSLAngle angle) {
    rect.NormalizeRect();
    const std::int64_t width = rect.GetWidth(), height = rect.GetHeight();
    const auto move = BoxMove(width, height, horz, vert, angle);
    if (!move)
        return;
    const TKSLPto64 corner{AddSat(rect.Left, move->left), AddSat(rect.Top, move->top)};
    rect = move->turned ? TKSLRect(corner, height, width) : TKSLRect(corner, width, height);
}

void AdjustPos(float padX, float padY, TKSLHorzAlign horz, TKSLVertAlign vert, TKSLAngle angle, float& x, float& y) {
    Step<float>(x, y, angle, Choose<float>(horz, padX, 0, -padX), Choose<float>(vert, padY, 0, -padY));
}

void AdjustRectPos(TRectF& rect, float px, float py, TKSLHorzAlign horz, TKSLVertAlign vert, TKSLAngle angle, float& x,
                   float& y) {
    if (rect.Left > rect.Right)
        std::swap(rect.Left, rect.Right);
    if (rect.Top > rect.Bottom)
        std::swap(rect.Top, rect.Bottom);
    const float width = rect.Right - rect.Left, height = rect.Bottom - rect.Top;
    DrawTxtPos(x, y, px, py, 0, 0, width, height, horz, vert, angle);
    if (const auto move = BoxMove(width, height, horz, vert, angle)) {
        rect.Left += move->left;
        rect.Top += move->top;
        rect.Right = rect.Left + (move->turned ? height : width);
        rect.Bottom = rect.Top + (move->turned ? width : height);
    }
}

void DrawPos(float& x, float& y, float px, float py, float padX, float padY, float width, float height,
             TKSLHorzAlign horz, TKSLVertAlign vert, TKSLAngle angle) {
    const bool upright = angle == ag90 || angle == ag270;
    const float along = upright ? height : width, across = upright ? width : height;
    StepFrom<float>(px, py, x, y, angle, Choose<float>(horz, padX, padX - along / 2, padX - along),
                    Choose<float>(vert, padY, padY - across / 2, padY - across));
}

void DrawTxtPos(float& x, float& y, float px, float py, float padX, float padY, float width, float height,
                TKSLHorzAlign horz, TKSLVertAlign vert, TKSLAngle angle) {
    TextPos(x, y, px, py, padX, padY, width, height, horz, vert, angle);
}

void PrintTxtPos(std::int32_t& x, std::int32_t& y, std::int32_t px, std::int32_t py, std::int32_t padX,
                 std::int32_t padY, std::int32_t width, std::int32_t height, TKSLHorzAlign horz, TKSLVertAlign vert,
                 TKSLAngle angle) {
    std::int64_t wideX = x, wideY = y;
    TextPos<std::int64_t>(wideX, wideY, px, py, padX, padY, width, height, horz, vert, angle);
    x = ToInt32(wideX), y = ToInt32(wideY);
}

void DrawPolyPos(float& x, float& y, float padX, float padY, float width, TKSLHorzAlign horz, TKSLAngle angle) {
    padX = std::max(padX, 0.0f);
    Step<float>(x, y, angle, Choose<float>(horz, padX, -width / 2, -width - padX), std::max(padY, 0.0f));
}

} // namespace vagrel
