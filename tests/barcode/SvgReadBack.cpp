// SPDX-License-Identifier: MIT
// Symbols as they stand in SVG, rasterised and read.
#define ZX_USE_UTF8
#include "SvgReadBack.h"

#include <ZXing/ReadBarcode.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace vagrel::test {

namespace {

struct TBox {
    int left, top, right, bottom;
    bool dark;
};

double Number(const std::string& element, const std::string& name) {
    const std::size_t at = element.find(" " + name + "=\"");
    return at == std::string::npos ? 0 : std::strtod(element.c_str() + at + name.size() + 3, nullptr);
}

TBox BoxOf(const std::string& element) {
    const double x = Number(element, "x"), y = Number(element, "y");
    auto edge = [](double value) { return int(std::lround(value)); };
    return {edge(x), edge(y), edge(x + Number(element, "width")), edge(y + Number(element, "height")),
            element.find("#FFFFFF") == std::string::npos};
}

} // namespace

std::string ReadBackSvg(const char* format, const std::vector<std::string>& elements) {
    std::vector<TBox> boxes;
    for (const std::string& element : elements)
        if (element.starts_with("<rect "))
            boxes.push_back(BoxOf(element));
    if (boxes.empty())
        return "<nothing drawn>";
    TBox all = boxes.front();
    for (const TBox& box : boxes) {
        all.left = std::min(all.left, box.left), all.right = std::max(all.right, box.right);
        all.top = std::min(all.top, box.top), all.bottom = std::max(all.bottom, box.bottom);
    }
    const int margin = 40;
    const int width = all.right - all.left + 2 * margin, height = all.bottom - all.top + 2 * margin;
    std::vector<std::uint8_t> pixels(std::size_t(width) * std::size_t(height), 255);
    for (const TBox& box : boxes)
        for (int y = box.top; y < box.bottom; ++y)
            std::fill_n(pixels.begin() + (y - all.top + margin) * width + box.left - all.left + margin,
                        box.right - box.left, box.dark ? 0 : 255);
    const auto hints = ZXing::DecodeHints()
                           .setFormats(ZXing::BarcodeFormatFromString(format))
                           .setTryRotate(true)
                           .setReturnErrors(true);
    const auto result = ZXing::ReadBarcode({pixels.data(), width, height, ZXing::ImageFormat::Lum}, hints);
    if (!result.isValid())
        return "<" + ZXing::ToString(result.error()) + ">";
    return {result.bytes().begin(), result.bytes().end()};
}

} // namespace vagrel::test
