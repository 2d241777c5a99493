#include "ConstrProperties.h"

namespace qpe::constraints {

bool ConstrProperties::hasNonDefaultProps(const std::string& name,
                                          const ConstrPropertiesMap& properties)
{
  const auto entry = properties.find(name);
  return entry != properties.end() && entry->second.isSoft;
}

}  // namespace qpe::constraints
