// SPDX-License-Identifier: MIT
// The parameters of a print run.
#pragma once

#include <vagrel/foundation/Colors.h>
#include <vagrel/foundation/Enumerations.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vagrel {

class TBinaryFields;
class TBinaryReader;
class TBinaryWriter;
class TJsonFields;
class TJsonObject;
class TMembers;
class TVGRBaseLabel;

/// A label's place on a sheet: its cell, counted from 1, and its corner in base units on paper.
struct TSheetCell {
    std::int16_t row = 1, column = 1;
    std::int64_t x = 0, y = 0;
};

/// Where the data stands: the label, the record and its copy.
struct TDataPlace {
    std::int64_t label = 0;
    std::int32_t record = 0, copy = 0;

    bool operator==(const TDataPlace&) const = default;
};

/// Margins, counts and printer of a print run, and how far it is. The document walks over labels and pages.
class TVGRBasePrintInfo {
public:
    explicit TVGRBasePrintInfo(TVGRBaseLabel& owner) : fOwner(owner) {}
    virtual ~TVGRBasePrintInfo() = default;

    // Margins and size: read in the restricted document unit, set in the full one, clamped to 0 and the label's size.

    float GetMarLeft() const { return Restricted(fMaLeft); }
    float GetMarTop() const { return Restricted(fMaTop); }
    float GetMarRight() const { return Restricted(fMaRight); }
    float GetMarBottom() const { return Restricted(fMaBottom); }
    float GetWidth() const { return Restricted(fWidth); }
    float GetHeight() const { return Restricted(fHeight); }
    void SetMarLeft(float value) { Store(fMaLeft, value, mtLabelWidth); }
    void SetMarTop(float value) { Store(fMaTop, value, mtLabelHeight); }
    void SetMarRight(float value) { Store(fMaRight, value, mtLabelWidth); }
    void SetMarBottom(float value) { Store(fMaBottom, value, mtLabelHeight); }
    void SetWidth(float value) { Store(fWidth, value, mtLabelWidth); }
    void SetHeight(float value) { Store(fHeight, value, mtLabelHeight); }

    TAlphaColor GetColor() const { return fColor; }
    void SetColor(TAlphaColor value) { fColor = value; }
    /// Labels wanted without a source, copies of each record; at least 1.
    std::int32_t GetNumLabs() const { return fLabs; }
    void SetNumLabs(std::int32_t value);
    std::int32_t GetRepetition() const { return fRepetition; }
    void SetRepetition(std::int32_t value);
    TKSLPrinterOrientation GetOrient() const { return fOrient; }
    void SetOrient(TKSLPrinterOrientation value) { fOrient = value; }
    const std::u16string& GetPrinterName() const { return fPrinterName; }
    void SetPrinterName(std::u16string_view value) { fPrinterName = value; }
    std::int32_t GetPrinterIndex() const { return fPrinterIndex; }
    /// Tells the document on a change.
    void SetPrinterIndex(std::int32_t value);

    // Labels and pages count from 1.

    /// The first cell used on the first sheet, inside the rows and columns of the measure.
    std::int32_t GetFirstRow() const;
    std::int32_t GetFirstCol() const;
    void SetFirstRow(std::int32_t value);
    void SetFirstCol(std::int32_t value);
    /// A range of labels; drag the other end along where it would turn round.
    std::int32_t GetFirstLab() const { return fFirstLab; }
    std::int32_t GetLastLab() const { return fLastLab; }
    void SetFirstLab(std::int32_t value);
    void SetLastLab(std::int32_t value);
    std::int32_t GetCopies() const { return fCopies; }
    void SetCopies(std::int32_t value) { fCopies = value; }
    bool GetFindDetail() const { return fFindDetail; }
    void SetFindDetail(bool value) { fFindDetail = value; }

    std::int32_t LabelsPerPage() const;
    std::int32_t FirstPageLabels() const;
    /// What `CheckPrintData` of the document found.
    std::int32_t GetPagesToPrint() const { return fPagesToPrint; }
    std::int32_t GetLabelsToPrint() const { return fLabelsToPrint; }
    TKSLFillType GetFillType() const { return fFillType; }
    /// The page that `GoToPage` of the document went to, 0 without a merge; its first label.
    std::int32_t GetPage() const { return fFillType == ftNone ? 0 : fCurrentPage; }
    std::int32_t GetCurrentLabel() const { return fCurrentLabel; }
    /// The page whose preview copies were filled last; -1 for none.
    std::int32_t GetLastPageFill() const { return fLastPageFill; }
    /// For a host that makes new preview copies: the page is filled again.
    void SetLastPageFill(std::int32_t value) { fLastPageFill = value; }

    /// The cells that the page `GoToPage` went to uses, in the order in which they are filled.
    std::vector<TSheetCell> Cells() const;

    void Assign(const TVGRBasePrintInfo& source);

    void WriteJson(TJsonObject& parent) const;
    void ReadJson(TJsonObject& json);
    void WriteData(TBinaryWriter& writer) const;
    void ReadData(std::int32_t version, TBinaryReader& reader);

    /// All keys and fields, and all members that belong to the state.
    void Keys(TJsonFields& keys);
    void Fields(TBinaryFields& fields);
    void Members(TMembers& members);

protected:
    TVGRBaseLabel& fOwner;
    std::int32_t fMaLeft = 15000, fMaTop = 10000, fMaRight = 10000, fMaBottom = 15000;
    TAlphaColor fColor = 0xFFFF0000;
    std::int32_t fWidth = 21000, fHeight = 29700;
    std::int32_t fLabs = 1;
    std::int32_t fRepetition = 1;
    std::int32_t fFirstRow = 1, fFirstCol = 1;
    std::int32_t fFirstLab = 1, fLastLab = 0;
    std::int32_t fCopies = 1;
    std::int32_t fPagesToPrint = 0;
    std::int32_t fLabelsToPrint = 0;
    std::int32_t fLastPageFill = -1;
    TDataPlace fFilledTo;
    bool fFindDetail = false;
    std::int32_t fCurrentPage = 0;
    std::int32_t fCurrentLabel = 0;
    TKSLFillType fFillType = ftNone;
    TKSLPrinterOrientation fOrient = poPortrait;
    std::u16string fPrinterName;
    std::int32_t fPrinterIndex = -99;

private:
    friend class TVGRBaseLabel; // keeps the state of the walk here

    float Restricted(std::int32_t base) const;
    void Store(std::int32_t& field, float value, TKSLMeasureType limit);
};

} // namespace vagrel
