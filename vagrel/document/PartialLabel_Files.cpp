// SPDX-License-Identifier: MIT
// Whole documents, single items and copies, in terms of the items that a host makes.
#include <vagrel/document/PartialLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/Transaction.h>
#include <vagrel/document/Versions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>
#include <vagrel/platform/Files.h>

#include <cmath>
#include <optional>

namespace vagrel {

namespace {

// A document is JSON when its first character is an opening brace. What a byte order mark has, and the zeros that
// UTF-16 puts beside a character, are none.
bool IsJson(std::string_view bytes) {
    const std::size_t first = bytes.find_first_not_of(std::string_view(" \t\r\n\xEF\xBB\xBF\xFE\xFF\0", 10));
    if (first == std::string_view::npos)
        throw EVagrel(u"The file is empty");
    return bytes[first] == '{';
}

// The binary form has no mark of its own, but it begins with a version of four digits.
void CheckBinary(std::string_view bytes) {
    const auto version = bytes.size() < 4 ? 0 : TBinaryReader(bytes).Read<std::int32_t>();
    if (version < 1000 || version > 9999)
        throw EVagrel(u"Not a document: neither JSON nor the binary form");
}

// No length, whatever its unit, leaves the 64 bits of base units below this.
constexpr double LargestNumber = 9.3e15;

struct TAbsurd {
    std::string place;
    const TJsonDataValue& value;
};

// A number that nothing in a document can hold, for which the readers would take the nearest that fits.
std::optional<TAbsurd> FindAbsurd(const TJsonDataValue& value) {
    const TJsonDataType typ = value.GetTyp();
    if (typ == jdtULong || (typ == jdtFloat && !(std::fabs(value.GetFloatValue()) < LargestNumber)))
        return TAbsurd{"", value};
    if (typ == jdtObject) {
        for (auto [name, member] : *value.GetObjectValue())
            if (const auto found = FindAbsurd(member))
                return TAbsurd{"." + ToUtf8(name) + found->place, found->value};
    } else if (typ == jdtArray) {
        const TJsonArray& array = *value.GetArrayValue();
        for (int i = 0; i < array.Count(); ++i)
            if (const auto found = FindAbsurd(array.ItemAt(i)))
                return TAbsurd{"[" + std::to_string(i) + "]" + found->place, found->value};
    }
    return {};
}

void CheckNumbers(const TJsonObject& root) {
    for (auto [name, value] : root)
        if (const auto found = FindAbsurd(value))
            throw Refusal<EOutOfRange>(ToUtf8(name) + found->place, ToUtf8(found->value.GetStringValue()),
                                       "numbers below 9.3E15");
}

// A mode that the enumeration does not have can be written, but no longer read.
void CheckMode(std::int32_t mode) {
    if (mode < emLabelling || mode > emInteractive)
        throw Refusal<EOutOfRange>("EditorMode", std::to_string(mode), "numbers from 0 to 3");
}

// Far above any sheet; a damaged file can ask for 2^62.
constexpr std::int64_t MostCells = 10000;

} // namespace

void PartialLabel::ReadParts(TJsonObject& root) {
    ReadJson(root);
    AtPlace("PrintInfo", [&] { GetPrintInfo().ReadJson(root.GetObject(u"PrintInfo")); });
    const std::int32_t version = root.GetInt(u"Version");
    TJsonArray& items = AtPlace("Items", [&]() -> TJsonArray& { return root.GetArray(u"Items"); });
    for (int i = 0; i < items.Count(); ++i) {
        AtPlace("Items[" + std::to_string(i) + "]", [&] {
            TJsonObject& json = items.GetObject(i);
            const auto type = TKSLItemType(json.GetInt(u"Type"));
            MakeItem(GetLayer(1), type, 0, false).ReadJson(version, json);
        });
    }
}

void PartialLabel::ReadBlocks(TBinaryReader& reader) {
    ReadBaseData(reader);
    CheckMode(GetEditorMode());
    ReadData(reader);
    if (reader.Read<std::int32_t>() > 0)
        throw ENotAvailable(u"Symbols are not available yet");
    const auto count = reader.Read<std::int32_t>();
    for (std::int32_t i = 0; i < count; ++i)
        AtPlace("Items[" + std::to_string(i) + "]", [&] {
            const auto type = TKSLItemType(reader.Read<std::int32_t>());
            MakeItem(GetLayer(1), type, 0, false).ReadData(GetReadedVersion(), reader, rdNormal);
        });
}

void PartialLabel::ReadDocument(TJsonObject& root) {
    CheckNumbers(root);
    CheckMode(root.GetInt(u"EditorMode"));
    ReadWhole([&] { ReadParts(root); });
}

void PartialLabel::ReadDocument(std::string_view bytes) {
    if (IsJson(bytes)) {
        TJsonObject root;
        root.ParseBytes(bytes);
        ReadDocument(root);
    } else {
        CheckBinary(bytes);
        TBinaryReader reader(bytes);
        ReadWhole([&] { ReadBlocks(reader); });
    }
}

void PartialLabel::LoadFromFile(TView filename) {
    const std::string name = ToUtf8(filename);
    const std::string bytes = ReadFile(name);
    AtPlace(name, [&] { ReadDocument(bytes); });
}

std::string PartialLabel::ToBinary() {
    CleanLibray();
    TBinaryWriter writer;
    WriteBaseData(writer);
    WriteData(writer);
    writer.Write(std::int32_t(SymbolCount()));
    writer.Write(std::int32_t(ItemsCount()));
    for (int i = 1; i <= ItemsCount(); ++i)
        GetItem(i)->WriteData(writer);
    return writer.Take();
}

void PartialLabel::SaveToFile(TView filename, TKSLExt format) {
    WriteFile(ToUtf8(filename), format == lfJSON ? GetJson()->ToUtf8JSON(false) : ToBinary());
    SetModified(false);
}

// Single items

TVGRBaseItem& PartialLabel::ReadItem(std::int32_t version, TBinaryReader& reader, TKSLReadType type) {
    return NewItem(
        [&]() -> TVGRBaseItem& { return MakeItem(ActiveLayer(), TKSLItemType(reader.Read<std::int32_t>()), 0, false); },
        [&](TVGRBaseItem& item) { item.ReadData(version, reader, type); });
}

TVGRBaseItem& PartialLabel::CreateElementFromStream(std::string_view snapshot) {
    TBinaryReader reader(snapshot);
    const auto version = reader.Read<std::int32_t>();
    return ReadItem(version, reader, rdNormal);
}

void PartialLabel::PasteSelection() {
    Transaction paste(*this, u"Paste");
    ReadClipboard([this](std::int32_t version, TBinaryReader& reader) { ReadItem(version, reader, rdPaste); });
    paste.Commit();
}

void PartialLabel::MakePreview() {
    Clear({clePreview}, false);
    const std::int32_t rows = GetMeasure().GetNuHor(), columns = GetMeasure().GetNuVer();
    if (std::int64_t(rows) * columns > MostCells)
        throw EOutOfRange(u"A sheet of " + IntToStr(rows) + u" x " + IntToStr(columns) + u" labels is too large");
    for (int i = 1; i <= ItemsCount(); ++i) {
        const TVGRBaseItem& item = *GetItem(i);
        if (!item.IsBound())
            continue;
        TBinaryWriter snapshot;
        item.WriteData(snapshot);
        const std::string bytes = snapshot.Take();
        for (std::int32_t row = 1; row <= rows; ++row)
            for (std::int32_t column = 1; column <= columns; ++column) {
                TBinaryReader reader(bytes);
                const auto type = TKSLItemType(reader.Read<std::int32_t>());
                TVGRBaseItem& copy = MakeItem(item.GetLayer(), type, item.NumPoints(), true);
                copy.ReadData(CurrentVersion, reader, rdNormal);
                copy.PreviewPos(std::int16_t(column), std::int16_t(row));
            }
    }
    GetPrintInfo().SetLastPageFill(-1);
}

} // namespace vagrel
