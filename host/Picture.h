// SPDX-License-Identifier: MIT
// A picture in memory and its encoding as a file.
#pragma once

#include <host/PageWriter.h>
#include <vagrel/foundation/Colors.h>

#include <cairo.h>

namespace vagrel {

/// A picture of 32 bits a pixel.
class Picture {
public:
    struct TSurfaceEnd {
        void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    };

    /// Sizes are rounded, at least 1. Throws EOutOfRange above 32767 pixels on a side.
    Picture(double width, double height);

    cairo_surface_t* Surface() const { return fSurface.get(); }
    void Clear(TAlphaColor color);
    /// The bytes of a file. Throws EVagrel with the codec's reason.
    std::string Encode(TPageKind kind, double dpi, int quality) const;

private:
    std::unique_ptr<cairo_surface_t, TSurfaceEnd> fSurface;
};

} // namespace vagrel
