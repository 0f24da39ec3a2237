// SPDX-License-Identifier: MIT
// Paths that several families share.
#pragma once

#include <host/CairoDraw.h>

namespace vagrel {

/// Adds a box whose corners are rounded by a radius, in millimetres on paper.
void RoundedBox(const CairoDraw& draw, TPaperPoint corner, double width, double height, double radius);

} // namespace vagrel
