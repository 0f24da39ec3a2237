// SPDX-License-Identifier: MIT
// The decision of the mouse filter.
#include <vagrel/foundation/TMouseFilter.h>

#include <cmath>

namespace vagrel {

template <class Coord>
bool TMouseFilterOf<Coord>::FilterMouseMove(const void*, TShiftState, Coord x, Coord y) {
    if (!Enabled)
        return true;
    const TClock::time_point now = TClock::now();
    const bool first = fX == -1 && fY == -1;
    const bool late = now - fTime >= std::chrono::milliseconds(MinTimeBetweenUpdates);
    const bool far = std::hypot(double(x) - double(fX), double(y) - double(fY)) >= MinDistanceBetweenUpdates;
    if (!first && !late && !far)
        return false;
    fX = x, fY = y, fTime = now;
    return true;
}

template <class Coord>
void TMouseFilterOf<Coord>::ResetPos() {
    fX = fY = -1;
    fTime = TClock::now();
}

template class TMouseFilterOf<std::int32_t>;
template class TMouseFilterOf<float>;

} // namespace vagrel
