// SPDX-License-Identifier: MIT
// The JSON form of fonts.
#include <vagrel/document/TFont.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/JsonColors.h>
#include <vagrel/persistence/TJsonObject.h>

namespace vagrel {

void TFont::WriteJson(TJsonObject& parent) const {
    TJsonObject& json = parent.AddObject(u"Font");
    json.SetString(u"Name", name);
    json.SetBool(u"Bold", bold);
    json.SetBool(u"Italic", italic);
    json.SetBool(u"Underline", underline);
    json.SetBool(u"Strikeout", strikeout);
    json.SetFloat(u"FontHeight", RoundTo3(GetBaseValue(height)));
    SetAlphaColor(json, u"FontColor", color);
}

void TFont::ReadJson(TJsonObject& parent) {
    TJsonObject& json = parent.GetObject(u"Font");
    name = json.GetString(u"Name");
    bold = json.GetBool(u"Bold");
    italic = json.GetBool(u"Italic");
    underline = json.GetBool(u"Underline");
    strikeout = json.GetBool(u"Strikeout");
    height = ToInt32(SetBaseValue(float(json.GetFloat(u"FontHeight"))));
    color = GetAlphaColor(json.GetObject(u"FontColor"));
}

} // namespace vagrel
