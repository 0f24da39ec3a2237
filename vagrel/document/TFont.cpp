// SPDX-License-Identifier: MIT
// The JSON form of fonts.
#include <vagrel/document/TFont.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/TJsonFields.h>

namespace vagrel {

void TFont::Keys(TJsonFields& keys) {
    keys.Inner(u"Font", [this](TJsonFields& font) {
        font(u"Name", name);
        font(u"Bold", bold);
        font(u"Italic", italic);
        font(u"Underline", underline);
        font(u"Strikeout", strikeout);
        font.Number(u"FontHeight", GetBaseValue(height), [this](float mm) { height = ToInt32(SetBaseValue(mm)); });
        font.Color(u"FontColor", color);
    });
}

} // namespace vagrel
