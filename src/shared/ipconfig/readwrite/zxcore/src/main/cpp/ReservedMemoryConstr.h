#pragma once

#include "Address.h"
#include "BaseConstraint.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// Places a piece of memory that a node reserves.
class IPCONFIG_READWRITE_EXPORT ReservedMemoryConstr : public BaseConstraint {
public:
  ReservedMemoryConstr(ObjectType objType, const std::string& objName);

  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "reserved_memory": one address object, when it has a field.
  void write(JDocument& doc, JValue& objectValue, const BaseNameResolver* resolver) const override;
  void offsetColumn(int delta) override;
  // " buf(object,reserved_memory)=(column,row,bankId,offset)".
  std::string str() const override;

  Address address;
};

}  // namespace qpe::constraints
