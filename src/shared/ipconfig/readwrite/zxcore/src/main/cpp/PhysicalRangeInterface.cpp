#include "PhysicalRangeInterface.h"

#include "PhysicalSpec.h"

namespace qpe::constraints {

PhysicalRangeInterface::~PhysicalRangeInterface() = default;

bool PhysicalRangeInterface::isValid() const
{
  const PhysicalSpec& first = getFirst();
  const PhysicalSpec& second = getSecond();
  if (!first.isSet() || !second.isSet())
    return first.isValid();
  if (first.isShim() && second.isShim())
    return true;
  return first.isTile() && second.isTile();
}

}  // namespace qpe::constraints
