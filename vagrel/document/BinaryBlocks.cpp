// SPDX-License-Identifier: MIT
// The binary blocks of a document and its sub-objects, field by field. A binary file holds what setters once allowed,
// so everything is stored directly but what arithmetic divides by.
#include <vagrel/document/TVGRBackSurf.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/TVGRSettings.h>
#include <vagrel/document/Versions.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/items/lines/TVGRDimStyle.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/symbols/TVGRBaseLibSymbol.h>

namespace vagrel {

namespace {

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

} // namespace

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

void TVGRMeasure::WriteData(TBinaryWriter& writer) const {
    for (const std::u16string* text : {&fLabelName, &fAuthor, &fNote})
        writer.Write(*text);
    for (std::int32_t number :
         {fWidth, fHeight, fMarLeft, fMarTop, fNuHor, fNuVer, fDiHor, fDiVer, fPaperWidth, fPaperHeight})
        writer.Write(number);
    writer.Write(fPaperSize);
    writer.Write(fPaperName);
    writer.Write(fDrawScale);
    writer.Write(fContinousPaper);
    writer.Write(std::uint8_t(fLabelType));
    writer.Write(fInnerCircle);
    writer.Write(fFormat);
    writer.Write(fIncludeUnit);
    if (fOwner.GetEditorMode() == emLabelling)
        return;
    for (const std::u16string* text : {&fPromoter, &fProject, &fTitle, &fDate})
        writer.Write(*text);
    writer.Write(fPlanNumber);
}

void TVGRMeasure::ReadData(std::int32_t version, TBinaryReader& reader) {
    for (std::u16string* text : {&fLabelName, &fAuthor, &fNote})
        *text = reader.ReadString();
    for (std::int32_t* number :
         {&fWidth, &fHeight, &fMarLeft, &fMarTop, &fNuHor, &fNuVer, &fDiHor, &fDiVer, &fPaperWidth, &fPaperHeight})
        *number = reader.Read<std::int32_t>();
    fPaperSize = reader.Read<std::int16_t>();
    fPaperName = reader.ReadString();
    fDrawScale = version >= WideScaleVersion ? reader.Read<std::int64_t>() : reader.Read<std::int32_t>();
    const std::pair<const char*, std::int64_t> divisors[] = {
        {"DrawScale", fDrawScale}, {"Rows", fNuHor}, {"Columns", fNuVer}};
    for (const auto& [key, value] : divisors)
        if (value < 1)
            throw Refusal<EOutOfRange>(key, std::to_string(value), "numbers from 1 on");
    fContinousPaper = reader.ReadBool();
    fLabelType = TVagrelType(reader.Read<std::uint8_t>());
    fInnerCircle = reader.Read<std::int32_t>();
    fFormat = reader.ReadString();
    fIncludeUnit = reader.ReadBool();
    if (fOwner.GetEditorMode() == emLabelling)
        return;
    for (std::u16string* text : {&fPromoter, &fProject, &fTitle, &fDate})
        *text = reader.ReadString();
    fPlanNumber = reader.Read<std::int32_t>();
}

void TVGRBackSurf::WriteData(TBinaryWriter& writer) const {
    writer.Write(fFileName);
    writer.Write(fColor);
    writer.Write(fToColor);
    writer.Write(std::int32_t(fStyle));
    writer.Write(fPrint);
}

void TVGRBackSurf::ReadData(std::int32_t, TBinaryReader& reader) {
    SetFileName(reader.ReadString());
    fColor = reader.Read<TAlphaColor>();
    fToColor = reader.Read<TAlphaColor>();
    fStyle = TKSLBackStyle(reader.Read<std::int32_t>());
    fPrint = reader.ReadBool();
}

void TVGRSettings::WriteData(TBinaryWriter& writer) const {
    writer.Write(fTermColor);
    writer.Write(fFillTermColor);
    writer.Write(fTermSize);
    writer.Write(fLinkGap);
}

void TVGRSettings::ReadData(std::int32_t, TBinaryReader& reader) {
    fTermColor = reader.Read<TAlphaColor>();
    fFillTermColor = reader.Read<TAlphaColor>();
    fTermSize = reader.Read<std::int32_t>();
    fLinkGap = reader.Read<std::int32_t>();
}

void TVGRBasePrintInfo::WriteData(TBinaryWriter& writer) const {
    writer.Write(fRepetition);
    writer.Write(std::uint8_t(fOrient));
    writer.Write(fCopies);
}

void TVGRBasePrintInfo::ReadData(std::int32_t, TBinaryReader& reader) {
    SetRepetition(reader.Read<std::int32_t>()); // divides
    fOrient = TKSLPrinterOrientation(reader.Read<std::uint8_t>());
    fCopies = reader.Read<std::int32_t>();
}

// Layers

void TVGRLayer::WriteData(TBinaryWriter& writer) const {
    writer.Write(fName);
    writer.Write(fColor);
    writer.Write(fBackColor);
    for (bool flag : {fFont.bold, fFont.italic, fFont.underline, fFont.strikeout})
        writer.Write(flag);
    writer.Write(fFont.height);
    writer.Write(fFont.name);
    writer.Write(fFont.color);
    writer.Write(std::int32_t(fOptions.Bits()));
    writer.Write(fZPos);
    writer.Write(fPenWidth);
    writer.Write(std::int32_t(fLineType));
    writer.Write(fFill);
    if (fOptions.Has(lopImage)) {
        WritePictureData(writer);
        WriteBytes(writer);
    }
    if (fOptions.Has(lopMap)) {
        WritePictureData(writer);
        writer.Write(fZoom);
        writer.Write(std::int32_t(fMapProvider));
        writer.Write(fLatitude);
        writer.Write(fLongitude);
        writer.Write(fShowMapCenter);
        WriteBytes(writer);
    }
}

void TVGRLayer::ReadData(std::int32_t, TBinaryReader& reader) {
    fName = reader.ReadString();
    fColor = reader.Read<TAlphaColor>();
    fBackColor = reader.Read<TAlphaColor>();
    for (bool* flag : {&fFont.bold, &fFont.italic, &fFont.underline, &fFont.strikeout})
        *flag = reader.ReadBool();
    fFont.height = reader.Read<std::int32_t>();
    fFont.name = reader.ReadString();
    fFont.color = reader.Read<TAlphaColor>();
    fOptions = TKSLayerOpts::FromBits(reader.Read<std::uint32_t>());
    fZPos = reader.Read<std::uint16_t>();
    fPenWidth = reader.Read<std::int32_t>();
    fLineType = TKSLineType(reader.Read<std::int32_t>());
    fFill = reader.ReadBool();
    if (fOptions.Has(lopImage)) {
        ReadPictureData(reader);
        ReadBytes(reader);
    }
    if (fOptions.Has(lopMap)) {
        ReadPictureData(reader);
        fZoom = reader.Read<std::int16_t>();
        fMapProvider = TKSLMapProvider(reader.Read<std::int32_t>());
        fLatitude = reader.Read<double>();
        fLongitude = reader.Read<double>();
        fShowMapCenter = reader.ReadBool();
        ReadBytes(reader);
    }
}

void TVGRLayer::WritePictureData(TBinaryWriter& writer) const {
    writer.Write(fFileImg);
    writer.Write(fPrintImg);
    writer.Write(std::int16_t(fImageType));
    writer.Write(fEmbeded);
    for (std::int32_t margin : {fImgMarLeft, fImgMarTop, fImgMarBottom, fImgMarRight})
        writer.Write(margin);
}

void TVGRLayer::ReadPictureData(TBinaryReader& reader) {
    fFileImg = reader.ReadString();
    fPrintImg = reader.ReadBool();
    fImageType = TKSLImgType(reader.Read<std::int16_t>());
    fEmbeded = reader.ReadBool();
    for (std::int32_t* margin : {&fImgMarLeft, &fImgMarTop, &fImgMarBottom, &fImgMarRight})
        *margin = reader.Read<std::int32_t>();
}

void TVGRLayer::WriteBytes(TBinaryWriter& writer) const {
    const std::string_view bytes = fEmbeded ? std::string_view(fArrayB) : std::string_view();
    writer.Write(std::int32_t(bytes.size()));
    writer.WriteBytes(bytes);
}

void TVGRLayer::ReadBytes(TBinaryReader& reader) { fArrayB = reader.ReadBytes(reader.Read<std::int32_t>()); }

} // namespace vagrel
