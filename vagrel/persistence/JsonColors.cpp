// SPDX-License-Identifier: MIT
// Colours in JSON.
#include <vagrel/persistence/JsonColors.h>

#include <vagrel/persistence/TJsonObject.h>

namespace vagrel {

std::unique_ptr<TJsonObject> ColorRGBA(TAlphaColor color) {
    auto json = std::make_unique<TJsonObject>();
    json->SetInt(u"R", RedOf(color));
    json->SetInt(u"G", GreenOf(color));
    json->SetInt(u"B", BlueOf(color));
    json->SetInt(u"A", AlphaOf(color));
    return json;
}

void SetAlphaColor(TJsonObject& parent, std::u16string_view key, TAlphaColor color) {
    parent.SetObject(key, ColorRGBA(color));
}

TAlphaColor GetAlphaColor(TJsonObject& color) {
    auto channel = [&](std::u16string_view key) { return std::uint8_t(color.GetInt(key)); };
    return AlphaColor(channel(u"R"), channel(u"G"), channel(u"B"), channel(u"A"));
}

TAlphaColor ParseJsColor(TJsonObject& color) {
    const TAlphaColor read = GetAlphaColor(color);
    return color.Contains(u"A") ? read : read | OpaqueBlack;
}

TAlphaColor ParseJsonColor(TJsonObject& json) {
    if (json.Contains(u"Color") && json.GetType(u"Color") == jdtString)
        return ParseColor(json.GetString(u"Color"));
    if (json.Contains(u"R") && json.Contains(u"G") && json.Contains(u"B"))
        return ParseJsColor(json);
    return OpaqueWhite;
}

void ColorHex(TJsonObject& json, TAlphaColor color) { json.SetString(u"Color", AlphaColorToHex(color)); }

} // namespace vagrel
