#pragma once

#include "FifoLocationsRecord.h"
#include "PhysicalSpec.h"
#include "ipconfig_readwrite_export.h"

#include <string>
#include <tuple>

namespace qpe::constraints {

// A stream FIFO on a switch channel: tile type, column and row of its place,
// the channel in its index. -1 leaves a number unset.
class IPCONFIG_READWRITE_EXPORT StreamFifoRecord : public FifoLocationsRecord {
public:
  // What two records are compared by: the place's name, column, row, index
  // and physical type. Unset numbers are -1.
  using Contents = std::tuple<std::string, int, int, int, int>;

  StreamFifoRecord(const std::string& name, PhysicalSpec::PhysicalType tileType, int column,
                   int row, int channel);

  // {"tile_type", then "row", "column", "channel" where set}.
  void write(JDocument& doc, const std::string& name, JValue& value) const override;
  std::unique_ptr<FifoLocationsRecord> clone() const override;

  const PhysicalSpec& getSpec() const { return spec; }
  Contents getContents() const;
  bool equals(const StreamFifoRecord& other) const;

private:
  PhysicalSpec spec;
};

}  // namespace qpe::constraints
