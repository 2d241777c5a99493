#pragma once

#include "ConstrForward.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints {

// Visits read-only constraints: visit(const BaseConstraint*) calls the
// operation of the constraint's kind. IsomorphicGraphGroupConstr has no
// operation, and a constraint of that type reaches none.
class IPCONFIG_READWRITE_EXPORT ConstBaseVisitor {
public:
  virtual ~ConstBaseVisitor();

  virtual void visit(const BaseConstraint* constr);
  virtual void visit(const AttrConstr* constr) = 0;
  virtual void visit(const BufferConstr* constr) = 0;
  virtual void visit(const TileConstr* constr) = 0;
  virtual void visit(const MemConstr* constr) = 0;
  virtual void visit(const ReservedMemoryConstr* constr) = 0;
  virtual void visit(const ShimConstr* constr) = 0;
  virtual void visit(const PortLocConstr* constr) = 0;
  virtual void visit(const StreamChannelConstr* constr) = 0;
  virtual void visit(const ColocatedNodesConstr* constr) = 0;
  virtual void visit(const RelativeNodesConstr* constr) = 0;
  virtual void visit(const ColocatedPortsConstr* constr) = 0;
  virtual void visit(const ColocatedDmaConstr* constr) = 0;
  virtual void visit(const ColocatedMemoriesConstr* constr) = 0;
  virtual void visit(const AreaGroupConstr* constr) = 0;
  virtual void visit(const InstGroupConstr* constr) = 0;
  virtual void visit(const DependentRoutingGroupConstr* constr) = 0;
  virtual void visit(const FifoLocationsConstr* constr) = 0;
};

}  // namespace qpe::constraints
