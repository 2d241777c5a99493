#include "ZXLogicalZXIPInstance.h"

namespace IPConfig::Frameworks {

ZXLogicalZXIPInstance* ZXLogicalZXIPInstance::clone() const
{
  return cloneAs_<ZXLogicalZXIPInstance>();
}

ZXLogicalZXIPInstance::~ZXLogicalZXIPInstance() = default;

}  // namespace IPConfig::Frameworks
