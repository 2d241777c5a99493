#include "FifoLocationsRecords.h"

#include "ConstrHandler.h"

#include <utility>

namespace qpe::constraints {

namespace {

using Utils = HCRapidJsonReadWriteUtils;

template <typename Record>
const Record* firstMatching(const std::map<typename Record::Contents, std::set<std::string>>& index,
                            const Record& probe, const FifoLocationsRecords::RecordMap& records)
{
  const auto names = index.find(probe.getContents());
  if (names == index.end())
    return nullptr;
  return static_cast<const Record*>(records.at(*names->second.begin()).get());
}

template <typename Contents>
void addName(std::map<Contents, std::set<std::string>>& index, Contents contents,
             const std::string& name)
{
  index[std::move(contents)].insert(name);
}

template <typename Contents>
void removeName(std::map<Contents, std::set<std::string>>& index, const Contents& contents,
                const std::string& name)
{
  const auto names = index.find(contents);
  if (names == index.end())
    return;
  names->second.erase(name);
  if (names->second.empty())
    index.erase(names);
}

}  // namespace

FifoLocationsRecords::FifoLocationsRecords() = default;
FifoLocationsRecords::~FifoLocationsRecords() = default;

const FifoLocationsRecord* FifoLocationsRecords::get(const std::string& name) const
{
  const auto record = records.find(name);
  return record == records.end() ? nullptr : record->second.get();
}

void FifoLocationsRecords::clear()
{
  records.clear();
  dmaByContents.clear();
  streamByContents.clear();
  dmaCount = 0;
  streamCount = 0;
}

std::string FifoLocationsRecords::generateDmaFifoRecordName() const
{
  return "dmsfr" + std::to_string(getDmaFifoRecordSize());
}

std::string FifoLocationsRecords::generateStreamFifoRecordName() const
{
  return "swfr" + std::to_string(getStreamFifoRecordSize());
}

const FifoLocationsRecord* FifoLocationsRecords::add(std::unique_ptr<FifoLocationsRecord> record)
{
  if (!record)
    return nullptr;
  if (const FifoLocationsRecord* existing = get(record->getName()))
    return existing;
  return replace_(std::move(record));
}

const DmaFifoRecord* FifoLocationsRecords::addDmaFifoRecord(const std::string& name,
                                                            PhysicalSpec::PhysicalType tileType,
                                                            int column, int row, int size,
                                                            int offset, int bankId)
{
  const FifoLocationsRecord* record = get(name);
  if (!record)
    record = replace_(
        std::make_unique<DmaFifoRecord>(name, tileType, column, row, size, offset, bankId));
  return dynamic_cast<const DmaFifoRecord*>(record);
}

const DmaFifoRecord* FifoLocationsRecords::addDmaFifoRecord(PhysicalSpec::PhysicalType tileType,
                                                            int column, int row, int size,
                                                            int offset, int bankId)
{
  return addDmaFifoRecord(generateDmaFifoRecordName(), tileType, column, row, size, offset,
                          bankId);
}

const StreamFifoRecord* FifoLocationsRecords::addStreamFifoRecord(
    const std::string& name, PhysicalSpec::PhysicalType tileType, int column, int row,
    int channel)
{
  const FifoLocationsRecord* record = get(name);
  if (!record)
    record = replace_(std::make_unique<StreamFifoRecord>(name, tileType, column, row, channel));
  return dynamic_cast<const StreamFifoRecord*>(record);
}

const StreamFifoRecord* FifoLocationsRecords::addStreamFifoRecord(
    PhysicalSpec::PhysicalType tileType, int column, int row, int channel)
{
  return addStreamFifoRecord(generateStreamFifoRecordName(), tileType, column, row, channel);
}

const DmaFifoRecord* FifoLocationsRecords::findDmaFifoRecordMatching(
    PhysicalSpec::PhysicalType tileType, int column, int row, int size, int offset,
    int bankId) const
{
  const DmaFifoRecord probe("dummy", tileType, column, row, size, offset, bankId);
  return firstMatching(dmaByContents, probe, records);
}

const StreamFifoRecord* FifoLocationsRecords::findStreamFifoRecordMatching(
    PhysicalSpec::PhysicalType tileType, int column, int row, int channel) const
{
  const StreamFifoRecord probe("dummy", tileType, column, row, channel);
  return firstMatching(streamByContents, probe, records);
}

const DmaFifoRecord* FifoLocationsRecords::findOrAddDmaFifoRecord(
    PhysicalSpec::PhysicalType tileType, int column, int row, int size, int offset, int bankId)
{
  const DmaFifoRecord* record =
      findDmaFifoRecordMatching(tileType, column, row, size, offset, bankId);
  return record ? record : addDmaFifoRecord(tileType, column, row, size, offset, bankId);
}

const StreamFifoRecord* FifoLocationsRecords::findOrAddStreamFifoRecord(
    PhysicalSpec::PhysicalType tileType, int column, int row, int channel)
{
  const StreamFifoRecord* record = findStreamFifoRecordMatching(tileType, column, row, channel);
  return record ? record : addStreamFifoRecord(tileType, column, row, channel);
}

void FifoLocationsRecords::write(JDocument& doc, JValue& parent) const
{
  if (records.empty())
    return;
  JValue dma(rapidjson::kObjectType);
  JValue stream(rapidjson::kObjectType);
  for (const auto& [name, record] : records) {
    if (record->getRecordKind() == FifoLocationsRecord::Dma)
      record->write(doc, name, dma);
    else if (record->getRecordKind() == FifoLocationsRecord::Stream)
      record->write(doc, name, stream);
  }
  JAllocator& alloc = doc.GetAllocator();
  JValue outer(rapidjson::kObjectType);
  Utils::AddGenericValueProperty(outer, "dma_fifos", dma, alloc);
  Utils::AddGenericValueProperty(outer, "stream_fifos", stream, alloc);
  Utils::AddGenericValueProperty(parent, "fifo_locations_records", outer, alloc);
}

void FifoLocationsRecords::copy(const ConstrHandler& handler)
{
  // Safe on this very table: each name is replaced in place.
  for (const auto& entry : handler.getFifoLocationsRecords().getRecords())
    replace_(entry.second->clone());
}

bool FifoLocationsRecords::equals(const FifoLocationsRecords& other) const
{
  if (records.size() != other.records.size())
    return false;
  auto theirs = other.records.begin();
  for (const auto& [name, record] : records) {
    if (name != theirs->first || !FifoLocationsRecord::equals(*record, *theirs->second))
      return false;
    ++theirs;
  }
  return true;
}

const FifoLocationsRecord* FifoLocationsRecords::replace_(
    std::unique_ptr<FifoLocationsRecord> record)
{
  std::unique_ptr<FifoLocationsRecord>& slot = records[record->getName()];
  if (slot)
    unindex_(*slot);
  slot = std::move(record);
  index_(*slot);
  return slot.get();
}

void FifoLocationsRecords::index_(const FifoLocationsRecord& record)
{
  if (record.getRecordKind() == FifoLocationsRecord::Dma)
    ++dmaCount;
  else if (record.getRecordKind() == FifoLocationsRecord::Stream)
    ++streamCount;
  if (const auto* dma = dynamic_cast<const DmaFifoRecord*>(&record))
    addName(dmaByContents, dma->getContents(), dma->getName());
  else if (const auto* stream = dynamic_cast<const StreamFifoRecord*>(&record))
    addName(streamByContents, stream->getContents(), stream->getName());
}

void FifoLocationsRecords::unindex_(const FifoLocationsRecord& record)
{
  if (record.getRecordKind() == FifoLocationsRecord::Dma)
    --dmaCount;
  else if (record.getRecordKind() == FifoLocationsRecord::Stream)
    --streamCount;
  if (const auto* dma = dynamic_cast<const DmaFifoRecord*>(&record))
    removeName(dmaByContents, dma->getContents(), dma->getName());
  else if (const auto* stream = dynamic_cast<const StreamFifoRecord*>(&record))
    removeName(streamByContents, stream->getContents(), stream->getName());
}

}  // namespace qpe::constraints
