// SPDX-License-Identifier: MIT
// The map settings of a document.
#include <vagrel/geo/TVGRMapping.h>

#include <vagrel/document/TMembers.h>

namespace vagrel {

void TVGRMapping::Assign(const TVGRMapping& s) {
    fProvider = s.fProvider, fCenter.Lat = s.fCenter.Lat, fCenter.Lon = s.fCenter.Lon;
    fZoom = s.fZoom, fMapApi = s.fMapApi, fShowCenter = s.fShowCenter;
}

void TVGRMapping::Members(TMembers& members) {
    members(fMapProviders, fProvider, fCenter.Lat, fCenter.Lon, fMapApi, fZoom, fShowCenter, fFileName);
}

} // namespace vagrel
