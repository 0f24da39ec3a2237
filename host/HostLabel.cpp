// SPDX-License-Identifier: MIT
// The document of the reference host.
#include <host/HostLabel.h>

#include <host/HostBarcode.h>
#include <host/HostText.h>
#include <host/ItemTable.h>
#include <host/PangoText.h>

namespace vagrel {

HostLabel::HostLabel(TComponent* owner) : HostLabel(owner, PangoText::ThisThread()) {}

HostLabel::HostLabel(TComponent* owner, const TextMeasurer& measurer) : PartialLabel(owner), fMeasurer(measurer) {
    SetFreshCrossings(true);
    SetExactJson(true);
    SetGuardedTexts(true);
    Loaded();
}

HostLabel::~HostLabel() { Teardown(); }

TVGRBaseItem& HostLabel::MakeItem(TVGRLayer& layer, TKSLItemType type, int points, bool preview) {
    return ItemTable<HostItem, HostText, HostBarcode>::Make(*this, layer, type, points, preview);
}

void HostLabel::Print() { throw ENotAvailable(u"This host has no printer"); }

} // namespace vagrel
