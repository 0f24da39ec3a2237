// SPDX-License-Identifier: MIT
// One rule for both directions of a guide.
#include <vagrel/editor/Guides.h>

#include <vagrel/foundation/Rounding.h>

namespace vagrel {

namespace {

TInt128 Span(std::int64_t from, std::int64_t to) {
    const TInt128 span = TInt128(to) - from;
    return span < 0 ? -span : span;
}

} // namespace

TKSLRefLine Guides::Get(int index) const {
    return index >= 1 && index <= fNumRefLines ? fRefLines[std::size_t(index - 1)] : TKSLRefLine();
}

void Guides::Align(TKSLPto a, TKSLPto b) {
    const bool vertical = a.bX == b.bX;
    if (IsFull() || (!vertical && a.bY != b.bY))
        return;
    for (int i = 0; i < fNumRefLines; ++i) {
        TKSLRefLine& line = fRefLines[std::size_t(i)];
        if (vertical ? line.bX2 != b.bX : line.bY2 != b.bY)
            continue;
        if (vertical ? Span(line.bY1, line.bY2) > Span(line.bY1, b.bY)
                     : Span(line.bX1, line.bX2) > Span(line.bX1, b.bX)) {
            line.SetBase2(b.bX, b.bY);
            break;
        }
    }
    fRefLines[std::size_t(fNumRefLines++)] = {a.bX, a.bY, b.bX, b.bY};
}

} // namespace vagrel
