#pragma once

#include "NodeColocationConstr.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// The nodes to place with a node or a port, "colocated_nodes", and
// those to keep apart from it, "not_colocated_nodes".
class IPCONFIG_READWRITE_EXPORT ColocatedNodesConstr : public NodeColocationConstr {
public:
  ColocatedNodesConstr(ObjectType objType, const std::string& objName);
};

}  // namespace qpe::constraints
