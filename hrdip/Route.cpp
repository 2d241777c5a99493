#include "Route.h"

namespace HrdIPToolCntr {

unsigned Route::getAchievedPhaseBW(const std::string& phase) const
{
  const auto found = achievedPhaseBw.find(phase);
  return found == achievedPhaseBw.end() ? achievedBw : found->second;
}

}  // namespace HrdIPToolCntr
