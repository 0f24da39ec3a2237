// SPDX-License-Identifier: MIT
// The symbologies by value, and the steps that every code goes through: validity, preparation, pattern.
#include <vagrel/barcode/TBarcode.h>

#include <vagrel/barcode/Symbology_p.h>

#include <algorithm>
#include <array>

namespace vagrel {

using namespace detail;

namespace {

// To exchange a rule of check digits, exchange the preparation in the row.
constexpr std::array<TSymbology, 23> Symbologies{{
    {btEAN13, 13, Digits, ctMod10, PrepareDigits, EncodeEan13},
    {btEAN8, 8, Digits, ctMod10, PrepareDigits, EncodeEan8},
    {btUPCA, 12, Digits, ctMod10, PrepareDigits, EncodeUpcA},
    {btUPCE0, 8, Digits, ctMod10, PrepareDigits, EncodeUpcE},
    {btCODE39, 0, Characters39, ctNone, PrepareCode39, EncodeCode39},
    {btCODE39EX, 0, Ascii, ctNone, PrepareCode39Ex, EncodeCode39Ex},
    {btCODE93, 0, Characters93, ctNone, PrepareDigits, EncodeCode93},
    {btCODE93EX, 0, Ascii, ctNone, PrepareDigits, EncodeCode93Ex},
    {btCODABAR, 0, CharactersCodabar, ctNone, PrepareDigits, EncodeCodabar},
    {btEAN128A, 0, CodeSetA, ctMod10, PrepareCode128, EncodeCode128A},
    {btEAN128B, 0, CodeSetB, ctMod10, PrepareCode128, EncodeCode128B},
    {btEAN128C, 0, Digits, ctMod10, PrepareCode128Pairs, EncodeCode128C},
    {btEAN128AUTO, 0, CodeSetB, ctNone, PrepareDigits, EncodeCode128Auto},
    {btCODE128A, 0, CodeSetA, ctMod10, PrepareCode128, EncodeCode128A},
    {btCODE128B, 0, CodeSetB, ctMod10, PrepareCode128, EncodeCode128B},
    {btCODE128C, 0, Digits, ctMod10, PrepareCode128Pairs, EncodeCode128C},
    {btCODE128AUTO, 0, CodeSetB | UpperHalf, ctNone, PrepareDigits, EncodeCode128Auto},
    {btINTER_25, 0, Digits, ctMod10Right, PrepareInterleaved, EncodeInterleaved},
    {btINDUS_25, 0, Digits, ctMod10Right, PrepareDigits, EncodeIndustrial},
    {btMATRIX_25, 0, Digits, ctMod10Right, PrepareDigits, EncodeMatrix25},
    {btCODE11, 0, Characters11, ctMod11, PrepareDigits, EncodeCode11},
    {btMSI, 0, Digits, ctMSI10, PrepareDigits, EncodeMsi},
    {btPOSTNET, 0, Digits, ctNone, PrepareDigits, EncodePostnet},
}};

consteval bool InOrder() {
    for (std::size_t i = 0; i < Symbologies.size(); ++i)
        if (Symbologies[i].Type != static_cast<TKSLBarType>(i))
            return false;
    return true;
}
static_assert(InOrder());

const TSymbology* SymbologyOf(TKSLBarType codeType) {
    const auto index = static_cast<std::size_t>(codeType);
    return index < Symbologies.size() ? &Symbologies[index] : nullptr;
}

bool IsGs1(TKSLBarType codeType) { return codeType >= btEAN128A && codeType <= btEAN128AUTO; }

bool IsCode128(TKSLBarType codeType) { return codeType >= btEAN128A && codeType <= btCODE128AUTO; }

bool IsAuto128(TKSLBarType codeType) { return codeType == btEAN128AUTO || codeType == btCODE128AUTO; }

} // namespace

bool TBarcode::IsValidCode(std::string_view code, TKSLBarType codeType, bool checkSum, bool ignoreParentheses) {
    const TSymbology* symbology = SymbologyOf(codeType);
    if (!symbology)
        return false;
    const bool dropped = ignoreParentheses && IsCode128(codeType);
    if (!AllOf(code, static_cast<std::uint16_t>(symbology->Accepts | (dropped ? Parentheses : 0))))
        return false;
    const std::size_t length = symbology->Length;
    return !length || code.size() == length || (checkSum && code.size() < length);
}

std::string TBarcode::PrepareBarcode(std::string_view orgCode, TKSLBarType codeType, bool checkSum,
                                     bool ignoreParentheses, std::string& digitCtrl, TKSL128AutoType& auto128) {
    std::string code(orgCode);
    digitCtrl.clear();
    auto128 = at128None;
    const TSymbology* symbology = SymbologyOf(codeType);
    if (!symbology)
        return code;
    if (ignoreParentheses && IsCode128(codeType))
        std::erase_if(code, [](char character) { return Is(character, Parentheses); });
    TDigitControl prepared = symbology->Prepare(*symbology, std::move(code), checkSum);
    digitCtrl = std::move(prepared.DC);
    if (IsAuto128(codeType))
        auto128 = ChooseAuto128(prepared.Code, IsGs1(codeType));
    return std::move(prepared.Code);
}

std::string TBarcode::FillBarPattern(std::string_view calCode, TKSLBarType codeType, TKSL128AutoType auto128,
                                     bool showNumber) {
    const TSymbology* symbology = SymbologyOf(codeType);
    if (!symbology)
        return {};
    return symbology->Encode({calCode, auto128, IsGs1(codeType), showNumber});
}

bool TBarcode::OnlyNumber(std::string_view code) { return AllOf(code, Digits); }
bool TBarcode::OnlyNumberParentheses(std::string_view code) { return AllOf(code, Digits | Parentheses); }
bool TBarcode::OnlyCode39(std::string_view code) { return AllOf(code, Characters39); }
bool TBarcode::OnlyCode39Ex(std::string_view code) { return AllOf(code, Ascii); }
bool TBarcode::OnlyCode93(std::string_view code) { return AllOf(code, Characters93); }
bool TBarcode::OnlyCode93Ex(std::string_view code) { return AllOf(code, Ascii); }
bool TBarcode::OnlyCode11(std::string_view code) { return AllOf(code, Characters11); }
bool TBarcode::OnlyCodabar(std::string_view code) { return AllOf(code, CharactersCodabar); }
bool TBarcode::OnlyEan128A(std::string_view code) { return AllOf(code, CodeSetA); }
bool TBarcode::OnlyEan128B(std::string_view code) { return AllOf(code, CodeSetB); }
bool TBarcode::ValidCode128Auto(std::string_view code) { return AllOf(code, CodeSetB | UpperHalf); }

std::string TBarcode::RemoveAccented(std::string_view code) {
    static constexpr std::string_view accented = "\xE1\xE9\xED\xF3\xFA\xC1\xC9\xCD\xD3\xDA", plain = "aeiouAEIOU";
    std::string result(code);
    for (char& character : result)
        if (const std::size_t vowel = accented.find(character); vowel != accented.npos)
            character = plain[vowel];
    return result;
}

void TBarcode::UpperCase(std::string& code) {
    for (char& character : code)
        if (IsLowCaseLetter(character))
            character = static_cast<char>(character - 'a' + 'A');
}

bool TBarcode::IsLowCaseLetter(char character) { return character >= 'a' && character <= 'z'; }

} // namespace vagrel
