#pragma once

#include "Definitions.h"
#include "HCRapidJsonReadWriteUtils.h"

#include <functional>
#include <string>
#include <vector>

class HIPLogicalObjectNameResolverInterface;

namespace HrdIPToolCntr {
class TrafficLInst;
}

namespace NOC {

// Reads one element of "LogicalInstances", the record that the traffic and
// the solution files share. Where the instance lives and how its name and
// memory controller ports are taken in differ between the two files; the
// caller says so through the three hooks.
class NOCJsonLogicalInstanceReader {
public:
  using ExternalConns = std::vector<std::vector<std::string>>;
  // The resolved name of a name in the file; false if it has none.
  using ResolveName = std::function<bool(const std::string& name, std::string& out)>;
  // The instance that the resolved name stands for, ready to be filled.
  using CreateInstance = std::function<HrdIPToolCntr::TrafficLInst&(
      const std::string& resolvedName, DevHrdIP::Definitions::AxiProt protocol,
      DevHrdIP::Definitions::COMP_TYPE type, const ExternalConns& externalConns)>;
  using AddPort =
      std::function<void(HrdIPToolCntr::TrafficLInst& instance, DevHrdIP::Definitions::PORT_TYPE)>;

  NOCJsonLogicalInstanceReader(const std::string& fileName,
                               const HIPLogicalObjectNameResolverInterface& resolver,
                               ResolveName resolveName, CreateInstance createInstance,
                               AddPort addPort);

  // Reads `element` into a new instance and gives its resolved name. A bad
  // type or name goes to errorParsingJsonFile.
  std::string read(const JValue& element) const;

private:
  void readMasterProperties_(const JValue& element, HrdIPToolCntr::TrafficLInst& instance) const;
  void readSlaveProperties_(const JValue& element, HrdIPToolCntr::TrafficLInst& instance) const;
  void readMemoryControllerProperties_(const JValue& element,
                                       DevHrdIP::Definitions::SLV_COMP_TYPE slaveType,
                                       HrdIPToolCntr::TrafficLInst& instance) const;
  void readDestId_(const JValue& element, HrdIPToolCntr::TrafficLInst& instance) const;
  ExternalConns externalConns_(const std::string& text) const;

  const std::string& fileName;
  const HIPLogicalObjectNameResolverInterface& resolver;
  ResolveName resolveName;
  CreateInstance createInstance;
  AddPort addPort;
};

}  // namespace NOC
