// SPDX-License-Identifier: MIT
// Linear barcodes: text to a pattern of bars and spaces, check digits, validity and measures. Text is single-byte,
// ISO 8859-1. Nothing here keeps state, so that every function may be called from any thread.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace vagrel {

/// Rules of check digits.
enum TKSLCheckType : std::int32_t { ctNone, ctMod10, ctMod10Right, ctMod10UPCE, ctMod11, ctMSI, ctMSI10 };

/// How the automatic kinds of Code 128 mix the code sets.
enum TKSL128AutoType : std::int32_t {
    at128None,
    at128a,   ///< code set A
    at128b,   ///< code set B
    at128c,   ///< pairs of digits
    at128ac,  ///< kept for files; nothing is encoded so
    at128nac, ///< pairs of digits, the last digit in code set A
    at128bc,  ///< B, and pairs where they pay
    at128cb,  ///< pairs in front, then as at128bc
    at128e,   ///< the upper half of ISO 8859-1
    at128be   ///< B and the upper half mixed
};

/// Width of a pattern element in narrow widths; dw1F is the narrow width times the factor, dw32 is one and a half.
enum TKSLDrawWidth : std::int32_t { dw1, dw1F, dw2, dw3, dw4, dw32 };

/// What a pattern element draws: a bar, a short bar, an extended bar, a space, a space between extended bars.
enum TKSLDrawBar : std::int32_t { dbB, dbB2, dbEB, dbW, dbEW };

/// Data with their check digits, and the check digits alone.
struct TDigitControl {
    std::string Code, DC;
};

/// Encoder of the linear symbologies.
///
/// A pattern holds one character for each element, bars and spaces in turn: N, D, T, W are bars of 1 to 4 modules, M a
/// wide bar, F a bar of 3/2, A, B, C short bars (1, wide, 2), 9 an extended narrow bar; 1, 2, 3, 4 are spaces of 1 to 4
/// modules, 6 a wide space, 7 a space of 3/2.
class TBarcode {
public:
    TBarcode() = delete;

    /// True when the symbology takes `code`: its characters, and for EAN and UPC its length, which with `checkSum` may
    /// be shorter. Parentheses that are ignored are accepted by the kinds of Code 128.
    static bool IsValidCode(std::string_view code, TKSLBarType codeType, bool checkSum, bool ignoreParentheses);

    /// Normalises the data and appends check digits; validates nothing.
    /// @param digitCtrl takes the check digits, empty where there are none
    /// @param auto128 takes the mode of the automatic kinds, at128None for all others
    static std::string PrepareBarcode(std::string_view orgCode, TKSLBarType codeType, bool checkSum,
                                      bool ignoreParentheses, std::string& digitCtrl, TKSL128AutoType& auto128);

    /// The pattern of prepared data. Text that the kind cannot hold gives an empty pattern.
    /// @param showNumber draws the guards of EAN and UPC as extended bars, for numbers printed between them
    static std::string FillBarPattern(std::string_view calCode, TKSLBarType codeType, TKSL128AutoType auto128,
                                      bool showNumber);

    /// Appends check digits by one of the rules.
    static TDigitControl CheckSumMod(std::string_view code, TKSLCheckType checkType);

    /// Width of a pattern in the unit of `barWidth`, wide elements and elements of 3/2 rounded one by one; 60 narrow
    /// widths when not `isValid`.
    static std::int32_t BarCodeWidth(std::string_view pattern, std::int32_t barWidth, float factor, bool isValid);

    // Offsets of the groups of printed digits from the left end of a pattern, in the unit of `barWidth`.

    static void Ean13Pos(std::string_view pattern, double barWidth, double factor, double& text1, double& text2);
    static void Ean8Pos(std::string_view pattern, double barWidth, double factor, double& text1, double& text2);
    static void UPCEPos(std::string_view pattern, double barWidth, double factor, double& text1, double& text2);
    static void UPCAPos(std::string_view pattern, double barWidth, double factor, double& text1, double& text2,
                        double& text3);

    /// Width and kind of a pattern element; any other character leaves both as they were.
    static void FillBarData(char element, TKSLDrawWidth& width, TKSLDrawBar& bar);

    // Character classes; the empty text is in each.

    static bool OnlyNumber(std::string_view code);
    static bool OnlyNumberParentheses(std::string_view code);
    static bool OnlyCode39(std::string_view code);
    static bool OnlyCode39Ex(std::string_view code);
    static bool OnlyCode93(std::string_view code);
    static bool OnlyCode93Ex(std::string_view code);
    static bool OnlyCode11(std::string_view code);
    static bool OnlyCodabar(std::string_view code);
    static bool OnlyEan128A(std::string_view code);
    static bool OnlyEan128B(std::string_view code);
    static bool ValidCode128Auto(std::string_view code);

    /// The vowels with an acute accent as plain vowels.
    static std::string RemoveAccented(std::string_view code);
    /// Capitals for a to z.
    static void UpperCase(std::string& code);
    static bool IsLowCaseLetter(char character);
};

} // namespace vagrel
