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

// Closes the reading bracket whatever happens.
class TReadScope {
public:
    explicit TReadScope(TVGRBaseLabel& label) : fLabel(label) { label.BeginRead(false); }
    TReadScope(const TReadScope&) = delete;
    TReadScope& operator=(const TReadScope&) = delete;
    // Stored data that does not parse is found at the end of a read.
    ~TReadScope() noexcept(false) { fLabel.EndRead(true); }

private:
    TVGRBaseLabel& fLabel;
};

} // namespace

HostLabel::HostLabel(TComponent* owner) : TVGRBaseLabel(owner) { Loaded(); }

HostLabel::~HostLabel() { Teardown(); }

void HostLabel::ReadDocument(TJsonObject& root) {
    const TReadScope bracket(*this);
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

void HostLabel::LoadFromFile(std::u16string_view filename) {
    const std::string name = ToUtf8(filename);
    AtPlace(name, [&] {
        const std::unique_ptr<TJsonObject> root = ParseDocument(ReadFile(name));
        // A file that fails must not cost the document that is open: another one tries it first.
        if (ItemsCount() > 0 || GetModified())
            HostLabel().ReadDocument(*root);
        try {
            ReadDocument(*root);
        } catch (...) {
            New();
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
    item.ReadData(version, reader, rdNormal);
    return item;
}

void HostLabel::PasteSelection() { throw ENotAvailable(u"Pasting is not available yet"); }
void HostLabel::Print() { throw ENotAvailable(u"This host has no printer"); }

void HostLabel::ExportDoc(TKSLExport, std::u16string_view, int, float, int, bool, bool, bool) {
    throw ENotAvailable(u"The export of pages is not available yet");
}

} // namespace vagrel
