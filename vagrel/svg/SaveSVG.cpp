// SPDX-License-Identifier: MIT
// The document as SVG: the frame around what the items write.
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/platform/Files.h>
#include <vagrel/svg/TSVGOutput.h>

#include <optional>

namespace vagrel {

namespace {

void AppendLines(std::string& text, const std::vector<std::string>& lines) {
    std::size_t size = text.size();
    for (const std::string& line : lines)
        size += line.size() + 1;
    text.reserve(size);
    for (const std::string& line : lines)
        (text += line) += '\n';
}

// User space is millimetres on paper, times the factor where the mode says so; the size of the picture adds the unit.
std::string Root(const TSVGOutput& out, const TVGRMeasure& measure, TKSLMeasureType across, TKSLMeasureType down) {
    const bool unit = out.ExportType == svCurrentUnit || out.ExportType == svFactor;
    const std::string_view suffix = unit ? "mm" : "";
    const float width = GetBaseValue(measure.GetSize(across, false));
    const float height = GetBaseValue(measure.GetSize(down, false));
    SvgElement root = out.Element();
    (root << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"").Val(width) << suffix << "\" height=\"";
    root.Val(height) << suffix << "\" viewBox=\"0 0 ";
    (root.Val(width) << " ").Val(height) << "\">\n";
    return root.Take();
}

std::string Document(const TSVGOutput& out, const std::string& root) {
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    text += root;
    if (!out.defs.empty()) {
        text += "<defs>\n";
        AppendLines(text, out.defs);
        text += "</defs>\n";
    }
    AppendLines(text, out.svg);
    text += "</svg>\n";
    return text;
}

// An item on a sheet: what it writes itself, the same in each cell, or the number of the copies that stand for it.
struct TSheetItem {
    std::vector<std::string> lines;
    std::optional<std::int32_t> copied;
};

bool IsTurned(const TVGRBaseItem& item) {
    const TKSLPtoA& points = item.Points();
    return points.size() == 2 && !item.HasTrait(trOrderedPoints) &&
           (points[0].bX > points[1].bX || points[0].bY > points[1].bY);
}

// A box of a file may stand turned, which has no form in SVG: it is put right for as long as it is written.
void Write(TVGRBaseItem& item, TSVGOutput& out) {
    if (!IsTurned(item))
        return item.WriteSVG(out);
    const TFinally restore{[&item, points = item.Points()] {
        item.StorePoints(points);
        item.UpdateBounds();
    }};
    item.NormalizePoints();
    item.UpdateBounds();
    item.WriteSVG(out);
}

} // namespace

std::string TVGRBaseLabel::SVG(TKSLExportSVG type, float factor, bool attrID, bool portable) const {
    TSVGOutput out{type, factor, attrID, portable, {}, {}, true};
    for (const auto& item : fItems)
        if (item->Shows({lopVisible, lopExport}))
            Write(*item, out);
    return Document(out, Root(out, *fMeasure, mtLabelWidth, mtLabelHeight));
}

std::string TVGRBaseLabel::SheetSVG(TKSLExportSVG type, float factor, bool attrID, bool portable) const {
    TSVGOutput out{type, factor, attrID, portable, {}, {}, true};
    std::vector<TSheetItem> items;
    for (const auto& item : fItems) {
        if (!item->Shows({lopVisible, lopExport}))
            continue;
        TSheetItem& shown = items.emplace_back();
        if (item->GetIsData()) {
            shown.copied = item->GetInID();
        } else {
            Write(*item, out);
            shown.lines = std::exchange(out.svg, {});
        }
    }
    for (const TSheetCell& cell : fPrintInfo->Cells()) {
        SvgElement group = out.Element();
        (group << "<g transform=\"translate(").Val(GetBaseValue(cell.x)) << " ";
        group.Val(GetBaseValue(cell.y)) << ")\">";
        out.svg.push_back(group.Take());
        const std::vector<TVGRBaseItem*> copies = PreviewOf(cell.row, cell.column);
        for (const TSheetItem& item : items) {
            out.svg.insert(out.svg.end(), item.lines.begin(), item.lines.end());
            for (TVGRBaseItem* copy : copies)
                if (item.copied == copy->GetInID())
                    Write(*copy, out);
        }
        out.svg.push_back("</g>");
    }
    return Document(out, Root(out, *fMeasure, mtPaperWidth, mtPaperHeight));
}

void TVGRBaseLabel::SaveSVG(std::u16string_view filename, TKSLExportSVG type, float factor, bool attrID,
                            bool portable) const {
    WriteFile(ToUtf8(filename), SVG(type, factor, attrID, portable));
}

} // namespace vagrel
