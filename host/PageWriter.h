// SPDX-License-Identifier: MIT
// Pages of a document as files: SVG, PDF and pictures.
#pragma once

#include <vagrel/foundation/Enumerations.h>
#include <vagrel/platform/Files.h>

#include <memory>
#include <string>
#include <vector>

namespace vagrel {

class HostLabel;

enum class TPageKind : std::uint8_t { Svg, Pdf, Png, Jpeg, Bmp };

/// What of a document is a page.
enum class TPageView : std::uint8_t {
    Label, ///< the label or drawing alone
    Fit,   ///< the same, cut to what stands on it
    Sheet, ///< the paper with the labels of the current page of a merge
};

struct TPageStyle {
    TPageView view = TPageView::Label;
    /// Of pictures; a page of vectors has none.
    double dpi = 96;
    /// 0 to 100, of JPEG.
    int quality = 90;
    /// Pictures have no white ground. JPEG and BMP always have one.
    bool transparent = false;
    TKSLExportSVG svgType = svCurrentUnit;
    float svgFactor = 1;
    bool svgIDs = false;
    bool svgPortable = false;
};

/// Takes the pages of a document one by one, each as the document stands at that moment. Nothing is seen of the files
/// before `Commit`; a writer that ends without leaves nothing.
class PageWriter {
public:
    virtual ~PageWriter() = default;
    virtual void Add(const HostLabel& label) = 0;
    virtual void Commit() = 0;
};

/// The kind that an extension stands for, without regard to case; SVG for a name without one. Throws EVagrel for
/// others.
TPageKind PageKindOf(const std::string& filename);

/// Opens a writer for a number of pages. A PDF holds them all; of the other kinds each page is a file, "OUT-0001.png"
/// and so on counted from `first` when there are several. Throws EVagrel, here or while pages are added, when a picture
/// would be too large or a file cannot be written.
std::unique_ptr<PageWriter> OpenPages(const std::string& filename, TPageKind kind, const TPageStyle& style, int pages,
                                      int first = 1);

} // namespace vagrel
