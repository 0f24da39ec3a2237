// SPDX-License-Identifier: MIT
// What a symbology is to TBarcode: a row of functions and limits. The families stand in their own sources.
#pragma once

#include <vagrel/barcode/TBarcode.h>

#include <algorithm>
#include <array>

namespace vagrel::detail {

// Sets of characters, as bits; a character may be in several.
inline constexpr std::uint16_t Digits = 1 << 0;
inline constexpr std::uint16_t Parentheses = 1 << 1;
inline constexpr std::uint16_t Characters39 = 1 << 2;
inline constexpr std::uint16_t Characters93 = 1 << 3;
inline constexpr std::uint16_t Characters11 = 1 << 4;
inline constexpr std::uint16_t CharactersCodabar = 1 << 5;
inline constexpr std::uint16_t Ascii = 1 << 6;
inline constexpr std::uint16_t CodeSetA = 1 << 7;
inline constexpr std::uint16_t CodeSetB = 1 << 8;
/// The upper half of ISO 8859-1 that Code 128 reaches by FNC4, with the space.
inline constexpr std::uint16_t UpperHalf = 1 << 9;

/// The sets of each character code.
extern const std::array<std::uint16_t, 256> CharacterClasses;

/// True when `character` is in one of the sets.
inline bool Is(char character, std::uint16_t sets) {
    return CharacterClasses[static_cast<unsigned char>(character)] & sets;
}

/// True when every character is in one of the sets.
inline bool AllOf(std::string_view text, std::uint16_t sets) {
    return std::ranges::all_of(text, [=](char character) { return Is(character, sets); });
}

/// 0 for a character that is no digit.
inline std::size_t DigitValue(char digit) { return Is(digit, Digits) ? static_cast<std::size_t>(digit - '0') : 0; }

struct TPatternRequest {
    std::string_view Code;
    TKSL128AutoType Auto128;
    bool Gs1, ShowNumber;
};

struct TSymbology {
    TKSLBarType Type;
    /// Number of digits with the check digit; 0 where the length is free.
    std::size_t Length;
    std::uint16_t Accepts;
    TKSLCheckType Check;
    TDigitControl (*Prepare)(const TSymbology&, std::string code, bool checkSum);
    std::string (*Encode)(const TPatternRequest&);
};

// Preparation

TDigitControl PrepareDigits(const TSymbology&, std::string code, bool checkSum);
TDigitControl PrepareInterleaved(const TSymbology&, std::string code, bool checkSum);
TDigitControl PrepareCode39(const TSymbology&, std::string code, bool checkSum);
TDigitControl PrepareCode39Ex(const TSymbology&, std::string code, bool checkSum);
TDigitControl PrepareCode128(const TSymbology&, std::string code, bool checkSum);
TDigitControl PrepareCode128Pairs(const TSymbology&, std::string code, bool checkSum);

/// The mode of an automatic kind of Code 128; only the kind without FNC1 reaches the upper half.
TKSL128AutoType ChooseAuto128(std::string_view code, bool gs1);

// Patterns

std::string EncodeEan13(const TPatternRequest&);
std::string EncodeEan8(const TPatternRequest&);
std::string EncodeUpcA(const TPatternRequest&);
std::string EncodeUpcE(const TPatternRequest&);
std::string EncodeCode39(const TPatternRequest&);
std::string EncodeCode39Ex(const TPatternRequest&);
std::string EncodeCode93(const TPatternRequest&);
std::string EncodeCode93Ex(const TPatternRequest&);
std::string EncodeCodabar(const TPatternRequest&);
std::string EncodeCode128A(const TPatternRequest&);
std::string EncodeCode128B(const TPatternRequest&);
std::string EncodeCode128C(const TPatternRequest&);
std::string EncodeCode128Auto(const TPatternRequest&);
std::string EncodeInterleaved(const TPatternRequest&);
std::string EncodeIndustrial(const TPatternRequest&);
std::string EncodeMatrix25(const TPatternRequest&);
std::string EncodeCode11(const TPatternRequest&);
std::string EncodeMsi(const TPatternRequest&);
std::string EncodePostnet(const TPatternRequest&);

} // namespace vagrel::detail
