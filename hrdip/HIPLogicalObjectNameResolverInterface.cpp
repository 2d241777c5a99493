#include "HIPLogicalObjectNameResolverInterface.h"

HIPLogicalObjectNameResolverInterface::~HIPLogicalObjectNameResolverInterface() = default;
