// SPDX-License-Identifier: MIT
// Colours in JSON: objects with the integer keys "R", "G", "B", "A", or a text under "Color".
#pragma once

#include <vagrel/foundation/Colors.h>

#include <memory>

namespace vagrel {

class TJsonObject;

/// A new object with "R", "G", "B", "A".
std::unique_ptr<TJsonObject> ColorRGBA(TAlphaColor color);

/// Stores such an object under a key.
void SetAlphaColor(TJsonObject& parent, std::u16string_view key, TAlphaColor color);

/// Reads all four keys; a missing one is 0. Values are taken modulo 256.
TAlphaColor GetAlphaColor(TJsonObject& color);

/// Reads "R", "G", "B", and "A" if it is there, else opaque.
TAlphaColor ParseJsColor(TJsonObject& color);

/// A text "Color" by `ParseColor`; else an object with "R", "G" and "B"; else opaque white.
TAlphaColor ParseJsonColor(TJsonObject& json);

/// Sets the key "Color" to the text of `AlphaColorToHex`.
void ColorHex(TJsonObject& json, TAlphaColor color);

} // namespace vagrel
