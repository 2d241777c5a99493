#pragma once

#include "ConstrForward.h"
#include "DmaFifoRecord.h"
#include "FifoLocationsRecord.h"
#include "PhysicalSpec.h"
#include "StreamFifoRecord.h"
#include "ipconfig_readwrite_export.h"

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace qpe::constraints {

// The table of a handler's FIFO records, by name in byte order. Records are
// found again by their contents, so that one place gets one record however
// many ports use it.
class IPCONFIG_READWRITE_EXPORT FifoLocationsRecords {
public:
  using RecordMap = std::map<std::string, std::unique_ptr<FifoLocationsRecord>>;

  FifoLocationsRecords();
  FifoLocationsRecords(const FifoLocationsRecords&) = delete;
  FifoLocationsRecords& operator=(const FifoLocationsRecords&) = delete;
  ~FifoLocationsRecords();

  // Null when there is no record of that name.
  const FifoLocationsRecord* get(const std::string& name) const;
  const RecordMap& getRecords() const { return records; }
  std::size_t getDmaFifoRecordSize() const { return dmaCount; }
  std::size_t getStreamFifoRecordSize() const { return streamCount; }
  void clear();

  // "dmsfr" and "swfr", followed by the number of records of the kind.
  std::string generateDmaFifoRecordName() const;
  std::string generateStreamFifoRecordName() const;

  // Enters `record` under its name, unless the name is taken: then `record`
  // is dropped and the record already there stays. Returns the record held
  // under the name.
  const FifoLocationsRecord* add(std::unique_ptr<FifoLocationsRecord> record);
  // The same for a new DMA record; null when the name holds a record of
  // another kind. Without a name, the name is generated.
  const DmaFifoRecord* addDmaFifoRecord(const std::string& name,
                                        PhysicalSpec::PhysicalType tileType, int column, int row,
                                        int size, int offset, int bankId);
  const DmaFifoRecord* addDmaFifoRecord(PhysicalSpec::PhysicalType tileType, int column, int row,
                                        int size, int offset, int bankId);
  const StreamFifoRecord* addStreamFifoRecord(const std::string& name,
                                              PhysicalSpec::PhysicalType tileType, int column,
                                              int row, int channel);
  const StreamFifoRecord* addStreamFifoRecord(PhysicalSpec::PhysicalType tileType, int column,
                                              int row, int channel);

  // The first record in name order whose contents equal those of a record
  // built from the arguments; its name plays no part. Null if none.
  const DmaFifoRecord* findDmaFifoRecordMatching(PhysicalSpec::PhysicalType tileType, int column,
                                                 int row, int size, int offset,
                                                 int bankId) const;
  const StreamFifoRecord* findStreamFifoRecordMatching(PhysicalSpec::PhysicalType tileType,
                                                       int column, int row, int channel) const;

  // The record of these contents, else a new one under a generated name;
  // null when that name holds a record of another kind.
  const DmaFifoRecord* findOrAddDmaFifoRecord(PhysicalSpec::PhysicalType tileType, int column,
                                              int row, int size, int offset, int bankId);
  const StreamFifoRecord* findOrAddStreamFifoRecord(PhysicalSpec::PhysicalType tileType,
                                                    int column, int row, int channel);

  // "fifo_locations_records": {"dma_fifos": {...}, "stream_fifos": {...}}
  // into `parent`; nothing for an empty table. Unspecified records are left out.
  void write(JDocument& doc, JValue& parent) const;
  // Each record of `handler`'s table, cloned, replaces the record of its name
  // here; records of other names stay.
  void copy(const ConstrHandler& handler);
  // The same names with equal records.
  bool equals(const FifoLocationsRecords& other) const;

private:
  const FifoLocationsRecord* replace_(std::unique_ptr<FifoLocationsRecord> record);
  void index_(const FifoLocationsRecord& record);
  void unindex_(const FifoLocationsRecord& record);

  RecordMap records;
  std::size_t dmaCount = 0;
  std::size_t streamCount = 0;
  // Names of the records of each contents, in byte order like the table.
  std::map<DmaFifoRecord::Contents, std::set<std::string>> dmaByContents;
  std::map<StreamFifoRecord::Contents, std::set<std::string>> streamByContents;
};

}  // namespace qpe::constraints
