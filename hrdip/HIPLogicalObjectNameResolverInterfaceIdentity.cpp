#include "HIPLogicalObjectNameResolverInterfaceIdentity.h"

std::string HIPLogicalObjectNameResolverInterfaceIdentity::resolveLogicalInstanceName(
    const std::string& name) const
{
  return name;
}

std::string HIPLogicalObjectNameResolverInterfaceIdentity::resolveLogicalInstanceScopedName(
    const std::string& name) const
{
  return name;
}

std::size_t HIPLogicalObjectNameResolverInterfaceIdentity::resolveLogicalInstanceNames(
    const std::string& name, std::vector<std::string>& out) const
{
  out.push_back(resolveLogicalInstanceName(name));
  return out.size();
}

std::size_t HIPLogicalObjectNameResolverInterfaceIdentity::resolveLogicalInstanceScopedNames(
    const std::string& name, std::vector<std::string>& out) const
{
  out.push_back(resolveLogicalInstanceScopedName(name));
  return out.size();
}

std::string HIPLogicalObjectNameResolverInterfaceIdentity::resolveLogicalInstancePropertyValue(
    const std::string& value) const
{
  return value;
}

std::string
HIPLogicalObjectNameResolverInterfaceIdentity::resolveLogicalInstancePropertyValuedScoped(
    const std::string& value) const
{
  return value;
}

bool HIPLogicalObjectNameResolverInterfaceIdentity::isPropertyValueWithinScope(
    const std::string&) const
{
  return true;
}

bool HIPLogicalObjectNameResolverInterfaceIdentity::getScopeName(std::string&) const
{
  return false;
}
