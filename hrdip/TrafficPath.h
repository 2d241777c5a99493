#pragma once

#include "Definitions.h"
#include "IndexedPairs.h"
#include "TrafficAddressSpace.h"
#include "TrafficNet.h"
#include "ipconfig_hrdip_export.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace HrdIPToolCntr {

class TrafficLInst;
class TrafficSpec;

// The traffic between one master and one slave, carried by its nets.
//
// The path's own figures are those of the default phase. A path may also
// carry figures per phase of one phase group; a phase it has no figures for
// falls back to the path's own.
class IPCONFIG_HRDIP_EXPORT TrafficPath : public TrafficAddressSpace {
public:
  using PerfSpec = TrafficPerfSpec;

  // Made by TrafficSpec::addPath, which owns it, at `index`. A stream path
  // (its master speaks AXI_STRM) has one write net; any other path has a
  // read, a write, a read request and a write response net, in that order.
  TrafficPath(TrafficSpec& spec, int index, TrafficLInst* master, TrafficLInst* slave);
  TrafficPath(const TrafficPath&) = delete;
  TrafficPath& operator=(const TrafficPath&) = delete;
  ~TrafficPath();

  TrafficLInst* master;
  TrafficLInst* slave;
  DevHrdIP::Definitions::PORT_TYPE slavePort = DevHrdIP::Definitions::PORT_NONE;
  std::string exclusiveGroup;
  std::string separateRoutingGroup;
  int phase = 0;
  std::uint16_t destIdIndex = 0;
  bool hasDestIdIndex = false;
  DevHrdIP::Definitions::Write_Order writeOrder = DevHrdIP::Definitions::WO_INVALID;
  bool initialBoot = false;
  bool highPriorityRouting = false;
  // The group of the phases this path has figures for.
  std::string phaseGroupName;

  void setSlavePort(DevHrdIP::Definitions::PORT_TYPE port) { slavePort = port; }
  void setWoc(DevHrdIP::Definitions::Write_Order order) { writeOrder = order; }

  void setReadPerfSpec(const PerfSpec& spec) { readPerf = spec; }
  void setWritePerfSpec(const PerfSpec& spec) { writePerf = spec; }
  // The figures of one phase. Enters the phase in the group, and the group
  // becomes the path's phase group.
  void setReadPerfSpec(const std::string& group, const std::string& phaseName,
                       const PerfSpec& spec);
  void setWritePerfSpec(const std::string& group, const std::string& phaseName,
                        const PerfSpec& spec);
  const PerfSpec& getReadPerfSpec() const { return readPerf; }
  const PerfSpec& getWritePerfSpec() const { return writePerf; }
  PerfSpec getReadPerfSpec(const std::string& phaseName) const;
  PerfSpec getWritePerfSpec(const std::string& phaseName) const;

  void setReadAvgBurst(unsigned short burst) { readAvgBurst = burst; }
  void setWriteAvgBurst(unsigned short burst) { writeAvgBurst = burst; }
  void setReadAvgBurst(unsigned short burst, const std::string& phaseName);
  void setWriteAvgBurst(unsigned short burst, const std::string& phaseName);
  unsigned short getReadAvgBurst() const { return readAvgBurst; }
  unsigned short getWriteAvgBurst() const { return writeAvgBurst; }
  unsigned short getReadAvgBurst(const std::string& phaseName) const;
  unsigned short getWriteAvgBurst(const std::string& phaseName) const;

  // True when the path has figures for a phase other than the default one,
  // which its own figures already stand for.
  bool hasMultipleReadPhases() const;
  bool hasMultipleWritePhases() const;

  // Ranges of destination identifier indexes, start and end. Walked from 0
  // until false.
  void addDestIdIdx(std::pair<unsigned char, unsigned char> startAndEnd)
  {
    destIdIdxs.add(startAndEnd);
  }
  bool hasValidDestIdIdx(int index) const { return destIdIdxs.hasValid(index); }
  unsigned char getDestIdIdxStart(int index) const { return destIdIdxs.first(index); }
  unsigned char getDestIdIdxEnd(int index) const { return destIdIdxs.second(index); }

  // Null past the last net.
  const TrafficNet* getNet(int index) const;
  TrafficNet* getNet(int index);
  int getNumNets() const { return static_cast<int>(nets.size()); }

  const TrafficSpec& getSpec() const { return spec; }
  // The path's index in its TrafficSpec (TrafficSpec::getPath).
  int getIndex() const { return index; }

private:
  struct PhaseFigures {
    std::map<std::string, PerfSpec> perf;
    std::map<std::string, unsigned short> avgBurst;
  };

  void setPhasePerfSpec_(PhaseFigures& figures, const std::string& group,
                         const std::string& phaseName, const PerfSpec& spec);

  TrafficSpec& spec;
  int index;
  std::vector<TrafficNet> nets;
  PerfSpec readPerf;
  PerfSpec writePerf;
  unsigned short readAvgBurst = 0;
  unsigned short writeAvgBurst = 0;
  PhaseFigures readPhases;
  PhaseFigures writePhases;
  IndexedPairs<unsigned char> destIdIdxs;
};

}  // namespace HrdIPToolCntr
