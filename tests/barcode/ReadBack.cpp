// SPDX-License-Identifier: MIT
// Symbols read by a decoder that nobody here wrote.
#define ZX_USE_UTF8
#include "ReadBack.h"

#include <ZXing/ReadBarcode.h>

#include <vector>

namespace vagrel {

std::string ReadBack(const char* format, std::span<const std::uint8_t> modules, int columns, int moduleHeight) {
    constexpr int scale = 3;
    constexpr int quiet = 4;
    const int rows = int(modules.size()) / columns;
    const int width = (columns + 2 * quiet) * scale;
    const int height = (rows * moduleHeight + 2 * quiet) * scale;
    std::vector<std::uint8_t> pixels(std::size_t(width * height), 255);
    for (int y = quiet * scale; y < height - quiet * scale; ++y) {
        for (int x = quiet * scale; x < width - quiet * scale; ++x) {
            const int row = (y / scale - quiet) / moduleHeight;
            if (modules[std::size_t(row * columns + x / scale - quiet)])
                pixels[std::size_t(y * width + x)] = 0;
        }
    }
    const auto hints = ZXing::DecodeHints()
                           .setFormats(ZXing::BarcodeFormatFromString(format))
                           .setBinarizer(ZXing::Binarizer::BoolCast)
                           .setTryRotate(false)
                           .setTryDownscale(false)
                           .setIsPure(true)
                           .setReturnErrors(true);
    const auto result = ZXing::ReadBarcode({pixels.data(), width, height, ZXing::ImageFormat::Lum}, hints);
    if (!result.isValid())
        return "<" + ZXing::ToString(result.error()) + ">";
    return {result.bytes().begin(), result.bytes().end()};
}

std::string RandomText(std::mt19937& random, std::size_t length, std::string_view alphabet) {
    std::string text;
    while (text.size() < length)
        text += alphabet.empty() ? char(random()) : alphabet[random() % alphabet.size()];
    return text;
}

} // namespace vagrel
