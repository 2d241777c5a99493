#include "ZXLogicalNOCIPInstance.h"

namespace IPConfig::Frameworks {

ZXLogicalNOCIPInstance* ZXLogicalNOCIPInstance::clone() const
{
  return cloneAs_<ZXLogicalNOCIPInstance>();
}

ZXLogicalNOCIPInstance::~ZXLogicalNOCIPInstance() = default;

}  // namespace IPConfig::Frameworks
