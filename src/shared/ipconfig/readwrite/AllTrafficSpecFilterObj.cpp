#include "AllTrafficSpecFilterObj.h"

namespace NOC {

bool AllTrafficSpecFilterObj::operator()(const HrdIPToolCntr::TrafficLInst*) const
{
  return true;
}

}  // namespace NOC
