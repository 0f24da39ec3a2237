// SPDX-License-Identifier: MIT
// What an item can do beyond being an item: small interfaces, found by query on the item.
//
// Lengths called Base are base units; all others are millimetres where the interface is about a pen, a font or a
// padding, and the document's unit elsewhere. Barcodes have all their lengths in the document's unit, or in millimetres
// when that is larger than a centimetre.
#pragma once

#include <vagrel/foundation/Records.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace vagrel {

class TVGRBaseDraw;

/// The capability `I` of an item; null when it has none.
template <class I, class Item>
I* Query(Item* item) {
    return dynamic_cast<I*>(item);
}

class IKSLStroke {
public:
    virtual float GetPenWidth() const = 0;
    virtual TAlphaColor GetColor() const = 0;
    virtual void SetColor(TAlphaColor value) = 0;
    virtual void SetPenWidth(float mm) = 0;

protected:
    ~IKSLStroke() = default;
};

class IKSLStyle {
public:
    virtual TKSLineType GetLineType() const = 0;
    virtual void SetLineType(TKSLineType value) = 0;

protected:
    ~IKSLStyle() = default;
};

class IKSLAngle {
public:
    virtual TKSLAngle GetAngle() const = 0;
    virtual void SetAngle(TKSLAngle value) = 0;

protected:
    ~IKSLAngle() = default;
};

class IKSLBack {
public:
    virtual TAlphaColor GetBackColor() const = 0;
    virtual bool GetFilled() const = 0;
    virtual void SetFilled(bool value) = 0;
    virtual void SetBackColor(TAlphaColor value) = 0;

protected:
    ~IKSLBack() = default;
};

class IKSLSize {
public:
    virtual float GetHeight() const = 0;
    virtual float GetWidth() const = 0;
    virtual std::int64_t BaseWidth() const = 0;
    virtual std::int64_t BaseHeight() const = 0;
    virtual void SetHeight(float value) = 0;
    virtual void SetWidth(float value) = 0;
    virtual void SetBaseHeight(std::int64_t value) = 0;
    virtual void SetBaseWidth(std::int64_t value) = 0;

protected:
    ~IKSLSize() = default;
};

class IKSLWidthHeight {
public:
    virtual float GetHeight() const = 0;
    virtual float GetWidth() const = 0;
    virtual void SetHeight(float value) = 0;
    virtual void SetWidth(float value) = 0;

protected:
    ~IKSLWidthHeight() = default;
};

class IKSLRadio {
public:
    virtual float GetRadio() const = 0;
    virtual std::int64_t GetBaseRadio() const = 0;
    virtual void SetBaseRadio(std::int64_t value) = 0;
    virtual void SetRadio(float value) = 0;

protected:
    ~IKSLRadio() = default;
};

class IKSLCenter {
public:
    virtual float GetCenterX() const = 0;
    virtual float GetCenterY() const = 0;
    virtual std::int64_t GetBaseCenterX() const = 0;
    virtual std::int64_t GetBaseCenterY() const = 0;
    virtual void SetCenterX(float value) = 0;
    virtual void SetCenterY(float value) = 0;

protected:
    ~IKSLCenter() = default;
};

class IKSLPadding {
public:
    virtual float GetPaddingX() const = 0;
    virtual float GetPaddingY() const = 0;
    virtual void SetPaddingX(float mm) = 0;
    virtual void SetPaddingY(float mm) = 0;

protected:
    ~IKSLPadding() = default;
};

class IKSLAlign {
public:
    virtual TKSLHorzAlign GetHorzAlign() const = 0;
    virtual TKSLVertAlign GetVertAlign() const = 0;
    virtual void SetHorzAlign(TKSLHorzAlign value) = 0;
    virtual void SetVertAlign(TKSLVertAlign value) = 0;

protected:
    ~IKSLAlign() = default;
};

class IKSLFont {
public:
    virtual float GetScaleX() const = 0;
    virtual std::u16string GetFontName() const = 0;
    virtual float GetFontHeight() const = 0;
    virtual bool GetBold() const = 0;
    virtual bool GetItalic() const = 0;
    virtual bool GetUnderline() const = 0;
    virtual TAlphaColor GetFontColor() const = 0;
    virtual void SetFontName(std::u16string_view value) = 0;
    virtual void SetFontColor(TAlphaColor value) = 0;
    virtual void SetFontHeight(float mm) = 0;
    virtual void SetScaleX(float value) = 0;
    virtual void SetBold(bool value) = 0;
    virtual void SetItalic(bool value) = 0;
    virtual void SetUnderline(bool value) = 0;
    virtual void SetStrikeout(bool value) = 0;

protected:
    ~IKSLFont() = default;
};

enum TFontStyle : std::int32_t { fsBold, fsItalic, fsUnderline, fsStrikeOut };
using TFontStyles = TKSLSet<TFontStyle>;

class IKSLText {
public:
    virtual TFontStyles Style() const = 0;
    virtual std::u16string FName() const = 0;
    virtual bool IsBold() const = 0;
    virtual bool IsItalic() const = 0;
    virtual bool IsUnderline() const = 0;
    virtual bool IsStrikeOut() const = 0;
    /// Height of the text, not of its box.
    virtual float GetHeight() const = 0;
    virtual float GetScale() const = 0;
    virtual std::u16string GetText() const = 0;
    virtual TKSLSPoint Position(const TVGRBaseDraw& draw) const = 0;
    virtual TAlphaColor FAColor() const = 0;
    virtual void SetText(std::u16string_view value) = 0;

protected:
    ~IKSLText() = default;
};

/// Items implement IKSLText through this: the height of a text and the height of a box share a name, and an item may
/// have both.
class TKSLTextShim : public IKSLText {
public:
    float GetHeight() const final { return TextHeight(); }
    virtual float TextHeight() const = 0;

protected:
    ~TKSLTextShim() = default;
};

class IKSLSText {
public:
    virtual std::u16string GetText() const = 0;
    virtual void SetText(std::u16string_view value) = 0;

protected:
    ~IKSLSText() = default;
};

class IKSLData {
public:
    virtual TKSLFillType FillType() const = 0;
    virtual std::u16string FillName() const = 0;
    virtual std::u16string SymFillName() const = 0;
    virtual std::u16string GetFormat() const = 0;
    virtual void SetData(TKSLFillType type, std::u16string_view name, std::u16string_view format) = 0;

protected:
    ~IKSLData() = default;
};

/// The two terminals of a line.
class IKSLSTerm {
public:
    virtual float GetSizeFrom() const = 0;
    virtual float GetSizeTo() const = 0;
    virtual TAlphaColor GetFromColor() const = 0;
    virtual TAlphaColor GetToColor() const = 0;
    virtual TKSLTermType GetFromType() const = 0;
    virtual TKSLTermType GetToType() const = 0;
    virtual std::int32_t BaseSizeFrom() const = 0;
    virtual std::int32_t BaseSizeTo() const = 0;
    virtual void SetFromType(TKSLTermType value) = 0;
    virtual void SetToType(TKSLTermType value) = 0;
    virtual void SetFromColor(TAlphaColor value) = 0;
    virtual void SetToColor(TAlphaColor value) = 0;
    virtual void SetSizeFrom(float mm) = 0;
    virtual void SetSizeTo(float mm) = 0;
    virtual void SetBaseSizeFrom(std::int32_t value) = 0;
    virtual void SetBaseSizeTo(std::int32_t value) = 0;

protected:
    ~IKSLSTerm() = default;
};

/// Something that a link can attach to.
class IKSLLink {
public:
    /// The anchor of this number. An unknown number leaves `point` as the caller passed it.
    virtual void LinkPoint(int pos, TKSLBase& point) const = 0;
    virtual std::int32_t InternalID() const = 0;
    /// Whether a link would attach near the point; if so `link` is filled.
    virtual bool CheckLink(std::int64_t bx, std::int64_t by, TKSLink& link) const = 0;

protected:
    ~IKSLLink() = default;
};

/// A link, as the editor sees it: the numbers of the items that it joins, and the points of its course, from 1.
class IKSLLinkItem {
public:
    virtual std::int32_t GetFromID() const = 0;
    virtual std::int32_t GetToID() const = 0;
    virtual TKSLinkType GetLinkType() const = 0;
    virtual int NumLinkPoints() const = 0;
    virtual TKSLPto GetLinkPoint(int index) const = 0;
    /// False for a bad index; with `calc` the link is laid out again.
    virtual bool SetBasePoint(int index, std::int64_t bx, std::int64_t by, bool calc) = 0;

protected:
    ~IKSLLinkItem() = default;
};

/// An arc, as the editor sees it: the points 1, 2 and 3 of its rim, which shape it.
class IKSLArc {
public:
    virtual TKSLPto GetPto(int index) const = 0;
    virtual void MoveBasePoint(int index, std::int64_t x, std::int64_t y) = 0;

protected:
    ~IKSLArc() = default;
};

class IKSLBarcode {
public:
    virtual float GetBarWidth() const = 0;
    virtual float GetBarHeight() const = 0;
    virtual float GetPaddingX() const = 0;
    virtual float GetPaddingY() const = 0;
    virtual float GetFactor() const = 0;
    virtual TKSLHorzAlign GetHorzAlign() const = 0;
    virtual TKSLAngle GetAngle() const = 0;
    virtual float GetFontHeight() const = 0;
    virtual bool GetShowNumber() const = 0;
    virtual TKSLBarType GetBarType() const = 0;
    virtual std::u16string GetCCode() const = 0;
    virtual std::u16string GetDrCode() const = 0;
    virtual std::string GetAnsiCode() const = 0;
    virtual std::u16string GetFontName() const = 0;
    virtual float GetDrawValue(float value, int dpi) const = 0;
    virtual std::int64_t GetPrintValue(float value, int dpi) const = 0;

protected:
    ~IKSLBarcode() = default;
};

class IKSLBar1D2D {
public:
    virtual float GetBarWidth() const = 0;
    virtual float GetBarHeight() const = 0;
    virtual float GetFactor() const = 0;
    virtual void SetFactor(float value) = 0;
    virtual void SetBarHeight(float value) = 0;
    virtual void SetBarWidth(float value) = 0;

protected:
    ~IKSLBar1D2D() = default;
};

} // namespace vagrel
