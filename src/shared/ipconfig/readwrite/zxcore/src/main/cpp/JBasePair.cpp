#include "JBasePair.h"

namespace qpe::constraints::json {

JBasePair::JBasePair(const JValue& value)
    : JBaseValue(value), first(&nullValue()), second(&nullValue())
{
  initPair();
}

bool JBasePair::isValid() const
{
  return isPairValue;
}

void JBasePair::initPair()
{
  if (!isPair())
    return;
  isPairValue = true;
  first = &getValue()[0];
  second = &getValue()[1];
}

}  // namespace qpe::constraints::json
