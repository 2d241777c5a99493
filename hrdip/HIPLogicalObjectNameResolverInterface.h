#pragma once

#include "ipconfig_hrdip_export.h"

#include <cstddef>
#include <string>
#include <vector>

// Translates the instance names of the NoC files. The plain operations take
// a name in a file to a name of the model; the scoped ones take a name of
// the model to a name in a file of one block; isPropertyValueWithinScope
// tells whether a name belongs to the block being written.
class IPCONFIG_HRDIP_EXPORT HIPLogicalObjectNameResolverInterface {
public:
  virtual ~HIPLogicalObjectNameResolverInterface();

  virtual std::string resolveLogicalInstanceName(const std::string& name) const = 0;
  virtual std::string resolveLogicalInstanceScopedName(const std::string& name) const = 0;
  // Append the resolved names; return the list's new size.
  virtual std::size_t resolveLogicalInstanceNames(const std::string& name,
                                                  std::vector<std::string>& out) const = 0;
  virtual std::size_t resolveLogicalInstanceScopedNames(const std::string& name,
                                                        std::vector<std::string>& out) const = 0;
  virtual std::string resolveLogicalInstancePropertyValue(const std::string& value) const = 0;
  virtual std::string resolveLogicalInstancePropertyValuedScoped(
      const std::string& value) const = 0;
  virtual bool isPropertyValueWithinScope(const std::string& value) const = 0;
  // False when there is no scope; `out` is then left alone.
  virtual bool getScopeName(std::string& out) const = 0;
};
