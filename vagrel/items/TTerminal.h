// SPDX-License-Identifier: MIT
// The terminals at the two ends of a line: their values, their forms in files and in SVG.
#pragma once

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/foundation/Units.h>

namespace vagrel {

/// One terminal. The size is base units on paper, 500 to 50000 through every setter.
struct TTerminal {
    TKSLTermType type = ttNone;
    TAlphaColor color = OpaqueWhite;
    std::int32_t size = 500;

    static std::int32_t ClampSize(std::int64_t base);
};

/// The two terminals of a line and what they share.
struct TTerminals {
    TTerminal from, to;

    /// Fill colour and size as the document's settings have them.
    void Ini(const TVGRBaseLabel& label);
    void Keys(TJsonFields& keys);
    /// Both types, both colours, both sizes.
    void Fields(TBinaryFields& fields);
    /// Widens an extent by the terminals that show, at the ends of a chain of points.
    void CheckFit(const TKSLPtoA& points, TKSLExtent& extent) const;
    /// One entry for each terminal that shows, at the ends of the item's points.
    void WriteSVG(const TVGRBaseItem& item, TSVGOutput& out) const;
};

/// Adds terminals to an item class.
template <class Base>
class WithTerminals : public Base, public IKSLSTerm {
public:
    float GetSizeFrom() const override { return GetBaseValue(fTerms.from.size); }
    float GetSizeTo() const override { return GetBaseValue(fTerms.to.size); }
    TAlphaColor GetFromColor() const override { return fTerms.from.color; }
    TAlphaColor GetToColor() const override { return fTerms.to.color; }
    TKSLTermType GetFromType() const override { return fTerms.from.type; }
    TKSLTermType GetToType() const override { return fTerms.to.type; }
    std::int32_t BaseSizeFrom() const override { return fTerms.from.size; }
    std::int32_t BaseSizeTo() const override { return fTerms.to.size; }
    void SetFromType(TKSLTermType value) override { StoreType(fTerms.from, value, cmd::FromType); }
    void SetToType(TKSLTermType value) override { StoreType(fTerms.to, value, cmd::ToType); }
    void SetFromColor(TAlphaColor value) override { StoreColor(fTerms.from, value, cmd::FromTerm); }
    void SetToColor(TAlphaColor value) override { StoreColor(fTerms.to, value, cmd::ToTerm); }
    void SetSizeFrom(float mm) override { StoreSize(fTerms.from, mm, cmd::SizeFrom); }
    void SetSizeTo(float mm) override { StoreSize(fTerms.to, mm, cmd::SizeTo); }
    void SetBaseSizeFrom(std::int32_t value) override { StoreBaseSize(fTerms.from, value, cmd::SizeFrom); }
    void SetBaseSizeTo(std::int32_t value) override { StoreBaseSize(fTerms.to, value, cmd::SizeTo); }

    void Members(TMembers& members) override {
        Base::Members(members);
        members(fTerms);
    }

protected:
    using Base::Base;

    void Keys(TJsonFields& keys) override {
        Base::Keys(keys);
        fTerms.Keys(keys);
    }
    void Fields(TBinaryFields& fields) override {
        Base::Fields(fields);
        fTerms.Fields(fields);
    }

    TTerminals fTerms;

private:
    void StoreType(TTerminal& term, TKSLTermType value, cmd::TEnumIndex index) { this->Store(term.type, value, index); }
    void StoreColor(TTerminal& term, TAlphaColor value, cmd::TColorIndex index) {
        this->Store(term.color, value, index);
    }
    void StoreSize(TTerminal& term, float mm, cmd::TBaseValueIndex index) {
        if (TTerminal::ClampSize(SetBaseValue(mm)) != term.size)
            StoreBaseSize(term, TTerminal::ClampSize(SetBaseValue(mm)), index);
    }
    // Undo comes here with the value that stood before, so the change is recorded whatever it is.
    void StoreBaseSize(TTerminal& term, std::int32_t value, cmd::TBaseValueIndex index) {
        if (!this->Record(index))
            return;
        term.size = TTerminal::ClampSize(value);
        this->StateUpdate();
    }
};

} // namespace vagrel
