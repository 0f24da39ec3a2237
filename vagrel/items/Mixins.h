// SPDX-License-Identifier: MIT
// What many families have, as layers between a base class and a family: the dash style, the width and height.
#pragma once

#include <vagrel/document/TVGR2DItem.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonObject.h>

namespace vagrel {

/// Adds a dash style to an item class.
template <class Base>
class WithLineType : public Base, public IKSLStyle {
public:
    TKSLineType GetLineType() const override { return fLineType; }
    void SetLineType(TKSLineType value) override { this->Store(fLineType, value, cmd::LineType); }

protected:
    using Base::Base;

    void WriteKeys(TJsonObject& json) const override {
        Base::WriteKeys(json);
        json.SetInt(u"LineType", fLineType);
    }
    void ReadKeys(std::int32_t version, TJsonObject& json) override {
        Base::ReadKeys(version, json);
        fLineType = TKSLineType(json.GetInt(u"LineType"));
    }
    void WriteFields(TBinaryWriter& writer) const override {
        Base::WriteFields(writer);
        writer.Write(std::int32_t(fLineType));
    }
    void ReadFields(std::int32_t version, TBinaryReader& reader) override {
        Base::ReadFields(version, reader);
        fLineType = TKSLineType(reader.Read<std::int32_t>());
    }

    TKSLineType fLineType = iiSolid;
};

/// Publishes the size of a filled figure as its editable width and height.
template <class Base>
class WithWidthHeight : public Base, public IKSLWidthHeight {
public:
    float GetWidth() const override { return Base::GetWidth(); }
    float GetHeight() const override { return Base::GetHeight(); }
    void SetWidth(float value) override { Base::SetWidth(value); }
    void SetHeight(float value) override { Base::SetHeight(value); }

protected:
    using Base::Base;
};

} // namespace vagrel
