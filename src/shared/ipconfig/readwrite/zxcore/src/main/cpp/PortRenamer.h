#pragma once

#include "ConstrProperties.h"
#include "ipconfig_readwrite_export.h"

#include <map>
#include <string>
#include <vector>

namespace qpe::constraints {

class BaseConstraint;

// Applies a map of old to new port names to constraints.
class IPCONFIG_READWRITE_EXPORT PortRenamer {
public:
  explicit PortRenamer(const std::map<std::string, std::string>& oldToNew);

  // The mapped name, or `oldName` itself.
  std::string getNewPortName(const std::string& oldName) const;
  // `newNames` gets the renamed list only if a name changed; otherwise it is
  // left as it was, and an empty `newNames` tells the caller there is nothing to do.
  void getNewPortNames(const std::vector<std::string>& oldNames,
                       std::vector<std::string>& newNames) const;
  // Renames the object of a constraint on a port; other constraints stay.
  void renamePortObject(BaseConstraint* constr) const;
  // Moves each renamed entry to its new name, in the order of the old names,
  // overwriting what stands there.
  void renameConstrObjectProperties(ConstrPropertiesMap& properties) const;

private:
  std::map<std::string, std::string> oldToNew;
};

}  // namespace qpe::constraints
