#include "ColocatedNodesConstr.h"

#include "ConstrHandler.h"

namespace qpe::constraints {

namespace {

const NodeColocationConstr::Vocabulary nodesVocabulary{
    "colocated_nodes", "not_colocated_nodes", ",colocated_nodes)=(", ",not_colocated_nodes)=(",
    &ConstrHandler::setColocatedNodesConstr};

}  // namespace

ColocatedNodesConstr::ColocatedNodesConstr(ObjectType objType, const std::string& objName)
    : NodeColocationConstr(ColocatedNodes, objType, objName, nodesVocabulary)
{
}

}  // namespace qpe::constraints
