// SPDX-License-Identifier: MIT
// Files of the reference host.
#include <host/HostLabel.h>

#include <host/ItemRegistry.h>
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

// The root object of a JSON document.
std::unique_ptr<TJsonObject> ParseDocument(const std::string& bytes) {
    const std::size_t start = bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    const std::size_t first = bytes.find_first_not_of(" \t\r\n", start);
    if (first == std::string::npos)
        throw EVagrel(u"The file is empty");
    if (bytes[first] != '{')
        throw EVagrel(u"Not a JSON document; binary documents are not available yet");
    auto root = std::make_unique<TJsonObject>();
    root->ParseUtf8(std::string_view(bytes).substr(start));
    return root;
}

// No length, whatever its unit, leaves the 64 bits of base units below this.
constexpr double LargestNumber = 9.3e15;

// The place of a number that nothing in a document can hold, for which the readers would take the nearest that fits.
std::optional<std::string> FindAbsurd(const TJsonDataValue& value) {
    const TJsonDataType typ = value.GetTyp();
    if (typ == jdtULong || (typ == jdtFloat && !(std::fabs(value.GetFloatValue()) < LargestNumber)))
        return "";
    if (typ == jdtObject) {
        for (auto [name, member] : *value.GetObjectValue())
            if (const auto place = FindAbsurd(member))
                return "." + ToUtf8(name) + *place;
    } else if (typ == jdtArray) {
        const TJsonArray& array = *value.GetArrayValue();
        for (int i = 0; i < array.Count(); ++i)
            if (const auto place = FindAbsurd(array.ItemAt(i)))
                return "[" + std::to_string(i) + "]" + *place;
    }
    return {};
}

void CheckNumbers(const TJsonObject& root) {
    for (auto [name, value] : root)
        if (const auto place = FindAbsurd(value))
            throw EOutOfRange(ToUtf8(name) + *place + ": the number is out of range");
}

} // namespace

HostLabel::HostLabel(TComponent* owner) : TVGRBaseLabel(owner) { Loaded(); }

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

void HostLabel::ReadDocument(TJsonObject& root) {
    CheckNumbers(root);
    BeginRead(false);
    try {
        ReadParts(root);
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

void HostLabel::LoadFromFile(std::u16string_view filename) {
    const std::string name = ToUtf8(filename);
    const std::string bytes = ReadFile(name);
    AtPlace(name, [&] {
        const std::unique_ptr<TJsonObject> root = ParseDocument(bytes);
        // A file that fails must not cost the document that stands here: another one tries it first. Only a document as
        // it was made spares the double work, since reading that one back restores it.
        HostLabel other;
        const std::unique_ptr<TJsonObject> blank = other.GetJson();
        const bool untouched =
            ItemsCount() == 0 && !GetModified() && GetJson()->ToUtf8JSON(true) == blank->ToUtf8JSON(true);
        if (!untouched)
            other.ReadDocument(*root);
        try {
            ReadDocument(*root);
        } catch (...) {
            ReadDocument(*blank);
            throw;
        }
    });
}

void HostLabel::SaveToFile(std::u16string_view filename, TKSLExt format) {
    if (format != lfJSON)
        throw ENotAvailable(u"Binary documents are not available yet");
    WriteFile(ToUtf8(filename), GetJson()->ToUtf8JSON(false));
    SetModified(false);
}

TVGRBaseItem& HostLabel::CreateElementFromStream(std::string_view snapshot) {
    TBinaryReader reader(snapshot);
    const auto version = reader.Read<std::int32_t>();
    TVGRBaseItem& item = MakeItem(*this, ActiveLayer(), TKSLItemType(reader.Read<std::int32_t>()), 0);
    try {
        item.ReadData(version, reader, rdNormal);
    } catch (...) {
        FreeItem(item);
        throw;
    }
    return item;
}

void HostLabel::PasteSelection() { throw ENotAvailable(u"Pasting is not available yet"); }
void HostLabel::Print() { throw ENotAvailable(u"This host has no printer"); }

void HostLabel::ExportDoc(TKSLExport, std::u16string_view, int, float, int, bool, bool, bool) {
    throw ENotAvailable(u"The export of pages is not available yet");
}

} // namespace vagrel
