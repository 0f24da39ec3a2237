// SPDX-License-Identifier: MIT
// The single-line text: a label anchored at one point, with a frame, bound to data or not.
#pragma once

#include <vagrel/document/TFont.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/items/TDataBinding.h>

namespace vagrel {

/// What a host measured of a text: base units on paper.
struct TTextMeasure {
    std::int32_t width = 0, height = 0;
    std::int32_t ascent = 0, descent = 0, posUnderline = 0;
    double ratio = 1; ///< drawn font height to nominal font height

    bool operator==(const TTextMeasure&) const = default;
};

/// One line of text around point 1, its anchor; point 2 follows from the measured size. A host measures in its override
/// of `CalcValues` and hands the result to `StoreMeasure`.
class TVGRBaseText : public TVGRBaseItem,
                     public TKSLTextShim,
                     public IKSLFont,
                     public IKSLAlign,
                     public IKSLPadding,
                     public IKSLRadio,
                     public IKSLBack,
                     public IKSLAngle,
                     public IKSLData {
public:
    TVGRBaseText(TVGRBaseLabel& owner, bool preview);
    TVGRBaseText(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview);

    // The text

    std::u16string GetText() const override { return fText; }
    /// A new text that is not empty ends the binding of an item that is filled from data.
    void SetText(std::u16string_view value) override;
    /// The displayed text.
    const std::u16string& GetDText() const { return dText; }
    TFontStyles Style() const override;
    std::u16string FName() const override { return fFont.name; }
    bool IsBold() const override { return fFont.bold; }
    bool IsItalic() const override { return fFont.italic; }
    bool IsUnderline() const override { return fFont.underline; }
    bool IsStrikeOut() const override { return fFont.strikeout; }
    /// The height of the font in millimetres, until a host knows better.
    float TextHeight() const override { return GetFontHeight(); }
    float GetScale() const override { return fScaleX; }
    TKSLSPoint Position(const TVGRBaseDraw& draw) const override;
    TAlphaColor FAColor() const override { return fColor; }

    // Looks

    float GetScaleX() const override { return fScaleX; }
    /// 0.4 to 2.
    void SetScaleX(float value) override;
    std::u16string GetFontName() const override { return fFont.name; }
    void SetFontName(std::u16string_view value) override;
    /// Millimetres, at least 1.
    float GetFontHeight() const override;
    void SetFontHeight(float mm) override;
    TAlphaColor GetFontColor() const override { return fFont.color; }
    void SetFontColor(TAlphaColor value) override;
    bool GetBold() const override { return fFont.bold; }
    void SetBold(bool value) override { Store(fFont.bold, value, cmd::Bold, TFollow::Calc); }
    bool GetItalic() const override { return fFont.italic; }
    void SetItalic(bool value) override { Store(fFont.italic, value, cmd::Italic, TFollow::Calc); }
    bool GetUnderline() const override { return fFont.underline; }
    void SetUnderline(bool value) override { Store(fFont.underline, value, cmd::Underline, TFollow::Calc); }
    void SetStrikeout(bool value) override;
    const TFont& Font() const { return fFont; }
    TAlphaColor GetBackColor() const override { return fBackColor; }
    void SetBackColor(TAlphaColor value) override;
    bool GetFilled() const override { return fFill; }
    void SetFilled(bool value) override;
    TKSLHorzAlign GetHorzAlign() const override { return fHorzAlign; }
    void SetHorzAlign(TKSLHorzAlign value) override { Store(fHorzAlign, value, {}, TFollow::Bounds); }
    TKSLVertAlign GetVertAlign() const override { return fVertAlign; }
    void SetVertAlign(TKSLVertAlign value) override { Store(fVertAlign, value, {}, TFollow::Bounds); }
    TKSLAngle GetAngle() const override { return fAngle; }
    void SetAngle(TKSLAngle value) override { Store(fAngle, value, {}, TFollow::Bounds); }
    /// Millimetres, not negative.
    float GetPaddingX() const override;
    float GetPaddingY() const override;
    void SetPaddingX(float mm) override;
    void SetPaddingY(float mm) override;
    /// Millimetres; half the measured height at most.
    float GetRadio() const override;
    void SetRadio(float mm) override;
    std::int64_t GetBaseRadio() const override { return fRadio; }
    void SetBaseRadio(std::int64_t value) override;

    // Data

    TKSLFillType FillType() const override;
    std::u16string FillName() const override { return fBinding.field; }
    std::u16string SymFillName() const override;
    std::u16string GetFormat() const override { return fBinding.format; }
    /// Binds to a field: a leading "@", "{", "~", "=", "?" or "^" of the name tells the source, else `type` does.
    void SetData(TKSLFillType type, std::u16string_view name, std::u16string_view format) override;
    bool GetIsData() const override;
    void FillData(bool first) override;

    // Measured size and display width, base units on paper

    void StoreMeasure(const TTextMeasure& measure);
    const TTextMeasure& Measured() const { return fMeasured; }
    std::int32_t GetDispWidth() const { return fDispWidth; }
    /// A width outside 1 to the measured one shows the whole text.
    void SetDispWidth(std::int32_t value);
    std::int32_t GetEffectiveWidth() const;
    TKSLRect GetDisplayBoundsRect() const;
    TKSLRect GetDispWidthHandleRect() const;
    bool PickDispWidthHandle(std::int64_t bx, std::int64_t by, std::int64_t gap) const;
    void SetDispWidthFromMouse(std::int64_t bx, std::int64_t by);

    float GetRefX(int) const override { return GetPointX(1); }
    float GetRefY(int) const override { return GetPointY(1); }
    void UpdateBounds() override;
    TKSLBase CenterPoint() const override;
    void CheckFit(TKSLExtent& extent) const override;
    void BoundsMove(float& ax, float& ay) const override;
    using TVGRBaseItem::CheckBaseBoundsMove;
    void CheckBaseBoundsMove(std::int64_t& bx, std::int64_t& by, TKSLMoveOpt option) const override;
    void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const override;
    void WriteSVG(TSVGOutput& out) const override;
    void Members(TMembers& members) override;

protected:
    void Keys(TJsonFields& keys) override;
    void Fields(TBinaryFields& fields) override;

private:
    void StorePadding(std::int32_t& field, float mm);
    void ShowBinding();
    /// What follows a reading.
    void TakeRead();
    /// Which end of the display width stays, and where it lies along the text.
    struct TSpan;
    TSpan Span() const;

    TFont fFont;
    TAlphaColor fBackColor = OpaqueWhite;
    bool fFill = false;
    std::int64_t fRadio = 0;
    std::u16string fText;
    TKSLHorzAlign fHorzAlign = haLeft;
    TKSLVertAlign fVertAlign = vaTop;
    std::int32_t fPaddingX = 0, fPaddingY = 0;
    TDataBinding fBinding;
    TTextMeasure fMeasured;
    float fScaleX = 1;
    std::u16string dText;
    std::int32_t fDispWidth = 0;
};

} // namespace vagrel
