// SPDX-License-Identifier: MIT
// The document as SVG: the frame around what the items write.
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/platform/Files.h>
#include <vagrel/svg/TSVGOutput.h>

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
std::string Root(const TSVGOutput& out, const TVGRMeasure& measure) {
    const bool unit = out.ExportType == svCurrentUnit || out.ExportType == svFactor;
    const std::string_view suffix = unit ? "mm" : "";
    const float width = GetBaseValue(measure.GetSize(mtLabelWidth, false));
    const float height = GetBaseValue(measure.GetSize(mtLabelHeight, false));
    SvgElement root = out.Element();
    (root << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"").Val(width) << suffix << "\" height=\"";
    root.Val(height) << suffix << "\" viewBox=\"0 0 ";
    (root.Val(width) << " ").Val(height) << "\">\n";
    return root.Take();
}

} // namespace

std::string TVGRBaseLabel::SVG(TKSLExportSVG type, float factor, bool attrID, bool portable) const {
    TSVGOutput out{type, factor, attrID, portable, {}, {}};
    for (const auto& item : fItems)
        if (item->Shows({lopVisible, lopExport}))
            item->WriteSVG(out);

    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    text += Root(out, *fMeasure);
    if (!out.defs.empty()) {
        text += "<defs>\n";
        AppendLines(text, out.defs);
        text += "</defs>\n";
    }
    AppendLines(text, out.svg);
    text += "</svg>\n";
    return text;
}

void TVGRBaseLabel::SaveSVG(std::u16string_view filename, TKSLExportSVG type, float factor, bool attrID,
                            bool portable) const {
    WriteFile(ToUtf8(filename), SVG(type, factor, attrID, portable));
}

} // namespace vagrel
