// SPDX-License-Identifier: MIT
// What all items with a barcode share: the text, sizes, place on the page, binding to data.
#pragma once

#include <vagrel/document/TVGR2DItem.h>
#include <vagrel/items/TDataBinding.h>

#include <vector>

namespace vagrel {

/// The sizes of a symbol when it is made, and the least ones, in base units on paper.
struct TCodeSizes {
    std::int32_t barWidth, barHeight, paddingX, paddingY, leastWidth, leastHeight;
};

/// A symbol in a box around point 1, its anchor. Point 2 follows from the size of the symbol with its quiet zones,
/// which follows from the text: neither width nor height can be set.
///
/// Sizes are in the document's unit, or in millimetres when that is larger than a centimetre. A change of what is
/// encoded asks the document for `CalcValues`; until then the symbol is that of the old text.
class TVGRBaseCode : public TVGR2DItem, public IKSLBar1D2D, public IKSLData, public IKSLAngle, public IKSLPadding {
public:
    // The text

    const std::u16string& GetCode() const { return fCode; }
    /// The text as single bytes of ISO 8859-1, as the linear codes, Data Matrix and PDF417 hold it.
    std::string GetAnsiCode() const;
    /// What ISO 8859-1 lacks becomes U+0080, which linear codes refuse and PDF417 drops.
    virtual void SetCode(std::u16string_view value);
    /// Whether there is a symbol of the text.
    virtual bool IsValid() const = 0;

    // Sizes

    float GetBarWidth() const override { return ToUnit(fBarWidth); }
    float GetBarHeight() const override { return ToUnit(fBarHeight); }
    float GetFactor() const override { return fFactor; }
    float GetPaddingX() const override { return ToUnit(fPaddingX); }
    float GetPaddingY() const override { return ToUnit(fPaddingY); }
    /// On paper.
    std::int32_t BaseBarWidth() const { return fBarWidth; }
    std::int32_t BaseBarHeight() const { return fBarHeight; }
    /// Not negative.
    void SetPaddingX(float value) override { StorePadding(fPaddingX, value); }
    void SetPaddingY(float value) override { StorePadding(fPaddingY, value); }
    /// The symbol with its quiet zones, base units on paper.
    std::int64_t BarCodeWidth() const { return fBarCodeWidth; }
    std::int64_t BarCodeHeight() const { return fBarCodeHeight; }
    void SetWidth(float) override {}
    void SetHeight(float) override {}
    void SetBaseWidth(std::int64_t) override {}
    void SetBaseHeight(std::int64_t) override {}

    // Place

    TKSLAngle GetAngle() const override { return fAngle; }
    void SetAngle(TKSLAngle value) override;
    void RotateLeft() override;
    void RotateRight() override;
    void UpdateBounds() override;
    void CheckFit(TKSLExtent& extent) const override;
    TKSLBase CenterPoint() const override;
    float GetRefX(int) const override { return GetPointX(1); }
    float GetRefY(int) const override { return GetPointY(1); }

    /// What is dark, in base coordinates of the page; nothing without a symbol.
    virtual std::vector<TKSLRect> DarkRects() const = 0;

    // Data

    TKSLFillType FillType() const override;
    std::u16string FillName() const override { return fBinding.field; }
    std::u16string SymFillName() const override;
    std::u16string GetFormat() const override { return fBinding.format; }
    void SetData(TKSLFillType type, std::u16string_view name, std::u16string_view format) override;
    bool GetIsData() const override;
    /// The value of the current record becomes the text.
    void FillData(bool update) override;

    void Members(TMembers& members) override;

protected:
    TVGRBaseCode(TVGRBaseLabel& owner, TKSLItemType type, TVGRLayer& layer, bool preview, const TCodeSizes& sizes);

    /// Takes a text in the form that the class holds. `CalcValues` encodes it.
    virtual void StoreCode(std::u16string_view value);
    /// Computes the size of the symbol, after a change of a size.
    virtual void MeasureSymbol() = 0;
    /// What follows a stored size.
    void SizeStored();
    /// Stores bar sizes that differ, with one record.
    void StoreBars(std::int64_t width, std::int64_t height, float factor, cmd::TFloatIndex index);

    float ToUnit(std::int32_t base) const;
    std::int32_t ToBase(float value) const;
    /// A rectangle along and across the symbol, from the corner of the box where it starts, on the page.
    TKSLRect Place(const TKSLRect& rect) const;

    // The sizes in files. What follows a reading keeps them within their limits.
    void BarKeys(TJsonFields& keys);
    void PaddingKeys(TJsonFields& keys);
    /// A length in the unit of the sizes.
    void SizeKey(TJsonFields& keys, std::u16string_view key, std::int32_t& field);
    void LimitSizes();

    /// The frame in the back colour.
    void WriteFrame(TSVGOutput& out) const;
    void WriteRects(TSVGOutput& out, const std::vector<TKSLRect>& rects, TAlphaColor color) const;

    std::u16string fCode;
    std::int32_t fBarWidth, fBarHeight, fPaddingX, fPaddingY;
    const std::int32_t fLeastWidth, fLeastHeight;
    float fFactor = 0;
    TKSLHorzAlign fHorzAlign = haLeft;
    TKSLVertAlign fVertAlign = vaTop;
    std::int64_t fBarCodeWidth = 0, fBarCodeHeight = 0;
    TDataBinding fBinding;

private:
    void StorePadding(std::int32_t& field, float value);
};

} // namespace vagrel
