#pragma once

#include "JBaseValue.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints::json {

// An array of exactly two elements.
class IPCONFIG_READWRITE_EXPORT JBasePair : public JBaseValue {
public:
  // Calls initPair.
  explicit JBasePair(const JValue& value);

  // The value is a pair.
  bool isValid() const override;
  // Takes the two elements if the value is a pair.
  void initPair();

  // The elements; the null value when the value is no pair.
  const JValue& getFirstValue() const { return *first; }
  const JValue& getSecondValue() const { return *second; }

private:
  bool isPairValue = false;
  const JValue* first;
  const JValue* second;
};

}  // namespace qpe::constraints::json
