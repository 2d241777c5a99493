#pragma once

#include "AttrValue.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// A place in memory: a tile and, within it, a bank and an offset. Each field
// is unset until given a value other than -1.
class IPCONFIG_READWRITE_EXPORT Address {
public:
  virtual ~Address();

  // "(column,row,bankId,offset)"; an unset field prints as -1.
  std::string str() const;
  // `label` + "=" + str() for a complete address, else "".
  std::string labelledStr(const char* label) const;
  // Names a place: a column and a row, or a bank and an offset.
  bool isComplete() const;
  // A set column moves by `delta`, and a sum of -1 unsets it; the other
  // fields stay.
  void offsetColumn(int delta);

  AttrValue column{HATAttrTypes::AttrInt};
  AttrValue row{HATAttrTypes::AttrInt};
  AttrValue bankId{HATAttrTypes::AttrInt};
  AttrValue offset{HATAttrTypes::AttrInt};
};

}  // namespace qpe::constraints
