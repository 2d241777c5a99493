#pragma once

#include "FifoLocationsRecord.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// A record with a name and no place. It is copied with its table and never
// written.
class IPCONFIG_READWRITE_EXPORT UnspecifiedFifoRecord : public FifoLocationsRecord {
public:
  explicit UnspecifiedFifoRecord(const std::string& name);

  void write(JDocument& doc, const std::string& name, JValue& value) const override;
  std::unique_ptr<FifoLocationsRecord> clone() const override;
};

}  // namespace qpe::constraints
