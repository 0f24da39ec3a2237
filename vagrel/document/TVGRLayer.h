// SPDX-License-Identifier: MIT
// A layer: visibility and print rules of its items, default style values, and a picture or map behind the sheet.
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
class TVGRBaseItem;
class TVGRBaseLabel;

/// A layer adds itself to the layers of its document, which owns it. The first layer of a document is its base layer.
class TVGRLayer {
public:
    /// Named by the property text "Default".
    explicit TVGRLayer(TVGRBaseLabel& owner);
    /// The colours are those of a new layer, whatever is given.
    TVGRLayer(TVGRBaseLabel& owner, std::u16string_view name, TAlphaColor color, TAlphaColor backColor);
    TVGRLayer(const TVGRLayer&) = delete;
    TVGRLayer& operator=(const TVGRLayer&) = delete;
    ~TVGRLayer();

    const std::u16string& GetName() const { return fName; }
    /// Throws EVagrel for an empty name.
    void SetName(std::u16string_view value);
    TKSLayerOpts GetOptions() const { return fOptions; }
    /// Throws EInvalidOperation for a picture and a map at once.
    void SetOptions(TKSLayerOpts value);

    TAlphaColor GetColor() const { return fColor; }
    TAlphaColor GetBackColor() const { return fBackColor; }
    TAlphaColor GetFontColor() const { return fFont.color; }
    /// `apply` also gives the colour to the items of the layer.
    void SetColor(TAlphaColor value, bool apply = false);
    void SetBackColor(TAlphaColor value, bool apply = false);
    void SetFontColor(TAlphaColor value, bool apply = false);
    /// Gives the layer's whole style to its items.
    void SetValues();

    /// Millimetres.
    float GetPenWidth() const;
    void SetPenWidth(float mm);
    float GetFontHeight() const;
    void SetFontHeight(float mm);
    TKSLineType GetLineType() const { return fLineType; }
    void SetLineType(TKSLineType value);
    std::uint16_t GetZPos() const { return fZPos; }
    void SetZPos(std::uint16_t value);
    bool GetBold() const { return fFont.bold; }
    void SetBold(bool value) { Put(fFont.bold, value); }
    bool GetItalic() const { return fFont.italic; }
    void SetItalic(bool value);
    bool GetUnderline() const { return fFont.underline; }
    void SetUnderline(bool value) { Put(fFont.underline, value); }
    bool GetStrikeout() const { return fFont.strikeout; }
    void SetStrikeout(bool value) { Put(fFont.strikeout, value); }
    bool GetFill() const { return fFill; }
    void SetFill(bool value) { Put(fFill, value); }
    const std::u16string& GetFontName() const { return fFont.name; }
    void SetFontName(std::u16string_view value) { Put(fFont.name, value); }

    // The background picture. Margins are in the restricted document unit; a margin beyond the label becomes half of
    // it.

    float GetImgMarLeft() const { return Restricted(fImgMarLeft); }
    float GetImgMarTop() const { return Restricted(fImgMarTop); }
    float GetImgMarRight() const { return Restricted(fImgMarRight); }
    float GetImgMarBottom() const { return Restricted(fImgMarBottom); }
    void SetImgMarLeft(float value) { StoreMargin(fImgMarLeft, value, mtLabelWidth); }
    void SetImgMarTop(float value) { StoreMargin(fImgMarTop, value, mtLabelHeight); }
    void SetImgMarRight(float value) { StoreMargin(fImgMarRight, value, mtLabelWidth); }
    void SetImgMarBottom(float value) { StoreMargin(fImgMarBottom, value, mtLabelHeight); }
    bool HasImgMargins() const { return fImgMarLeft > 0 || fImgMarTop > 0 || fImgMarRight > 0 || fImgMarBottom > 0; }
    /// The bare name of the picture's file.
    const std::u16string& GetFileImg() const { return fFileImg; }
    /// Copies the file into the document's image folder unless it is there, and takes its bare name. Drops the bytes
    /// that were held. Throws EStreamError when the copy fails.
    void SetFileImg(std::u16string_view file);
    TKSLImgType GetImageType() const { return fImageType; }
    bool GetEmbeded() const { return fEmbeded; }
    void SetEmbeded(bool value) { Put(fEmbeded, value); }
    bool GetPrintImg() const { return fPrintImg; }
    void SetPrintImg(bool value) { Put(fPrintImg, value); }
    /// To be changed.
    std::string& ImageBytes() {
        Touch();
        return fArrayB;
    }
    void SetFileImgSize(std::size_t size) { ImageBytes().resize(size); }

    // The background map.

    TKSLMapProvider GetMapProvider() const { return fMapProvider; }
    void SetMapProvider(TKSLMapProvider value) { Put(fMapProvider, value); }
    std::int16_t GetMapZoom() const { return fZoom; }
    void SetMapZoom(std::int16_t value) { Put(fZoom, value); }
    /// Degrees.
    double GetMapLatitude() const { return fLatitude; }
    void SetMapLatitude(double value) { Put(fLatitude, value); }
    double GetMapLongitude() const { return fLongitude; }
    void SetMapLongitude(double value) { Put(fLongitude, value); }
    bool GetShowMapCenter() const { return fShowMapCenter; }
    void SetShowMapCenter(bool value) { Put(fShowMapCenter, value); }

    /// Copies everything but strikeout, the kind of picture and its bytes.
    void Assign(const TVGRLayer& source);

    void WriteJson(TJsonArray& layers) const;
    void ReadJson(std::int32_t version, TJsonObject& json);
    void WriteData(TBinaryWriter& writer) const;
    void ReadData(std::int32_t version, TBinaryReader& reader);

    /// All keys and fields, and all members that belong to the state.
    void Keys(TJsonFields& keys);
    void Fields(TBinaryFields& fields);
    void Members(TMembers& members);

private:
    template <class Action>
    void ForEachItem(Action action);
    template <class T>
    void Change(T& field, T value);
    float Restricted(std::int32_t base) const;
    void StoreMargin(std::int32_t& field, float value, TKSLMeasureType limit);
    void PictureKeys(TJsonFields& keys);
    void MarginKeys(TJsonFields& keys);
    void PictureFields(TBinaryFields& fields);
    void BytesField(TBinaryFields& fields);
    /// Says to the document that the layer is about to change.
    void Touch();
    template <class T, class Value>
    void Put(T& field, Value value) {
        Touch();
        field = value;
    }

    TVGRBaseLabel& fOwner;
    std::u16string fName;
    TAlphaColor fColor = OpaqueBlack;
    TAlphaColor fBackColor = OpaqueWhite;
    TKSLineType fLineType = iiSolid;
    TKSLayerOpts fOptions{lopVisible, lopPrint, lopSelectable, lopExport};
    std::uint16_t fZPos = 0;
    std::int32_t fPenWidth = 100;
    TFont fFont;
    bool fFill = true;
    std::u16string fFileImg;
    TKSLImgType fImageType = itNone;
    bool fEmbeded = true;
    bool fPrintImg = false;
    std::int32_t fImgMarLeft = 0, fImgMarTop = 0, fImgMarBottom = 0, fImgMarRight = 0;
    std::int16_t fZoom = 0;
    TKSLMapProvider fMapProvider = mpOpenStreetMap;
    double fLatitude = 0, fLongitude = 0;
    bool fShowMapCenter = false;
    std::string fArrayB;
};

} // namespace vagrel
