// SPDX-License-Identifier: MIT
// Versions of the document's file forms.
#pragma once

#include <cstdint>

namespace vagrel {

/// What is written, in both forms.
inline constexpr std::int32_t CurrentVersion = 3200;
/// From here on files hold the angle of the document.
inline constexpr std::int32_t AngleVersion = 3100;
/// From here on the draw scale of the binary form has 64 bits.
inline constexpr std::int32_t WideScaleVersion = 3200;

} // namespace vagrel
