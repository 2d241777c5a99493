#include "BaseNameResolver.h"

#include "ConstrUtils.h"
#include "IPConfigMessages.h"

#include <iterator>
#include <utility>

namespace qpe::constraints {

namespace {

struct UnresolvedMsgs {
  const char* one;
  const char* several;
};

// `resolveInto(name, resolved)` appends what `name` resolves to and says
// whether it resolved at all.
template <typename ResolveInto>
void resolveEach(std::vector<std::string>& names, bool quiet, const UnresolvedMsgs& msgs,
                 ResolveInto resolveInto)
{
  std::vector<std::string> resolved;
  std::vector<std::string> unresolved;
  resolved.reserve(names.size());
  for (const std::string& name : names)
    if (!resolveInto(name, resolved))
      unresolved.push_back(name);
  if (!quiet && unresolved.size() == 1)
    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, msgs.one, unresolved.front());
  else if (!quiet && unresolved.size() > 1)
    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, msgs.several, to_str(unresolved));
  names = std::move(resolved);
}

using PatternOp = void (BaseNameResolver::*)(const std::string&, std::vector<std::string>&) const;
using ScopedOp = std::string (BaseNameResolver::*)(const std::string&) const;

void resolveByPattern(const BaseNameResolver& resolver, PatternOp pattern, bool quiet,
                      const UnresolvedMsgs& msgs, std::vector<std::string>& names)
{
  std::vector<std::string> hits;
  resolveEach(names, quiet, msgs, [&](const std::string& name, std::vector<std::string>& out) {
    hits.clear();
    (resolver.*pattern)(name, hits);
    out.insert(out.end(), std::make_move_iterator(hits.begin()),
               std::make_move_iterator(hits.end()));
    return !hits.empty();  // moved-from strings still count
  });
}

void resolveScoped(const BaseNameResolver& resolver, ScopedOp scoped, bool quiet,
                   const UnresolvedMsgs& msgs, std::vector<std::string>& names)
{
  resolveEach(names, quiet, msgs, [&](const std::string& name, std::vector<std::string>& out) {
    std::string hit = (resolver.*scoped)(name);
    if (hit.empty())
      return false;
    out.push_back(std::move(hit));
    return true;
  });
}

void appendIfResolved(std::string resolved, std::vector<std::string>& out)
{
  if (!resolved.empty())
    out.push_back(std::move(resolved));
}

}  // namespace

BaseNameResolver::~BaseNameResolver() = default;

std::string BaseNameResolver::getScopeName() const
{
  return {};
}

std::string BaseNameResolver::resolveNodeName(const std::string& name) const
{
  return name;
}

std::string BaseNameResolver::resolvePortName(const std::string& name) const
{
  return name;
}

std::string BaseNameResolver::resolveNetName(const std::string& name) const
{
  return name;
}

void BaseNameResolver::resolveNodeNames(std::vector<std::string>& names) const
{
  resolveByPattern(*this, &BaseNameResolver::resolveNodePattern, quiet,
                   {"@75-412@%s", "@75-413@%s"}, names);
}

void BaseNameResolver::resolvePortNames(std::vector<std::string>& names) const
{
  resolveByPattern(*this, &BaseNameResolver::resolvePortPattern, quiet,
                   {"@75-414@%s", "@75-415@%s"}, names);
}

void BaseNameResolver::resolveNetNames(std::vector<std::string>& names) const
{
  resolveByPattern(*this, &BaseNameResolver::resolveNetPattern, quiet,
                   {"@75-410@%s", "@75-411@%s"}, names);
}

std::string BaseNameResolver::resolveScopedNodeName(const std::string& name) const
{
  return name;
}

std::string BaseNameResolver::resolveScopedPortName(const std::string& name) const
{
  return name;
}

std::string BaseNameResolver::resolveScopedNetName(const std::string& name) const
{
  return name;
}

void BaseNameResolver::resolveScopedNodeNames(std::vector<std::string>& names) const
{
  resolveScoped(*this, &BaseNameResolver::resolveScopedNodeName, quiet,
                {"@75-418@%s", "@75-419@%s"}, names);
}

void BaseNameResolver::resolveScopedPortNames(std::vector<std::string>& names) const
{
  resolveScoped(*this, &BaseNameResolver::resolveScopedPortName, quiet,
                {"@75-420@%s", "@75-421@%s"}, names);
}

void BaseNameResolver::resolveScopedNetNames(std::vector<std::string>& names) const
{
  resolveScoped(*this, &BaseNameResolver::resolveScopedNetName, quiet,
                {"@75-416@%s", "@75-417@%s"}, names);
}

void BaseNameResolver::resolveNodePattern(const std::string& pattern,
                                          std::vector<std::string>& out) const
{
  appendIfResolved(resolveNodeName(pattern), out);
}

void BaseNameResolver::resolvePortPattern(const std::string& pattern,
                                          std::vector<std::string>& out) const
{
  appendIfResolved(resolvePortName(pattern), out);
}

void BaseNameResolver::resolveNetPattern(const std::string& pattern,
                                         std::vector<std::string>& out) const
{
  appendIfResolved(resolveNetName(pattern), out);
}

}  // namespace qpe::constraints
