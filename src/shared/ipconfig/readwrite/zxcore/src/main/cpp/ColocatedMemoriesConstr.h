#pragma once

#include "NodeColocationConstr.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// The reserved memories to place with a node or a port, "colocated_reserved_memories", and
// those to keep apart from it, "not_colocated_reserved_memories".
class IPCONFIG_READWRITE_EXPORT ColocatedMemoriesConstr : public NodeColocationConstr {
public:
  ColocatedMemoriesConstr(ObjectType objType, const std::string& objName);
};

}  // namespace qpe::constraints
