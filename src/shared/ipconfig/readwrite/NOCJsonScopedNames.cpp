#include "NOCJsonScopedNames.h"

#include "HIPLogicalObjectNameResolverInterface.h"
#include "TrafficLInst.h"

namespace NOC {

std::string NOCJsonScopedNames::instanceName(const HIPLogicalObjectNameResolverInterface& resolver,
                                             const HrdIPToolCntr::TrafficLInst& instance)
{
  if (instance.isErrorSlave())
    return resolver.resolveLogicalInstancePropertyValuedScoped(instance.name);
  return resolver.resolveLogicalInstanceScopedName(instance.name);
}

NOCJsonScopedNames::ExternalConn NOCJsonScopedNames::externalConn(
    const HIPLogicalObjectNameResolverInterface& resolver,
    const HrdIPToolCntr::TrafficLInst& instance)
{
  ExternalConn conn;
  bool firstList = true;
  for (const std::vector<std::string>& list : instance.externalConns) {
    if (!firstList)
      conn.text += ',';
    firstList = false;
    for (const std::string& name : list) {
      if (!resolver.isPropertyValueWithinScope(name))
        continue;
      const std::string resolved = resolver.resolveLogicalInstancePropertyValuedScoped(name);
      if (resolved.empty())
        continue;
      if (conn.firstName.empty())
        conn.firstName = resolved;
      if (!conn.text.empty())
        conn.text += ' ';
      conn.text += resolved;
    }
  }
  return conn;
}

}  // namespace NOC
