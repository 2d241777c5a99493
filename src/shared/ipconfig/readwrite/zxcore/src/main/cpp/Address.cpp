#include "Address.h"

namespace qpe::constraints {

Address::~Address() = default;

std::string Address::str() const
{
  return "(" + std::to_string(column.getIntVal()) + "," + std::to_string(row.getIntVal()) + "," +
         std::to_string(bankId.getIntVal()) + "," + std::to_string(offset.getIntVal()) + ")";
}

}  // namespace qpe::constraints
