#include "JIntPair.h"

namespace qpe::constraints::json {

bool JIntPair::isValid() const
{
  return JBasePair::isValid() && getFirstValue().IsInt() && getSecondValue().IsInt();
}

int JIntPair::getFirst() const
{
  return isValid() ? getFirstValue().GetInt() : -1;
}

int JIntPair::getSecond() const
{
  return isValid() ? getSecondValue().GetInt() : -1;
}

}  // namespace qpe::constraints::json
