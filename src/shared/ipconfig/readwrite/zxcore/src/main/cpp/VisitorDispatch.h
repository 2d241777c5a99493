#pragma once

#include "BaseConstraint.h"
#include "ConstrCast.h"

namespace qpe::constraints {

// What BaseVisitor and ConstBaseVisitor share: the call of the operation of a
// constraint's kind. A kind whose cast gives null reaches nothing.
template <typename Visitor, typename Kind>
void visitKind(Visitor& visitor, Kind* kind)
{
  if (kind)
    visitor.visit(kind);
}

template <typename Visitor, typename Constr>
void dispatchVisit(Visitor& visitor, Constr* constr)
{
  if (!constr)
    return;
  switch (constr->getConstrType()) {
  case BaseConstraint::Attr:
    return visitKind(visitor, ConstrCast::toAttr(constr));
  case BaseConstraint::Buffer:
    return visitKind(visitor, ConstrCast::toBuffer(constr));
  case BaseConstraint::Tile:
    return visitKind(visitor, ConstrCast::toTile(constr));
  case BaseConstraint::Mem:
    return visitKind(visitor, ConstrCast::toMem(constr));
  case BaseConstraint::ReservedMemory:
    return visitKind(visitor, ConstrCast::toReservedMemory(constr));
  case BaseConstraint::Shim:
    return visitKind(visitor, ConstrCast::toShim(constr));
  case BaseConstraint::PortLoc:
    return visitKind(visitor, ConstrCast::toPortLoc(constr));
  case BaseConstraint::StreamChannel:
    return visitKind(visitor, ConstrCast::toStreamChannel(constr));
  case BaseConstraint::ColocatedNodes:
    return visitKind(visitor, ConstrCast::toColocatedNodes(constr));
  case BaseConstraint::RelativeNodes:
    return visitKind(visitor, ConstrCast::toRelativeNodes(constr));
  case BaseConstraint::ColocatedPorts:
    return visitKind(visitor, ConstrCast::toColocatedPorts(constr));
  case BaseConstraint::ColocatedDma:
    return visitKind(visitor, ConstrCast::toColocatedDma(constr));
  case BaseConstraint::ColocatedMemories:
    return visitKind(visitor, ConstrCast::toColocatedMemories(constr));
  case BaseConstraint::AreaGroup:
    return visitKind(visitor, ConstrCast::toAreaGroup(constr));
  case BaseConstraint::InstGroup:
    return visitKind(visitor, ConstrCast::toInstGroup(constr));
  case BaseConstraint::DependentRoutingGroup:
    return visitKind(visitor, ConstrCast::toDependentRoutingGroup(constr));
  case BaseConstraint::FifoLocations:
    return visitKind(visitor, ConstrCast::toFifoLocations(constr));
  case BaseConstraint::IsomorphicGraphGroup:
    return;  // no operation for this kind
  }
}

}  // namespace qpe::constraints
