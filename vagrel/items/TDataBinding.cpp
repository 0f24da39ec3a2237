// SPDX-License-Identifier: MIT
// Bindings and their forms in files.
#include <vagrel/items/TDataBinding.h>

#include <vagrel/merge/FillSymbols.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonObject.h>

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

void TDataBinding::WriteJson(TJsonObject& parent) const {
    TJsonObject& data = parent.AddObject(u"Data");
    data.SetString(u"Field", field);
    data.SetString(u"Format", format);
    data.SetInt(u"FillType", type);
}

void TDataBinding::ReadJson(TJsonObject& parent) {
    TJsonObject& data = parent.GetObject(u"Data");
    field = data.GetString(u"Field");
    format = data.GetString(u"Format");
    type = TKSLFillType(data.GetInt(u"FillType"));
}

void TDataBinding::WriteData(TBinaryWriter& writer) const {
    writer.Write(field);
    writer.Write(format);
    writer.Write(std::int16_t(type));
}

void TDataBinding::ReadData(TBinaryReader& reader) {
    field = reader.ReadString();
    format = reader.ReadString();
    type = TKSLFillType(reader.Read<std::int16_t>());
}

} // namespace vagrel
