#pragma once

#include "ConstrForward.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints {

// Visits constraints: visit(BaseConstraint*) calls the operation of the
// constraint's kind. IsomorphicGraphGroupConstr has no operation, and a
// constraint of that type reaches none.
class IPCONFIG_READWRITE_EXPORT BaseVisitor {
public:
  virtual ~BaseVisitor();

  virtual void visit(BaseConstraint* constr);
  virtual void visit(AttrConstr* constr) = 0;
  virtual void visit(BufferConstr* constr) = 0;
  virtual void visit(TileConstr* constr) = 0;
  virtual void visit(MemConstr* constr) = 0;
  virtual void visit(ReservedMemoryConstr* constr) = 0;
  virtual void visit(ShimConstr* constr) = 0;
  virtual void visit(PortLocConstr* constr) = 0;
  virtual void visit(StreamChannelConstr* constr) = 0;
  virtual void visit(ColocatedNodesConstr* constr) = 0;
  virtual void visit(RelativeNodesConstr* constr) = 0;
  virtual void visit(ColocatedPortsConstr* constr) = 0;
  virtual void visit(ColocatedDmaConstr* constr) = 0;
  virtual void visit(ColocatedMemoriesConstr* constr) = 0;
  virtual void visit(AreaGroupConstr* constr) = 0;
  virtual void visit(InstGroupConstr* constr) = 0;
  virtual void visit(DependentRoutingGroupConstr* constr) = 0;
  virtual void visit(FifoLocationsConstr* constr) = 0;
};

}  // namespace qpe::constraints
