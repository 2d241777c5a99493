#include "ColocatedMemoriesConstr.h"

#include "ConstrHandler.h"

namespace qpe::constraints {

namespace {

const NodeColocationConstr::Vocabulary memoriesVocabulary{
    "colocated_reserved_memories", "not_colocated_reserved_memories", ",colocated_memories)=(", ",not_colocated_memories)=(",
    &ConstrHandler::setColocatedMemoriesConstr};

}  // namespace

ColocatedMemoriesConstr::ColocatedMemoriesConstr(ObjectType objType, const std::string& objName)
    : NodeColocationConstr(ColocatedMemories, objType, objName, memoriesVocabulary)
{
}

}  // namespace qpe::constraints
