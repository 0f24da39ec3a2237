// SPDX-License-Identifier: MIT
// The map settings of a document.
#include <vagrel/geo/TVGRMapping.h>

namespace vagrel {

void TVGRMapping::Assign(const TVGRMapping& s) {
    fMapProviders = s.fMapProviders, fProvider = s.fProvider, fCenter = s.fCenter, fMapApi = s.fMapApi;
    fZoom = s.fZoom, fShowCenter = s.fShowCenter, fFileName = s.fFileName;
}

} // namespace vagrel
