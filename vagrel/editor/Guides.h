// SPDX-License-Identifier: MIT
// Guides along which points are aligned.
#pragma once

#include <vagrel/foundation/Records.h>

#include <array>

namespace vagrel {

/// A table of four guides, filled from the front.
class Guides {
public:
    void Reset() { *this = {}; }
    int Count() const { return fNumRefLines; }
    bool IsFull() const { return fNumRefLines == int(fRefLines.size()); }
    /// From 1; all zero outside.
    TKSLRefLine Get(int index) const;
    /// Adds the guide from `a` to `b` when they share a coordinate exactly: a vertical one for the same x, else a
    /// horizontal one. An earlier guide on that line that reached farther is shortened to end in `b`. Nothing when the
    /// table is full.
    void Align(TKSLPto a, TKSLPto b);

private:
    std::array<TKSLRefLine, 4> fRefLines;
    int fNumRefLines = 0;
};

} // namespace vagrel
