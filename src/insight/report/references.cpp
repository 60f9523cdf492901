// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/references.h"

namespace insight {

std::span<const char* const> references() {
    static constexpr const char* References[] = {
        "Arthur, J. L., Hachey, M., Sahr, K., Huso, M. and Kiester, A. R. 1997. Finding all optimal solutions "
        "to the reserve site selection problem: formulation and computational analysis. Environmental and "
        "Ecological Statistics 4: 153–165.",
        "Cabeza, M. and Moilanen, A. 2006. Replacement cost: a practical measure of site value for "
        "cost-effective reserve planning. Biological Conservation 132: 336–342.",
        "Church, R. and ReVelle, C. 1974. The maximal covering location problem. Papers of the Regional "
        "Science Association 32: 101–118.",
        "Church, R. L., Stoms, D. M. and Davis, F. W. 1996. Reserve selection as a maximal covering location "
        "problem. Biological Conservation 76: 105–112.",
        "Cocks, K. D. and Baird, I. A. 1989. Using mathematical programming to address the multiple reserve "
        "selection problem: an example from the Eyre Peninsula, South Australia. Biological Conservation 49: "
        "113–130.",
        "Ferrier, S., Pressey, R. L. and Barrett, T. W. 2000. A new predictor of the irreplaceability of areas "
        "for achieving a conservation goal, its application to real-world planning, and a research agenda for "
        "further refinement. Biological Conservation 93: 303–325.",
        "Kirkpatrick, J. B. 1983. An iterative method for establishing priorities for the selection of nature "
        "reserves: an example from Tasmania. Biological Conservation 25: 127–134.",
        "Possingham, H., Ball, I. and Andelman, S. 2000. Mathematical methods for identifying representative "
        "reserve networks. In: Ferson, S. and Burgman, M. (eds), Quantitative methods for conservation "
        "biology. Springer, New York, 291–305.",
        "Pressey, R. L., Johnson, I. R. and Wilson, P. D. 1994. Shades of irreplaceability: towards a measure "
        "of the contribution of sites to a reservation goal. Biodiversity and Conservation 3: 242–262.",
        "Pressey, R. L., Possingham, H. P. and Day, J. R. 1997. Effectiveness of alternative heuristic "
        "algorithms for identifying indicative minimum requirements for conservation reserves. Biological "
        "Conservation 80: 207–219.",
        "Underhill, L. G. 1994. Optimal and suboptimal reserve selection algorithms. Biological Conservation "
        "70: 85–87.",
        "Williams, P., Gibbons, D., Margules, C., Rebelo, A., Humphries, C. and Pressey, R. 1996. A comparison "
        "of richness hotspots, rarity hotspots, and complementary areas for conserving diversity of British "
        "birds. Conservation Biology 10: 155–174.",
        "Wilson, E. B. 1927. Probable inference, the law of succession, and statistical inference. Journal of "
        "the American Statistical Association 22: 209–212."};
    return References;
}

}  // namespace insight
