#pragma once

#include "ZXLogicalArchLInst.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace IPConfig::Frameworks {

// A kernel in programmable logic, with its PL ports.
class IPCONFIG_READWRITE_EXPORT ZXLogicalPLIPInstance : public ZXLogicalArchLInst {
public:
  using ZXLogicalArchLInst::ZXLogicalArchLInst;
  ZXLogicalPLIPInstance(const ZXLogicalPLIPInstance&) = default;

  ZXLogicalPLIPInstance* clone() const override;
  ~ZXLogicalPLIPInstance() override;

  std::string vlnvName;
  std::string ckernelName;
  std::string sdfinstName;
  std::string annotation;
};

}  // namespace IPConfig::Frameworks
