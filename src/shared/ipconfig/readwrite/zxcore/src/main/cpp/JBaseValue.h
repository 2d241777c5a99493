#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints::json {

// A typed view of a value that its document owns. Views never fail: a missing
// member or a value of the wrong type reads as the shared null value, an
// empty text or -1, and the caller's isValid() test decides.
class IPCONFIG_READWRITE_EXPORT JBaseValue {
public:
  // The one JSON null that stands for every missing value.
  static const JValue& nullValue();
  // The member `key` of `object`; the null value for an empty key, a value
  // that is no object, or a missing member.
  static const JValue& member(const JValue& object, const std::string& key);

  explicit JBaseValue(const JValue& value);
  virtual ~JBaseValue();
  // The value is not null.
  virtual bool isValid() const;

  const JValue& getValue() const { return *value; }
  const JValue& getMember(const std::string& key) const;
  // An array of exactly two elements of any type.
  bool isPair() const;
  // Such an array of two signed 32-bit integers.
  bool isIntPair() const;

private:
  const JValue* value;
};

}  // namespace qpe::constraints::json
