#pragma once

#include "Address.h"
#include "BaseConstraint.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// Places a port's data buffers: a ping, a pong and an rtpSelector address.
class IPCONFIG_READWRITE_EXPORT BufferConstr : public BaseConstraint {
public:
  BufferConstr(ObjectType objType, const std::string& objName);

  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "buffers": an array of the addresses that have a field, in order;
  // nothing when none has one.
  void write(JDocument& doc, JValue& objectValue, const BaseNameResolver* resolver) const override;
  void offsetColumn(int delta) override;
  // " buf(object,data_buffer)=ping=(...)pong=(...)rtpSelector=(...)", each
  // address only when complete.
  std::string str() const override;

  Address ping;
  Address pong;
  Address rtpSelector;
};

}  // namespace qpe::constraints
