// SPDX-License-Identifier: MIT
// Painting and export of the reference host: the label, its preview copies, sheets as files.
#include <host/HostLabel.h>

#include <host/CairoDraw.h>
#include <host/PageWriter.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>

namespace vagrel {

namespace {

constexpr double ScreenDpi = 96;

TPageKind KindOf(TKSLExport type) {
    switch (type) {
    case exPDF:
        return TPageKind::Pdf;
    case exPNG:
        return TPageKind::Png;
    case exJPEG:
        return TPageKind::Jpeg;
    case exBMP:
        return TPageKind::Bmp;
    case exXPS:
        throw ENotAvailable(u"This host does not write XPS");
    case exGIF:
        throw ENotAvailable(u"This host does not write GIF");
    }
    throw EVagrel(u"Unknown export type " + IntToStr(type));
}

} // namespace

void HostLabel::PaintItems(const CairoDraw& draw) const {
    for (int i = 1; i <= ItemsCount(); ++i)
        if (GetItem(i)->Shows({lopVisible, lopExport}))
            GetItem(i)->DrawElement(draw);
}

void HostLabel::ExportDoc(TKSLExport type, std::u16string_view filename, int page, float scale, int quality,
                          bool checkData, bool transparent, bool fit) {
    const TPageKind kind = KindOf(type);
    const TPageStyle style{.view = fit ? TPageView::Fit : TPageView::Sheet,
                           .dpi = ScreenDpi * double(scale),
                           .quality = quality,
                           .transparent = transparent};
    if (checkData)
        CheckPrintData();
    const int last = fit ? 1 : GetPrintInfo().GetPagesToPrint();
    if (page < 0 || page > last)
        throw EOutOfRange(u"There is no page " + IntToStr(page) + u": the document has " + IntToStr(last));
    const int from = page == 0 ? 1 : page, to = page == 0 ? last : page;
    const auto pages = OpenPages(ToUtf8(filename), kind, style, to - from + 1, from);
    if (!fit)
        MakePreview();
    for (int i = from; i <= to; ++i) {
        if (!fit)
            GoToPage(i, true, false);
        pages->Add(*this);
    }
    pages->Commit();
}

} // namespace vagrel
