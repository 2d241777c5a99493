#include "UnspecifiedFifoRecord.h"

namespace qpe::constraints {

UnspecifiedFifoRecord::UnspecifiedFifoRecord(const std::string& name)
    : FifoLocationsRecord(name, Unspecified)
{
}

void UnspecifiedFifoRecord::write(JDocument&, const std::string&, JValue&) const {}

std::unique_ptr<FifoLocationsRecord> UnspecifiedFifoRecord::clone() const
{
  return std::make_unique<UnspecifiedFifoRecord>(*this);
}

}  // namespace qpe::constraints
