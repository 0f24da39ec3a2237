// SPDX-License-Identifier: MIT
// Rectangles of SVG painted into a picture and read by ZXing-C++.
#pragma once

#include <string>
#include <vector>

namespace vagrel::test {

/// What the one symbol holds, as bytes, or the decoder's complaint in angle brackets. Elements are `<rect>`, dark
/// unless filled with white, painted pixel by pixel in the numbers of their attributes; all others are passed over.
std::string ReadBackSvg(const char* format, const std::vector<std::string>& elements);

} // namespace vagrel::test
