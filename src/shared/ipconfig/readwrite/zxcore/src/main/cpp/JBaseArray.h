#pragma once

#include "JBaseValue.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints::json {

// An array walked with a cursor, from its first element.
class IPCONFIG_READWRITE_EXPORT JBaseArray : public JBaseValue {
public:
  explicit JBaseArray(const JValue& value);
  // Views the member `key` of `object`.
  JBaseArray(const JValue& object, const std::string& key);

  // The value is an array.
  bool isValid() const override;
  // No array, or the cursor has passed the last element.
  bool isEnd() const;
  // The current element; the null value at the end.
  const JValue& _front() const;
  // On to the next element.
  void advance();

private:
  const JValue* cursor;
};

}  // namespace qpe::constraints::json
