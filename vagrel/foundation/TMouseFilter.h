// SPDX-License-Identifier: MIT
// Suppresses mouse moves that follow too soon and too near.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <chrono>
#include <cstdint>

namespace vagrel {

/// A filter of mouse moves on coordinates of type `Coord`: integer or fractional pixels.
template <class Coord>
class TMouseFilterOf {
public:
    std::int32_t MinTimeBetweenUpdates = 50; ///< milliseconds
    double MinDistanceBetweenUpdates = 5;    ///< pixels
    bool Enabled = false;

    void SetEnabled(bool value) { Enabled = value; }

    /// True when the move is to be processed; its place and time are then remembered. Always true while disabled, and
    /// for the first move after `ResetPos`.
    bool FilterMouseMove(const void* sender, TShiftState shift, Coord x, Coord y);

    /// Forgets the last position.
    void ResetPos();

private:
    using TClock = std::chrono::steady_clock;

    Coord fX = -1;
    Coord fY = -1;
    TClock::time_point fTime = TClock::now();
};

using TMouseFilter = TMouseFilterOf<std::int32_t>;
using TMouseFilterS = TMouseFilterOf<float>;

} // namespace vagrel
