#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <memory>
#include <string>

namespace qpe::constraints {

class PhysicalSpec;

// One FIFO place on the array, held once in a handler's table under its name;
// the FIFO location constraints of ports refer to it by that name. A record
// does not change once made: the table finds records again by their contents.
class IPCONFIG_READWRITE_EXPORT FifoLocationsRecord {
public:
  enum RecordKind : std::int32_t {
    Dma = 0,
    Stream = 1,
    Unspecified = 2,
  };

  virtual ~FifoLocationsRecord();
  // Adds the record to `value` under `name`.
  virtual void write(JDocument& doc, const std::string& name, JValue& value) const = 0;
  virtual std::unique_ptr<FifoLocationsRecord> clone() const = 0;

  const std::string& getName() const { return name; }
  RecordKind getRecordKind() const { return kind; }

  // Two DMA or two stream records by their contents, two unspecified ones by
  // name; records of different kinds never.
  static bool equals(const FifoLocationsRecord& a, const FifoLocationsRecord& b);

protected:
  FifoLocationsRecord(const std::string& name, RecordKind kind);
  FifoLocationsRecord(const FifoLocationsRecord&) = default;
  FifoLocationsRecord& operator=(const FifoLocationsRecord&) = delete;

  // The start of a record's object: "tile_type", then "row" and "column" where set.
  static JValue placeObject(JDocument& doc, const PhysicalSpec& spec);

private:
  std::string name;
  RecordKind kind;
};

// Tests of the dynamic type; false for null.
IPCONFIG_READWRITE_EXPORT bool isDmaFifoRecord(const FifoLocationsRecord* record);
IPCONFIG_READWRITE_EXPORT bool isStreamFifoRecord(const FifoLocationsRecord* record);
IPCONFIG_READWRITE_EXPORT bool isUnspecifiedFifoRecord(const FifoLocationsRecord* record);

}  // namespace qpe::constraints
