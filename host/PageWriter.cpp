// SPDX-License-Identifier: MIT
// Writers of pages over Cairo and the document's own SVG.
#include <host/PageWriter.h>

#include <host/CairoDraw.h>
#include <host/HostLabel.h>
#include <host/Picture.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/foundation/Units.h>

#include <cairo-pdf.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace vagrel {

namespace {

constexpr double PointsPerMillimetre = 72 / 25.4;
constexpr double MillimetresPerInch = 25.4;

struct TContextEnd {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};
using TContext = std::unique_ptr<cairo_t, TContextEnd>;

// A part of the label or the paper, in millimetres.
struct TPage {
    double left = 0, top = 0, width = 0, height = 0;
};

TPage PageOf(const HostLabel& label, TPageView view) {
    const TVGRMeasure& measure = label.GetMeasure();
    auto paper = [&](TKSLMeasureType type) { return double(measure.GetSize(type, false)) / 1000; };
    if (view == TPageView::Sheet)
        return {0, 0, paper(mtPaperWidth), paper(mtPaperHeight)};
    if (view == TPageView::Fit) {
        TKSLExtent extent;
        label.CheckFit(extent);
        auto place = [&](std::int64_t base) { return label.ToPaper(double(base)); };
        if (extent.maxX > extent.minX && extent.maxY > extent.minY)
            return {place(extent.minX), place(extent.minY), place(extent.maxX - extent.minX),
                    place(extent.maxY - extent.minY)};
    }
    return {0, 0, paper(mtLabelWidth), paper(mtLabelHeight)};
}

// Paints what a page shows; user space is millimetres from the page's corner.
void PaintPage(const HostLabel& label, const TPage& page, TPageView view, cairo_t* context, double pixel) {
    cairo_translate(context, -page.left, -page.top);
    if (view != TPageView::Sheet) {
        CairoDraw draw(label, context, pixel);
        draw.fState = dsLabel;
        return label.PaintItems(draw);
    }
    for (const TSheetCell& cell : label.GetPrintInfo().Cells()) {
        const SavedContext saved(context);
        cairo_translate(context, double(cell.x) / 1000, double(cell.y) / 1000);
        CairoDraw draw(label, context, pixel);
        draw.aRow = cell.row, draw.aCol = cell.column;
        label.PaintItems(draw);
    }
}

void CheckCairo(cairo_status_t status, const std::string& what) {
    if (status != CAIRO_STATUS_SUCCESS)
        throw EVagrel(what + ": " + cairo_status_to_string(status));
}

// "OUT.png" and the page 7 make "OUT-0007.png".
std::string Numbered(const std::string& filename, int page) {
    const std::size_t slash = filename.find_last_of('/'), dot = filename.find_last_of('.');
    const std::size_t stem = dot == filename.npos || (slash != filename.npos && dot < slash) ? filename.size() : dot;
    char number[16];
    std::snprintf(number, sizeof number, "-%04d", page);
    return filename.substr(0, stem) + number + filename.substr(stem);
}

// One file a page, all of them put in their places at the end.
class FilePages : public PageWriter {
public:
    FilePages(const std::string& filename, const TPageStyle& style, int pages, int first)
        : fName(filename), fStyle(style), fSeveral(pages > 1), fPage(first) {}

    void Add(const HostLabel& label) override {
        const std::string name = fSeveral ? Numbered(fName, fPage) : fName;
        ++fPage;
        fFiles.push_back(std::make_unique<TOutputFile>(name));
        AtPlace(name, [&] { fFiles.back()->Write(Bytes(label)); });
        fFiles.back()->Close();
    }
    void Commit() override {
        for (const auto& file : fFiles)
            file->Commit();
    }

protected:
    virtual std::string Bytes(const HostLabel& label) const = 0;
    const TPageStyle& Style() const { return fStyle; }

private:
    std::string fName;
    TPageStyle fStyle;
    bool fSeveral;
    int fPage;
    std::vector<std::unique_ptr<TOutputFile>> fFiles;
};

class SvgPages final : public FilePages {
public:
    using FilePages::FilePages;

private:
    std::string Bytes(const HostLabel& label) const override {
        const TPageStyle& style = Style();
        return style.view == TPageView::Sheet
                   ? label.SheetSVG(style.svgType, style.svgFactor, style.svgIDs, style.svgPortable)
                   : label.SVG(style.svgType, style.svgFactor, style.svgIDs, style.svgPortable);
    }
};

class PicturePages final : public FilePages {
public:
    PicturePages(const std::string& filename, TPageKind kind, const TPageStyle& style, int pages, int first)
        : FilePages(filename, style, pages, first), fKind(kind) {}

private:
    std::string Bytes(const HostLabel& label) const override {
        const TPageStyle& style = Style();
        const TPage page = PageOf(label, style.view);
        const double scale = style.dpi / MillimetresPerInch;
        Picture picture(page.width * scale, page.height * scale);
        if (!style.transparent || fKind != TPageKind::Png)
            picture.Clear(OpaqueWhite);
        const TContext context(cairo_create(picture.Surface()));
        cairo_scale(context.get(), scale, scale);
        PaintPage(label, page, style.view, context.get(), 1 / scale);
        CheckCairo(cairo_status(context.get()), "painting failed");
        return picture.Encode(fKind, style.dpi, style.quality);
    }

    TPageKind fKind;
};

class PdfPages final : public PageWriter {
public:
    PdfPages(const std::string& filename, const TPageStyle& style)
        : fFile(filename), fView(style.view), fSurface(cairo_pdf_surface_create_for_stream(Write, this, 1, 1)),
          fContext(cairo_create(fSurface.get())) {
        cairo_pdf_surface_set_metadata(fSurface.get(), CAIRO_PDF_METADATA_CREATOR, "vagrel");
    }

    void Add(const HostLabel& label) override {
        const TPage page = PageOf(label, fView);
        cairo_pdf_surface_set_size(fSurface.get(), page.width * PointsPerMillimetre, page.height * PointsPerMillimetre);
        {
            const SavedContext saved(fContext.get());
            cairo_scale(fContext.get(), PointsPerMillimetre, PointsPerMillimetre);
            PaintPage(label, page, fView, fContext.get(), 0);
        }
        cairo_show_page(fContext.get());
        Check();
    }

    void Commit() override {
        cairo_surface_finish(fSurface.get());
        Check();
        fFile.Commit();
    }

private:
    static cairo_status_t Write(void* self, const unsigned char* bytes, unsigned int count) noexcept {
        auto& pages = *static_cast<PdfPages*>(self);
        try {
            pages.fFile.Write({reinterpret_cast<const char*>(bytes), count});
            return CAIRO_STATUS_SUCCESS;
        } catch (...) {
            pages.fFailure = std::current_exception();
            return CAIRO_STATUS_WRITE_ERROR;
        }
    }

    void Check() {
        if (fFailure)
            std::rethrow_exception(std::exchange(fFailure, nullptr));
        CheckCairo(cairo_surface_status(fSurface.get()), "painting failed");
        CheckCairo(cairo_status(fContext.get()), "painting failed");
    }

    TOutputFile fFile; // first: the surface still writes while it ends
    std::exception_ptr fFailure;
    TPageView fView;
    std::unique_ptr<cairo_surface_t, Picture::TSurfaceEnd> fSurface;
    TContext fContext;
};

} // namespace

TPageKind PageKindOf(const std::string& filename) {
    struct TRow {
        std::string_view extension;
        TPageKind kind;
    };
    constexpr TRow rows[] = {{"svg", TPageKind::Svg},  {"pdf", TPageKind::Pdf},   {"png", TPageKind::Png},
                             {"jpg", TPageKind::Jpeg}, {"jpeg", TPageKind::Jpeg}, {"bmp", TPageKind::Bmp}};
    const std::size_t dot = filename.find_last_of("./");
    if (dot == filename.npos || filename[dot] == '/')
        return TPageKind::Svg;
    std::string extension = filename.substr(dot + 1);
    std::ranges::transform(extension, extension.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    const auto row = std::ranges::find(rows, extension, &TRow::extension);
    if (row == std::end(rows))
        throw EVagrel("\"" + filename + "\": the extension is none of svg, pdf, png, jpg and bmp");
    return row->kind;
}

std::unique_ptr<PageWriter> OpenPages(const std::string& filename, TPageKind kind, const TPageStyle& style, int pages,
                                      int first) {
    switch (kind) {
    case TPageKind::Svg:
        return std::make_unique<SvgPages>(filename, style, pages, first);
    case TPageKind::Pdf:
        return std::make_unique<PdfPages>(filename, style);
    default:
        return std::make_unique<PicturePages>(filename, kind, style, pages, first);
    }
}

} // namespace vagrel
