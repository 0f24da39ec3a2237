// SPDX-License-Identifier: MIT
// Defaults of terminals and links.
#pragma once

#include <vagrel/foundation/Colors.h>

#include <cstdint>

namespace vagrel {

class TBinaryFields;
class TBinaryReader;
class TBinaryWriter;
class TJsonFields;
class TJsonObject;
class TMembers;
class TVGRBaseLabel;

/// What a new line takes for its terminals, and a link for its distance.
class TVGRSettings {
public:
    explicit TVGRSettings(TVGRBaseLabel& owner) : fOwner(owner) {}

    TAlphaColor GetTermColor() const { return fTermColor; }
    void SetTermColor(TAlphaColor value) { fTermColor = value; }
    TAlphaColor GetFillTermColor() const { return fFillTermColor; }
    void SetFillTermColor(TAlphaColor value) { fFillTermColor = value; }

    /// Base units on paper.
    std::int32_t BaseTermSize() const { return fTermSize; }
    std::int32_t BaseLinkGap() const { return fLinkGap; }
    /// Millimetres, divided by the draw scale.
    float GetTermSize() const;
    float GetLinkGap() const;
    /// Millimetres; at least 0.5 and 0.
    void SetTermSize(float mm);
    void SetLinkGap(float mm);

    void Assign(const TVGRSettings& source);

    void WriteJson(TJsonObject& parent) const;
    void ReadJson(std::int32_t version, TJsonObject& json);
    void WriteData(TBinaryWriter& writer) const;
    void ReadData(std::int32_t version, TBinaryReader& reader);

    /// All keys and fields, and all members that belong to the state.
    void Keys(TJsonFields& keys);
    void Fields(TBinaryFields& fields);
    void Members(TMembers& members);

private:
    TVGRBaseLabel& fOwner;
    TAlphaColor fTermColor = OpaqueBlack;
    TAlphaColor fFillTermColor = OpaqueWhite;
    std::int32_t fTermSize = 2500;
    std::int32_t fLinkGap = 5000;
};

} // namespace vagrel
