#pragma once

#include "HIPLogicalObjectNameResolverInterface.h"
#include "ipconfig_hrdip_export.h"

// Every name stands for itself and everything is within scope; there is no
// scope name. A host derives from it to translate some names only.
class IPCONFIG_HRDIP_EXPORT HIPLogicalObjectNameResolverInterfaceIdentity
  : public HIPLogicalObjectNameResolverInterface {
public:
  std::string resolveLogicalInstanceName(const std::string& name) const override;
  std::string resolveLogicalInstanceScopedName(const std::string& name) const override;
  // Append the result of the single-name form.
  std::size_t resolveLogicalInstanceNames(const std::string& name,
                                          std::vector<std::string>& out) const override;
  std::size_t resolveLogicalInstanceScopedNames(const std::string& name,
                                                std::vector<std::string>& out) const override;
  std::string resolveLogicalInstancePropertyValue(const std::string& value) const override;
  std::string resolveLogicalInstancePropertyValuedScoped(const std::string& value) const override;
  bool isPropertyValueWithinScope(const std::string& value) const override;
  bool getScopeName(std::string& out) const override;
};
