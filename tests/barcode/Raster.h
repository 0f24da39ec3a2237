// SPDX-License-Identifier: MIT
// Patterns painted as one row of pixels.
#pragma once

#include <vagrel/barcode/TBarcode.h>

#include <cmath>
#include <random>
#include <string>

namespace vagrel {

/// A narrow element is `narrow` pixels wide; '#' is a bar, 'a' a short one, '.' a space.
inline std::string Paint(std::string_view pattern, int narrow, double factor) {
    std::string row;
    for (const char element : pattern) {
        TKSLDrawWidth width = dw1;
        TKSLDrawBar bar = dbW;
        TBarcode::FillBarData(element, width, bar);
        const double modules[] = {1, factor, 2, 3, 4, 1.5};
        const char ink = bar == dbB || bar == dbEB ? '#' : bar == dbB2 ? 'a' : '.';
        row.append(static_cast<std::size_t>(std::lround(narrow * modules[width])), ink);
    }
    return row;
}

/// Prepared and encoded text.
struct TEncoded {
    TEncoded(std::string_view text, TKSLBarType type, bool check) {
        code = TBarcode::PrepareBarcode(text, type, check, false, digits, mode);
        pattern = TBarcode::FillBarPattern(code, type, mode, false);
    }
    std::string code, digits, pattern;
    TKSL128AutoType mode;
};

using TRandom = std::mt19937_64;

inline std::string RandomText(TRandom& random, std::string_view alphabet, std::size_t shortest, std::size_t longest) {
    std::string text(shortest + random() % (longest - shortest + 1), ' ');
    for (char& character : text)
        character = alphabet[random() % alphabet.size()];
    return text;
}

} // namespace vagrel
