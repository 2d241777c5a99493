#pragma once

#include "AttrValue.h"
#include "FifoLocationsRecord.h"
#include "PhysicalSpec.h"
#include "ipconfig_readwrite_export.h"

#include <string>
#include <tuple>

namespace qpe::constraints {

// A DMA FIFO in memory: tile type, column, row, bank and offset of its place,
// and the size. -1 leaves a number unset.
class IPCONFIG_READWRITE_EXPORT DmaFifoRecord : public FifoLocationsRecord {
public:
  // What two records are compared by: the place's name, column, row, index,
  // physical type, bank and offset, then the size. Unset numbers are -1.
  using Contents = std::tuple<std::string, int, int, int, int, int, int, int>;

  DmaFifoRecord(const std::string& name, PhysicalSpec::PhysicalType tileType, int column, int row,
                int size, int offset, int bankId);

  // {"tile_type", then "row", "column", "size", "offset", "bankId" where set}.
  void write(JDocument& doc, const std::string& name, JValue& value) const override;
  std::unique_ptr<FifoLocationsRecord> clone() const override;

  const PhysicalSpec& getSpec() const { return spec; }
  const AttrValue& getSize() const { return size; }
  Contents getContents() const;
  bool equals(const DmaFifoRecord& other) const;

private:
  PhysicalSpec spec;
  AttrValue size;
};

}  // namespace qpe::constraints
