// SPDX-License-Identifier: MIT
// Angles of the quarter turns.
#include <vagrel/foundation/Enumerations.h>

#include <array>

namespace vagrel {

int DegAngle(TKSLAngle angle) { return angle >= ag0 && angle <= ag270 ? -90 * int(angle) : 0; }

float PrintAngle(TKSLAngle angle) {
    constexpr std::array<float, 4> radians{0.0f, -1.5707964f, -3.1415927f, -4.712389f};
    return angle >= ag0 && angle <= ag270 ? radians[std::size_t(angle)] : 0.0f;
}

} // namespace vagrel
