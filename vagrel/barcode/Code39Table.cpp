// SPDX-License-Identifier: MIT
// The characters of Code 39 (ISO/IEC 16388) and of Codabar (EN 798), five a line.
#include <vagrel/barcode/PatternTable_p.h>

namespace vagrel::detail {

constexpr TPatternTable<44, 9> Code39Table = PatternTable<44, 9>("nnnwwnwnn wnnwnnnnw nnwwnnnnw wnwwnnnnn nnnwwnnnw "
                                                                 "wnnwwnnnn nnwwwnnnn nnnwnnwnw wnnwnnwnn nnwwnnwnn "
                                                                 "wnnnnwnnw nnwnnwnnw wnwnnwnnn nnnnwwnnw wnnnwwnnn "
                                                                 "nnwnwwnnn nnnnnwwnw wnnnnwwnn nnwnnwwnn nnnnwwwnn "
                                                                 "wnnnnnnww nnwnnnnww wnwnnnnwn nnnnwnnww wnnnwnnwn "
                                                                 "nnwnwnnwn nnnnnnwww wnnnnnwwn nnwnnnwwn nnnnwnwwn "
                                                                 "wwnnnnnnw nwwnnnnnw wwwnnnnnn nwnnwnnnw wwnnwnnnn "
                                                                 "nwwnwnnnn nwnnnnwnw wwnnnnwnn nwwnnnwnn nwnwnwnnn "
                                                                 "nwnwnnnwn nwnnnwnwn nnnwnwnwn nwnnwnwnn",
                                                                 12);
static_assert(sizeof(Code39Table) == 9 * Code39Characters.size());

// Two or three of the elements are wide.
constexpr TPatternTable<20, 7> CodabarTable = PatternTable<20, 7>("nnnnnww nnnnwwn nnnwnnw wwnnnnn nnwnnwn "
                                                                  "wnnnnwn nwnnnnw nwnnwnn nwwnnnn wnnwnnn "
                                                                  "nnnwwnn nnwwnnn wnnnwnw wnwnnnw wnwnwnn "
                                                                  "nnwnwnw nnwwnwn nwnwnnw nnnwnww nnnwwwn",
                                                                  0);
static_assert(sizeof(CodabarTable) == 7 * CodabarCharacters.size());

} // namespace vagrel::detail
