#include "BaseVisitor.h"

#include "VisitorDispatch.h"

namespace qpe::constraints {

BaseVisitor::~BaseVisitor() = default;

void BaseVisitor::visit(BaseConstraint* constr)
{
  dispatchVisit(*this, constr);
}

}  // namespace qpe::constraints
