#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "HDDMBel.h"
#include "ipconfig_readwrite_export.h"

class HDARPart;

namespace IPConfig::Frameworks {

// The object by which the compiler hand-off files name a shim channel:
// {"name": flat bel name, "column": shim column, "channel": index in the shim}.
class IPCONFIG_READWRITE_EXPORT QPEShimBelWriter {
public:
  static JValue writeBel(const HDARPart& part, const HDDMBel& bel, JAllocator& alloc);
};

}  // namespace IPConfig::Frameworks
