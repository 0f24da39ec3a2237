// SPDX-License-Identifier: MIT
// The map of a document: provider, centre and zoom, and the finished image.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vagrel {

class TMembers;
class TVGRBaseLabel;

/// A place on the globe: degrees, and UTM metres in a zone.
struct TKSLCoordinate {
    double Lat = 0, Lon = 0;
    std::int32_t UTM_Zone = 0;
    double UTM_X = 0, UTM_Y = 0;
};

/// A tile of a map image and the pixel of its top left corner. The URL is empty beyond the top and bottom of the world.
struct TKSLTileInfo {
    std::u16string URL;
    std::int32_t X = 0, Y = 0;
};

/// The map settings of a document. The list of tiles joins with the geographic import.
class TVGRMapping {
public:
    explicit TVGRMapping(TVGRBaseLabel& owner) : fOwner(owner) {}

    TKSLMapProviders GetMapProviders() const { return fMapProviders; }
    void SetMapProviders(TKSLMapProviders value) { fMapProviders = value; }
    TKSLMapProvider GetProvider() const { return fProvider; }
    void SetProvider(TKSLMapProvider value) { fProvider = value; }
    double GetLatitude() const { return fCenter.Lat; }
    void SetLatitude(double value) { fCenter.Lat = value; }
    double GetLongitude() const { return fCenter.Lon; }
    void SetLongitude(double value) { fCenter.Lon = value; }
    const std::u16string& GetMapApi() const { return fMapApi; }
    void SetMapApi(std::u16string_view value) { fMapApi = value; }
    std::int32_t GetZoom() const { return fZoom; }
    void SetZoom(std::int32_t value) { fZoom = value; }
    bool GetLoading() const { return fLoading; }
    bool GetShowCenter() const { return fShowCenter; }
    void SetShowCenter(bool value) { fShowCenter = value; }
    const std::u16string& GetFileName() const { return fFileName; }
    void SetFileName(std::u16string_view value) { fFileName = value; }

    /// Copies provider, place, zoom and key; neither the pending image nor the providers that were used.
    void Assign(const TVGRMapping& source);
    /// Names its fields for what keeps and compares states.
    void Members(TMembers& members);

protected:
    TVGRBaseLabel& fOwner;
    TKSLMapProviders fMapProviders;
    TKSLMapProvider fProvider = mpOpenStreetMap;
    TKSLCoordinate fCenter;
    std::u16string fMapApi;
    std::int32_t fZoom = 1;
    bool fLoading = false;
    std::int32_t fImgWidth = 0, fImgHeight = 0;
    double fScale = 0;
    bool fShowCenter = true;
    std::u16string fFileName;
    std::vector<TKSLTileInfo> fTiles;
};

} // namespace vagrel
