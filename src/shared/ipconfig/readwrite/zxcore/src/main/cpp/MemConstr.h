#pragma once

#include "Address.h"
#include "BaseConstraint.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// Places a node's shared memory: a ping and a pong address.
class IPCONFIG_READWRITE_EXPORT MemConstr : public BaseConstraint {
public:
  MemConstr(ObjectType objType, const std::string& objName);

  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "mem": an array of the addresses that have a field, ping first; nothing
  // when neither has one.
  void write(JDocument& doc, JValue& objectValue, const BaseNameResolver* resolver) const override;
  void offsetColumn(int delta) override;
  // " mem(object,shared_buffer)=ping=(...)pong=(...)", each address only
  // when complete.
  std::string str() const override;

  Address ping;
  Address pong;
};

}  // namespace qpe::constraints
