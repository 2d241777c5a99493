#pragma once

#include "ipconfig_readwrite_export.h"

#include <string>
#include <vector>

namespace qpe::constraints {

// Translates the names of a constraints file into the host's names: reading
// uses the plain operations, writing the scoped ones. This base is the
// identity; a host derives from it to map names, expand patterns and add a
// scope. An empty result of a one-name operation means "does not resolve".
//
// The list and pattern operations are built on the one-name operations, so a
// derived resolver that overrides only those gets the lists for free. A name
// that a list operation cannot resolve is dropped and reported, critical
// warning, one argument: a single name, or several joined by a blank:
//   resolveNodeNames        "@75-412@%s" / "@75-413@%s"
//   resolvePortNames        "@75-414@%s" / "@75-415@%s"
//   resolveNetNames         "@75-410@%s" / "@75-411@%s"
//   resolveScopedNodeNames  "@75-418@%s" / "@75-419@%s"
//   resolveScopedPortNames  "@75-420@%s" / "@75-421@%s"
//   resolveScopedNetNames   "@75-416@%s" / "@75-417@%s"
class IPCONFIG_READWRITE_EXPORT BaseNameResolver {
public:
  virtual ~BaseNameResolver();

  virtual std::string getScopeName() const;
  virtual std::string resolveNodeName(const std::string& name) const;
  virtual std::string resolvePortName(const std::string& name) const;
  virtual std::string resolveNetName(const std::string& name) const;
  virtual void resolveNodeNames(std::vector<std::string>& names) const;
  virtual void resolvePortNames(std::vector<std::string>& names) const;
  virtual void resolveNetNames(std::vector<std::string>& names) const;
  virtual std::string resolveScopedNodeName(const std::string& name) const;
  virtual std::string resolveScopedPortName(const std::string& name) const;
  virtual std::string resolveScopedNetName(const std::string& name) const;
  virtual void resolveScopedNodeNames(std::vector<std::string>& names) const;
  virtual void resolveScopedPortNames(std::vector<std::string>& names) const;
  virtual void resolveScopedNetNames(std::vector<std::string>& names) const;
  // Appends what the pattern stands for; here the one name it resolves to.
  virtual void resolveNodePattern(const std::string& pattern, std::vector<std::string>& out) const;
  virtual void resolvePortPattern(const std::string& pattern, std::vector<std::string>& out) const;
  virtual void resolveNetPattern(const std::string& pattern, std::vector<std::string>& out) const;

protected:
  // Silences the reports of unresolved names.
  bool quiet = false;
};

}  // namespace qpe::constraints
