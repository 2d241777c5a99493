#pragma once

#include "ZXLogicalArchForward.h"
#include "ipconfig_readwrite_export.h"

namespace IPConfig::Frameworks {

// What a caller passes over a logical architecture model with accept.
class IPCONFIG_READWRITE_EXPORT ZXLogicalArchModelVisitorInterface {
public:
  virtual ~ZXLogicalArchModelVisitorInterface();

  virtual void visit(ZXLogicalPort* port) const = 0;
  virtual void visit(ZXLogicalConnection* connection) const = 0;
  virtual void visit(ZXLogicalArchLInst* instance) const = 0;
  virtual void visit(ZXLogicalArchModel* model) const = 0;
};

}  // namespace IPConfig::Frameworks
