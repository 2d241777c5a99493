#include "DmaFifoRecord.h"

namespace qpe::constraints {

namespace {
using Utils = HCRapidJsonReadWriteUtils;
}

DmaFifoRecord::DmaFifoRecord(const std::string& name, PhysicalSpec::PhysicalType tileType,
                             int column, int row, int sizeValue, int offset, int bankId)
    : FifoLocationsRecord(name, Dma), spec(tileType), size(sizeValue, -1)
{
  spec.setXY(column, row);
  spec.setBank(bankId);
  spec.setOffset(offset);
}

void DmaFifoRecord::write(JDocument& doc, const std::string& name, JValue& value) const
{
  JAllocator& alloc = doc.GetAllocator();
  JValue record = placeObject(doc, spec);
  if (size.isSet())
    Utils::AddIntegrProperty(record, "size", size.getIntVal(), alloc);
  if (spec.isOffsetSet())
    Utils::AddIntegrProperty(record, "offset", spec.getOffset(), alloc);
  if (spec.isBankSet())
    Utils::AddIntegrProperty(record, "bankId", spec.getBank(), alloc);
  Utils::AddGenericValueProperty(value, name, record, alloc);
}

std::unique_ptr<FifoLocationsRecord> DmaFifoRecord::clone() const
{
  return std::make_unique<DmaFifoRecord>(*this);
}

DmaFifoRecord::Contents DmaFifoRecord::getContents() const
{
  return {spec.getName(),         spec.getColumn(), spec.getRow(),    spec.getIndex(),
          spec.getPhysicalType(), spec.getBank(),   spec.getOffset(), size.getIntVal()};
}

bool DmaFifoRecord::equals(const DmaFifoRecord& other) const
{
  return getContents() == other.getContents();
}

}  // namespace qpe::constraints
