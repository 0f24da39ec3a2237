// SPDX-License-Identifier: MIT
// What QR Code, Data Matrix and PDF417 share: a grid of modules, aligned both ways.
#pragma once

#include <vagrel/barcode/TVGRBaseCode.h>

namespace vagrel {

/// The modules of a symbol, row by row, 1 dark and 0 light. `dark` may be empty where only the size is known.
struct TModuleGrid {
    int columns = 0, rows = 0;
    std::vector<std::uint8_t> dark;

    bool operator==(const TModuleGrid&) const = default;
    bool IsDark(int column, int row) const {
        return !dark.empty() && dark[std::size_t(row) * std::size_t(columns) + std::size_t(column)] != 0;
    }
};

/// A symbol of modules, each a bar width wide and a bar height high.
class TVGRBaseMatrixCode : public TVGRBaseCode, public IKSLAlign {
public:
    const TModuleGrid& Modules() const { return fGrid; }

    /// While the factor is above 0, the height is the width times the factor, and setting one sets the other.
    void SetBarWidth(float value) override;
    void SetBarHeight(float value) override;
    /// Height to width of a module; 0 leaves both free.
    void SetFactor(float value) override;
    TKSLHorzAlign GetHorzAlign() const override { return fHorzAlign; }
    TKSLVertAlign GetVertAlign() const override { return fVertAlign; }
    void SetHorzAlign(TKSLHorzAlign value) override { Store(fHorzAlign, value, {}, TFollow::Bounds); }
    void SetVertAlign(TKSLVertAlign value) override { Store(fVertAlign, value, {}, TFollow::Bounds); }

    /// Computes the symbol of the text.
    virtual void Encode() = 0;
    /// Encodes and computes the size anew.
    void CalcValues(int kind) override;
    std::vector<TKSLRect> DarkRects() const override;
    void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const override;
    void WriteSVG(TSVGOutput& out) const override;
    void Members(TMembers& members) override;

protected:
    using TVGRBaseCode::TVGRBaseCode;

    void MeasureSymbol() override;
    // The parts of the files that all three have: sizes, and what ends the block.
    void SizeKeys(TJsonFields& keys);
    void CodeKeys(TJsonFields& keys);
    /// The height comes first.
    void SizeFields(TBinaryFields& fields);
    void CodeFields(TBinaryFields& fields);

    TModuleGrid fGrid;

private:
    void TakeRead();
};

} // namespace vagrel
