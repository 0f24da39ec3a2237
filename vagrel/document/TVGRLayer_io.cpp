// SPDX-License-Identifier: MIT
// A layer in both forms of the document.
#include <vagrel/document/TVGRLayer.h>

#include <vagrel/document/TMembers.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Base64.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonFields.h>

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

void TVGRLayer::PictureKeys(TJsonFields& keys) {
    keys(u"File", fFileImg);
    keys(u"ImageType", fImageType);
    keys(u"PrintImage", fPrintImg);
    keys(u"Embeded", fEmbeded);
}

void TVGRLayer::MarginKeys(TJsonFields& keys) {
    keys.Number(u"ImgMarLeft", GetImgMarLeft(), [this](float value) { SetImgMarLeft(value); });
    keys.Number(u"ImgMarTop", GetImgMarTop(), [this](float value) { SetImgMarTop(value); });
    keys.Number(u"ImgMarBottom", GetImgMarBottom(), [this](float value) { SetImgMarBottom(value); });
    keys.Number(u"ImgMarRight", GetImgMarRight(), [this](float value) { SetImgMarRight(value); });
    if (fEmbeded)
        keys.Through(u"Img", keys.Reads() ? std::u16string() : EncodeBase64(fArrayB),
                     [this](const std::u16string& text) { fArrayB = DecodeBase64(text); });
    else if (keys.Reads())
        fArrayB.clear();
}

void TVGRLayer::Keys(TJsonFields& keys) {
    keys(u"Name", fName);
    keys.Color(u"Color", fColor);
    keys.Color(u"BackColor", fBackColor);
    keys(u"Fill", fFill);
    keys(u"ZPos", fZPos);
    keys.Inner(u"Options", [this](TJsonFields& options) {
        for (const auto& [option, key] : OptionKeys)
            options.Through(key, fOptions.Has(option), [&](bool on) { fOptions.Put(option, on); });
    });
    if (fOptions.Has(lopImage))
        keys.Inner(u"Image", [this](TJsonFields& image) {
            PictureKeys(image);
            MarginKeys(image);
        });
    if (fOptions.Has(lopMap))
        keys.Inner(u"Mapping", [this](TJsonFields& map) {
            PictureKeys(map);
            map(u"Provider", fMapProvider);
            map(u"Zoom", fZoom);
            map.Degrees(u"Latitude", fLatitude);
            map.Degrees(u"Longitude", fLongitude);
            map(u"ShowMapCenter", fShowMapCenter);
            MarginKeys(map);
        });
    fFont.Keys(keys);
    keys(u"LineType", fLineType);
    keys.Number(u"PenWidth", GetPenWidth(), [this](float mm) { SetPenWidth(mm); });
}

void TVGRLayer::PictureFields(TBinaryFields& fields) {
    fields(fFileImg, fPrintImg);
    fields.As<std::int16_t>(fImageType);
    fields(fEmbeded, fImgMarLeft, fImgMarTop, fImgMarBottom, fImgMarRight);
}

void TVGRLayer::BytesField(TBinaryFields& fields) {
    if (fields.Reads()) {
        fArrayB = fields.Reader().ReadBytes(fields.Reader().Read<std::int32_t>());
        return;
    }
    const std::string_view bytes = fEmbeded ? std::string_view(fArrayB) : std::string_view();
    fields.Writer().Write(std::int32_t(bytes.size()));
    fields.Writer().WriteBytes(bytes);
}

void TVGRLayer::Fields(TBinaryFields& fields) {
    fields(fName, fColor, fBackColor, fFont.bold, fFont.italic, fFont.underline, fFont.strikeout, fFont.height,
           fFont.name, fFont.color);
    std::uint32_t options = fOptions.Bits();
    fields(options);
    fOptions = TKSLayerOpts::FromBits(options);
    fields(fZPos, fPenWidth, fLineType, fFill);
    if (fOptions.Has(lopImage)) {
        PictureFields(fields);
        BytesField(fields);
    }
    if (fOptions.Has(lopMap)) {
        PictureFields(fields);
        fields(fZoom, fMapProvider, fLatitude, fLongitude, fShowMapCenter);
        BytesField(fields);
    }
}

void TVGRLayer::Members(TMembers& members) {
    members(fName, fColor, fBackColor, fLineType, fOptions, fZPos, fPenWidth, fFont, fFill, fFileImg, fImageType,
            fEmbeded, fPrintImg, fImgMarLeft, fImgMarTop, fImgMarBottom, fImgMarRight, fZoom, fMapProvider, fLatitude,
            fLongitude, fShowMapCenter, fArrayB);
}

void TVGRLayer::WriteJson(TJsonArray& layers) const { WriteKeys(*this, layers.AddObject()); }

void TVGRLayer::ReadJson(std::int32_t, TJsonObject& json) {
    Touch();
    ReadKeys(*this, json);
}

void TVGRLayer::WriteData(TBinaryWriter& writer) const { WriteFields(*this, writer); }

void TVGRLayer::ReadData(std::int32_t version, TBinaryReader& reader) {
    Touch();
    ReadFields(*this, reader, version);
}

} // namespace vagrel
