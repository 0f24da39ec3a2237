// SPDX-License-Identifier: MIT
// The background of a label and its alignment marks.
#pragma once

#include <vagrel/foundation/Colors.h>
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

/// Colour, gradient or picture behind a label.
class TVGRBackSurf {
public:
    TVGRBackSurf(TVGRBaseLabel& owner, bool createImage);
    virtual ~TVGRBackSurf() = default;

    TKSLBackStyle GetStyle() const { return fStyle; }
    /// Falls back to biNone when the style does not fit the label's shape, or is a picture without a file.
    void SetStyle(TKSLBackStyle value);
    /// Falls back to biNone when the style does not fit the label's shape.
    void DropUnfit();
    TAlphaColor GetColor() const { return fColor; }
    void SetColor(TAlphaColor value) { StoreColor(fColor, value); }
    TAlphaColor GetToColor() const { return fToColor; }
    void SetToColor(TAlphaColor value) { StoreColor(fToColor, value); }
    const std::u16string& GetFileName() const { return fFileName; }
    void SetFileName(std::u16string_view value);
    /// Whether the picture is there. A host's subclass also reads it.
    virtual bool ReadFileImage();
    bool GetPrint() const { return fPrint; }
    void SetPrint(bool value) { fPrint = value; }

    /// Alignment marks, in the restricted document unit; set in the full one, within the label.
    float GetAlignLeft() const;
    float GetAlignTop() const;
    void SetAlignLeft(float value);
    void SetAlignTop(float value);
    TAlphaColor GetAlignColor() const { return fAlignColor; }
    void SetAlignColor(TAlphaColor value);
    bool GetShowAlign() const { return fShowAlign; }
    void SetShowAlign(bool value);

    void Assign(const TVGRBackSurf& source);

    void WriteJson(TJsonObject& parent) const;
    void ReadJson(std::int32_t version, TJsonObject& json);
    void WriteData(TBinaryWriter& writer) const;
    void ReadData(std::int32_t version, TBinaryReader& reader);

    /// All keys and fields, and all members that belong to the state.
    void Keys(TJsonFields& keys);
    void Fields(TBinaryFields& fields);
    void Members(TMembers& members);

    // For the host's painting.

    bool fChangingAlign = false;
    bool fDrawAlign = false;
    bool fNeedPaint = false;
    const bool fCreateImage;

protected:
    TVGRBaseLabel& fOwner;

private:
    void StoreColor(TAlphaColor& field, TAlphaColor value);
    void StoreAlign(std::int32_t& field, float value, TKSLMeasureType limit);

    TKSLBackStyle fStyle = biNone;
    TAlphaColor fColor = OpaqueWhite;
    TAlphaColor fToColor = OpaqueWhite;
    TAlphaColor fAlignColor = 0xFFFF0000;
    std::u16string fFileName;
    std::int32_t fAlignLeft = 0;
    std::int32_t fAlignTop = 0;
    bool fShowAlign = false;
    bool fPrint = false;
};

} // namespace vagrel
