// SPDX-License-Identifier: MIT
// A dimension style: the looks that many dimensions share.
#pragma once

#include <vagrel/document/TFont.h>
#include <vagrel/foundation/Colors.h>
#include <vagrel/foundation/Enumerations.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace vagrel {

class TBinaryFields;
class TBinaryReader;
class TBinaryWriter;
class TJsonArray;
class TJsonFields;
class TJsonObject;
class TMembers;
class TVGRBaseLabel;

/// A style adds itself to the styles of its document, which owns it. Lengths are base units on paper; the setters take
/// millimetres and clamp.
class TVGRDimStyle {
public:
    /// An unnamed style, to be read.
    explicit TVGRDimStyle(TVGRBaseLabel& owner);
    /// The colours are those of a new style, whatever is given. `assignID` takes a free number, `active` makes the
    /// style the active one.
    TVGRDimStyle(TVGRBaseLabel& owner, std::u16string_view name, TAlphaColor color, TAlphaColor fillColor,
                 bool assignID, bool active);
    TVGRDimStyle(const TVGRDimStyle&) = delete;
    TVGRDimStyle& operator=(const TVGRDimStyle&) = delete;
    ~TVGRDimStyle();

    std::int16_t GetID() const { return fID; }
    const std::u16string& GetName() const { return fName; }

    /// Millimetres: 0.5 to 10.
    void SetHeadSize(float mm) { StoreLength(fHeadSize, mm, 500, 10000); }
    /// Millimetres: 0.1 to 2.
    void SetDimPenWidth(float mm) { StoreLength(fDimPenWidth, mm, 100, 2000); }
    void SetExtPenWidth(float mm) { StoreLength(fExtPenWidth, mm, 100, 2000); }
    /// Degrees: 4 to 22.
    void SetArrowOpen(std::int16_t degrees);
    /// Millimetres: 0.8 to 15.
    void SetFontHeight(float mm) { StoreLength(fFont.height, mm, 800, 15000); }
    /// Millimetres: 0 to 10.
    void SetDimBreak(float mm) { StoreLength(fDimBreak, mm, 0, 10000); }
    void SetDimSpace(float mm);
    /// Millimetres: 2 to 25. The gap shrinks to at least 1 mm below it.
    void SetExtSize(float mm);
    /// Millimetres: 0 to 15, and at least 1 mm below the size.
    void SetExtGap(float mm);

    void WriteJson(TJsonArray& styles) const;
    void ReadJson(std::int32_t version, TJsonObject& json);
    void WriteData(TBinaryWriter& writer) const;
    void ReadData(std::int32_t version, TBinaryReader& reader);

    /// All keys and fields, and all members that belong to the state.
    void Keys(TJsonFields& keys);
    void Fields(TBinaryFields& fields);
    void Members(TMembers& members);

private:
    void AsignId();
    void StoreLength(std::int32_t& field, float mm, std::int32_t low, std::int32_t high);

    TVGRBaseLabel& fOwner;
    std::int16_t fID = 0;
    std::u16string fName;
    TAlphaColor fDimColor = 0xFF808080, fFillColor = 0xFF808080, fExtColor = 0xFF808080, fHeadColor = 0xFF808080;
    TKSLineType fDimLineType = iiSolid, fExtLineType = iiSolid;
    TKSLTermType fHeadType = ttFillArrow;
    std::int32_t fHeadSize = 1500;
    std::int32_t fDimPenWidth = 100, fExtPenWidth = 100;
    std::int16_t fArrowOpen = 8;
    TKSLTextPos fTextPos = tpAbove;
    TKSLRadialStyle fRadialStyle = rs01;
    TFont fFont{.height = 4000};
    std::int32_t fDimBreak = 0;
    std::int32_t fDimSpace = 5000;
    std::int32_t fExtGap = 1500;
    std::int32_t fExtSize = 5000;
    std::u16string fFormat, fPrefix, fSuffix;
    TKSLUnits fUnit;
    std::int32_t fAscent = 0, fDescent = 0;
    bool fChanged = false;
};

} // namespace vagrel
