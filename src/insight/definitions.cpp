// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/definitions.h"

namespace insight {

std::span<const Definition> definitions() {
    static constexpr Definition Definitions[] = {
        {"Eligible", "conservation status not above the level."},
        {"Covers",
         "a habitat or zone when the species' level of use is at least the unit's; a threat when "
         "the level of threat representation times the highest score that any species has for it, "
         "excluded ones too, is at most the species' score, both to 2 decimals."},
        {"Coverable",
         "some eligible species covers the unit. Missed: coverable, but not covered by the run."},
        {"Minimum",
         "the fewest eligible species that cover every coverable unit; among these the highest "
         "total of first-pass aggregates, then candidate order. Gap: size of the run's suite less "
         "the lower bound; empty where the run missed a unit."},
        {"Pruned",
         "species of the suite in order of rising aggregate, each dropped if what is left covers "
         "as much. Lost: units of the suite that no other species of it covers. Substitutes: "
         "eligible species outside the suite each of which alone covers all that is lost."},
        {"Class",
         "in all, some or none of the suites of minimal size. Share: of these suites, exact up to "
         "100,000. Cost: the minimum without the species less the minimum; inf where a unit "
         "becomes uncoverable."},
        {"Only for",
         "coverable units that no other eligible species covers. Rarity: the sum over its "
         "coverable units of 1 / eligible species that cover them."},
        {"Proof",
         "witness: as many units as the bound, no two of which share an eligible species. weights:"
         " whole numbers W for units; no suite is smaller than the sum of W / the largest sum over"
         " the units of one eligible species. search: all smaller suites were ruled out. What is "
         "not proven is an interval."},
        {"Sweep",
         "levels: the margin from 0 to twice the given one, the others up to 0.2 away, within their "
         "bounds, to 2 decimals. answers: any of the species that a question lists. grades: levels of "
         "use, severity, recovery, proportion, functions and socio-economics, those that are not 0, one "
         "step up or down with probability p."},
        {"Frequency",
         "the share of runs whose suite holds the species; low and high are the 95 % interval of "
         "Wilson. It is not irreplaceability."}};
    return Definitions;
}

}  // namespace insight
