#include "StreamFifoRecord.h"

namespace qpe::constraints {

namespace {
using Utils = HCRapidJsonReadWriteUtils;
}

StreamFifoRecord::StreamFifoRecord(const std::string& name, PhysicalSpec::PhysicalType tileType,
                                   int column, int row, int channel)
    : FifoLocationsRecord(name, Stream), spec(tileType)
{
  spec.setXY(column, row);
  spec.setIndex(channel);
}

void StreamFifoRecord::write(JDocument& doc, const std::string& name, JValue& value) const
{
  JAllocator& alloc = doc.GetAllocator();
  JValue record = placeObject(doc, spec);
  if (spec.isChannelSet())
    Utils::AddIntegrProperty(record, "channel", spec.getIndex(), alloc);
  Utils::AddGenericValueProperty(value, name, record, alloc);
}

std::unique_ptr<FifoLocationsRecord> StreamFifoRecord::clone() const
{
  return std::make_unique<StreamFifoRecord>(*this);
}

StreamFifoRecord::Contents StreamFifoRecord::getContents() const
{
  return {spec.getName(), spec.getColumn(), spec.getRow(), spec.getIndex(),
          spec.getPhysicalType()};
}

bool StreamFifoRecord::equals(const StreamFifoRecord& other) const
{
  return getContents() == other.getContents();
}

}  // namespace qpe::constraints
