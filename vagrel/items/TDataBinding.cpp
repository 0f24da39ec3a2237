// SPDX-License-Identifier: MIT
// Bindings and their forms in files.
#include <vagrel/items/TDataBinding.h>

#include <vagrel/merge/FillSymbols.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>

namespace vagrel {

void TDataBinding::Set(TKSLFillType source, std::u16string_view name, std::u16string_view pattern) {
    format = pattern;
    if (name.find(TVGRMsg::GetListValue(u"Unassign")) != name.npos) {
        type = ftNone;
        field.clear();
        return;
    }
    // A blank stands for the kinds without a symbol.
    const std::size_t symbol = name.empty() || name[0] == u' ' ? FillSymbols.npos : FillSymbols.find(name[0]);
    const bool marked = symbol != FillSymbols.npos;
    type = marked ? TKSLFillType(symbol) : source;
    field = marked ? name.substr(1) : name;
}

std::u16string TDataBinding::Symbolic() const { return IncSymData(type, field); }

void TDataBinding::Keys(TJsonFields& keys) {
    keys.Inner(u"Data", [this](TJsonFields& data) {
        data(u"Field", field);
        data(u"Format", format);
        data(u"FillType", type);
    });
}

void TDataBinding::Fields(TBinaryFields& fields) {
    fields(field, format);
    fields.As<std::int16_t>(type);
}

} // namespace vagrel
