#include "NOCJsonSolutionReader.h"

#include "CompRes.h"
#include "HIPDevice.h"
#include "HIPLogicalObjectNameResolverInterfaceIdentity.h"
#include "IPConfigMessages.h"
#include "JsonFileFrame.h"
#include "NOCJsonLogicalInstanceReader.h"
#include "NOCJsonObjectWalk.h"
#include "NOCJsonReadWriteUtils.h"
#include "NOCModel.h"
#include "TrafficSpec.h"

#include <boost/algorithm/string/predicate.hpp>

#include <regex>
#include <set>
#include <stdexcept>
#include <unordered_map>

namespace NOC {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using Walk = NOCJsonObjectWalk;
using IPConfig::JsonFileFrame;
using HrdIPToolCntr::CompRes;
using HrdIPToolCntr::TrafficLInst;
using HrdIPToolCntr::TrafficNet;
using HrdIPToolCntr::TrafficPath;
using HrdIPToolCntr::TrafficSpec;
namespace Defs = DevHrdIP::Definitions;

int solutionType(const std::string& text)
{
  static const std::unordered_map<std::string, int> types{
      {"NO_SOLUTION", CompRes::NO_SOLUTION},
      {"OPTIMAL", CompRes::OPTIMAL},
      {"SUBOPTIMAL", CompRes::SUBOPTIMAL},
      {"DEADLOCKS", CompRes::DEADLOCKS}};
  const auto found = types.find(text);
  return found == types.end() ? CompRes::NO_SOLUTION : found->second;
}

// The net type of a "CommType" text; 4 matches no net.
int netType(const std::string& text)
{
  static const std::unordered_map<std::string, int> types{{"READ", TrafficNet::READ},
                                                          {"WRITE", TrafficNet::WRITE},
                                                          {"READ_REQ", TrafficNet::READ_REQ},
                                                          {"WRITE_RESP", TrafficNet::WRITE_RESP}};
  const auto found = types.find(text);
  return found == types.end() ? 4 : found->second;
}

unsigned unsignedProperty(const JValue& object, const char* key)
{
  return static_cast<unsigned>(Json::GetULongProperty(object, key));
}

// An achieved bandwidth is taken only when it is an unsigned number.
unsigned achievedBw(const JValue& object, const char* key)
{
  return Json::IsULongProperty(object, key) ? unsignedProperty(object, key) : 0;
}

bool isDdr(Defs::COMP_TYPE type)
{
  return type == Defs::DDRC || (type >= Defs::DDR5 && type <= Defs::DDR5X);
}

bool isQpe(Defs::COMP_TYPE type)
{
  return type == Defs::QPE_NMU || type == Defs::QPE_NMU_2 || type == Defs::QPE_NSU ||
         type == Defs::QPE_NSU_2;
}

// A device without a NoC model knows no component and no link.
const DevHrdIP::NOCModel& nocModelOf(const CompRes& result)
{
  static const DevHrdIP::NOCModel noDevice;
  const DevHrdIP::NOCModel* model = result.device ? result.device->getNOCModel() : nullptr;
  return model ? *model : noDevice;
}

const std::string& nameOf(const TrafficLInst* instance)
{
  static const std::string none;
  return instance ? instance->name : none;
}

// Calls `known` on each element of the group's "Phases" that `phases` holds,
// and `unknown` with the name of every other one.
template <typename Known, typename Unknown>
void forEachPhase(const JValue& group, const std::set<std::string>* phases, const Known& known,
                  const Unknown& unknown)
{
  Walk::forEachObject(group, "Phases", [&](const JValue& phase) {
    const std::string phaseName = Json::GetStringProperty(phase, "Name");
    if (phases && phases->count(phaseName) != 0)
      known(phase, phaseName);
    else
      unknown(phaseName);
  });
}

}  // namespace

struct NOCJsonSolutionReader::Context {
  const std::string& fileName;
  const HIPLogicalObjectNameResolverInterface& resolver;
  const TrafficSpec& spec;
  CompRes& result;
  const DevHrdIP::NOCModel& model;
  const PhysicalToLogical& physicalToLogical;
  const RangeOwners& rangeOwners;
  InstanceRanges* instanceRanges;
  InitialBootCount* initialBoot;
  // The file's own copy of the logical instances, by resolved name.
  std::unordered_map<std::string, TrafficLInst> localInstances;
};

// What one element of "Paths" gathers while its nets are read.
struct NOCJsonSolutionReader::PathRead {
  std::string resolvedFrom;
  std::string resolvedTo;
  TrafficLInst* master = nullptr;
  TrafficLInst* slave = nullptr;
  bool fromLocked = false;
  bool toLocked = false;
  bool pathLocked = false;
  Defs::PORT_TYPE port = Defs::PORT_NONE;
  std::vector<TrafficNet*> nets;
  unsigned readLatencySum = 0;
  unsigned writeLatencySum = 0;
  // The path of the last net that matched an element.
  const TrafficPath* path = nullptr;
  CompRes::PhaseBw readPhaseBw;
  CompRes::PhaseBw writePhaseBw;
};

// What one element of a path's "Nets" gathers from its phase groups.
struct NOCJsonSolutionReader::NetRead {
  const TrafficNet& net;
  const std::string& commType;
  unsigned achievedBw;
  CompRes::PhaseBw phaseBw;
  // The phase whose bandwidth is the net's own.
  std::string limitingPhase;
};

bool NOCJsonSolutionReader::readFromJsonFile(
    const std::string& path, HIPLogicalObjectNameResolverInterface& resolver,
    const TrafficSpec& spec, CompRes& result, HDGUIStatus& status,
    const PhysicalToLogical& physicalToLogical, const RangeOwners& rangeOwners,
    InstanceRanges* instanceRanges, InitialBootCount* initialBoot)
{
  JsonFileFrame::readFile(path, isl::iostreams::xp_autodetect(),
                          [&](std::istream& in, const std::string& canonicalName) {
                            readFromJsonFile(in, canonicalName, resolver, spec, result, status,
                                             physicalToLogical, rangeOwners, instanceRanges,
                                             initialBoot);
                          });
  return true;
}

bool NOCJsonSolutionReader::readFromJsonFile(
    std::istream& in, const std::string& fileName, HIPLogicalObjectNameResolverInterface& resolver,
    const TrafficSpec& spec, CompRes& result, HDGUIStatus&,
    const PhysicalToLogical& physicalToLogical, const RangeOwners& rangeOwners,
    InstanceRanges* instanceRanges, InitialBootCount* initialBoot)
{
  JDocument document;
  JsonFileFrame::parse(in, fileName, document);
  JsonFileFrame::validate(document, fileName, NOCJsonReadWriteUtils::getSolutionJsonSchemaFile(),
                          isl::iostreams::xp_autodetect());
  Context context{fileName,          resolver,    spec,           result,
                  nocModelOf(result), physicalToLogical, rangeOwners, instanceRanges,
                  initialBoot,       {}};
  result.solutionType = solutionType(Json::GetStringProperty(document, "SolutionType"));
  result.setHasLockedDestIdsForAllComps(Json::GetBooleanProperty(document, "LockAllDestIds"));
  readLogicalInstances_(document, context);
  Walk::forEachObject(document, "Paths",
                      [&](const JValue& element) { readPath_(element, context); });
  Walk::forEachObject(document, "Components",
                      [&](const JValue& element) { readComponent_(element, context); });
  return true;
}

bool NOCJsonSolutionReader::readFromJsonFile(const std::string& path, const TrafficSpec& spec,
                                             CompRes& result, HDGUIStatus& status,
                                             const PhysicalToLogical& physicalToLogical,
                                             const RangeOwners& rangeOwners,
                                             InstanceRanges* instanceRanges,
                                             InitialBootCount* initialBoot)
{
  HIPLogicalObjectNameResolverInterfaceIdentity identity;
  return readFromJsonFile(path, identity, spec, result, status, physicalToLogical, rangeOwners,
                          instanceRanges, initialBoot);
}

bool NOCJsonSolutionReader::readFromJsonFile(std::istream& in, const std::string& fileName,
                                             const TrafficSpec& spec, CompRes& result,
                                             HDGUIStatus& status)
{
  HIPLogicalObjectNameResolverInterfaceIdentity identity;
  return readFromJsonFile(in, fileName, identity, spec, result, status, {}, {}, nullptr, nullptr);
}

bool NOCJsonSolutionReader::resolveNameUsingResolverInterface(
    const HIPLogicalObjectNameResolverInterface& resolver, const TrafficSpec& spec,
    const std::string& name, std::string& out)
{
  if (boost::algorithm::ends_with(name, TrafficSpec::getErrorSlaveName()) ||
      boost::algorithm::ends_with(name, TrafficSpec::getErrorSlaveName_hp())) {
    // An error slave keeps its name unless it lies in a reconfigurable partition.
    out = name;
    if (!spec.hasDfxPaths())
      return true;
    out = resolver.resolveLogicalInstancePropertyValue(name);
    for (const std::string& dfxPath : spec.getDfxPaths())
      if (boost::algorithm::starts_with(out, dfxPath))
        return true;
    out = name;
    return true;
  }
  out = resolver.resolveLogicalInstanceName(name);
  if (!out.empty())
    return true;
  const std::size_t slash = name.rfind('/');
  const std::string head = slash == std::string::npos ? std::string() : name.substr(0, slash);
  const std::string tail = slash == std::string::npos ? name : name.substr(slash + 1);
  out = resolver.resolveLogicalInstanceScopedName(head);
  if (!out.empty())
    out += "/" + tail;
  if (out.empty())
    out = resolver.resolveLogicalInstancePropertyValue(name);
  return !out.empty();
}

void NOCJsonSolutionReader::getDDRInfo(const std::string& name, int& index, std::string& dimm)
{
  index = -1;
  dimm.clear();
  try {
    static const std::regex controller("MC(\\d+)_ddrc");
    static const std::regex dimmPhy("/MC[0-4]_ddrc/inst/noc_ddr5_phy/inst/DDRMC5_DIMM_(A|B)");
    std::smatch match;
    if (std::regex_search(name, match, controller)) {
      try {
        index = std::stoi(match[1].str());
      } catch (const std::logic_error&) {
        index = -1;
      }
    }
    if (std::regex_search(name, match, dimmPhy))
      dimm = match[1].str();
  } catch (const std::regex_error&) {
    index = -1;
    dimm.clear();
  }
}

void NOCJsonSolutionReader::readLogicalInstances_(const JValue& root, Context& context)
{
  const NOCJsonLogicalInstanceReader instanceReader(
      context.fileName, context.resolver,
      [&](const std::string& name, std::string& out) {
        return resolveNameUsingResolverInterface(context.resolver, context.spec, name, out);
      },
      [&](const std::string& resolvedName, Defs::AxiProt protocol, Defs::COMP_TYPE type,
          const TrafficSpec::ExternalConns& externalConns) -> TrafficLInst& {
        return context.localInstances
            .insert_or_assign(resolvedName, context.spec.createNonTrafficSpecLogicalInstance(
                                                resolvedName, protocol, type, externalConns))
            .first->second;
      },
      [](TrafficLInst& instance, Defs::PORT_TYPE port) { instance.addPortType(port); });
  Walk::forEachObject(root, "LogicalInstances",
                      [&](const JValue& element) { instanceReader.read(element); });
}

void NOCJsonSolutionReader::readPath_(const JValue& element, Context& context)
{
  PathRead path;
  path.fromLocked = Json::GetBooleanProperty(element, "FromLocked");
  path.toLocked = Json::GetBooleanProperty(element, "ToLocked");
  const std::string portText = Json::GetStringProperty(element, "Port");
  const unsigned readAchievedBw = achievedBw(element, "ReadAchievedBW");
  const unsigned writeAchievedBw = achievedBw(element, "WriteAchievedBW");
  const unsigned readLatency = unsignedProperty(element, "ReadLatency");
  const unsigned writeLatency = unsignedProperty(element, "WriteLatency");
  path.pathLocked = Json::GetBooleanProperty(element, "PathLocked");
  if (context.initialBoot && Walk::hasMember(element, "InitialBoot")) {
    context.initialBoot->first += Json::GetBooleanProperty(element, "InitialBoot") ? 1 : 0;
    context.initialBoot->second = 1;
  }

  findPathEnds_(element, path, context);
  path.nets = context.spec.getNets(path.master, path.slave);
  path.port = Defs::toPtEnum(portText);
  Walk::forEachObject(element, "Nets",
                      [&](const JValue& net) { readNet_(net, path, context); });
  Walk::forEachObject(element, "PhaseGroups",
                      [&](const JValue& group) { readPathPhaseGroup_(group, path, context); });

  if (!path.path)
    return;
  if (readLatency != 0) {
    context.result.readLatencyBw[path.path] = {path.readLatencySum, readAchievedBw};
    for (const auto& [phase, bw] : path.readPhaseBw)
      context.result.addBPLReadPhase(path.path, phase, bw);
  }
  if (writeLatency != 0) {
    context.result.writeLatencyBw[path.path] = {path.writeLatencySum, writeAchievedBw};
    for (const auto& [phase, bw] : path.writePhaseBw)
      context.result.addBPLWritePhase(path.path, phase, bw);
  }
}

void NOCJsonSolutionReader::findPathEnds_(const JValue& element, PathRead& path, Context& context)
{
  const TrafficSpec& spec = context.spec;
  resolveNameUsingResolverInterface(context.resolver, spec,
                                    Json::GetStringProperty(element, "From"), path.resolvedFrom);
  resolveNameUsingResolverInterface(context.resolver, spec, Json::GetStringProperty(element, "To"),
                                    path.resolvedTo);
  path.master = spec.getLogicalMaster(path.resolvedFrom);
  path.slave = spec.getLogicalSlave(path.resolvedTo);
  const bool foundByName = path.master && path.slave;
  if (!path.master)
    path.master = spec.getLogicalMasterUsingExternalConns(path.resolvedFrom);
  if (!path.slave)
    path.slave = spec.getLogicalSlaveUsingExternalConns(path.resolvedTo);
  const auto nets = element.FindMember("Nets");
  if (!foundByName && (!path.master || !path.slave) && !context.physicalToLogical.empty() &&
      nets != element.MemberEnd() && nets->value.IsArray() && !nets->value.Empty() &&
      nets->value[0].IsObject())
    placeByPhysicalNames_(nets->value[0], path, context);

  const auto local = context.localInstances.find(path.resolvedTo);
  // The file's copy of the slave dies with the call: hand out the model's ranges.
  if (context.instanceRanges && path.slave && local != context.localInstances.end() &&
      !path.slave->getSysAddressRanges().empty())
    (*context.instanceRanges)[local->second.name] = path.slave->getSysAddressRanges();

  if (!path.master)
    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, "@75-698@%s%s%s", context.fileName, "Master",
                      path.resolvedFrom);
  if (!path.slave)
    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, "@75-698@%s%s%s", context.fileName, "Slave",
                      path.resolvedTo);
}

// Paths whose ends the traffic model does not know by name: the master by
// the component the first net starts at, the slave by the address ranges of
// the file's copy of it or by the component the net ends at.
void NOCJsonSolutionReader::placeByPhysicalNames_(const JValue& firstNet, PathRead& path,
                                                  Context& context)
{
  const std::string startName = Json::GetStringProperty(firstNet, "PhyInstanceStart");
  const std::string endName = Json::GetStringProperty(firstNet, "PhyInstanceEnd");
  const DevHrdIP::Component* start = context.model.getComponent(startName);
  const DevHrdIP::Component* end = context.model.getComponent(endName);
  const bool startIsPS = start && Defs::isPS(start->getType());
  const bool startIsPL = start && Defs::isPL(start->getType());
  const bool endIsPL = end && Defs::isPL(end->getType());
  const bool endIsDDR = end && isDdr(end->getType());
  const bool endIsQPE = end && isQpe(end->getType());
  const bool slaveWasMissing = !path.slave;

  if (!path.master && !startIsPL) {
    const auto logical = context.physicalToLogical.find(startName);
    path.master = logical == context.physicalToLogical.end()
                      ? nullptr
                      : context.spec.getLogicalMaster(logical->second);
  }

  const auto local = context.localInstances.find(path.resolvedTo);
  if (!path.slave && startIsPS && (endIsPL || endIsDDR || endIsQPE) &&
      local != context.localInstances.end()) {
    const auto owners = context.rangeOwners.find(local->second.getSysAddressRanges());
    if (owners != context.rangeOwners.end()) {
      int index = -1;
      std::string dimm;
      getDDRInfo(local->second.name, index, dimm);
      for (const std::string& owner : owners->second) {
        int ownerIndex = -1;
        std::string ownerDimm;
        getDDRInfo(owner, ownerIndex, ownerDimm);
        if (endIsDDR && (ownerIndex != index || ownerDimm != dimm))
          continue;
        if (TrafficLInst* slave = context.spec.getLogicalSlave(owner)) {
          path.slave = slave;
          break;
        }
      }
    }
  }

  if (slaveWasMissing && !endIsPL && !endIsDDR) {
    const auto logical = context.physicalToLogical.find(endName);
    if (logical != context.physicalToLogical.end())
      path.slave = context.spec.getLogicalSlave(logical->second);
  }
}

void NOCJsonSolutionReader::readNet_(const JValue& element, PathRead& path, Context& context)
{
  const std::string commType = Json::GetStringProperty(element, "CommType");
  const auto vc = static_cast<unsigned char>(Json::GetULongProperty(element, "VC"));
  const unsigned netAchievedBw = unsignedProperty(element, "AchievedBW");
  const unsigned achievedLatency = unsignedProperty(element, "AchievedLatency");

  // The last net of the type on the path's port takes the route.
  const int type = netType(commType);
  const TrafficNet* net = nullptr;
  for (const TrafficNet* candidate : path.nets)
    if (candidate->type == type && candidate->path->slavePort == path.port)
      net = candidate;
  if (!net)
    return;
  path.path = net->path;
  (net->isRead() ? path.readLatencySum : path.writeLatencySum) += achievedLatency;

  std::vector<const DevHrdIP::Link*> links;
  const std::vector<std::string> ends = Json::GetStringArrayProperty(element, "Connections");
  for (std::size_t i = 0; i + 3 < ends.size(); i += 4) {
    const DevHrdIP::Link* link =
        context.model.getLinkBetween(ends[i], ends[i + 1], ends[i + 2], ends[i + 3]);
    if (!link)
      throw std::runtime_error("No Connection between " + ends[i] + ":" + ends[i + 1] + " to " +
                               ends[i + 2] + ":" + ends[i + 3] +
                               "\nDevice Model version mismatch!"
                               "\nPlease make sure checkpoint and Ostrand versions match!");
    links.push_back(link);
  }

  NetRead read{*net, commType, netAchievedBw, {}, {}};
  Walk::forEachObject(element, "PhaseGroups",
                      [&](const JValue& group) { readNetPhaseGroup_(group, read, context); });
  if (read.phaseBw.empty())
    context.result.addRoute(net, links, vc, netAchievedBw, path.pathLocked);
  else
    context.result.addRouteWithPhases(net, links, read.phaseBw, vc, netAchievedBw,
                                      read.limitingPhase, path.pathLocked);
  // A locked path locks its route, not its ends.
  if (path.pathLocked)
    return;
  if (path.fromLocked)
    context.result.lockLogicalInst(path.master);
  if (path.toLocked)
    context.result.lockLogicalInst(path.slave);
}

void NOCJsonSolutionReader::readNetPhaseGroup_(const JValue& group, NetRead& read,
                                               Context& context)
{
  const std::string groupName = Json::GetStringProperty(group, "Name");
  const std::string& instance = nameOf(read.net.instance);
  if (groupName != read.net.path->phaseGroupName) {
    IPCONFIG_SEND_MSG(ComMsgMgr::Error, "@75-4367@%s%s%s%s%s", context.fileName, groupName,
                      instance, instance, read.commType);
    return;
  }
  const std::set<std::string>* phases = context.spec.getAllPhasesForPhaseGroup(groupName);
  forEachPhase(
      group, phases,
      [&](const JValue& phase, const std::string& phaseName) {
        const unsigned bw = unsignedProperty(phase, "AchievedBW");
        read.phaseBw[phaseName] = bw;
        if (bw == read.achievedBw)
          read.limitingPhase = phaseName;
      },
      [&](const std::string& phaseName) {
        IPCONFIG_SEND_MSG(ComMsgMgr::Error, "@75-4365@%s%s%s%s%s", context.fileName, phaseName,
                          instance, instance, read.commType);
      });
  if (!phases)
    return;
  for (const std::string& phase : *phases)
    if (read.phaseBw.count(phase) == 0)
      read.phaseBw[phase] = read.net.getPerfSpec(context.spec.getPhaseNumber(phase)).bandwidth;
}

void NOCJsonSolutionReader::readPathPhaseGroup_(const JValue& group, PathRead& path,
                                                Context& context)
{
  const std::string groupName = Json::GetStringProperty(group, "Name");
  const std::string& masterName = path.path ? path.path->master->name : path.resolvedFrom;
  const std::string& slaveName = path.path ? path.path->slave->name : path.resolvedTo;
  if (!path.path || groupName != path.path->phaseGroupName) {
    IPCONFIG_SEND_MSG(ComMsgMgr::Error, "@75-4368@%s%s%s%s", context.fileName, groupName,
                      masterName, slaveName);
    return;
  }
  const std::set<std::string>* phases = context.spec.getAllPhasesForPhaseGroup(groupName);
  forEachPhase(
      group, phases,
      [&](const JValue& phase, const std::string& phaseName) {
        path.readPhaseBw[phaseName] = achievedBw(phase, "ReadAchievedBW");
        path.writePhaseBw[phaseName] = achievedBw(phase, "WriteAchievedBW");
      },
      [&](const std::string& phaseName) {
        IPCONFIG_SEND_MSG(ComMsgMgr::Error, "@75-4366@%s%s%s%s", context.fileName, phaseName,
                          masterName, slaveName);
      });
  if (!phases)
    return;

  // The phases the file leaves out: what the routes achieved, or failing a
  // route, what the path asks for.
  const TrafficNet* readNet = nullptr;
  const TrafficNet* writeNet = nullptr;
  for (int i = 0; const TrafficNet* net = path.path->getNet(i); ++i) {
    if (!readNet && net->type == TrafficNet::READ && context.result.getRouteForNet(net))
      readNet = net;
    if (!writeNet && net->type == TrafficNet::WRITE && context.result.getRouteForNet(net))
      writeNet = net;
  }
  const auto achieved = [&](const TrafficNet* net, const std::string& phase) {
    return net->getEffectiveBw(context.result.getRouteForNet(net)->getAchievedPhaseBW(phase),
                               phase);
  };
  for (const std::string& phase : *phases) {
    if (path.readPhaseBw.count(phase) == 0)
      path.readPhaseBw[phase] =
          readNet ? achieved(readNet, phase) : path.path->getReadPerfSpec(phase).bandwidth;
    if (path.writePhaseBw.count(phase) == 0)
      path.writePhaseBw[phase] =
          writeNet ? achieved(writeNet, phase) : path.path->getWritePerfSpec(phase).bandwidth;
  }
}

void NOCJsonSolutionReader::readComponent_(const JValue& element, Context& context)
{
  const std::string name = Json::GetStringProperty(element, "Name");
  const DevHrdIP::Component* component = context.model.getComponent(name);
  if (!component) {
    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, "@75-184@%s", name);
    return;
  }
  const DevHrdIP::Component::Role role = component->getRole();
  const bool placeable =
      role == DevHrdIP::Component::MASTER_SIDE || role == DevHrdIP::Component::SLAVE_SIDE;
  if (placeable && Json::IsStringProperty(element, "TrafficLInst")) {
    const std::string text = Json::GetStringProperty(element, "TrafficLInst");
    std::string resolved;
    if (!resolveNameUsingResolverInterface(context.resolver, context.spec, text, resolved))
      resolved = text;
    const TrafficLInst* instance = role == DevHrdIP::Component::MASTER_SIDE
                                       ? context.spec.getLogicalMaster(resolved)
                                       : context.spec.getLogicalSlave(resolved);
    if (instance)
      context.result.addPlacement(instance, component);
  }
  const CompRes::DestId destId(
      static_cast<unsigned long>(Json::GetIntegrProperty(element, "DestId")));
  const std::vector<const DevHrdIP::Component*>& ports = component->getSubComponents();
  if (ports.empty())
    context.result.setDestIdForComponent(component, destId);
  else
    context.result.setDestIdForComponent(
        ports.at(static_cast<std::size_t>(Json::GetIntegrProperty(element, "PortIndex"))), destId);
}

}  // namespace NOC
