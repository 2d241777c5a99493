#pragma once

#include "ZXLogicalArchForward.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace IPConfig::Frameworks {

// Gives objects of a logical architecture model new names. An
// implementation changes the object itself; the returned name is
// informative only, and the model never asks for its own.
class IPCONFIG_READWRITE_EXPORT ZXLogicalArchModelRenameInterface {
public:
  virtual ~ZXLogicalArchModelRenameInterface();

  virtual std::string rename(ZXLogicalPort* port) = 0;
  virtual std::string rename(ZXLogicalConnection* connection) = 0;
  virtual std::string rename(ZXLogicalArchLInst* instance) = 0;
  virtual std::string rename(ZXLogicalArchModel* model) = 0;
};

}  // namespace IPConfig::Frameworks
