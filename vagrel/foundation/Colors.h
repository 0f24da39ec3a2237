// SPDX-License-Identifier: MIT
// Alpha colours.
#pragma once

#include <cstdint>

namespace vagrel {

/// A colour 0xAARRGGBB; alpha 255 is opaque.
using TAlphaColor = std::uint32_t;

} // namespace vagrel
