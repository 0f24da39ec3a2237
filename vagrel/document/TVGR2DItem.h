// SPDX-License-Identifier: MIT
// The base of items that enclose an area and can be filled. Their geometry is the box between points 1 and 2.
#pragma once

#include <vagrel/document/TVGRBaseItem.h>

namespace vagrel {

/// An item with a back colour and a size.
class TVGR2DItem : public TVGRBaseItem, public IKSLBack, public IKSLSize {
public:
    TAlphaColor GetBackColor() const override { return fBackColor; }
    void SetBackColor(TAlphaColor value) override;
    /// Stores the colour without a command.
    void StoreBackColor(TAlphaColor value) { Put(fBackColor, value); }
    bool GetFilled() const override { return fFill; }
    void SetFilled(bool value) override;
    /// The alpha byte of the back colour.
    std::uint8_t Alpha() const { return AlphaOf(fBackColor); }

    std::int64_t BaseWidth() const override;
    std::int64_t BaseHeight() const override;
    /// On paper, in base units.
    std::int64_t BaseScaleWidth() const;
    std::int64_t BaseScaleHeight() const;
    /// In the document's unit.
    float GetWidth() const override;
    float GetHeight() const override;
    /// Nothing for a barcode, whose size follows from its code.
    void SetWidth(float value) override;
    void SetHeight(float value) override;
    void SetBaseWidth(std::int64_t value) override;
    void SetBaseHeight(std::int64_t value) override;
    void Members(TMembers& members) override;
    /// Millimetres on paper.
    float GetWidthMM() const;
    float GetHeightMM() const;
    std::int64_t WidthPx(int dpi) const;
    std::int64_t HeightPx(int dpi) const;

    using TVGRBaseItem::CheckBaseBoundsMove;
    void CheckBaseBoundsMove(std::int64_t& bx, std::int64_t& by, TKSLMoveOpt option) const override;

protected:
    TVGR2DItem(TVGRBaseLabel& owner, TKSLItemType type, bool preview);
    TVGR2DItem(TVGRBaseLabel& owner, TKSLItemType type, TVGRLayer& layer, bool preview);

    /// ` fill=...` in the back colour, or none.
    SvgElement& WriteFill(SvgElement& element) const;
    /// Stroke colour, pen width and dash.
    SvgElement& WriteStroke(SvgElement& element, TKSLineType dash) const;
    void Keys(TJsonFields& keys) override;
    void Fields(TBinaryFields& fields) override;

    TAlphaColor fBackColor = OpaqueWhite;
    bool fFill = true;
};

} // namespace vagrel
