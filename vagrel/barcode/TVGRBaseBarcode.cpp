// SPDX-License-Identifier: MIT
// The linear barcode: what it encodes, and how large it becomes.
#include <vagrel/barcode/TVGRBaseBarcode.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Rounding.h>

#include <algorithm>

namespace vagrel {

namespace {

constexpr TCodeSizes Usual{300, 10000, 3000, 0, 120, 2000};

struct TLimits {
    float least, most;
};

TLimits FactorLimits(TKSLBarType type) {
    switch (type) {
    case btEAN13:
    case btEAN8:
    case btUPCA:
    case btCODE39:
    case btCODE39EX:
    case btINTER_25:
    case btINDUS_25:
        return {2, 3};
    case btMATRIX_25:
        return {2.25f, 3};
    default:
        return {1, 6};
    }
}

// Not a number gives the least.
float Limited(float factor, TKSLBarType type) {
    const auto [least, most] = FactorLimits(type);
    return factor >= least ? std::min(factor, most) : least;
}

} // namespace

TVGRBaseBarcode::TVGRBaseBarcode(TVGRBaseLabel& owner, bool preview)
    : TVGRBaseBarcode(owner, owner.GetLayer(1), preview) {}

TVGRBaseBarcode::TVGRBaseBarcode(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : TVGRBaseCode(owner, itBarcode, layer, preview, Usual) {
    fFactor = 3;
    Encode();
}

// What is encoded

void TVGRBaseBarcode::CheckValid() {
    fIsValid = TBarcode::IsValidCode(GetAnsiCode(), fCodeType, fCheckSum, fIgnoreParentheses);
}

void TVGRBaseBarcode::CheckFactor() { fFactor = Limited(fFactor, fCodeType); }

void TVGRBaseBarcode::StoreCode(std::u16string_view value) {
    TVGRBaseCode::StoreCode(value);
    CheckValid();
}

void TVGRBaseBarcode::SetCodeType(TKSLBarType value) {
    if (!Store(fCodeType, value, {}, TFollow::None))
        return;
    CheckFactor();
    CheckValid();
    StateCalc();
}

void TVGRBaseBarcode::SetCheckSum(bool value) {
    if (!Store(fCheckSum, value, {}, TFollow::None))
        return;
    CheckValid();
    StateCalc();
}

void TVGRBaseBarcode::SetCheckType(TKSLCheckType value) { Store(fCheckType, value, {}, TFollow::Modified); }

void TVGRBaseBarcode::SetIgnoreParentheses(bool value) {
    if (!Store(fIgnoreParentheses, value, {}, TFollow::None))
        return;
    CheckValid();
    StateCalc();
}

TVGRBaseBarcode::TPrepared TVGRBaseBarcode::Prepare() const {
    TPrepared prepared;
    std::string digits;
    prepared.code =
        TBarcode::PrepareBarcode(GetAnsiCode(), fCodeType, fCheckSum, fIgnoreParentheses, digits, prepared.auto128);
    prepared.pattern = TBarcode::FillBarPattern(prepared.code, fCodeType, prepared.auto128, fShowNumber);
    return prepared;
}

void TVGRBaseBarcode::Encode() {
    CheckValid();
    fCCode.clear();
    fDrCode.clear();
    if (fIsValid) {
        TPrepared prepared = Prepare();
        fCCode = std::move(prepared.code);
        fDrCode = std::move(prepared.pattern);
        f128Auto = prepared.auto128;
    }
    MeasureSymbol();
}

void TVGRBaseBarcode::CalcValues(int kind) {
    Touch();
    TVGRBaseCode::CalcValues(kind);
    Encode();
    UpdatePoints();
}

// Sizes

void TVGRBaseBarcode::MeasureSymbol() {
    fBarCodeWidth = TBarcode::BarCodeWidth(fDrCode, fBarWidth, fFactor, fIsValid) + 2 * std::int64_t(fPaddingX);
    fBarCodeHeight = fBarHeight + 2 * std::int64_t(fPaddingY);
    if (fShowNumber)
        fBarCodeHeight += std::int64_t(fMeasured.ascent) + fMeasured.descent;
}

void TVGRBaseBarcode::SetBarWidth(float value) { StoreBars(ToBase(value), fBarHeight, fFactor, cmd::BarWidth); }
void TVGRBaseBarcode::SetBarHeight(float value) { StoreBars(fBarWidth, ToBase(value), fFactor, cmd::BarHeight); }

void TVGRBaseBarcode::SetFactor(float value) {
    StoreBars(fBarWidth, fBarHeight, Limited(value, fCodeType), cmd::Factor);
}

void TVGRBaseBarcode::SetDistance(float value) { Store(fDistance, ToBase(value), {}, TFollow::Calc); }

void TVGRBaseBarcode::SetFontName(std::u16string_view value) {
    Store(fFontName, std::u16string(value), {}, TFollow::Calc);
}

void TVGRBaseBarcode::SetFontHeight(float value) {
    Store(fFontHeight, std::max(ToBase(value), SmallestFont), {}, TFollow::Calc);
}

float TVGRBaseBarcode::GetDrawValue(float value, int dpi) const { return fOwner.GetDrawValue(value, dpi); }

std::int64_t TVGRBaseBarcode::GetPrintValue(float value, int dpi) const { return fOwner.GetPrintValue(value, dpi); }

// Place

std::vector<TKSLRect> TVGRBaseBarcode::Bars(std::string_view pattern) const {
    std::vector<TKSLRect> bars = BarRects(pattern, Sizes());
    for (TKSLRect& bar : bars)
        bar = Place({bar.Left + fPaddingX, bar.Top + fPaddingY, bar.Right + fPaddingX, bar.Bottom + fPaddingY});
    return bars;
}

std::vector<TPlacedDigits> TVGRBaseBarcode::Digits(std::string_view code, std::string_view pattern) const {
    std::vector<TPlacedDigits> digits;
    if (!fShowNumber || pattern.empty())
        return digits;
    const std::int64_t below = std::int64_t(fPaddingY) + fBarHeight + fDistance;
    for (const TDigitGroup& group : DigitGroups(code, fCodeType, pattern, Sizes())) {
        const std::int64_t along = group.x + fPaddingX;
        const TKSLRect place = Place({along, below, along, below});
        std::u16string text;
        // Control characters have no look, and no place in XML.
        for (const char character : group.text) {
            const auto unit = char16_t(static_cast<unsigned char>(character));
            text += unit < 32 || (unit >= 127 && unit < 160) ? u' ' : unit;
        }
        digits.push_back({std::move(text), {place.Left, place.Top}, group.align});
    }
    return digits;
}

void TVGRBaseBarcode::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props, {iyID, iyLayer, iy1D, iyAngle, iyPadding, iyBackBarcode}, {iyBarcode});
}

} // namespace vagrel
