#pragma once

#include "Definitions.h"
#include "HrdIPConstants.h"
#include "TrafficLInst.h"
#include "TrafficNet.h"
#include "TrafficPath.h"
#include "ipconfig_hrdip_export.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace HrdIPToolCntr {

// What a design asks of the NoC: the logical instances that attach to it,
// the paths between them, and a few system-wide settings.
//
// The model owns its instances, paths and nets; every pointer it hands out
// stays valid for its life. Names are looked up through hash maps.
//
// Instances fall into three tables by their component type
// (TrafficLInst::kindOf): masters, slaves, and the others. A name is unique
// within a table: adding a name again gives the instance already there.
//
// Phases belong to phase groups. A phase is numbered from 0 within its group,
// in the order of its first appearance; a phase name keeps the number of the
// group it first appeared in.
//
// The error slaves answer the accesses that no other slave takes; see
// addErrorSlaveAndRoutes.
class IPCONFIG_HRDIP_EXPORT TrafficSpec {
public:
  using InstanceTable = std::unordered_map<std::string, TrafficLInst*>;
  using ExternalConns = std::vector<std::vector<std::string>>;

  TrafficSpec();
  TrafficSpec(const TrafficSpec&) = delete;
  TrafficSpec& operator=(const TrafficSpec&) = delete;
  ~TrafficSpec();

  int frequency = 0;
  bool frequencyUserSet = false;
  bool secureMode = false;
  std::string deviceName;
  // In the order of their first appearance.
  std::vector<std::string> phaseGroupNames;

  TrafficLInst* addLogicalInstance(const std::string& name, DevHrdIP::Definitions::AxiProt protocol,
                                   DevHrdIP::Definitions::COMP_TYPE type,
                                   const ExternalConns& externalConns);
  // The same instance, not entered in this model.
  TrafficLInst createNonTrafficSpecLogicalInstance(const std::string& name,
                                                   DevHrdIP::Definitions::AxiProt protocol,
                                                   DevHrdIP::Definitions::COMP_TYPE type,
                                                   const ExternalConns& externalConns) const;
  // Adds the port to the memory controller; the path names the port it uses,
  // so nothing else is kept for it here.
  void addPortTypeForMC(TrafficLInst* instance, DevHrdIP::Definitions::PORT_TYPE port);

  // A new path and its nets (see TrafficPath). Paths are kept by index.
  TrafficPath* addPath(TrafficLInst* master, TrafficLInst* slave);
  int getNumPaths() const { return static_cast<int>(paths.size()); }
  TrafficPath* getPath(int index) const;
  // The nets of every path from `master` to `slave`, in path order.
  std::vector<TrafficNet*> getNets(const TrafficLInst* master, const TrafficLInst* slave) const;

  // Hierarchy prefixes of the reconfigurable partitions; each ends in "/".
  void addDfxPath(const std::string& path) { dfxPaths.push_back(path); }
  const std::vector<std::string>& getDfxPaths() const { return dfxPaths; }
  bool hasDfxPaths() const { return !dfxPaths.empty(); }

  void setFrequency(int value, bool userSet);
  // The frequency if the user set it, else 0.
  int getUserSetFrequency() const { return frequencyUserSet ? frequency : 0; }
  void setSecureMode(bool secure) { secureMode = secure; }

  // The error slave is a slave named getErrorSlaveName(); it is present once
  // added, or once an instance of that name was read back from a file.
  bool hasErrorSlave() const;
  // Adds the error slave if missing, with a path to it from every master
  // that speaks AXI_MM and has none yet. If any path of such a master asks
  // for high priority routing, also adds the high priority error slave
  // (getErrorSlaveName_hp()) with a high priority path to it from each of
  // those masters. Both slaves are PS_NSU instances speaking AXI_MM. Returns
  // whether the error slave is now present: false when there is no such
  // master, in which case nothing is added.
  bool addErrorSlaveAndRoutes();
  static const std::string& getErrorSlaveName();
  static const std::string& getErrorSlaveName_hp();

  // Null if none.
  TrafficLInst* getLogicalMaster(const std::string& name) const;
  TrafficLInst* getLogicalSlave(const std::string& name) const;
  TrafficLInst* hasLogicalMaster(const std::string& name) const { return getLogicalMaster(name); }
  TrafficLInst* hasLogicalSlave(const std::string& name) const { return getLogicalSlave(name); }
  // By a name in the instances' external connections; the first instance
  // added that lists the name wins.
  TrafficLInst* getLogicalMasterUsingExternalConns(const std::string& name) const;
  TrafficLInst* getLogicalSlaveUsingExternalConns(const std::string& name) const;
  // Appends every instance in the order added.
  void getAllLogicalInstance(std::vector<const TrafficLInst*>& out) const;
  const InstanceTable& getMasters() const { return masters; }
  const InstanceTable& getSlaves() const { return slaves; }
  // Instances that are neither master nor slave.
  const InstanceTable& getOthers() const { return others; }

  // The phases of a group, sorted; an unknown group gives an empty set.
  const std::set<std::string>* getAllPhasesForPhaseGroup(const std::string& group) const;
  // The number of the phase in its group; noPhase if it is in none.
  unsigned getPhaseNumber(const std::string& phase) const;
  static constexpr unsigned noPhase = ~0u;

private:
  friend class TrafficPath;
  friend class TrafficNet;

  struct PhaseGroup {
    std::set<std::string> phases;
    std::vector<std::string> byNumber;
  };

  InstanceTable& tableOf_(TrafficLInst::Kind kind);
  void indexExternalConns_(TrafficLInst& instance, InstanceTable& index);
  TrafficLInst* find_(const InstanceTable& table, const std::string& name) const;
  TrafficLInst* addErrorSlave_(const std::string& name);
  // Enters the phase in the group, which is created on first use.
  void addPhase_(const std::string& group, const std::string& phase);
  // The name of a phase of the group by its number; null if none.
  const std::string* getPhaseName_(const std::string& group, unsigned number) const;

  std::vector<std::unique_ptr<TrafficLInst>> instances;
  InstanceTable masters;
  InstanceTable slaves;
  InstanceTable others;
  InstanceTable mastersByExternalConn;
  InstanceTable slavesByExternalConn;
  std::vector<std::unique_ptr<TrafficPath>> paths;
  std::map<std::pair<const TrafficLInst*, const TrafficLInst*>, std::vector<TrafficPath*>>
      pathsByEnds;
  std::vector<std::string> dfxPaths;
  std::unordered_map<std::string, PhaseGroup> phaseGroups;
  std::unordered_map<std::string, unsigned> phaseNumbers;
};

}  // namespace HrdIPToolCntr
