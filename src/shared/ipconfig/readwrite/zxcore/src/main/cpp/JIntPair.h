#pragma once

#include "JBasePair.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints::json {

// A pair of signed 32-bit integers, such as [3, 4].
class IPCONFIG_READWRITE_EXPORT JIntPair : public JBasePair {
public:
  using JBasePair::JBasePair;

  bool isValid() const override;
  // The element; -1 unless the pair is valid.
  int getFirst() const;
  int getSecond() const;
};

}  // namespace qpe::constraints::json
