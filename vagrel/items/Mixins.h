// SPDX-License-Identifier: MIT
// What many families have, as layers between a base class and a family: the dash style, the width and height.
#pragma once

#include <vagrel/document/TVGR2DItem.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>

namespace vagrel {

/// Adds a dash style to an item class.
template <class Base>
class WithLineType : public Base, public IKSLStyle {
public:
    TKSLineType GetLineType() const override { return fLineType; }
    void SetLineType(TKSLineType value) override { this->Store(fLineType, value, cmd::LineType); }

    void Members(TMembers& members) override {
        Base::Members(members);
        members(fLineType);
    }

protected:
    using Base::Base;

    void Keys(TJsonFields& keys) override {
        Base::Keys(keys);
        keys(u"LineType", fLineType);
    }
    void Fields(TBinaryFields& fields) override {
        Base::Fields(fields);
        fields(fLineType);
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
