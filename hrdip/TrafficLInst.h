#pragma once

#include "Definitions.h"
#include "TrafficAddressSpace.h"
#include "ipconfig_hrdip_export.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace HrdIPToolCntr {

// A logical instance of the traffic model: a block of the design that
// attaches to the NoC. The fields below are read and set directly by the
// files; the ones that have setters are set through them.
class IPCONFIG_HRDIP_EXPORT TrafficLInst : public TrafficAddressSpace {
public:
  // Whether an instance of the type starts traffic (a master: every NMU type,
  // the processors PS_RPU and PS_RPU_2, and the array's ports towards the
  // NoC), ends it (a slave: every NSU type, every memory controller type and
  // the NoC's ports towards the array), or is neither (switches, shims and
  // the tiles of the array).
  enum class Kind { master, slave, other };
  static Kind kindOf(DevHrdIP::Definitions::COMP_TYPE type);

  // The master flag follows kindOf(type); the instance is the error slave if
  // it is a slave and its name ends with one of the error slaves' names.
  TrafficLInst(const std::string& name, DevHrdIP::Definitions::AxiProt protocol,
               DevHrdIP::Definitions::COMP_TYPE type,
               const std::vector<std::vector<std::string>>& externalConns);
  TrafficLInst(const TrafficLInst&) = default;
  TrafficLInst& operator=(const TrafficLInst&) = default;
  ~TrafficLInst();

  bool isMaster;
  DevHrdIP::Definitions::AxiProt protocol;
  DevHrdIP::Definitions::COMP_TYPE compType;
  bool firewall = false;
  std::map<std::string, std::string> memoryParams;
  std::map<std::string, std::string> configParams;
  std::string name;
  std::string designName;
  unsigned axiWidth = 0;
  std::uint16_t numReadOutstanding = 0;
  std::uint16_t numWriteOutstanding = 0;
  float readRateLimiter = 0;
  float writeRateLimiter = 0;
  unsigned ddrInterleaveSize = 0;
  // Lists of names of outside blocks that reach the NoC through this instance.
  std::vector<std::vector<std::string>> externalConns;
  bool isVirtual = false;
  DevHrdIP::Definitions::TrafficClass readTC = DevHrdIP::Definitions::BE;
  DevHrdIP::Definitions::TrafficClass writeTC = DevHrdIP::Definitions::BE;
  bool useDestIdIdx = false;
  std::uint16_t destId = 0;
  bool hasDestId = false;
  std::string ipName;

  void setReadTC(DevHrdIP::Definitions::TrafficClass tc) { readTC = tc; }
  void setWriteTC(DevHrdIP::Definitions::TrafficClass tc) { writeTC = tc; }
  void setNumReadOutstanding(unsigned short count) { numReadOutstanding = count; }
  void setNumWriteOutstanding(unsigned short count) { numWriteOutstanding = count; }
  void setReadRateLimiter(float limit) { readRateLimiter = limit; }
  void setWriteRateLimiter(float limit) { writeRateLimiter = limit; }
  void setAxiWidth(unsigned width) { axiWidth = width; }
  void setDdrInterleaveSize(unsigned size) { ddrInterleaveSize = size; }
  void setDdrInterleaveSel(unsigned short sel) { ddrInterleaveSel = sel; }
  unsigned short getDdrInterleaveSel() const { return ddrInterleaveSel; }
  void setHasParityAddr(bool has) { parityAddr = has; }
  bool hasParityAddr() const { return parityAddr; }
  void setHasParityData(bool has) { parityData = has; }
  bool hasParityData() const { return parityData; }

  // Ports of a memory controller, in the order first given; a port given
  // again is not repeated.
  void addPortType(DevHrdIP::Definitions::PORT_TYPE port);
  const std::vector<DevHrdIP::Definitions::PORT_TYPE>& getPortTypes() const { return portTypes; }

  // The first value given for a name stays.
  void addMemoryParam(const std::string& paramName, const std::string& value);

  bool isErrorSlave() const { return errorSlave; }

private:
  unsigned short ddrInterleaveSel = 0;
  bool parityAddr = false;
  bool parityData = false;
  std::vector<DevHrdIP::Definitions::PORT_TYPE> portTypes;
  bool errorSlave;
};

}  // namespace HrdIPToolCntr
