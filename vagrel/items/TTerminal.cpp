// SPDX-License-Identifier: MIT
// Terminals in files and in SVG.
#include <vagrel/items/TTerminal.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRSettings.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>
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

void TTerminals::Keys(TJsonFields& keys) {
    auto size = [&](std::u16string_view key, TTerminal& term) {
        keys.Number(key, GetBaseValue(term.size),
                    [&](float mm) { term.size = TTerminal::ClampSize(SetBaseValue(mm)); });
    };
    keys(u"FromType", from.type);
    size(u"SizeFrom", from);
    keys.Color(u"FromColor", from.color);
    keys(u"ToType", to.type);
    size(u"SizeTo", to);
    keys.Color(u"ToColor", to.color);
}

void TTerminals::Fields(TBinaryFields& fields) {
    fields.As<std::int16_t>(from.type, to.type);
    fields(from.color, to.color, from.size, to.size);
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
