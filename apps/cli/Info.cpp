// SPDX-License-Identifier: MIT
// vagrel info: what a document holds.
#include "Commands.h"

#include <host/HostLabel.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

#include <CLI/CLI.hpp>

#include <map>

namespace vagrel::cli {

namespace {

struct TInfo {
    std::string file;
    bool json = false;
};

std::u16string NameOf(const TNames& names, int value) {
    for (const auto& [name, number] : names)
        if (number == value)
            return FromUtf8(name);
    return IntToStr(value);
}

void AddSize(TJsonObject& parent, std::u16string_view key, std::int64_t width, std::int64_t height) {
    TJsonObject& size = parent.AddObject(key);
    size.SetFloat(u"Width", RoundTo3(GetBaseValue(width)));
    size.SetFloat(u"Height", RoundTo3(GetBaseValue(height)));
}

// Layers with their numbers of items, items by type, and what surrounds them all in the document's unit.
void DescribeItems(const HostLabel& label, TJsonObject& json) {
    std::map<TKSLItemType, int> types;
    std::vector<int> onLayer(std::size_t(label.LayersCount()));
    TKSLRect bounds;
    for (int i = 1; i <= label.ItemsCount(); ++i) {
        const TVGRBaseItem& item = *label.GetItem(i);
        ++types[item.GetItemType()];
        ++onLayer[std::size_t(label.LayerIdx(item.GetLayer()))];
        const TKSLRect& box = item.BoundsRect();
        bounds = i == 1 ? box
                        : TKSLRect(std::min(bounds.Left, box.Left), std::min(bounds.Top, box.Top),
                                   std::max(bounds.Right, box.Right), std::max(bounds.Bottom, box.Bottom));
    }
    TJsonArray& layers = json.AddArray(u"Layers");
    for (int i = 1; i <= label.LayersCount(); ++i) {
        TJsonObject& layer = layers.AddObject();
        layer.SetString(u"Name", label.GetLayer(i).GetName());
        layer.SetInt(u"Items", onLayer[std::size_t(i - 1)]);
    }
    json.SetInt(u"Items", label.ItemsCount());
    TJsonObject& byType = json.AddObject(u"ByType");
    for (const auto& [type, count] : types)
        byType.SetInt(NameItem(type), count);
    if (label.ItemsCount() == 0)
        return json.SetNull(u"Bounds");
    TJsonObject& box = json.AddObject(u"Bounds");
    auto value = [&](std::int64_t base) { return RoundTo3(GetValue(base, label.GetUnits())); };
    box.SetFloat(u"Left", value(bounds.Left));
    box.SetFloat(u"Top", value(bounds.Top));
    box.SetFloat(u"Right", value(bounds.Right));
    box.SetFloat(u"Bottom", value(bounds.Bottom));
}

std::unique_ptr<TJsonObject> Describe(const HostLabel& label) {
    auto json = std::make_unique<TJsonObject>();
    const TVGRMeasure& measure = label.GetMeasure();
    json->SetString(u"Name", measure.GetLabelName());
    json->SetString(u"Mode", NameOf(ModeNames, label.GetEditorMode()));
    json->SetString(u"Units", NameOf(UnitNames, label.GetUnits()));
    json->SetLong(u"Scale", measure.GetDrawScale());
    AddSize(*json, u"Label", measure.GetSize(mtLabelWidth, false), measure.GetSize(mtLabelHeight, false));
    AddSize(*json, u"Paper", measure.GetSize(mtPaperWidth, false), measure.GetSize(mtPaperHeight, false));
    json->SetString(u"PaperName", measure.GetPaperName());
    json->SetInt(u"Rows", measure.GetNuHor());
    json->SetInt(u"Columns", measure.GetNuVer());
    DescribeItems(label, *json);
    return json;
}

std::string AsText(TJsonObject& json) {
    std::u16string text;
    auto number = [](TJsonObject& object, std::u16string_view key) { return FloatToStr(object.GetFloat(key)); };
    auto line = [&](std::u16string_view name, std::u16string_view value) {
        ((text += name) += std::u16string(9 - name.size(), u' ') += value) += u'\n';
    };
    auto size = [&](std::u16string_view key) {
        TJsonObject& object = json.GetObject(key);
        return number(object, u"Width") + u" x " + number(object, u"Height") + u" mm";
    };
    line(u"name", json.GetString(u"Name"));
    line(u"mode", json.GetString(u"Mode"));
    line(u"units", json.GetString(u"Units"));
    line(u"scale", u"1:" + IntToStr(json.GetLong(u"Scale")));
    line(u"label", size(u"Label"));
    line(u"paper", size(u"Paper") + u" (" + json.GetString(u"PaperName") + u"), " + IntToStr(json.GetInt(u"Rows")) +
                       u" x " + IntToStr(json.GetInt(u"Columns")) + u" labels");
    TJsonArray& layers = json.GetArray(u"Layers");
    for (int i = 0; i < layers.Count(); ++i) {
        TJsonObject& layer = layers.GetObject(i);
        line(i == 0 ? u"layers" : u"", layer.GetString(u"Name") + u": " + IntToStr(layer.GetInt(u"Items")) + u" items");
    }
    line(u"items", IntToStr(json.GetInt(u"Items")));
    for (auto [name, count] : json.GetObject(u"ByType"))
        line(u"", std::u16string(name) + u": " + IntToStr(count.GetIntValue()));
    if (TJsonObject* bounds = json.FindObject(u"Bounds"))
        line(u"bounds", u"(" + number(*bounds, u"Left") + u", " + number(*bounds, u"Top") + u") to (" +
                            number(*bounds, u"Right") + u", " + number(*bounds, u"Bottom") + u") " +
                            json.GetString(u"Units"));
    return ToUtf8(text);
}

void Run(const TInfo& arguments) {
    HostLabel label;
    label.LoadFromFile(FromUtf8(arguments.file));
    const std::unique_ptr<TJsonObject> json = Describe(label);
    Print(arguments.json ? json->ToUtf8JSON(false) + "\n" : AsText(*json));
}

} // namespace

void AddInfo(CLI::App& app) {
    auto arguments = std::make_shared<TInfo>();
    CLI::App* command = app.add_subcommand("info", "Tell mode, units, scale, page, layers, items by type and bounds");
    command->add_option("FILE", arguments->file, "the document")->required()->type_name("");
    command->add_flag("--json", arguments->json, "as JSON");
    command->footer("Example: vagrel info label.json\n");
    command->callback([arguments] { Run(*arguments); });
}

} // namespace vagrel::cli
