// SPDX-License-Identifier: MIT
// What the page is: label, paper, sheet, draw scale and title-block texts.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace vagrel {

class TBinaryFields;
class TBinaryReader;
class TBinaryWriter;
class TJsonFields;
class TJsonObject;
class TMembers;
class TVGRBaseLabel;

/// The page measure of a document. Fields are base units on paper, with no draw scale in them. Setters take the unit of
/// their getters, clamp, and do nothing for an unchanged value.
class TVGRMeasure {
public:
    explicit TVGRMeasure(TVGRBaseLabel& owner);

    /// One field in base units; `incScale` multiplies by the draw scale, which gives base coordinates.
    std::int64_t GetSize(TKSLMeasureType type, bool incScale) const;

    // Millimetres in any mode but emLabelling, there the restricted document unit.

    float GetWidth() const { return GetSide(fWidth); }
    float GetHeight() const { return GetSide(fHeight); }
    float GetPaperWidth() const { return GetSide(fPaperWidth); }
    float GetPaperHeight() const { return GetSide(fPaperHeight); }
    void SetWidth(float value) { StoreWidth(BaseSide(value)); }
    void SetHeight(float value) { StoreHeight(BaseSide(value)); }
    void SetPaperWidth(float value) { StorePaperWidth(BaseSide(value)); }
    void SetPaperHeight(float value) { StorePaperHeight(BaseSide(value)); }
    /// Millimetres, without the floor of 5 mm.
    void SetLabelSizeMM(float width, float height);
    void SetPaperSizeMM(float width, float height);

    /// Exchanges width and height, of the label and of the paper.
    void Turn();

    /// The real size of the drawn area in the document's unit.
    float WidthUnits() const;
    float HeightUnits() const;

    // The restricted document unit.

    float GetMarLeft() const { return Restricted(fMarLeft); }
    float GetMarTop() const { return Restricted(fMarTop); }
    float GetDiHor() const { return Restricted(fDiHor); }
    float GetDiVer() const { return Restricted(fDiVer); }
    float GetInnerCircle() const { return Restricted(fInnerCircle); }
    void SetMarLeft(float value);
    void SetMarTop(float value);
    void SetDiHor(float value);
    void SetDiVer(float value);
    void SetInnerCircle(float value);

    /// Rows and columns of labels on a sheet.
    std::int32_t GetNuHor() const { return fNuHor; }
    std::int32_t GetNuVer() const { return fNuVer; }
    void SetNuHor(std::int32_t value);
    void SetNuVer(std::int32_t value);

    TVagrelType GetLabelType() const { return fLabelType; }
    void SetLabelType(TVagrelType value);
    bool GetContinousPaper() const { return fContinousPaper; }
    /// Always true in any mode but emLabelling.
    void SetContinousPaper(bool value);
    std::int16_t GetPaperSizeCode() const { return fPaperSize; }
    const std::u16string& GetPaperName() const { return fPaperName; }
    /// A name of the paper table, compared without regard to case, also sets the size; any other name is only stored.
    void SetPaperName(std::u16string_view value);
    const std::u16string& GetLabelName() const { return fLabelName; }
    void SetLabelName(std::u16string_view value);

    /// The denominator of 1:n; 1 in emLabelling and emFlowChart.
    std::int64_t GetDrawScale() const { return fDrawScale; }
    /// Throws EOutOfRange for a scale below 1 or above `GetMaxDrawScale`.
    void SetDrawScale(std::int64_t value);
    /// Stores 1 and tells nobody.
    void ResetDrawScale() { fDrawScale = 1; }
    /// The largest scale at which the paper fits into 64 bits.
    std::int64_t GetMaxDrawScale() const { return MaxDrawScaleForPaper(fPaperWidth, fPaperHeight); }
    static std::int64_t MaxDrawScaleForPaper(std::int64_t width, std::int64_t height);

    // Texts and formats without rules of their own.

    std::u16string fPromoter, fAuthor, fProject, fTitle, fDate, fNote;
    std::int32_t fPlanNumber = 1;
    std::u16string fFormat;   ///< number format of dimension values
    bool fIncludeUnit = true; ///< dimension values show the unit

    void SendInfo();
    /// Name by the mode, texts emptied, scale 1.
    void Reset();
    /// The label name of the mode, as the message table has it.
    void ResetLabelName();
    void Assign(const TVGRMeasure& source);

    void WriteJson(TJsonObject& parent) const;
    void ReadJson(std::int32_t version, TJsonObject& json);
    void WriteData(TBinaryWriter& writer) const;
    void ReadData(std::int32_t version, TBinaryReader& reader);

    /// All keys and fields, and all members that belong to the state.
    void Fields(TBinaryFields& fields);
    void Members(TMembers& members);

private:
    bool Linked() const;
    float GetSide(std::int32_t base) const;
    std::int64_t BaseSide(float value) const;
    float Restricted(std::int32_t base) const;
    void ValidateDrawScaleForPaper(std::int64_t width, std::int64_t height) const;
    void Modified(bool notify);
    void StoreWidth(std::int64_t base);
    void StoreHeight(std::int64_t base);
    void StorePaperWidth(std::int64_t base);
    void StorePaperHeight(std::int64_t base);
    void StoreMargin(std::int32_t& field, float value, std::int32_t floor);
    void StoreCount(std::int32_t& field, std::int32_t value);

    TVGRBaseLabel& fOwner;
    std::int32_t fHeight = 35000;
    std::int32_t fWidth = 60000;
    std::int32_t fMarLeft = 5000;
    std::int32_t fMarTop = 10000;
    std::int32_t fDiHor = 4000;
    std::int32_t fDiVer = 4000;
    std::int32_t fNuHor = 7;
    std::int32_t fNuVer = 3;
    std::int32_t fPaperHeight = 297000;
    std::int32_t fPaperWidth = 210000;
    std::int16_t fPaperSize = 9;
    std::int32_t fInnerCircle = 0;
    std::u16string fPaperName = u"A4";
    std::u16string fLabelName;
    TVagrelType fLabelType = ltRect;
    bool fContinousPaper = false;
    std::int64_t fDrawScale = 1;
};

/// Size and code of a paper by its name, without regard to case; -1, and the sizes untouched, when there is none.
std::int16_t GetPaperSize(std::u16string_view name, float& widthMM, float& heightMM);

/// The position in the paper table of the row that users define; -1 when there is none.
int UserPaperIndex();

} // namespace vagrel
