// SPDX-License-Identifier: MIT
// The PDF417.
#pragma once

#include <vagrel/barcode/TPDF417.h>
#include <vagrel/barcode/TVGRBaseMatrixCode.h>

namespace vagrel {

/// A PDF417. A text that is refused, or that its grid does not hold, makes a blank box.
class TVGRBasePDF417 : public TVGRBaseMatrixCode {
public:
    TVGRBasePDF417(TVGRBaseLabel& owner, bool preview);
    TVGRBasePDF417(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview);

    /// Without the right row indicators.
    bool GetTruncated() const { return fTruncated; }
    void SetTruncated(bool value) { Store(fTruncated, value, {}, TFollow::Calc); }
    TKSLPdf417CorrectionLevel GetCorrecLevel() const { return fCorrecLevel; }
    void SetCorrecLevel(TKSLPdf417CorrectionLevel value) { Store(fCorrecLevel, value, {}, TFollow::Calc); }
    /// The level in effect, 0 to 8.
    int ErrorLevel() const { return fErrorLevel; }
    /// The wished grid: 0 to 30 columns, 0 to 90 rows, 0 for any.
    int GetCols() const { return fCols; }
    void SetCols(int value);
    int GetRows() const { return fRows; }
    void SetRows(int value);
    /// The grid in effect.
    int XCount() const { return fXCount; }
    int YCount() const { return fYCount; }
    /// Whether the words of the text fit the grid, and the grid, filled up, has no more than 928 words beside its
    /// correction.
    bool ValidCode() const;
    bool IsValid() const override { return ValidCode(); }
    void Encode() final;
    void Members(TMembers& members) override;

protected:
    void Keys(TJsonFields& keys) override;
    void Fields(TBinaryFields& fields) override;

private:
    void AdjustErrorLevel();
    void StoreGrid(std::int16_t& field, int value, int most);

    bool fTruncated = false;
    TKSLPdf417CorrectionLevel fCorrecLevel = Auto;
    std::int16_t fCols = 0, fRows = 0;
    TPDF417 fEncoder;
    TCodeWords fCodeWords{};
    bool fEncoded = false;
    int fErrorLevel = 0, fNumErrorCWords = 0;
    int fXCount = 1, fYCount = 3;
};

} // namespace vagrel
