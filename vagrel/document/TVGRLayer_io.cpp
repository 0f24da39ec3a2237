// SPDX-License-Identifier: MIT
// A layer in the JSON document.
#include <vagrel/document/TVGRLayer.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Base64.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/persistence/JsonColors.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

#include <algorithm>

namespace vagrel {

namespace {

struct TOptionKey {
    TKSLayerOp option;
    std::u16string_view key;
};
constexpr TOptionKey OptionKeys[] = {
    {lopVisible, u"Visible"},
    {lopPrint, u"Print"},
    {lopSelectable, u"Selectable"},
    {lopExport, u"Export"},
    {lopBox, u"Box"},
    {lopImage, u"Image"},
    {lopMap, u"Map"},
    {lopPrintBack, u"PrintBack"},
    {lopExportBack, u"ExportBack"},
};

} // namespace

void TVGRLayer::WriteMargins(TJsonObject& json) const {
    json.SetFloat(u"ImgMarLeft", RoundTo3(GetImgMarLeft()));
    json.SetFloat(u"ImgMarTop", RoundTo3(GetImgMarTop()));
    json.SetFloat(u"ImgMarBottom", RoundTo3(GetImgMarBottom()));
    json.SetFloat(u"ImgMarRight", RoundTo3(GetImgMarRight()));
    if (fEmbeded)
        json.SetString(u"Img", EncodeBase64(fArrayB));
}

void TVGRLayer::WritePicture(TJsonObject& json) const {
    json.SetString(u"File", fFileImg);
    json.SetInt(u"ImageType", fImageType);
    json.SetBool(u"PrintImage", fPrintImg);
    json.SetBool(u"Embeded", fEmbeded);
}

void TVGRLayer::WriteJson(TJsonArray& layers) const {
    TJsonObject& json = layers.AddObject();
    json.SetString(u"Name", fName);
    SetAlphaColor(json, u"Color", fColor);
    SetAlphaColor(json, u"BackColor", fBackColor);
    json.SetBool(u"Fill", fFill);
    json.SetInt(u"ZPos", fZPos);
    TJsonObject& options = json.AddObject(u"Options");
    for (const auto& [option, key] : OptionKeys)
        options.SetBool(key, fOptions.Has(option));
    if (fOptions.Has(lopImage)) {
        TJsonObject& image = json.AddObject(u"Image");
        WritePicture(image);
        WriteMargins(image);
    }
    if (fOptions.Has(lopMap)) {
        TJsonObject& map = json.AddObject(u"Mapping");
        WritePicture(map);
        map.SetInt(u"Provider", fMapProvider);
        map.SetInt(u"Zoom", fZoom);
        map.SetFloat(u"Latitude", RoundTo8(fLatitude));
        map.SetFloat(u"Longitude", RoundTo8(fLongitude));
        map.SetBool(u"ShowMapCenter", fShowMapCenter);
        WriteMargins(map);
    }
    fFont.WriteJson(json);
    json.SetInt(u"LineType", fLineType);
    json.SetFloat(u"PenWidth", RoundTo3(GetPenWidth()));
}

void TVGRLayer::ReadPicture(TJsonObject& json) {
    fFileImg = json.GetString(u"File");
    fImageType = TKSLImgType(json.GetInt(u"ImageType"));
    fPrintImg = json.GetBool(u"PrintImage");
    fEmbeded = json.GetBool(u"Embeded");
    SetImgMarLeft(float(json.GetFloat(u"ImgMarLeft")));
    SetImgMarTop(float(json.GetFloat(u"ImgMarTop")));
    SetImgMarBottom(float(json.GetFloat(u"ImgMarBottom")));
    SetImgMarRight(float(json.GetFloat(u"ImgMarRight")));
    fArrayB = fEmbeded ? DecodeBase64(json.GetString(u"Img")) : std::string();
}

void TVGRLayer::ReadJson(std::int32_t, TJsonObject& json) {
    fName = json.GetString(u"Name");
    fColor = GetAlphaColor(json.GetObject(u"Color"));
    fBackColor = GetAlphaColor(json.GetObject(u"BackColor"));
    fFill = json.GetBool(u"Fill");
    fZPos = std::uint16_t(std::clamp(json.GetInt(u"ZPos"), 0, 0xFFFF));
    TJsonObject& options = json.GetObject(u"Options");
    fOptions = {};
    for (const auto& [option, key] : OptionKeys)
        fOptions.Put(option, options.GetBool(key));
    if (fOptions.Has(lopImage))
        ReadPicture(json.GetObject(u"Image"));
    if (fOptions.Has(lopMap)) {
        TJsonObject& map = json.GetObject(u"Mapping");
        ReadPicture(map);
        fMapProvider = TKSLMapProvider(map.GetInt(u"Provider"));
        fZoom = std::int16_t(std::clamp(map.GetInt(u"Zoom"), -0x8000, 0x7FFF));
        fLatitude = map.GetFloat(u"Latitude");
        fLongitude = map.GetFloat(u"Longitude");
        fShowMapCenter = map.GetBool(u"ShowMapCenter");
    }
    fFont.ReadJson(json);
    fLineType = TKSLineType(json.GetInt(u"LineType"));
    SetPenWidth(float(json.GetFloat(u"PenWidth")));
}

} // namespace vagrel
