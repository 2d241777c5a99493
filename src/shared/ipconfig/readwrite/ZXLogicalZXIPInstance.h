#pragma once

#include "ZXLogicalArchLInst.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace IPConfig::Frameworks {

// The compute array as seen from its interface tiles: its ports are shim ports.
class IPCONFIG_READWRITE_EXPORT ZXLogicalZXIPInstance : public ZXLogicalArchLInst {
public:
  using ZXLogicalArchLInst::ZXLogicalArchLInst;
  ZXLogicalZXIPInstance(const ZXLogicalZXIPInstance&) = default;

  ZXLogicalZXIPInstance* clone() const override;
  ~ZXLogicalZXIPInstance() override;

  std::string vlnvName;
  std::string annotation;
  std::string logical_device;
};

}  // namespace IPConfig::Frameworks
