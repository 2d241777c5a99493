#include "TrafficPath.h"

#include "TrafficLInst.h"
#include "TrafficSpec.h"

namespace HrdIPToolCntr {

namespace Defs = DevHrdIP::Definitions;

namespace {

template <typename Value>
Value phaseValue(const std::map<std::string, Value>& values, const std::string& phaseName,
                 const Value& plain)
{
  const auto found = values.find(phaseName);
  return found == values.end() ? plain : found->second;
}

bool hasPhaseBesidesDefault(const std::map<std::string, TrafficPerfSpec>& phases)
{
  return phases.size() > phases.count(DEFAULT_PHASE);
}

}  // namespace

TrafficPath::TrafficPath(TrafficSpec& spec, int index, TrafficLInst* master,
                         TrafficLInst* slave)
  : master(master), slave(slave), phaseGroupName(DEFAULT_GROUP), spec(spec), index(index)
{
  if (master->protocol == Defs::AXI_STRM) {
    nets.emplace_back(this, TrafficNet::WRITE, 0);
    return;
  }
  nets.reserve(4);
  for (TrafficNet::NetType type :
       {TrafficNet::READ, TrafficNet::WRITE, TrafficNet::READ_REQ, TrafficNet::WRITE_RESP})
    nets.emplace_back(this, type, getNumNets());
}

TrafficPath::~TrafficPath() = default;

void TrafficPath::setReadPerfSpec(const std::string& group, const std::string& phaseName,
                                  const PerfSpec& perf)
{
  setPhasePerfSpec_(readPhases, group, phaseName, perf);
}

void TrafficPath::setWritePerfSpec(const std::string& group, const std::string& phaseName,
                                   const PerfSpec& perf)
{
  setPhasePerfSpec_(writePhases, group, phaseName, perf);
}

TrafficPath::PerfSpec TrafficPath::getReadPerfSpec(const std::string& phaseName) const
{
  return phaseValue(readPhases.perf, phaseName, readPerf);
}

TrafficPath::PerfSpec TrafficPath::getWritePerfSpec(const std::string& phaseName) const
{
  return phaseValue(writePhases.perf, phaseName, writePerf);
}

void TrafficPath::setReadAvgBurst(unsigned short burst, const std::string& phaseName)
{
  readPhases.avgBurst[phaseName] = burst;
}

void TrafficPath::setWriteAvgBurst(unsigned short burst, const std::string& phaseName)
{
  writePhases.avgBurst[phaseName] = burst;
}

unsigned short TrafficPath::getReadAvgBurst(const std::string& phaseName) const
{
  return phaseValue(readPhases.avgBurst, phaseName, readAvgBurst);
}

unsigned short TrafficPath::getWriteAvgBurst(const std::string& phaseName) const
{
  return phaseValue(writePhases.avgBurst, phaseName, writeAvgBurst);
}

bool TrafficPath::hasMultipleReadPhases() const
{
  return hasPhaseBesidesDefault(readPhases.perf);
}

bool TrafficPath::hasMultipleWritePhases() const
{
  return hasPhaseBesidesDefault(writePhases.perf);
}

const TrafficNet* TrafficPath::getNet(int index) const
{
  return index >= 0 && index < getNumNets() ? &nets[index] : nullptr;
}

TrafficNet* TrafficPath::getNet(int index)
{
  return index >= 0 && index < getNumNets() ? &nets[index] : nullptr;
}

void TrafficPath::setPhasePerfSpec_(PhaseFigures& figures, const std::string& group,
                                    const std::string& phaseName, const PerfSpec& perf)
{
  spec.addPhase_(group, phaseName);
  phaseGroupName = group;
  figures.perf[phaseName] = perf;
}

}  // namespace HrdIPToolCntr
