#include "FifoLocationsRecord.h"

#include "DmaFifoRecord.h"
#include "PhysicalSpec.h"
#include "StreamFifoRecord.h"
#include "UnspecifiedFifoRecord.h"

namespace qpe::constraints {

FifoLocationsRecord::FifoLocationsRecord(const std::string& recordName, RecordKind recordKind)
    : name(recordName), kind(recordKind)
{
}

FifoLocationsRecord::~FifoLocationsRecord() = default;

JValue FifoLocationsRecord::placeObject(JDocument& doc, const PhysicalSpec& spec)
{
  using Utils = HCRapidJsonReadWriteUtils;
  JAllocator& alloc = doc.GetAllocator();
  JValue object(rapidjson::kObjectType);
  Utils::AddStringProperty(object, "tile_type", PhysicalSpec::toString(spec.getPhysicalType()),
                           alloc);
  if (spec.isRowSet())
    Utils::AddIntegrProperty(object, "row", spec.getRow(), alloc);
  if (spec.isColumnSet())
    Utils::AddIntegrProperty(object, "column", spec.getColumn(), alloc);
  return object;
}

bool FifoLocationsRecord::equals(const FifoLocationsRecord& a, const FifoLocationsRecord& b)
{
  const auto* dmaA = dynamic_cast<const DmaFifoRecord*>(&a);
  const auto* dmaB = dynamic_cast<const DmaFifoRecord*>(&b);
  if (dmaA && dmaB)
    return dmaA->equals(*dmaB);
  const auto* streamA = dynamic_cast<const StreamFifoRecord*>(&a);
  const auto* streamB = dynamic_cast<const StreamFifoRecord*>(&b);
  if (streamA && streamB)
    return streamA->equals(*streamB);
  return isUnspecifiedFifoRecord(&a) && isUnspecifiedFifoRecord(&b) && a.getName() == b.getName();
}

bool isDmaFifoRecord(const FifoLocationsRecord* record)
{
  return dynamic_cast<const DmaFifoRecord*>(record) != nullptr;
}

bool isStreamFifoRecord(const FifoLocationsRecord* record)
{
  return dynamic_cast<const StreamFifoRecord*>(record) != nullptr;
}

bool isUnspecifiedFifoRecord(const FifoLocationsRecord* record)
{
  return dynamic_cast<const UnspecifiedFifoRecord*>(record) != nullptr;
}

}  // namespace qpe::constraints
