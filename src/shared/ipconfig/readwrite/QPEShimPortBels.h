#pragma once

#include "HDDMBel.h"
#include "ipconfig_readwrite_export.h"

#include <vector>

namespace HrdIPToolCntr {
class TrafficSpec;
}

namespace IPConfig::Frameworks {

class QPEShimInterfaceSolution;
class ZXLogicalPort;

// The bels a port took: for each of its logical instance names in order,
// the bel of that traffic instance in `solution`, if it has a valid one.
// Names that lead to no instance or no placement are passed over.
IPCONFIG_READWRITE_EXPORT std::vector<HDDMBel> getConstraintsForLogicalInstance(
    const ZXLogicalPort* port, const HrdIPToolCntr::TrafficSpec& spec,
    const QPEShimInterfaceSolution& solution);

}  // namespace IPConfig::Frameworks
