#include "ZXLogicalArchModelRenameInterface.h"

namespace IPConfig::Frameworks {

ZXLogicalArchModelRenameInterface::~ZXLogicalArchModelRenameInterface() = default;

}  // namespace IPConfig::Frameworks
