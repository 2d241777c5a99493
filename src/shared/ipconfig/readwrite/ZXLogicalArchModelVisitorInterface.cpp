#include "ZXLogicalArchModelVisitorInterface.h"

namespace IPConfig::Frameworks {

ZXLogicalArchModelVisitorInterface::~ZXLogicalArchModelVisitorInterface() = default;

}  // namespace IPConfig::Frameworks
