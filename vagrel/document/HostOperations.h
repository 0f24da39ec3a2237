// SPDX-License-Identifier: MIT
// What a document asks of the program that links the library.
#pragma once

#include <vagrel/foundation/Records.h>

#include <cstdint>
#include <string_view>

namespace vagrel {

class TVGRBaseItem;

/// What a document leaves to its host. Factories take base coordinates and construct the host's class on the active
/// layer.
class HostOperations {
public:
    virtual TVGRBaseItem& CreateText(std::int64_t x, std::int64_t y) = 0;
    virtual TVGRBaseItem& CreatePara(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) = 0;
    virtual TVGRBaseItem& CreateRichText(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) = 0;
    virtual TVGRBaseItem& CreatePoint(std::int64_t x, std::int64_t y) = 0;
    virtual TVGRBaseItem& CreateLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2) = 0;
    virtual TVGRBaseItem& CreateArrowLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2) = 0;
    virtual TVGRBaseItem& CreatePolyLine(const TKSLPtoA& points) = 0;
    virtual TVGRBaseItem& CreateBezier(const TKSLPtoA& points) = 0;
    virtual TVGRBaseItem& CreateArc(TKSLPto first, TKSLPto second, TKSLPto third) = 0;
    virtual TVGRBaseItem& CreateRectangle(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) = 0;
    virtual TVGRBaseItem& CreatePackage(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) = 0;
    virtual TVGRBaseItem& CreatePolygon(const TKSLPtoA& points) = 0;
    virtual TVGRBaseItem& CreateCircle(TKSLPto center, std::int64_t radius) = 0;
    virtual TVGRBaseItem& CreateCircle2P(TKSLPto first, TKSLPto second) = 0;
    virtual TVGRBaseItem& CreateCircle3P(TKSLPto first, TKSLPto second, TKSLPto third) = 0;
    /// Angles in degrees.
    virtual TVGRBaseItem& CreateSector(TKSLPto center, std::int64_t radius, float start, float end) = 0;
    virtual TVGRBaseItem& CreateSector2P(TKSLPto first, TKSLPto second, float start, float end) = 0;
    virtual TVGRBaseItem& CreateSector3P(TKSLPto first, TKSLPto second, TKSLPto third, float start, float end) = 0;
    virtual TVGRBaseItem& CreateLevel(TKSLPto center, std::int64_t radius) = 0;
    virtual TVGRBaseItem& CreateEllipse(TKSLPto center, std::int64_t radiusX, std::int64_t radiusY) = 0;
    virtual TVGRBaseItem& CreateBarcode(std::int64_t x, std::int64_t y, std::u16string_view text, TKSLBarType type) = 0;
    virtual TVGRBaseItem& CreatePDF417(std::int64_t x, std::int64_t y, std::u16string_view text) = 0;
    virtual TVGRBaseItem& CreateDataMatrix(std::int64_t x, std::int64_t y, std::u16string_view text) = 0;
    virtual TVGRBaseItem& CreateQRCode(std::int64_t x, std::int64_t y, std::u16string_view text) = 0;
    virtual TVGRBaseItem& CreateImage(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height,
                                      bool keepAspect, std::u16string_view source) = 0;
    virtual TVGRBaseItem& CreateFlow(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height,
                                     TKSLFlowType type) = 0;
    virtual TVGRBaseItem& CreateLink(const TKSLink& from, const TKSLink& to, TKSLinkType type) = 0;
    virtual TVGRBaseItem& CreatePolyLink(const TKSLink& from, const TKSLink& to, TKSLinkType type,
                                         const TKSLPtoA& points) = 0;
    virtual TVGRBaseItem& CreateTable(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) = 0;
    virtual TVGRBaseItem& CreatePolyText(std::int64_t x, std::int64_t y) = 0;
    virtual TVGRBaseItem& CreateRank(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) = 0;
    virtual TVGRBaseItem& CreateNutriScore(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) = 0;
    virtual TVGRBaseItem& CreateSymbol(std::int64_t x, std::int64_t y) = 0;
    virtual TVGRBaseItem& CreateDim(TKSLPto first, TKSLPto second, TKSLPto position) = 0;
    /// Null where the segments make no angle.
    virtual TVGRBaseItem* CreateDimAng(const TKSLRefLine& first, const TKSLRefLine& second, TKSLPto side) = 0;
    /// Angles in radians.
    virtual TVGRBaseItem& CreateDimRad1(TKSLPto center, std::int64_t radius, double angle) = 0;
    virtual TVGRBaseItem& CreateDimRad2(TKSLPto center, std::int64_t radius, double angle) = 0;
    virtual TVGRBaseItem& CreateDimDia1(TKSLPto center, std::int64_t radius, double angle) = 0;
    virtual TVGRBaseItem& CreateDimDia2(TKSLPto center, std::int64_t radius, double angle) = 0;
    /// The printer index changed.
    virtual void PrinterChanged() {}
    /// Reads one item from a snapshot and appends it.
    virtual TVGRBaseItem& CreateElementFromStream(std::string_view snapshot) = 0;
    virtual void PasteSelection() = 0;
    virtual void Print() = 0;
    /// Exports pages; `page` counts from 1.
    virtual void ExportDoc(TKSLExport type, std::u16string_view filename, int page, float scale, int quality,
                           bool checkData, bool transparent, bool fit) = 0;
    virtual void LoadFromFile(std::u16string_view filename) = 0;
    virtual void SaveToFile(std::u16string_view filename, TKSLExt format) = 0;
    /// Makes the picture of a map, or begins to, for an import of geometry: the centre in degrees as text, the size in
    /// pixels. Throws ENotAvailable until a host overrides it.
    virtual void ComposeImage(std::u16string_view latitude, std::u16string_view longitude, int zoom, int width,
                              int height);

protected:
    ~HostOperations() = default;
};

} // namespace vagrel
