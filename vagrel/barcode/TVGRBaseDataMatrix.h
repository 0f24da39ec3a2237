// SPDX-License-Identifier: MIT
// The Data Matrix.
#pragma once

#include <vagrel/barcode/CalcECC200.h>
#include <vagrel/barcode/TVGRBaseMatrixCode.h>

namespace vagrel {

/// A square Data Matrix in the smallest size that holds the text. A text that none holds makes a blank box of the
/// smallest size.
class TVGRBaseDataMatrix : public TVGRBaseMatrixCode {
public:
    TVGRBaseDataMatrix(TVGRBaseLabel& owner, bool preview);
    TVGRBaseDataMatrix(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview);

    /// Size and shape are kept in files; the symbol takes no notice of them.
    TECC200Size GetDMSize() const { return fDMSize; }
    void SetDMSize(TECC200Size value) { Store(fDMSize, value, {}, TFollow::Calc); }
    TECC200Shape GetDMShape() const { return fDMShape; }
    void SetDMShape(TECC200Shape value) { Store(fDMShape, value, {}, TFollow::Calc); }
    bool IsValid() const override { return !fGrid.dark.empty(); }
    void Encode() final;
    void Members(TMembers& members) override;

protected:
    void Keys(TJsonFields& keys) override;
    void Fields(TBinaryFields& fields) override;

private:
    TECC200Size fDMSize = ecc200_Autosize;
    TECC200Shape fDMShape = ecc200_Square;
};

} // namespace vagrel
