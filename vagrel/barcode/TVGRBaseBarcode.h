// SPDX-License-Identifier: MIT
// The linear barcode: bars, and the digits under them.
#pragma once

#include <vagrel/barcode/BarLayout.h>
#include <vagrel/barcode/TVGRBaseCode.h>

namespace vagrel {

/// What a host measured of the font of the digits, base units on paper. As it stands it is that of a font of 3 mm.
struct TDigitMeasure {
    std::int32_t ascent = 2716;
    std::int32_t descent = 636; ///< and the gap above the digits, which the box has no other place for
    std::int32_t posUnderline = 0, lineSize = 0;
    double ratio = 1; ///< drawn font height to nominal font height

    bool operator==(const TDigitMeasure&) const = default;
};

/// A group of digits on the page: the top of the text, where it starts, is centred or ends; base coordinates.
struct TPlacedDigits {
    std::u16string text;
    TKSLPto at;
    TKSLHorzAlign align;
};

/// A code of one of the linear symbologies. Its text is ISO 8859-1. A text that the symbology refuses makes a blank box
/// 60 bars wide.
///
/// A host measures the digits in its override of `CalcValues`, which hands the result to `StoreDigitMeasure` and then
/// calls that of this class.
class TVGRBaseBarcode : public TVGRBaseCode, public IKSLBarcode {
public:
    TVGRBaseBarcode(TVGRBaseLabel& owner, bool preview);
    TVGRBaseBarcode(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview);

    // What is encoded

    bool IsValid() const override { return fIsValid; }
    TKSLBarType GetBarType() const override { return fCodeType; }
    void SetCodeType(TKSLBarType value);
    /// Whether check digits are appended.
    bool GetCheckSum() const { return fCheckSum; }
    void SetCheckSum(bool value);
    /// Kept for the host: the symbology tells which check digits it has.
    TKSLCheckType GetCheckType() const { return fCheckType; }
    void SetCheckType(TKSLCheckType value);
    /// Leaves "(" and ")" out of the data of Code 128.
    bool GetIgnoreParentheses() const { return fIgnoreParentheses; }
    void SetIgnoreParentheses(bool value);
    /// How the automatic kinds of Code 128 went about the text.
    TKSL128AutoType GetAutoType128() const { return f128Auto; }
    /// The text with its check digits, and the pattern of its bars; empty for a text that is refused.
    std::u16string GetCCode() const override { return {fCCode.begin(), fCCode.end()}; }
    std::u16string GetDrCode() const override { return {fDrCode.begin(), fDrCode.end()}; }
    std::string GetAnsiCode() const override { return TVGRBaseCode::GetAnsiCode(); }
    /// Computes validity, pattern and size anew.
    void CalcValues(int kind) override;

    // Looks

    float GetBarWidth() const override { return TVGRBaseCode::GetBarWidth(); }
    float GetBarHeight() const override { return TVGRBaseCode::GetBarHeight(); }
    float GetPaddingX() const override { return TVGRBaseCode::GetPaddingX(); }
    float GetPaddingY() const override { return TVGRBaseCode::GetPaddingY(); }
    TKSLAngle GetAngle() const override { return fAngle; }
    /// At least 0.12 mm.
    void SetBarWidth(float value) override;
    /// At least 2 mm.
    void SetBarHeight(float value) override;
    /// Wide to narrow, within the limits of the symbology.
    float GetFactor() const override { return fFactor; }
    void SetFactor(float value) override;
    TKSLHorzAlign GetHorzAlign() const override { return fHorzAlign; }
    void SetHorzAlign(TKSLHorzAlign value) { Store(fHorzAlign, value, {}, TFollow::Bounds); }

    // The digits

    bool GetShowNumber() const override { return fShowNumber; }
    void SetShowNumber(bool value) { Store(fShowNumber, value, {}, TFollow::Calc); }
    /// The gap between bars and digits.
    float GetDistance() const { return ToUnit(fDistance); }
    std::int32_t BaseDistance() const { return fDistance; }
    void SetDistance(float value);
    std::u16string GetFontName() const override { return fFontName; }
    void SetFontName(std::u16string_view value);
    /// At least 1 mm.
    float GetFontHeight() const override { return ToUnit(fFontHeight); }
    void SetFontHeight(float value);
    std::int32_t BaseFontHeight() const { return fFontHeight; }
    const TDigitMeasure& Measured() const { return fMeasured; }
    void StoreDigitMeasure(const TDigitMeasure& measure) { Put(fMeasured, measure); }
    std::vector<TPlacedDigits> Digits() const { return Digits(fCCode, fDrCode); }

    float GetDrawValue(float value, int dpi) const override;
    std::int64_t GetPrintValue(float value, int dpi) const override;

    std::vector<TKSLRect> DarkRects() const override { return Bars(fDrCode); }
    void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const override;
    void WriteSVG(TSVGOutput& out) const override;
    /// The bars and digits alone.
    void WriteSymbol(TSVGOutput& out, TAlphaColor color) const;
    void Members(TMembers& members) override;

protected:
    void StoreCode(std::u16string_view value) override;
    void MeasureSymbol() override;
    void Keys(TJsonFields& keys) override;
    void Fields(TBinaryFields& fields) override;

private:
    static constexpr std::int32_t SmallestFont = 1000;

    struct TPrepared {
        std::string code, pattern;
        TKSL128AutoType auto128;
    };
    TPrepared Prepare() const;
    void CheckValid();
    void CheckFactor();
    void Encode();
    /// What follows a reading.
    void TakeRead();
    TBarSizes Sizes() const { return {fBarWidth, fBarHeight, fFactor, fFontHeight}; }
    std::vector<TKSLRect> Bars(std::string_view pattern) const;
    std::vector<TPlacedDigits> Digits(std::string_view code, std::string_view pattern) const;
    void WriteDigits(TSVGOutput& out, const TPlacedDigits& digits, TAlphaColor color) const;

    std::int32_t fDistance = 0;
    bool fShowNumber = true;
    bool fCheckSum = false;
    TKSLCheckType fCheckType = ctMod10;
    TKSLBarType fCodeType = btCODE39;
    TKSL128AutoType f128Auto = at128None;
    bool fIgnoreParentheses = false;
    std::u16string fFontName = u"Arial";
    std::int32_t fFontHeight = 3000;
    TDigitMeasure fMeasured;
    std::string fCCode, fDrCode;
    bool fIsValid = true;
};

} // namespace vagrel
