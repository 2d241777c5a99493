#pragma once

#include "BaseConstraint.h"
#include "ConstrForward.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints {

// Checked downcasts from the root to each kind: null for a null pointer or a
// constraint of another type, the dynamic cast otherwise. The const overloads
// forward to the others. The visitors dispatch through these casts.
class IPCONFIG_READWRITE_EXPORT ConstrCast {
public:
  static BufferConstr* toBuffer(BaseConstraint* constr);
  static const BufferConstr* toBuffer(const BaseConstraint* constr);
  static TileConstr* toTile(BaseConstraint* constr);
  static const TileConstr* toTile(const BaseConstraint* constr);
  static MemConstr* toMem(BaseConstraint* constr);
  static const MemConstr* toMem(const BaseConstraint* constr);
  static ReservedMemoryConstr* toReservedMemory(BaseConstraint* constr);
  static const ReservedMemoryConstr* toReservedMemory(const BaseConstraint* constr);
  static ShimConstr* toShim(BaseConstraint* constr);
  static const ShimConstr* toShim(const BaseConstraint* constr);
  static PortLocConstr* toPortLoc(BaseConstraint* constr);
  static const PortLocConstr* toPortLoc(const BaseConstraint* constr);
  static StreamChannelConstr* toStreamChannel(BaseConstraint* constr);
  static const StreamChannelConstr* toStreamChannel(const BaseConstraint* constr);
  static AttrConstr* toAttr(BaseConstraint* constr);
  static const AttrConstr* toAttr(const BaseConstraint* constr);
  static ColocatedNodesConstr* toColocatedNodes(BaseConstraint* constr);
  static const ColocatedNodesConstr* toColocatedNodes(const BaseConstraint* constr);
  static RelativeNodesConstr* toRelativeNodes(BaseConstraint* constr);
  static const RelativeNodesConstr* toRelativeNodes(const BaseConstraint* constr);
  static ColocatedPortsConstr* toColocatedPorts(BaseConstraint* constr);
  static const ColocatedPortsConstr* toColocatedPorts(const BaseConstraint* constr);
  static ColocatedDmaConstr* toColocatedDma(BaseConstraint* constr);
  static const ColocatedDmaConstr* toColocatedDma(const BaseConstraint* constr);
  static FifoLocationsConstr* toFifoLocations(BaseConstraint* constr);
  static const FifoLocationsConstr* toFifoLocations(const BaseConstraint* constr);
  static ColocatedMemoriesConstr* toColocatedMemories(BaseConstraint* constr);
  static const ColocatedMemoriesConstr* toColocatedMemories(const BaseConstraint* constr);
  static AreaGroupConstr* toAreaGroup(BaseConstraint* constr);
  static const AreaGroupConstr* toAreaGroup(const BaseConstraint* constr);
  static InstGroupConstr* toInstGroup(BaseConstraint* constr);
  static const InstGroupConstr* toInstGroup(const BaseConstraint* constr);
  static DependentRoutingGroupConstr* toDependentRoutingGroup(BaseConstraint* constr);
  static const DependentRoutingGroupConstr* toDependentRoutingGroup(const BaseConstraint* constr);
  static IsomorphicGraphGroupConstr* toIsomorphicGraphGroup(BaseConstraint* constr);
  static const IsomorphicGraphGroupConstr* toIsomorphicGraphGroup(const BaseConstraint* constr);

  template <typename Kind>
  static Kind* checkedCast(BaseConstraint* constr, BaseConstraint::ConstrType kindType)
  {
    return constr && constr->getConstrType() == kindType ? dynamic_cast<Kind*>(constr) : nullptr;
  }
};

}  // namespace qpe::constraints
