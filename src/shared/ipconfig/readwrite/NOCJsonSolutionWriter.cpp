#include "NOCJsonSolutionWriter.h"

#include "CompRes.h"
#include "Component.h"
#include "HIPDevice.h"
#include "HIPLogicalObjectNameResolverInterface.h"
#include "HIPLogicalObjectNameResolverInterfaceIdentity.h"
#include "JsonFileFrame.h"
#include "Link.h"
#include "NOCJsonLogicalInstancesWriter.h"
#include "NOCJsonReadWriteUtils.h"
#include "NOCJsonScopedNames.h"
#include "NOCModel.h"
#include "TrafficLInst.h"
#include "TrafficNet.h"
#include "TrafficPath.h"
#include "TrafficSpec.h"

#include <set>

namespace NOC {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using HrdIPToolCntr::CompRes;
using HrdIPToolCntr::Route;
using HrdIPToolCntr::TrafficLInst;
using HrdIPToolCntr::TrafficNet;
using HrdIPToolCntr::TrafficPath;
using HrdIPToolCntr::TrafficSpec;
using IPConfig::JsonFileFrame;
namespace Defs = DevHrdIP::Definitions;

const char* solutionTypeText(int type)
{
  switch (type) {
  case CompRes::OPTIMAL: return "OPTIMAL";
  case CompRes::SUBOPTIMAL: return "SUBOPTIMAL";
  case CompRes::DEADLOCKS: return "DEADLOCKS";
  default: return "NO_SOLUTION";
  }
}

const char* netTypeText(TrafficNet::NetType type)
{
  switch (type) {
  case TrafficNet::WRITE: return "WRITE";
  case TrafficNet::READ: return "READ";
  case TrafficNet::READ_REQ: return "READ_REQ";
  default: return "WRITE_RESP";
  }
}

// A memory controller's destination identifiers belong to its ports.
bool isMemoryController(Defs::COMP_TYPE type)
{
  return type == Defs::DDRC || (type >= Defs::DDR5 && type <= Defs::DDR6) || type == Defs::HBMMC;
}

bool isLockedPlacement(const CompRes& result, const TrafficLInst* instance)
{
  const auto placement = result.placements.find(instance);
  return placement != result.placements.end() && placement->second.second;
}

const std::set<std::string>& phasesOf(const TrafficSpec& spec, const std::string& group)
{
  static const std::set<std::string> none;
  const std::set<std::string>* phases = spec.getAllPhasesForPhaseGroup(group);
  return phases != nullptr ? *phases : none;
}

}  // namespace

struct NOCJsonSolutionWriter::Context {
  const TrafficSpec& spec;
  const CompRes& result;
  const Filter& filter;
  HIPLogicalObjectNameResolverInterface& resolver;
  bool full;
};

bool NOCJsonSolutionWriter::writeToJsonFile(std::ostream& out, const TrafficSpec& spec,
                                            const CompRes& result, const Filter& filter,
                                            HIPLogicalObjectNameResolverInterface& resolver,
                                            HDGUIStatus&, bool full)
{
  const Context context{spec, result, filter, resolver, full};
  JDocument document(rapidjson::kObjectType);
  JAllocator& alloc = document.GetAllocator();
  writeSolutionType_(context, document, alloc);
  writeLogicalInstances_(context, document, alloc);
  writePaths_(context, document, alloc);
  writeComponents_(context, document, alloc);
  return JsonFileFrame::writeValidated(document, out,
                                       NOCJsonReadWriteUtils::getSolutionJsonSchemaFile(),
                                       "NoC Solution");
}

bool NOCJsonSolutionWriter::writeToJsonFile(std::ostream& out, const TrafficSpec& spec,
                                            const CompRes& result, HDGUIStatus& status,
                                            bool full)
{
  HIPLogicalObjectNameResolverInterfaceIdentity identity;
  return writeToJsonFile(out, spec, result, AllTrafficSpecFilterObj(), identity, status, full);
}

bool NOCJsonSolutionWriter::writeToJsonFile(const std::string& path, const TrafficSpec& spec,
                                            const CompRes& result, HDGUIStatus& status,
                                            bool full)
{
  return JsonFileFrame::writeFile(
      path, JsonFileFrame::OpenCheck::refuseUnopened,
      [&](std::ostream& out) { return writeToJsonFile(out, spec, result, status, full); });
}

std::string NOCJsonSolutionWriter::getVirtualININame(
    const TrafficLInst* instance, HIPLogicalObjectNameResolverInterface& resolver)
{
  return NOCJsonScopedNames::externalConn(resolver, *instance).firstName;
}

std::string NOCJsonSolutionWriter::endName_(const TrafficLInst& instance,
                                            HIPLogicalObjectNameResolverInterface& resolver)
{
  if (!resolver.isPropertyValueWithinScope(instance.name))
    return getVirtualININame(&instance, resolver);
  return NOCJsonScopedNames::instanceName(resolver, instance);
}

void NOCJsonSolutionWriter::writeSolutionType_(const Context& context, JValue& root,
                                               JAllocator& alloc)
{
  Json::AddStringProperty(root, "SolutionType", solutionTypeText(context.result.solutionType),
                          alloc);
  Json::AddBooleanProperty(root, "LockAllDestIds",
                           context.result.hasLockedDestIdsForAllComps(), alloc);
}

void NOCJsonSolutionWriter::writeLogicalInstances_(const Context& context, JValue& root,
                                                   JAllocator& alloc)
{
  if (!context.full)
    return;
  std::vector<const TrafficLInst*> instances;
  context.spec.getAllLogicalInstance(instances);
  NOCJsonLogicalInstancesWriter::addLogicalInstances(instances, context.filter, context.resolver,
                                                     root, alloc);
}

void NOCJsonSolutionWriter::writePaths_(const Context& context, JValue& root, JAllocator& alloc)
{
  // The routes are kept in the model's order of nets: the routes of a path
  // are one run of them, and the runs come in path order. Routes of nets
  // from another model are passed over.
  JValue array(rapidjson::kArrayType);
  const CompRes::Routes& routes = context.result.routes;
  RoutedNets nets;
  for (auto entry = routes.begin(); entry != routes.end();) {
    const int pathIndex = entry->first->path->getIndex();
    nets.clear();
    for (; entry != routes.end() && entry->first->path->getIndex() == pathIndex; ++entry)
      if (&entry->first->path->getSpec() == &context.spec)
        nets.emplace_back(entry->first, &entry->second);
    if (nets.empty())
      continue;
    const TrafficPath& path = *nets.front().first->path;
    if (context.filter(path.master) && context.filter(path.slave))
      array.PushBack(writePath_(path, nets, context, alloc), alloc);
  }
  Json::AddGenericValueProperty(root, "Paths", array, alloc);
}

JValue NOCJsonSolutionWriter::writePath_(const TrafficPath& path, const RoutedNets& nets,
                                         const Context& context, JAllocator& alloc)
{
  const CompRes& result = context.result;
  const TrafficPath::PerfSpec& read = path.getReadPerfSpec();
  const TrafficPath::PerfSpec& write = path.getWritePerfSpec();

  // In phase mode the required bandwidth is that of the phase which limited
  // the path's last net of the direction, if that net is routed.
  const auto limitingPhase = [&](TrafficNet::NetType type) -> const std::string* {
    const TrafficNet* last = nullptr;
    for (int index = 0; index < path.getNumNets(); ++index)
      if (path.getNet(index)->type == type)
        last = path.getNet(index);
    for (const auto& [net, route] : nets)
      if (net == last && result.phaseMode && !route->limitingPhase.empty())
        return &route->limitingPhase;
    return nullptr;
  };
  const std::string* readPhase = limitingPhase(TrafficNet::READ);
  const std::string* writePhase = limitingPhase(TrafficNet::WRITE);
  const unsigned readBw = readPhase ? path.getReadPerfSpec(*readPhase).bandwidth : read.bandwidth;
  const unsigned writeBw =
      writePhase ? path.getWritePerfSpec(*writePhase).bandwidth : write.bandwidth;

  // An unknown read figure is written as asked for, an unknown write one as
  // -1, which the reader takes for 0.
  const auto readAchieved = result.readLatencyBw.find(&path);
  const auto writeAchieved = result.writeLatencyBw.find(&path);
  const long readAchievedBw = readAchieved != result.readLatencyBw.end()
                                   ? static_cast<long>(readAchieved->second.second)
                                   : static_cast<long>(read.bandwidth);
  const long writeAchievedBw = writeAchieved != result.writeLatencyBw.end()
                                   ? static_cast<long>(writeAchieved->second.second)
                                   : -1L;
  // A path is locked when the route of any of its nets is.
  bool locked = false;
  for (const auto& routed : nets)
    locked = locked || routed.second->locked;

  JValue object(rapidjson::kObjectType);
  Json::AddIntegrProperty(object, "Phase", path.phase, alloc);
  Json::AddStringProperty(object, "From", endName_(*path.master, context.resolver), alloc);
  Json::AddBooleanProperty(object, "FromLocked", isLockedPlacement(result, path.master), alloc);
  Json::AddStringProperty(object, "To", endName_(*path.slave, context.resolver), alloc);
  Json::AddBooleanProperty(object, "ToLocked", isLockedPlacement(result, path.slave), alloc);
  const std::string& port = Defs::toStr(path.slavePort);
  if (!port.empty())
    Json::AddStringProperty(object, "Port", port, alloc);
  Json::AddStringProperty(object, "ReadTC", Defs::toStr(read.trafficClass), alloc);
  Json::AddStringProperty(object, "WriteTC", Defs::toStr(write.trafficClass), alloc);
  Json::AddULongProperty(object, "ReadBW", readBw, alloc);
  Json::AddULongProperty(object, "WriteBW", writeBw, alloc);
  object.AddMember("ReadAchievedBW", JValue(static_cast<int64_t>(readAchievedBw)), alloc);
  object.AddMember("WriteAchievedBW", JValue(static_cast<int64_t>(writeAchievedBw)), alloc);
  Json::AddULongProperty(object, "ReadLatency", read.latency, alloc);
  Json::AddULongProperty(object, "WriteLatency", write.latency, alloc);
  // Keys too long to sit inside a value are referred to, not copied: with no
  // allocation between them, the path's members grow in place.
  object.AddMember("ReadBestPossibleLatency", JValue(static_cast<uint64_t>(read.latency)), alloc);
  object.AddMember("WriteBestPossibleLatency", JValue(static_cast<uint64_t>(write.latency)),
                   alloc);
  Json::AddBooleanProperty(object, "PathLocked", locked, alloc);
  if (context.full)
    Json::AddBooleanProperty(object, "InitialBoot", path.initialBoot, alloc);
  writePathPhaseGroups_(path, context, object, alloc);
  writeNets_(nets, context, object, alloc);
  return object;
}

void NOCJsonSolutionWriter::writePathPhaseGroups_(const TrafficPath& path, const Context& context,
                                                  JValue& object, JAllocator& alloc)
{
  if (!context.result.phaseMode)
    return;
  const auto achieved = [](const std::map<const TrafficPath*, CompRes::PhaseBw>& byPath,
                           const TrafficPath& key, const std::string& phase, long unknown) {
    const auto entry = byPath.find(&key);
    if (entry == byPath.end())
      return unknown;
    const auto value = entry->second.find(phase);
    return value != entry->second.end() ? static_cast<long>(value->second) : unknown;
  };
  JValue phases(rapidjson::kArrayType);
  for (const std::string& name : phasesOf(context.spec, path.phaseGroupName)) {
    const unsigned readBw = path.getReadPerfSpec(name).bandwidth;
    JValue phase(rapidjson::kObjectType);
    Json::AddStringProperty(phase, "Name", name, alloc);
    Json::AddULongProperty(phase, "ReadBW", readBw, alloc);
    Json::AddULongProperty(phase, "WriteBW", path.getWritePerfSpec(name).bandwidth, alloc);
    phase.AddMember("ReadAchievedBW",
                    JValue(static_cast<int64_t>(
                        achieved(context.result.readPhaseBw, path, name, readBw))),
                    alloc);
    phase.AddMember(
        "WriteAchievedBW",
        JValue(static_cast<int64_t>(achieved(context.result.writePhaseBw, path, name, -1))),
        alloc);
    phases.PushBack(phase, alloc);
  }
  JValue group(rapidjson::kObjectType);
  Json::AddStringProperty(group, "Name", path.phaseGroupName, alloc);
  Json::AddGenericValueProperty(group, "Phases", phases, alloc);
  JValue groups(rapidjson::kArrayType);
  groups.PushBack(group, alloc);
  Json::AddGenericValueProperty(object, "PhaseGroups", groups, alloc);
}

void NOCJsonSolutionWriter::writeNets_(const RoutedNets& nets, const Context& context,
                                       JValue& object, JAllocator& alloc)
{
  JValue array(rapidjson::kArrayType);
  array.Reserve(static_cast<rapidjson::SizeType>(nets.size()), alloc);
  for (const auto& [net, route] : nets)
    // A route needs a start and an end link to be read back.
    if (route->links.size() >= 2)
      array.PushBack(writeNet_(*net, *route, context, alloc), alloc);
  Json::AddGenericValueProperty(object, "Nets", array, alloc);
}

JValue NOCJsonSolutionWriter::writeNet_(const TrafficNet& net, const Route& route,
                                        const Context& context, JAllocator& alloc)
{
  const bool phased = context.result.phaseMode && !route.limitingPhase.empty();
  const unsigned requiredBw =
      phased ? net.getPerfSpec(context.spec.getPhaseNumber(route.limitingPhase)).bandwidth
             : net.getPerfSpec().bandwidth;

  JValue object(rapidjson::kObjectType);
  Json::AddStringProperty(object, "PhyInstanceStart",
                          route.links.front()->getFirstComponent()->getName(), alloc);
  Json::AddStringProperty(object, "PhyInstanceEnd",
                          route.links.back()->getSecondComponent()->getName(), alloc);
  Json::AddULongProperty(object, "VC", route.vc, alloc);
  Json::AddStringProperty(object, "CommType", netTypeText(net.type), alloc);
  // The device outlives the document, so its names are referred to, not
  // copied.
  JValue connections(rapidjson::kArrayType);
  connections.Reserve(static_cast<rapidjson::SizeType>(route.links.size() * 4), alloc);
  for (const DevHrdIP::Link* link : route.links)
    for (const std::string* text :
         {&link->getFirstComponent()->getName(), &link->getFirstPort(),
          &link->getSecondComponent()->getName(), &link->getSecondPort()})
      connections.PushBack(
          JValue(rapidjson::StringRef(text->c_str(), static_cast<rapidjson::SizeType>(text->size()))),
          alloc);
  Json::AddGenericValueProperty(object, "Connections", connections, alloc);
  Json::AddULongProperty(object, "RequiredBW", requiredBw, alloc);
  Json::AddULongProperty(object, "AchievedBW", route.achievedBw, alloc);
  Json::AddULongProperty(object, "RequiredLatency", net.getPerfSpec().latency, alloc);
  Json::AddULongProperty(object, "AchievedLatency", route.getStructLatency(), alloc);
  if (context.result.phaseMode)
    writeNetPhaseGroups_(net, route, object, alloc);
  return object;
}

void NOCJsonSolutionWriter::writeNetPhaseGroups_(const TrafficNet& net, const Route& route,
                                                 JValue& object, JAllocator& alloc)
{
  const TrafficSpec& spec = net.path->getSpec();
  JValue phases(rapidjson::kArrayType);
  for (const std::string& name : phasesOf(spec, net.path->phaseGroupName)) {
    JValue phase(rapidjson::kObjectType);
    Json::AddStringProperty(phase, "Name", name, alloc);
    Json::AddULongProperty(phase, "RequiredBW",
                           net.getPerfSpec(spec.getPhaseNumber(name)).bandwidth, alloc);
    Json::AddULongProperty(phase, "AchievedBW", route.getAchievedPhaseBW(name), alloc);
    phases.PushBack(phase, alloc);
  }
  JValue group(rapidjson::kObjectType);
  Json::AddStringProperty(group, "Name", net.path->phaseGroupName, alloc);
  Json::AddGenericValueProperty(group, "Phases", phases, alloc);
  JValue groups(rapidjson::kArrayType);
  groups.PushBack(group, alloc);
  Json::AddGenericValueProperty(object, "PhaseGroups", groups, alloc);
}

void NOCJsonSolutionWriter::writeComponents_(const Context& context, JValue& root,
                                             JAllocator& alloc)
{
  const CompRes& result = context.result;
  JValue components(rapidjson::kArrayType);
  const DevHrdIP::NOCModel* model =
      result.device != nullptr ? result.device->getNOCModel() : nullptr;
  if (model != nullptr)
    for (const DevHrdIP::Component* component : model->getAllTopLevelComponents()) {
      const auto placed = result.placedInstances.find(component);
      const TrafficLInst* instance =
          placed != result.placedInstances.end() ? placed->second : nullptr;
      const std::string instanceName =
          instance != nullptr ? endName_(*instance, context.resolver) : std::string();
      const bool controller = isMemoryController(component->getType());
      const std::size_t candidates = controller ? component->getSubComponents().size() : 1;
      for (std::size_t index = 0; index < candidates; ++index) {
        const DevHrdIP::Component* candidate =
            controller ? component->getSubComponents()[index] : component;
        if (!result.hasDestIdForComponent(candidate))
          continue;
        JValue element(rapidjson::kObjectType);
        Json::AddStringProperty(element, "Name", component->getName(), alloc);
        if (instance != nullptr)
          Json::AddStringProperty(element, "TrafficLInst", instanceName, alloc);
        Json::AddIntegrProperty(element, "DestId",
                                result.getDestIdForComponent(candidate).getValue(),
                                alloc);
        if (controller)
          Json::AddIntegrProperty(element, "PortIndex", static_cast<int>(index), alloc);
        components.PushBack(element, alloc);
      }
    }
  Json::AddGenericValueProperty(root, "Components", components, alloc);
}

}  // namespace NOC
