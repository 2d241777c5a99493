#include "ZXLogicalArchLInst.h"

#include "ZXLogicalArchModelRenameInterface.h"
#include "ZXLogicalArchModelVisitorInterface.h"

#include <algorithm>
#include <set>

namespace IPConfig::Frameworks {

namespace {

template <typename Match>
ZXLogicalPort* firstPortWhere(const ZXLogicalArchLInst::Ports& ports, const Match& match)
{
  const auto found = std::find_if(
      ports.begin(), ports.end(), [&](const std::unique_ptr<ZXLogicalPort>& port) {
        return match(*port);
      });
  return found == ports.end() ? nullptr : found->get();
}

}  // namespace

ZXLogicalArchLInst::ZXLogicalArchLInst(const std::string& name) : _Named(name) {}

ZXLogicalArchLInst::ZXLogicalArchLInst(const ZXLogicalArchLInst& other)
    : _Named(other.name), hw_annotation(other.hw_annotation), kind(other.kind)
{
}

ZXLogicalArchLInst* ZXLogicalArchLInst::clone() const
{
  return cloneAs_<ZXLogicalArchLInst>();
}

ZXLogicalArchLInst::~ZXLogicalArchLInst() = default;

void ZXLogicalArchLInst::cloneInstPorts_(ZXLogicalArchLInst& target) const
{
  for (const std::unique_ptr<ZXLogicalPort>& port : ports)
    target.addPort(port->clone());
}

ZXLogicalPort* ZXLogicalArchLInst::addPort(const std::string& name)
{
  return addPort(new ZXLogicalPort(name));
}

ZXLogicalPort* ZXLogicalArchLInst::addPort(ZXLogicalPort* port)
{
  if (!port)
    return nullptr;
  ports.emplace_back(port);
  portMap[port->name] = port;
  if (!firstPortByNameStale)
    firstPortByName.emplace(port->name, port);
  port->owner = this;
  return port;
}

bool ZXLogicalArchLInst::hasLogicalPort(const std::string& name) const
{
  return portMap.count(name) != 0;
}

ZXLogicalPort* ZXLogicalArchLInst::getLogicalPort(const std::string& name) const
{
  const auto found = portMap.find(name);
  return found == portMap.end() ? nullptr : found->second;
}

ZXLogicalPort* ZXLogicalArchLInst::getLogicalPortByName(const std::string& name) const
{
  if (firstPortByNameStale) {
    firstPortByName.clear();
    for (const std::unique_ptr<ZXLogicalPort>& port : ports)
      firstPortByName.emplace(port->name, port.get());
    firstPortByNameStale = false;
  }
  const auto found = firstPortByName.find(name);
  return found == firstPortByName.end() ? nullptr : found->second;
}

ZXLogicalPort* ZXLogicalArchLInst::getLogicalPortBySWAnnotation(const std::string& annotation) const
{
  return firstPortWhere(
      ports, [&](const ZXLogicalPort& port) { return port.matchSWAnnotation(annotation); });
}

ZXLogicalPort* ZXLogicalArchLInst::getLogicalPortByHWAnnotation(const std::string& annotation) const
{
  return firstPortWhere(
      ports, [&](const ZXLogicalPort& port) { return port.matchHWAnnotation(annotation); });
}

ZXLogicalPort* ZXLogicalArchLInst::getLogicalPortBySWOrHWAnnotation(
    const std::string& annotation) const
{
  if (ZXLogicalPort* port = getLogicalPortBySWAnnotation(annotation))
    return port;
  return getLogicalPortByHWAnnotation(annotation);
}

ZXLogicalPort* ZXLogicalArchLInst::getEquivalentPortBySWOrHWAnnotation(
    const ZXLogicalPort* port) const
{
  if (!port)
    return nullptr;
  std::set<std::string> annotations;
  for (const std::string& annotation : port->annotation)
    if (!annotation.empty())
      annotations.insert(annotation);
  if (!port->hw_annotation.empty())
    annotations.insert(port->hw_annotation);
  for (const std::string& annotation : annotations)
    if (ZXLogicalPort* found = getLogicalPortBySWOrHWAnnotation(annotation))
      return found;
  return nullptr;
}

void ZXLogicalArchLInst::accept(const ZXLogicalArchModelVisitorInterface& visitor)
{
  visitor.visit(this);
}

void ZXLogicalArchLInst::rename(ZXLogicalArchModelRenameInterface& renamer)
{
  renamer.rename(this);
  for (const std::unique_ptr<ZXLogicalPort>& port : ports)
    port->rename(renamer);
}

void ZXLogicalArchLInst::clear_()
{
  ports.clear();
  portMap.clear();
  firstPortByName.clear();
  firstPortByNameStale = true;
}

void ZXLogicalArchLInst::resetNameToObjectMaps_()
{
  portMap.clear();
}

void ZXLogicalArchLInst::rebuildNameToObjectMaps_()
{
  for (const std::unique_ptr<ZXLogicalPort>& port : ports)
    portMap[port->name] = port.get();
}

}  // namespace IPConfig::Frameworks
