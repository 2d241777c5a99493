#include "ZXLogicalPLIPInstance.h"

namespace IPConfig::Frameworks {

ZXLogicalPLIPInstance* ZXLogicalPLIPInstance::clone() const
{
  return cloneAs_<ZXLogicalPLIPInstance>();
}

ZXLogicalPLIPInstance::~ZXLogicalPLIPInstance() = default;

}  // namespace IPConfig::Frameworks
