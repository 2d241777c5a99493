#include "ConstrCast.h"

#include "AreaGroupConstr.h"
#include "AttrConstr.h"
#include "BufferConstr.h"
#include "ColocatedDmaConstr.h"
#include "ColocatedMemoriesConstr.h"
#include "ColocatedNodesConstr.h"
#include "ColocatedPortsConstr.h"
#include "DependentRoutingGroupConstr.h"
#include "FifoLocationsConstr.h"
#include "InstGroupConstr.h"
#include "IsomorphicGraphGroupConstr.h"
#include "MemConstr.h"
#include "PortLocConstr.h"
#include "RelativeNodesConstr.h"
#include "ReservedMemoryConstr.h"
#include "ShimConstr.h"
#include "StreamChannelConstr.h"
#include "TileConstr.h"

namespace qpe::constraints {

BufferConstr* ConstrCast::toBuffer(BaseConstraint* constr)
{
  return checkedCast<BufferConstr>(constr, BaseConstraint::Buffer);
}

const BufferConstr* ConstrCast::toBuffer(const BaseConstraint* constr)
{
  return toBuffer(const_cast<BaseConstraint*>(constr));
}

TileConstr* ConstrCast::toTile(BaseConstraint* constr)
{
  return checkedCast<TileConstr>(constr, BaseConstraint::Tile);
}

const TileConstr* ConstrCast::toTile(const BaseConstraint* constr)
{
  return toTile(const_cast<BaseConstraint*>(constr));
}

MemConstr* ConstrCast::toMem(BaseConstraint* constr)
{
  return checkedCast<MemConstr>(constr, BaseConstraint::Mem);
}

const MemConstr* ConstrCast::toMem(const BaseConstraint* constr)
{
  return toMem(const_cast<BaseConstraint*>(constr));
}

ReservedMemoryConstr* ConstrCast::toReservedMemory(BaseConstraint* constr)
{
  return checkedCast<ReservedMemoryConstr>(constr, BaseConstraint::ReservedMemory);
}

const ReservedMemoryConstr* ConstrCast::toReservedMemory(const BaseConstraint* constr)
{
  return toReservedMemory(const_cast<BaseConstraint*>(constr));
}

ShimConstr* ConstrCast::toShim(BaseConstraint* constr)
{
  return checkedCast<ShimConstr>(constr, BaseConstraint::Shim);
}

const ShimConstr* ConstrCast::toShim(const BaseConstraint* constr)
{
  return toShim(const_cast<BaseConstraint*>(constr));
}

PortLocConstr* ConstrCast::toPortLoc(BaseConstraint* constr)
{
  return checkedCast<PortLocConstr>(constr, BaseConstraint::PortLoc);
}

const PortLocConstr* ConstrCast::toPortLoc(const BaseConstraint* constr)
{
  return toPortLoc(const_cast<BaseConstraint*>(constr));
}

StreamChannelConstr* ConstrCast::toStreamChannel(BaseConstraint* constr)
{
  return checkedCast<StreamChannelConstr>(constr, BaseConstraint::StreamChannel);
}

const StreamChannelConstr* ConstrCast::toStreamChannel(const BaseConstraint* constr)
{
  return toStreamChannel(const_cast<BaseConstraint*>(constr));
}

AttrConstr* ConstrCast::toAttr(BaseConstraint* constr)
{
  return checkedCast<AttrConstr>(constr, BaseConstraint::Attr);
}

const AttrConstr* ConstrCast::toAttr(const BaseConstraint* constr)
{
  return toAttr(const_cast<BaseConstraint*>(constr));
}

ColocatedNodesConstr* ConstrCast::toColocatedNodes(BaseConstraint* constr)
{
  return checkedCast<ColocatedNodesConstr>(constr, BaseConstraint::ColocatedNodes);
}

const ColocatedNodesConstr* ConstrCast::toColocatedNodes(const BaseConstraint* constr)
{
  return toColocatedNodes(const_cast<BaseConstraint*>(constr));
}

RelativeNodesConstr* ConstrCast::toRelativeNodes(BaseConstraint* constr)
{
  return checkedCast<RelativeNodesConstr>(constr, BaseConstraint::RelativeNodes);
}

const RelativeNodesConstr* ConstrCast::toRelativeNodes(const BaseConstraint* constr)
{
  return toRelativeNodes(const_cast<BaseConstraint*>(constr));
}

ColocatedPortsConstr* ConstrCast::toColocatedPorts(BaseConstraint* constr)
{
  return checkedCast<ColocatedPortsConstr>(constr, BaseConstraint::ColocatedPorts);
}

const ColocatedPortsConstr* ConstrCast::toColocatedPorts(const BaseConstraint* constr)
{
  return toColocatedPorts(const_cast<BaseConstraint*>(constr));
}

ColocatedDmaConstr* ConstrCast::toColocatedDma(BaseConstraint* constr)
{
  return checkedCast<ColocatedDmaConstr>(constr, BaseConstraint::ColocatedDma);
}

const ColocatedDmaConstr* ConstrCast::toColocatedDma(const BaseConstraint* constr)
{
  return toColocatedDma(const_cast<BaseConstraint*>(constr));
}

FifoLocationsConstr* ConstrCast::toFifoLocations(BaseConstraint* constr)
{
  return checkedCast<FifoLocationsConstr>(constr, BaseConstraint::FifoLocations);
}

const FifoLocationsConstr* ConstrCast::toFifoLocations(const BaseConstraint* constr)
{
  return toFifoLocations(const_cast<BaseConstraint*>(constr));
}

ColocatedMemoriesConstr* ConstrCast::toColocatedMemories(BaseConstraint* constr)
{
  return checkedCast<ColocatedMemoriesConstr>(constr, BaseConstraint::ColocatedMemories);
}

const ColocatedMemoriesConstr* ConstrCast::toColocatedMemories(const BaseConstraint* constr)
{
  return toColocatedMemories(const_cast<BaseConstraint*>(constr));
}

AreaGroupConstr* ConstrCast::toAreaGroup(BaseConstraint* constr)
{
  return checkedCast<AreaGroupConstr>(constr, BaseConstraint::AreaGroup);
}

const AreaGroupConstr* ConstrCast::toAreaGroup(const BaseConstraint* constr)
{
  return toAreaGroup(const_cast<BaseConstraint*>(constr));
}

InstGroupConstr* ConstrCast::toInstGroup(BaseConstraint* constr)
{
  return checkedCast<InstGroupConstr>(constr, BaseConstraint::InstGroup);
}

const InstGroupConstr* ConstrCast::toInstGroup(const BaseConstraint* constr)
{
  return toInstGroup(const_cast<BaseConstraint*>(constr));
}

DependentRoutingGroupConstr* ConstrCast::toDependentRoutingGroup(BaseConstraint* constr)
{
  return checkedCast<DependentRoutingGroupConstr>(constr, BaseConstraint::DependentRoutingGroup);
}

const DependentRoutingGroupConstr* ConstrCast::toDependentRoutingGroup(const BaseConstraint* constr)
{
  return toDependentRoutingGroup(const_cast<BaseConstraint*>(constr));
}

IsomorphicGraphGroupConstr* ConstrCast::toIsomorphicGraphGroup(BaseConstraint* constr)
{
  return checkedCast<IsomorphicGraphGroupConstr>(constr, BaseConstraint::IsomorphicGraphGroup);
}

const IsomorphicGraphGroupConstr* ConstrCast::toIsomorphicGraphGroup(const BaseConstraint* constr)
{
  return toIsomorphicGraphGroup(const_cast<BaseConstraint*>(constr));
}

}  // namespace qpe::constraints
