// SPDX-License-Identifier: MIT
// Both forms of a document: everything but the items, which need the host's classes to be read.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/Owned_p.h>
#include <vagrel/document/TVGRBackSurf.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/TVGRSettings.h>
#include <vagrel/document/Versions.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/items/lines/TVGRDimStyle.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>
#include <vagrel/symbols/TVGRBaseLibSymbol.h>

namespace vagrel {

namespace {

// Constructs one element for each object of an array. An element adds itself to the document.
template <class T>
void ReadElements(TVGRBaseLabel& label, std::int32_t version, TJsonObject& json, std::u16string_view key) {
    const std::string name = ToUtf8(key);
    TJsonArray& array = AtPlace(name, [&]() -> TJsonArray& { return json.GetArray(key); });
    for (int i = 0; i < array.Count(); ++i)
        AtPlace(name + "[" + std::to_string(i) + "]", [&] { (new T(label))->ReadJson(version, array.GetObject(i)); });
}

// Lets one object read its part of the file.
template <class Part>
void ReadPart(Part& part, std::int32_t version, TJsonObject& json, std::u16string_view key) {
    AtPlace(ToUtf8(key), [&] { part.ReadJson(version, json.GetObject(key)); });
}

template <class List>
void WriteBlocks(TBinaryWriter& writer, const List& list) {
    writer.Write(std::int32_t(list.size()));
    for (const auto& element : list)
        element->WriteData(writer);
}

// Constructs and reads as many elements as the file says; an element adds itself to the document. A count beyond the
// data ends in the reader's exception.
template <class T>
void ReadBlocks(TVGRBaseLabel& label, std::int32_t version, TBinaryReader& reader) {
    for (auto count = reader.Read<std::int32_t>(); count > 0; --count)
        (new T(label))->ReadData(version, reader);
}

template <class List>
void WriteElements(const List& list, TJsonArray& array) {
    for (const auto& element : list)
        element->WriteJson(array);
}

} // namespace

std::unique_ptr<TJsonObject> TVGRBaseLabel::GetJson() const {
    auto json = std::make_unique<TJsonObject>();
    json->SetInt(u"Version", CurrentVersion);
    json->SetInt(u"EditorMode", fEditorMode);
    json->SetInt(u"Units", fUnits);
    json->SetInt(u"Angle", fAngle);
    fMeasure->WriteJson(*json);
    fBackSurf->WriteJson(*json);
    fSettings->WriteJson(*json);
    fPrintInfo->WriteJson(*json);
    fData->WriteJson(*json);
    WriteElements(fSymbols, json->AddArray(u"Symbols"));
    WriteElements(fLayers, json->AddArray(u"Layers"));
    if (HasDrawScale())
        WriteElements(fDimStyles, json->AddArray(u"DimStyles"));
    WriteElements(fCounters, json->AddArray(u"Counters"));
    TJsonArray& items = json->AddArray(u"Items");
    for (const auto& item : fItems)
        items.Add(item->WriteJson());
    return json;
}

std::u16string TVGRBaseLabel::GetJsonString(bool compact) const { return GetJson()->ToJSON(compact); }

void TVGRBaseLabel::ClearForRead(TKSLEditorMode mode) {
    Clear({cleItems, cleLayers, cleBaseLayer, cleCounters, cleSymbols, cleUndoRedo, cleDimStyles}, true);
    fEditorMode = mode;
    if (HasDrawScale())
        Clear({cleBaseStyle}, true);
}

void TVGRBaseLabel::DropStandIns() {
    if (fLayers.size() > 1)
        FreeLayer(0);
    if (HasDrawScale() && fDimStyles.size() > 1)
        TakeOutPart(fDimStyles, 0);
}

void TVGRBaseLabel::ReadJson(TJsonObject& json) {
    const std::int32_t version = json.GetInt(u"Version");
    ClearForRead(TKSLEditorMode(json.GetInt(u"EditorMode")));
    fUnits = TKSLUnits(json.GetInt(u"Units"));
    fAngle = version >= AngleVersion ? TKSLAngle(json.GetInt(u"Angle")) : ag0;
    // Sizes must not be tested against the scale of the document that stood here before.
    fMeasure->ResetDrawScale();
    ReadPart(*fMeasure, version, json, u"Measures");
    ReadPart(*fBackSurf, version, json, u"BackSurface");
    ReadPart(*fSettings, version, json, u"Settings");
    ReadPart(*fData, version, json, u"Data");
    if (json.GetArray(u"Symbols").Count() > 0)
        throw ENotAvailable(u"Symbols: symbols are not available yet");
    ReadElements<TVGRLayer>(*this, version, json, u"Layers");
    if (HasDrawScale())
        ReadElements<TVGRDimStyle>(*this, version, json, u"DimStyles");
    DropStandIns();
    ReadElements<TVGRCounter>(*this, version, json, u"Counters");
}

// The binary blocks. A file holds what setters once allowed, so all is stored directly but what arithmetic divides by.

void TVGRBaseLabel::WriteBaseData(TBinaryWriter& writer) const {
    writer.Write(CurrentVersion);
    writer.Write(std::int16_t(fEditorMode));
    writer.Write(std::int16_t(fUnits));
    writer.Write(std::int32_t(fAngle));
    fMeasure->WriteData(writer);
    fBackSurf->WriteData(writer);
    fSettings->WriteData(writer);
    fPrintInfo->WriteData(writer);
    fData->WriteData(writer);
}

void TVGRBaseLabel::ReadBaseData(TBinaryReader& reader) {
    fReadedVer = reader.Read<std::int32_t>();
    ClearForRead(TKSLEditorMode(reader.Read<std::int16_t>()));
    fUnits = TKSLUnits(reader.Read<std::int16_t>());
    fAngle = fReadedVer >= AngleVersion ? TKSLAngle(reader.Read<std::int32_t>()) : ag0;
    fMeasure->ReadData(fReadedVer, reader);
    fBackSurf->ReadData(fReadedVer, reader);
    fSettings->ReadData(fReadedVer, reader);
    fPrintInfo->ReadData(fReadedVer, reader);
    fData->ReadData(fReadedVer, reader);
}

void TVGRBaseLabel::WriteData(TBinaryWriter& writer) const {
    WriteBlocks(writer, fLayers);
    if (HasDrawScale())
        WriteBlocks(writer, fDimStyles);
    else
        writer.Write(std::int32_t(0));
    WriteBlocks(writer, fCounters);
}

void TVGRBaseLabel::ReadData(TBinaryReader& reader) {
    ReadBlocks<TVGRLayer>(*this, fReadedVer, reader);
    ReadBlocks<TVGRDimStyle>(*this, fReadedVer, reader);
    DropStandIns();
    ReadBlocks<TVGRCounter>(*this, fReadedVer, reader);
}

} // namespace vagrel
