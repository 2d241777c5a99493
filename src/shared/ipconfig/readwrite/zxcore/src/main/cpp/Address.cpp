#include "Address.h"

namespace qpe::constraints {

Address::~Address() = default;

std::string Address::str() const
{
  return "(" + std::to_string(column.getIntVal()) + "," + std::to_string(row.getIntVal()) + "," +
         std::to_string(bankId.getIntVal()) + "," + std::to_string(offset.getIntVal()) + ")";
}

std::string Address::labelledStr(const char* label) const
{
  return isComplete() ? label + ("=" + str()) : std::string();
}

bool Address::isComplete() const
{
  return (column.isSet() && row.isSet()) || (bankId.isSet() && offset.isSet());
}

void Address::offsetColumn(int delta)
{
  if (column.isSet())
    column.setIntVal(column.getIntVal() + delta);
}

}  // namespace qpe::constraints
