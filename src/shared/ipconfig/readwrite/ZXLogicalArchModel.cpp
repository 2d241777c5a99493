#include "ZXLogicalArchModel.h"

#include "LogicalArchWriterModelRenamer.h"
#include "ZXLogicalArchModelVisitorInterface.h"

namespace IPConfig::Frameworks {

namespace {

template <typename Map>
typename Map::mapped_type lookUp(const Map& map, const std::string& name)
{
  const auto found = map.find(name);
  return found == map.end() ? nullptr : found->second;
}

}  // namespace

ZXLogicalArchModel::ZXLogicalArchModel() = default;

ZXLogicalArchModel::~ZXLogicalArchModel()
{
  clear();
}

bool ZXLogicalArchModel::isEmpty() const
{
  return instances.empty() && connections.empty();
}

void ZXLogicalArchModel::clear()
{
  instanceMap.clear();
  connectionMap.clear();
  instances.clear();
  connections.clear();
}

template <typename Instance>
Instance* ZXLogicalArchModel::addInstance_(const std::string& name, ZXLogicalInstanceType kind)
{
  if (hasLogicalInstance(name))
    return nullptr;
  auto instance = std::make_unique<Instance>(name);
  instance->kind = kind;
  return static_cast<Instance*>(addInst_(std::move(instance)));
}

ZXLogicalPLIPInstance* ZXLogicalArchModel::addPLIPInstance(const std::string& name)
{
  return addInstance_<ZXLogicalPLIPInstance>(name, PL_INSTANCE);
}

ZXLogicalZXIPInstance* ZXLogicalArchModel::addZXIPInstance(const std::string& name)
{
  return addInstance_<ZXLogicalZXIPInstance>(name, ZX_INSTANCE);
}

ZXLogicalNOCIPInstance* ZXLogicalArchModel::addNOCIPInstance(const std::string& name)
{
  return addInstance_<ZXLogicalNOCIPInstance>(name, NOC_INSTANCE);
}

ZXLogicalArchLInst* ZXLogicalArchModel::addInst_(std::unique_ptr<ZXLogicalArchLInst> instance)
{
  ZXLogicalArchLInst* added = instances.emplace_back(std::move(instance)).get();
  instanceMap[added->name] = added;
  return added;
}

ZXLogicalPort* ZXLogicalArchModel::addInstPort_(const std::string& name,
                                                ZXLogicalArchLInst& instance)
{
  return instance.hasLogicalPort(name) ? nullptr : instance.addPort(name);
}

ZXLogicalPort* ZXLogicalArchModel::addPLPort(const std::string& name,
                                             ZXLogicalPLIPInstance* instance)
{
  return instance ? addInstPort_(name, *instance) : nullptr;
}

ZXLogicalPort* ZXLogicalArchModel::addShimPort(const std::string& name,
                                               ZXLogicalZXIPInstance* instance)
{
  return instance ? addInstPort_(name, *instance) : nullptr;
}

ZXLogicalPort* ZXLogicalArchModel::addNOCPort(const std::string& name,
                                              ZXLogicalNOCIPInstance* instance)
{
  return instance ? addInstPort_(name, *instance) : nullptr;
}

ZXLogicalConnection* ZXLogicalArchModel::addLogicalConnection(const std::string& name)
{
  if (hasLogicalConnection(name))
    return nullptr;
  return connections.emplace_back(std::make_unique<ZXLogicalConnection>(name)).get();
}

ZXLogicalConnection* ZXLogicalArchModel::addConnection_(
    std::unique_ptr<ZXLogicalConnection> connection)
{
  ZXLogicalConnection* added = connections.emplace_back(std::move(connection)).get();
  connectionMap[added->name] = added;
  return added;
}

bool ZXLogicalArchModel::hasLogicalInstance(const std::string& name) const
{
  return instanceMap.count(name) != 0;
}

ZXLogicalArchLInst* ZXLogicalArchModel::getLogicalInstance(const std::string& name) const
{
  return lookUp(instanceMap, name);
}

ZXLogicalArchModel::InstanceMap::const_iterator ZXLogicalArchModel::findLogicalInstance(
    const std::string& name) const
{
  return instanceMap.find(name);
}

bool ZXLogicalArchModel::hasLogicalConnection(const std::string& name) const
{
  return connectionMap.count(name) != 0;
}

ZXLogicalConnection* ZXLogicalArchModel::getLogicalConnection(const std::string& name) const
{
  return lookUp(connectionMap, name);
}

ZXLogicalArchModel::ConnectionMap::const_iterator ZXLogicalArchModel::findLogicalConnection(
    const std::string& name) const
{
  return connectionMap.find(name);
}

ZXLogicalPort* ZXLogicalArchModel::getLogicalPort_(const std::string& instName,
                                                   const std::string& portName) const
{
  const ZXLogicalArchLInst* instance = getLogicalInstance(instName);
  return instance ? instance->getLogicalPort(portName) : nullptr;
}

bool ZXLogicalArchModel::isZXIPInstance(const ZXLogicalArchLInst* instance) const
{
  return instance && instance->kind == ZX_INSTANCE;
}

bool ZXLogicalArchModel::isPLIPInstance(const ZXLogicalArchLInst* instance) const
{
  return instance && instance->kind == PL_INSTANCE;
}

bool ZXLogicalArchModel::isNOCIPInstance(const ZXLogicalArchLInst* instance) const
{
  return instance && instance->kind == NOC_INSTANCE;
}

template <typename Instance>
std::size_t ZXLogicalArchModel::getInstances_(ZXLogicalInstanceType kind,
                                              std::vector<Instance*>& out) const
{
  for (const std::unique_ptr<ZXLogicalArchLInst>& instance : instances)
    if (instance->kind == kind)
      out.push_back(static_cast<Instance*>(instance.get()));
  return out.size();
}

std::size_t ZXLogicalArchModel::getPLIPInstances(std::vector<ZXLogicalPLIPInstance*>& out) const
{
  return getInstances_(PL_INSTANCE, out);
}

std::size_t ZXLogicalArchModel::getZXIPInstances(std::vector<ZXLogicalZXIPInstance*>& out) const
{
  return getInstances_(ZX_INSTANCE, out);
}

std::size_t ZXLogicalArchModel::getNOCIPInstances(std::vector<ZXLogicalNOCIPInstance*>& out) const
{
  return getInstances_(NOC_INSTANCE, out);
}

std::size_t ZXLogicalArchModel::getLogicalPorts_(ZXLogicalInstanceType kind,
                                                 std::vector<ZXLogicalPort*>& out) const
{
  for (const std::unique_ptr<ZXLogicalArchLInst>& instance : instances)
    if (instance->kind == kind)
      for (const std::unique_ptr<ZXLogicalPort>& port : instance->getPorts())
        out.push_back(port.get());
  return out.size();
}

std::size_t ZXLogicalArchModel::getPLIPLogicalPorts(std::vector<ZXLogicalPort*>& out) const
{
  return getLogicalPorts_(PL_INSTANCE, out);
}

std::size_t ZXLogicalArchModel::getZXIPLogicalPorts(std::vector<ZXLogicalPort*>& out) const
{
  return getLogicalPorts_(ZX_INSTANCE, out);
}

std::size_t ZXLogicalArchModel::getNOCIPLogicalPorts(std::vector<ZXLogicalPort*>& out) const
{
  return getLogicalPorts_(NOC_INSTANCE, out);
}

std::size_t ZXLogicalArchModel::getLogicalConnections(std::vector<ZXLogicalConnection*>& out) const
{
  for (const std::unique_ptr<ZXLogicalConnection>& connection : connections)
    out.push_back(connection.get());
  return out.size();
}

template <typename Find>
ZXLogicalPort* ZXLogicalArchModel::findPort_(ZXLogicalInstanceType kind, const Find& find) const
{
  for (const std::unique_ptr<ZXLogicalArchLInst>& instance : instances)
    if (instance->kind == kind)
      if (ZXLogicalPort* port = find(*instance))
        return port;
  return nullptr;
}

ZXLogicalPort* ZXLogicalArchModel::getLogicalPortByName(const std::string& name,
                                                        ZXLogicalInstanceType kind) const
{
  return findPort_(kind, [&](const ZXLogicalArchLInst& instance) {
    return instance.getLogicalPortByName(name);
  });
}

ZXLogicalPort* ZXLogicalArchModel::getLogicalPortBySWOrHWAnnotation(
    const std::string& annotation, ZXLogicalInstanceType kind) const
{
  return findPort_(kind, [&](const ZXLogicalArchLInst& instance) {
    return instance.getLogicalPortBySWOrHWAnnotation(annotation);
  });
}

ZXLogicalPort* ZXLogicalArchModel::getEquivalentPortBySWOrHWAnnotation(
    const ZXLogicalPort* port, ZXLogicalInstanceType kind) const
{
  return findPort_(kind, [&](const ZXLogicalArchLInst& instance) {
    return instance.getEquivalentPortBySWOrHWAnnotation(port);
  });
}

void ZXLogicalArchModel::accept(const ZXLogicalArchModelVisitorInterface& visitor)
{
  for (const std::unique_ptr<ZXLogicalArchLInst>& instance : instances)
    instance->accept(visitor);
  for (const std::unique_ptr<ZXLogicalConnection>& connection : connections)
    connection->accept(visitor);
  visitor.visit(this);
}

void ZXLogicalArchModel::rename(ZXLogicalArchModelRenameInterface& renamer)
{
  resetNameToObjectMaps_();
  for (const std::unique_ptr<ZXLogicalArchLInst>& instance : instances)
    instance->rename(renamer);
  for (const std::unique_ptr<ZXLogicalConnection>& connection : connections)
    connection->rename(renamer);
  rebuildNameToObjectMaps_();
}

void ZXLogicalArchModel::renameLogicalArchPortNames(bool useAxiPortNames)
{
  LogicalArchWriterModelRenamer renamer(useAxiPortNames);
  rename(renamer);
}

bool ZXLogicalArchModel::canCopy(const ZXLogicalArchModel& other) const
{
  for (const std::unique_ptr<ZXLogicalArchLInst>& instance : other.instances)
    if (hasLogicalInstance(instance->name))
      return false;
  for (const std::unique_ptr<ZXLogicalConnection>& connection : other.connections)
    if (hasLogicalConnection(connection->name))
      return false;
  return true;
}

bool ZXLogicalArchModel::copy(const ZXLogicalArchModel& other)
{
  if (!canCopy(other))
    return false;
  // By index: `other` may be this model, whose lists grow on the way.
  const std::size_t instanceCount = other.instances.size();
  const std::size_t connectionCount = other.connections.size();
  for (std::size_t i = 0; i < instanceCount; ++i)
    addInst_(std::unique_ptr<ZXLogicalArchLInst>(other.instances[i]->clone()));
  for (std::size_t i = 0; i < connectionCount; ++i)
    addConnection_(cloneLogicalConnection_(*other.connections[i]));
  appId = other.appId;
  device = other.device;
  schema = other.schema;
  platform = other.platform;
  return true;
}

std::unique_ptr<ZXLogicalConnection> ZXLogicalArchModel::cloneLogicalConnection_(
    const ZXLogicalConnection& connection)
{
  std::unique_ptr<ZXLogicalConnection> clone(connection.clone());
  // The port of this model under the same instance and port names; it now
  // belongs to the clone.
  const auto link = [&](const ZXLogicalPort* port) -> ZXLogicalPort* {
    ZXLogicalPort* found =
        port && port->owner ? getLogicalPort_(port->owner->name, port->name) : nullptr;
    if (found)
      found->connection = clone.get();
    return found;
  };
  clone->srcPort = link(connection.srcPort);
  for (const ZXLogicalPort* port : connection.dstPorts)
    if (ZXLogicalPort* found = link(port))
      clone->dstPorts.push_back(found);
  return clone;
}

void ZXLogicalArchModel::resetNameToObjectMaps_()
{
  instanceMap.clear();
  connectionMap.clear();
  for (const std::unique_ptr<ZXLogicalArchLInst>& instance : instances)
    instance->resetNameToObjectMaps_();
}

void ZXLogicalArchModel::rebuildNameToObjectMaps_()
{
  for (const std::unique_ptr<ZXLogicalArchLInst>& instance : instances)
    instance->rebuildNameToObjectMaps_();
  for (const std::unique_ptr<ZXLogicalArchLInst>& instance : instances)
    instanceMap[instance->name] = instance.get();
  for (const std::unique_ptr<ZXLogicalConnection>& connection : connections)
    connectionMap[connection->name] = connection.get();
}

}  // namespace IPConfig::Frameworks
