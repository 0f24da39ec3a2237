// SPDX-License-Identifier: MIT
// What an item needs to write itself as SVG: the two lists of the document, the form of numbers, and whether to name
// elements.
#pragma once

#include <vagrel/svg/SvgElement.h>

#include <algorithm>
#include <string>
#include <vector>

namespace vagrel {

/// One export. Items append complete elements to `svg`, in the order in which they paint, and shared definitions to
/// `defs`.
struct TSVGOutput {
    TKSLExportSVG ExportType = svCurrentUnit;
    float Factor = 1;
    bool attrID = false;
    /// Texts stand by their baseline: renderers differ on `alignment-baseline` at a text element.
    bool portable = false;
    std::vector<std::string> svg;
    std::vector<std::string> defs;
    /// Identifiers and names of fonts are escaped, characters that XML cannot hold are dropped, and a slice whose
    /// written ends coincide is a circle. Whoever writes a document asks for it; an item alone writes what is stored.
    bool wellFormed = false;

    /// An empty element in the export's form of numbers.
    SvgElement Element() const { return SvgElement(ExportType, Factor, wellFormed); }

    /// True when `defs` already holds the definition that opens with this line.
    bool Defined(const std::string& opening) const { return std::ranges::find(defs, opening) != defs.end(); }
};

} // namespace vagrel
