#pragma once

#include "ZXLogicalArchLInst.h"
#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <string>

namespace IPConfig::Frameworks {

// A block that reaches the network on chip.
class IPCONFIG_READWRITE_EXPORT ZXLogicalNOCIPInstance : public ZXLogicalArchLInst {
public:
  // Not the values of ZXLogicalPort::PortType for the same words.
  enum NOCType : std::uint32_t { MEM = 0, STREAM = 1, UNSET_TYPE = 2 };

  using ZXLogicalArchLInst::ZXLogicalArchLInst;
  ZXLogicalNOCIPInstance(const ZXLogicalNOCIPInstance&) = default;

  ZXLogicalNOCIPInstance* clone() const override;
  ~ZXLogicalNOCIPInstance() override;

  std::string vlnvName;
  std::string annotation;
  NOCType type = MEM;
};

}  // namespace IPConfig::Frameworks
