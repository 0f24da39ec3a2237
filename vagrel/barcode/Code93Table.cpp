// SPDX-License-Identifier: MIT
// The characters of Code 93 (AIM BC5), ten values a line; the last four are the shifts.
#include <vagrel/barcode/PatternTable_p.h>

namespace vagrel::detail {

constexpr TPatternTable<47, 6> Code93Table =
    PatternTable<47, 6>("131112 111213 111312 111411 121113 121212 121311 111114 131211 141111 "
                        "211113 211212 211311 221112 221211 231111 112113 112212 112311 122112 "
                        "132111 111123 111222 111321 121122 131121 212112 212211 211122 211221 "
                        "221121 222111 112122 112221 122121 123111 121131 311112 311211 321111 "
                        "112131 113121 211131 121221 312111 311121 122211",
                        9);
static_assert(sizeof(Code93Table) == 6 * Code93Characters.size());

} // namespace vagrel::detail
