// SPDX-License-Identifier: MIT
// Pictures by gdk-pixbuf.
#include <host/Picture.h>

#include <vagrel/foundation/Exceptions.h>

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <cmath>

namespace vagrel {

namespace {

constexpr double LargestSide = 32767;

struct TFreeGlib {
    void operator()(GdkPixbuf* pixbuf) const { g_object_unref(pixbuf); }
    void operator()(gchar* memory) const { g_free(memory); }
    void operator()(GError* error) const { g_error_free(error); }
};

int Side(double pixels) {
    if (!(pixels <= LargestSide))
        throw EOutOfRange(u"The picture is larger than 32767 pixels: choose fewer dots per inch");
    return int(std::max(1l, std::lround(pixels)));
}

// Cairo keeps colours multiplied by alpha, in the order of the machine's words; files want bytes R, G, B, A.
void Unmultiply(const unsigned char* row, unsigned char* out, int width, bool alpha) {
    for (int x = 0; x < width; ++x, row += 4) {
        std::uint32_t pixel;
        std::copy_n(row, 4, reinterpret_cast<unsigned char*>(&pixel));
        const unsigned a = AlphaOf(pixel);
        auto plain = [a](unsigned channel) { return static_cast<unsigned char>(a ? (channel * 255 + a / 2) / a : 0); };
        *out++ = plain(RedOf(pixel));
        *out++ = plain(GreenOf(pixel));
        *out++ = plain(BlueOf(pixel));
        if (alpha)
            *out++ = static_cast<unsigned char>(a);
    }
}

} // namespace

Picture::Picture(double width, double height)
    : fSurface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, Side(width), Side(height))) {
    if (const cairo_status_t status = cairo_surface_status(fSurface.get()))
        throw EVagrel(std::string("no picture: ") + cairo_status_to_string(status));
}

void Picture::Clear(TAlphaColor color) {
    cairo_t* context = cairo_create(fSurface.get());
    cairo_set_source_rgba(context, RedOf(color) / 255.0, GreenOf(color) / 255.0, BlueOf(color) / 255.0,
                          AlphaOf(color) / 255.0);
    cairo_set_operator(context, CAIRO_OPERATOR_SOURCE);
    cairo_paint(context);
    cairo_destroy(context);
}

std::string Picture::Encode(TPageKind kind, double dpi, int quality) const {
    cairo_surface_flush(fSurface.get());
    const int width = cairo_image_surface_get_width(fSurface.get());
    const int height = cairo_image_surface_get_height(fSurface.get());
    const int stride = cairo_image_surface_get_stride(fSurface.get());
    const unsigned char* data = cairo_image_surface_get_data(fSurface.get());
    const bool alpha = kind == TPageKind::Png;
    const std::unique_ptr<GdkPixbuf, TFreeGlib> pixbuf(gdk_pixbuf_new(GDK_COLORSPACE_RGB, alpha, 8, width, height));
    if (!pixbuf)
        throw EVagrel(u"no memory for the picture");
    for (int y = 0; y < height; ++y)
        Unmultiply(data + std::ptrdiff_t(y) * stride,
                   gdk_pixbuf_get_pixels(pixbuf.get()) + std::ptrdiff_t(y) * gdk_pixbuf_get_rowstride(pixbuf.get()),
                   width, alpha);

    const std::string dots = std::to_string(std::lround(dpi)), percent = std::to_string(std::clamp(quality, 0, 100));
    std::vector<const char*> keys, values;
    if (kind != TPageKind::Bmp)
        keys = {"x-dpi", "y-dpi"}, values = {dots.c_str(), dots.c_str()};
    if (kind == TPageKind::Jpeg)
        keys.push_back("quality"), values.push_back(percent.c_str());
    keys.push_back(nullptr), values.push_back(nullptr);
    const char* format = kind == TPageKind::Png ? "png" : kind == TPageKind::Jpeg ? "jpeg" : "bmp";

    gchar* bytes = nullptr;
    gsize count = 0;
    GError* error = nullptr;
    if (!gdk_pixbuf_save_to_bufferv(pixbuf.get(), &bytes, &count, format, const_cast<char**>(keys.data()),
                                    const_cast<char**>(values.data()), &error)) {
        const std::unique_ptr<GError, TFreeGlib> owned(error);
        throw EVagrel(std::string("no picture: ") + (error ? error->message : format));
    }
    const std::unique_ptr<gchar, TFreeGlib> owned(bytes);
    return std::string(bytes, count);
}

} // namespace vagrel
