#pragma once

#include "AttrValue.h"
#include "BaseConstraint.h"
#include "ipconfig_readwrite_export.h"

#include <cstddef>
#include <string>
#include <vector>

namespace qpe::constraints {

// Ties a port to FIFOs at fixed places: the names of records in the
// handler's table of FIFO records, which ports share. The names are not
// checked against the table: a port may name a record made later.
class IPCONFIG_READWRITE_EXPORT FifoLocationsConstr : public BaseConstraint {
public:
  FifoLocationsConstr(ObjectType objType, const std::string& objName);

  // The record names as they stand; the records are copied by the handler.
  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "fifo_locations": the record names, when there are any.
  void write(JDocument& doc, JValue& objectValue, const BaseNameResolver* resolver) const override;
  // The records stay where they are.
  void offsetColumn(int delta) override;
  // " rel(object,fifo_locations)=(a,b,)"
  std::string str() const override;

  virtual void getFifoLocationsRecordNames(std::vector<std::string>& out) const;
  virtual const std::vector<std::string>& getFifoLocationsRecordNames() const;
  // "" past the end.
  virtual std::string getFifoLocationsRecordName(std::size_t index) const;
  // Appends all of them, repeated names too.
  virtual void addFifoLocationsRecordNames(const std::vector<std::string>& names);
  virtual void setFifoLocationsRecordNames(const std::vector<std::string>& names);
  virtual bool isSet() const;
  virtual bool containsFifoRecord(const std::string& name) const;

private:
  AttrValue recordNames{HATAttrTypes::AttrStringList};
};

}  // namespace qpe::constraints
