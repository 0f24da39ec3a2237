// SPDX-License-Identifier: MIT
// Terminals in files and in SVG.
#include <vagrel/items/TTerminal.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRSettings.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/persistence/JsonColors.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonObject.h>
#include <vagrel/svg/TExSVG.h>
#include <vagrel/svg/TermShape.h>

#include <algorithm>

namespace vagrel {

std::int32_t TTerminal::ClampSize(std::int64_t base) {
    return std::int32_t(std::clamp<std::int64_t>(base, 500, 50000));
}

void TTerminals::Ini(const TVGRBaseLabel& label) {
    from.color = to.color = label.GetSettings().GetFillTermColor();
    from.size = to.size = TTerminal::ClampSize(label.GetSettings().BaseTermSize());
}

void TTerminals::WriteJson(TJsonObject& json) const {
    json.SetInt(u"FromType", from.type);
    json.SetFloat(u"SizeFrom", RoundTo3(GetBaseValue(from.size)));
    SetAlphaColor(json, u"FromColor", from.color);
    json.SetInt(u"ToType", to.type);
    json.SetFloat(u"SizeTo", RoundTo3(GetBaseValue(to.size)));
    SetAlphaColor(json, u"ToColor", to.color);
}

void TTerminals::ReadJson(TJsonObject& json) {
    from.type = TKSLTermType(json.GetInt(u"FromType"));
    from.size = TTerminal::ClampSize(SetBaseValue(float(json.GetFloat(u"SizeFrom"))));
    from.color = GetAlphaColor(json.GetObject(u"FromColor"));
    to.type = TKSLTermType(json.GetInt(u"ToType"));
    to.size = TTerminal::ClampSize(SetBaseValue(float(json.GetFloat(u"SizeTo"))));
    to.color = GetAlphaColor(json.GetObject(u"ToColor"));
}

void TTerminals::WriteData(TBinaryWriter& writer) const {
    writer.Write(std::int16_t(from.type));
    writer.Write(std::int16_t(to.type));
    writer.Write(from.color);
    writer.Write(to.color);
    writer.Write(from.size);
    writer.Write(to.size);
}

void TTerminals::ReadData(TBinaryReader& reader) {
    from.type = TKSLTermType(reader.Read<std::int16_t>());
    to.type = TKSLTermType(reader.Read<std::int16_t>());
    from.color = reader.Read<TAlphaColor>();
    to.color = reader.Read<TAlphaColor>();
    from.size = reader.Read<std::int32_t>();
    to.size = reader.Read<std::int32_t>();
}

void TTerminals::CheckFit(const TKSLPtoA& points, TKSLExtent& extent) const {
    if (points.empty())
        return;
    if (from.type != ttNone)
        extent.Widen(points.front().bX, points.front().bY, from.size);
    if (to.type != ttNone)
        extent.Widen(points.back().bX, points.back().bY, to.size);
}

void TTerminals::WriteSVG(const TVGRBaseItem& item, TSVGOutput& out) const {
    if (item.NumPoints() == 0)
        return;
    auto write = [&](const TTerminal& term, int tip, int back) {
        if (term.type != ttNone)
            out.svg.push_back(TExSVG::DrawTerm(term.type, out.ExportType, item.GetPointMMX(tip), item.GetPointMMY(tip),
                                               item.GetPointMMX(back), item.GetPointMMY(back), item.GetPenWidth(),
                                               out.Factor, GetBaseValue(term.size), item.GetColor(), term.color,
                                               ArrowOpen, false));
    };
    const int last = item.NumPoints();
    write(from, 1, 2);
    write(to, last, last - 1);
}

} // namespace vagrel
