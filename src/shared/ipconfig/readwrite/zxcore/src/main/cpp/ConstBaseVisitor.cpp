#include "ConstBaseVisitor.h"

#include "VisitorDispatch.h"

namespace qpe::constraints {

ConstBaseVisitor::~ConstBaseVisitor() = default;

void ConstBaseVisitor::visit(const BaseConstraint* constr)
{
  dispatchVisit(*this, constr);
}

}  // namespace qpe::constraints
