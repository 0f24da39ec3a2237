// SPDX-License-Identifier: MIT
// Files of the reference host.
#include <host/HostLabel.h>

#include <host/ItemRegistry.h>
#include <host/PangoText.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/foundation/Exceptions.h>
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

} // namespace

HostLabel::HostLabel(TComponent* owner) : HostLabel(owner, PangoText::ThisThread()) {}

HostLabel::HostLabel(TComponent* owner, const TextMeasurer& measurer) : TVGRBaseLabel(owner), fMeasurer(measurer) {
    SetFreshCrossings(true);
    SetExactJson(true);
    Loaded();
}

HostLabel::~HostLabel() { Teardown(); }

void HostLabel::ReadParts(TJsonObject& root) {
    ReadJson(root);
    AtPlace("PrintInfo", [&] { GetPrintInfo().ReadJson(root.GetObject(u"PrintInfo")); });
    const std::int32_t version = root.GetInt(u"Version");
    TJsonArray& items = AtPlace("Items", [&]() -> TJsonArray& { return root.GetArray(u"Items"); });
    for (int i = 0; i < items.Count(); ++i) {
        AtPlace("Items[" + std::to_string(i) + "]", [&] {
            TJsonObject& json = items.GetObject(i);
            const auto type = TKSLItemType(json.GetInt(u"Type"));
            MakeItem(*this, GetLayer(1), type, 0).ReadJson(version, json);
        });
    }
}

void HostLabel::ReadBlocks(TBinaryReader& reader) {
    ReadBaseData(reader);
    ReadData(reader);
    if (reader.Read<std::int32_t>() > 0)
        throw ENotAvailable(u"Symbols are not available yet");
    const auto count = reader.Read<std::int32_t>();
    for (std::int32_t i = 0; i < count; ++i)
        AtPlace("Items[" + std::to_string(i) + "]", [&] {
            const auto type = TKSLItemType(reader.Read<std::int32_t>());
            MakeItem(*this, GetLayer(1), type, 0).ReadData(GetReadedVersion(), reader, rdNormal);
        });
}

void HostLabel::ReadBracket(const std::function<void()>& read) {
    BeginRead(false);
    try {
        read();
    } catch (...) {
        // The bracket is closed whatever happens; the first fault is the one to tell.
        try {
            EndRead(true);
        } catch (const EVagrel&) {
        }
        throw;
    }
    // What can still fail is the data text, which is parsed last.
    AtPlace("Data: DataJson", [&] { EndRead(true); });
}

void HostLabel::ReadDocument(TJsonObject& root) {
    CheckNumbers(root);
    ReadBracket([&] { ReadParts(root); });
}

void HostLabel::ReadDocument(std::string_view bytes) {
    if (IsJson(bytes)) {
        TJsonObject root;
        root.ParseBytes(bytes);
        ReadDocument(root);
    } else {
        CheckBinary(bytes);
        TBinaryReader reader(bytes);
        ReadBracket([&] { ReadBlocks(reader); });
    }
}

void HostLabel::LoadFromFile(std::u16string_view filename) {
    const std::string name = ToUtf8(filename);
    const std::string bytes = ReadFile(name);
    AtPlace(name, [&] {
        // A file that fails must not cost the document that stands here: another one tries it first. Only a document as
        // it was made spares the double work, since reading that one back restores it.
        HostLabel other(nullptr, fMeasurer);
        const std::unique_ptr<TJsonObject> blank = other.GetJson();
        const bool untouched =
            ItemsCount() == 0 && !GetModified() && GetJson()->ToUtf8JSON(true) == blank->ToUtf8JSON(true);
        if (!untouched)
            other.ReadDocument(bytes);
        try {
            ReadDocument(bytes);
        } catch (...) {
            ReadDocument(*blank);
            throw;
        }
    });
}

std::string HostLabel::ToBinary() const {
    TBinaryWriter writer;
    WriteBaseData(writer);
    WriteData(writer);
    writer.Write(std::int32_t(SymbolCount()));
    writer.Write(std::int32_t(ItemsCount()));
    for (int i = 1; i <= ItemsCount(); ++i)
        GetItem(i)->WriteData(writer);
    return writer.Take();
}

void HostLabel::SaveToFile(std::u16string_view filename, TKSLExt format) {
    WriteFile(ToUtf8(filename), format == lfJSON ? GetJson()->ToUtf8JSON(false) : ToBinary());
    SetModified(false);
}

TVGRBaseItem& HostLabel::CreateElementFromStream(std::string_view snapshot) {
    TBinaryReader reader(snapshot);
    const auto version = reader.Read<std::int32_t>();
    return ReadItem(version, reader, rdNormal);
}

void HostLabel::PasteSelection() {
    ReadClipboard([this](std::int32_t version, TBinaryReader& reader) { ReadItem(version, reader, rdPaste); });
}

TVGRBaseItem& HostLabel::ReadItem(std::int32_t version, TBinaryReader& reader, TKSLReadType type) {
    TVGRBaseItem& item = MakeItem(*this, ActiveLayer(), TKSLItemType(reader.Read<std::int32_t>()), 0);
    try {
        item.ReadData(version, reader, type);
    } catch (...) {
        FreeItem(item);
        throw;
    }
    return item;
}

void HostLabel::Print() { throw ENotAvailable(u"This host has no printer"); }

} // namespace vagrel
