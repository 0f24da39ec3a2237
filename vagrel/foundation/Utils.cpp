// SPDX-License-Identifier: MIT
// Free functions on values.
#include <vagrel/foundation/Utils.h>

#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TVGRBaseDraw.h>

#include <algorithm>
#include <cmath>

namespace vagrel {

namespace {

template <class Int>
Int Magnitude(Int value) {
    return value < 0 ? Int(SubSat(0, value)) : value;
}

} // namespace

std::int32_t MulDiv(std::int32_t a, std::int32_t b, std::int32_t c) {
    if (c == 0)
        return -1;
    const std::int64_t product = std::int64_t(a) * b;
    const std::int64_t half = Magnitude(std::int64_t(c)) / 2;
    const std::int64_t away = (product < 0 ? product - half : product + half);
    return ToInt32(away / c);
}

std::int64_t Distance(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2) {
    if (x1 == x2)
        return Magnitude(SubSat(y2, y1));
    if (y1 == y2)
        return Magnitude(SubSat(x2, x1));
    return Round(std::hypot(Difference(x2, x1), Difference(y2, y1)));
}

float Distance(float x1, float y1, float x2, float y2) {
    if (x1 == x2)
        return std::fabs(y2 - y1);
    if (y1 == y2)
        return std::fabs(x2 - x1);
    return float(Round(std::hypot(double(x2) - double(x1), double(y2) - double(y1))));
}

bool SamePoint(float a, float b) { return std::fabs(double(a) - double(b)) < 0.0001; }

std::int64_t AdjustGrid(std::int64_t value, std::int64_t step) {
    if (step <= 0)
        return value;
    const std::int64_t quotient = value / step;
    return MulSat(value % step > step / 2 ? quotient + 1 : quotient, step);
}

std::int64_t AdjustGrid(std::int64_t value, std::int64_t step, bool forward) {
    if (step <= 0)
        return value;
    const std::int64_t quotient = value / step;
    const std::int64_t next = forward ? AddSat(quotient, 1) : value % step == 0 ? SubSat(quotient, 1) : quotient;
    return MulSat(std::max<std::int64_t>(next, 0), step);
}

float DrawFromBaseX(std::int64_t base, const TVGRBaseDraw& draw) {
    return float(double(base) * draw.fDpix / (double(draw.fDrawScale) * 25400));
}

float DrawFromBaseY(std::int64_t base, const TVGRBaseDraw& draw) {
    return float(double(base) * draw.fDpiy / (double(draw.fDrawScale) * 25400));
}

std::int64_t PrintFromBaseX(std::int64_t base, const TVGRBaseDraw& draw) { return draw.GetPrintX(base); }
std::int64_t PrintFromBaseY(std::int64_t base, const TVGRBaseDraw& draw) { return draw.GetPrintY(base); }

float BasePtoX(float mm, const TVGRBaseDraw& draw) { return draw.DrawBasePtoX(mm); }
float BasePtoY(float mm, const TVGRBaseDraw& draw) { return draw.DrawBasePtoY(mm); }

std::int32_t ScalePos(std::int32_t pos, std::int32_t dpi) { return dpi == 96 ? pos : Round32(double(pos) * dpi / 96); }

float ScalePos(float pos, std::int32_t dpi) { return dpi == 96 ? pos : float(double(pos) * dpi / 96); }

std::int32_t RevScalePos(std::int32_t pos, std::int32_t dpi) {
    return dpi == 96 || dpi == 0 ? pos : Round32(double(pos) * 96 / dpi);
}

double Median(std::vector<double> values) {
    if (values.empty())
        return 0;
    std::ranges::sort(values);
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

std::uint32_t StrToCardinal(std::u16string_view text) {
    const auto value = TryStrToInt64(text);
    if (!value || *value < 0 || *value > 0xFFFFFFFFLL)
        throw EConvertError(u"StrToCardinal invalid value");
    return std::uint32_t(*value);
}

bool ValidInputKey(std::u16string_view text, char16_t key, int position) {
    if (key != u'-' || text.empty() || text[0] != u'@')
        return false;
    const std::size_t comma = text.find(u',');
    const bool second = comma != std::u16string_view::npos && position > std::int64_t(comma);
    const std::size_t place = second ? comma + 1 : 1;
    return place >= text.size() || text[place] != u'-';
}

} // namespace vagrel
