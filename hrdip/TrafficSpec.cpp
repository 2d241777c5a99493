#include "TrafficSpec.h"

namespace HrdIPToolCntr {

namespace Defs = DevHrdIP::Definitions;

TrafficSpec::TrafficSpec() = default;
TrafficSpec::~TrafficSpec() = default;

TrafficLInst* TrafficSpec::addLogicalInstance(const std::string& name, Defs::AxiProt protocol,
                                              Defs::COMP_TYPE type,
                                              const ExternalConns& externalConns)
{
  const TrafficLInst::Kind kind = TrafficLInst::kindOf(type);
  InstanceTable& table = tableOf_(kind);
  const auto [entry, added] = table.emplace(name, nullptr);
  if (!added)
    return entry->second;
  instances.push_back(std::make_unique<TrafficLInst>(name, protocol, type, externalConns));
  TrafficLInst& instance = *instances.back();
  entry->second = &instance;
  if (kind == TrafficLInst::Kind::master)
    indexExternalConns_(instance, mastersByExternalConn);
  else if (kind == TrafficLInst::Kind::slave)
    indexExternalConns_(instance, slavesByExternalConn);
  return &instance;
}

TrafficLInst TrafficSpec::createNonTrafficSpecLogicalInstance(
    const std::string& name, Defs::AxiProt protocol, Defs::COMP_TYPE type,
    const ExternalConns& externalConns) const
{
  return TrafficLInst(name, protocol, type, externalConns);
}

void TrafficSpec::addPortTypeForMC(TrafficLInst* instance, Defs::PORT_TYPE port)
{
  instance->addPortType(port);
}

TrafficPath* TrafficSpec::addPath(TrafficLInst* master, TrafficLInst* slave)
{
  paths.push_back(std::make_unique<TrafficPath>(*this, getNumPaths(), master, slave));
  TrafficPath* path = paths.back().get();
  pathsByEnds[{master, slave}].push_back(path);
  return path;
}

TrafficPath* TrafficSpec::getPath(int index) const
{
  return index >= 0 && index < getNumPaths() ? paths[index].get() : nullptr;
}

std::vector<TrafficNet*> TrafficSpec::getNets(const TrafficLInst* master,
                                              const TrafficLInst* slave) const
{
  std::vector<TrafficNet*> nets;
  const auto found = pathsByEnds.find({master, slave});
  if (found == pathsByEnds.end())
    return nets;
  for (TrafficPath* path : found->second)
    for (int i = 0; i < path->getNumNets(); ++i)
      nets.push_back(path->getNet(i));
  return nets;
}

void TrafficSpec::setFrequency(int value, bool userSet)
{
  frequency = value;
  frequencyUserSet = userSet;
}

bool TrafficSpec::hasErrorSlave() const
{
  return getLogicalSlave(getErrorSlaveName()) != nullptr;
}

bool TrafficSpec::addErrorSlaveAndRoutes()
{
  std::vector<TrafficLInst*> mmMasters;
  std::vector<TrafficLInst*> highPriorityMasters;
  for (const std::unique_ptr<TrafficLInst>& instance : instances)
    if (instance->isMaster && instance->protocol == Defs::AXI_MM)
      mmMasters.push_back(instance.get());
  if (mmMasters.empty())
    return false;
  for (const std::unique_ptr<TrafficPath>& path : paths)
    if (path->highPriorityRouting && path->master->isMaster &&
        path->master->protocol == Defs::AXI_MM)
      highPriorityMasters.push_back(path->master);

  TrafficLInst* errorSlave = addErrorSlave_(getErrorSlaveName());
  for (TrafficLInst* master : mmMasters)
    if (pathsByEnds.count({master, errorSlave}) == 0)
      addPath(master, errorSlave);
  if (!highPriorityMasters.empty()) {
    TrafficLInst* hpErrorSlave = addErrorSlave_(getErrorSlaveName_hp());
    for (TrafficLInst* master : highPriorityMasters)
      if (pathsByEnds.count({master, hpErrorSlave}) == 0)
        addPath(master, hpErrorSlave)->highPriorityRouting = true;
  }
  return true;
}

const std::string& TrafficSpec::getErrorSlaveName()
{
  static const std::string name("noc_error_slave");
  return name;
}

const std::string& TrafficSpec::getErrorSlaveName_hp()
{
  static const std::string name("noc_error_slave_hp");
  return name;
}

TrafficLInst* TrafficSpec::getLogicalMaster(const std::string& name) const
{
  return find_(masters, name);
}

TrafficLInst* TrafficSpec::getLogicalSlave(const std::string& name) const
{
  return find_(slaves, name);
}

TrafficLInst* TrafficSpec::getLogicalMasterUsingExternalConns(const std::string& name) const
{
  return find_(mastersByExternalConn, name);
}

TrafficLInst* TrafficSpec::getLogicalSlaveUsingExternalConns(const std::string& name) const
{
  return find_(slavesByExternalConn, name);
}

void TrafficSpec::getAllLogicalInstance(std::vector<const TrafficLInst*>& out) const
{
  out.reserve(out.size() + instances.size());
  for (const std::unique_ptr<TrafficLInst>& instance : instances)
    out.push_back(instance.get());
}

const std::set<std::string>* TrafficSpec::getAllPhasesForPhaseGroup(const std::string& group) const
{
  static const std::set<std::string> none;
  const auto found = phaseGroups.find(group);
  return found == phaseGroups.end() ? &none : &found->second.phases;
}

unsigned TrafficSpec::getPhaseNumber(const std::string& phase) const
{
  const auto found = phaseNumbers.find(phase);
  return found == phaseNumbers.end() ? noPhase : found->second;
}

TrafficSpec::InstanceTable& TrafficSpec::tableOf_(TrafficLInst::Kind kind)
{
  switch (kind) {
  case TrafficLInst::Kind::master: return masters;
  case TrafficLInst::Kind::slave: return slaves;
  default: return others;
  }
}

void TrafficSpec::indexExternalConns_(TrafficLInst& instance, InstanceTable& index)
{
  for (const std::vector<std::string>& names : instance.externalConns)
    for (const std::string& name : names)
      index.emplace(name, &instance);
}

TrafficLInst* TrafficSpec::find_(const InstanceTable& table, const std::string& name) const
{
  const auto found = table.find(name);
  return found == table.end() ? nullptr : found->second;
}

TrafficLInst* TrafficSpec::addErrorSlave_(const std::string& name)
{
  return addLogicalInstance(name, Defs::AXI_MM, Defs::PS_NSU, {});
}

void TrafficSpec::addPhase_(const std::string& group, const std::string& phase)
{
  auto [entry, newGroup] = phaseGroups.try_emplace(group);
  if (newGroup)
    phaseGroupNames.push_back(group);
  PhaseGroup& phases = entry->second;
  if (!phases.phases.insert(phase).second)
    return;
  phaseNumbers.emplace(phase, static_cast<unsigned>(phases.byNumber.size()));
  phases.byNumber.push_back(phase);
}

const std::string* TrafficSpec::getPhaseName_(const std::string& group, unsigned number) const
{
  const auto found = phaseGroups.find(group);
  if (found == phaseGroups.end() || number >= found->second.byNumber.size())
    return nullptr;
  return &found->second.byNumber[number];
}

}  // namespace HrdIPToolCntr
