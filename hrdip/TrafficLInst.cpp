#include "TrafficLInst.h"

#include "TrafficSpec.h"

#include <boost/algorithm/string/predicate.hpp>

#include <algorithm>

namespace HrdIPToolCntr {

namespace Defs = DevHrdIP::Definitions;

namespace {

bool isErrorSlaveName(const std::string& name)
{
  return boost::algorithm::ends_with(name, TrafficSpec::getErrorSlaveName()) ||
         boost::algorithm::ends_with(name, TrafficSpec::getErrorSlaveName_hp());
}

}  // namespace

TrafficLInst::Kind TrafficLInst::kindOf(Defs::COMP_TYPE type)
{
  if (type == Defs::COMP_TYPE_UNKNOWN)
    return Kind::other;
  const std::string& text = Defs::toStr(type);
  if (text.find("_NMU") != std::string::npos || type == Defs::PS_RPU ||
      type == Defs::PS_RPU_2 || type == Defs::ZX_TO_NOC_AXIMM || type == Defs::QPE_TO_NOC_AXIMM)
    return Kind::master;
  if (text.find("_NSU") != std::string::npos || (type >= Defs::DDRC && type <= Defs::HBMMC_3) ||
      type == Defs::NOC_TO_ZX_AXIMM || type == Defs::NOC_TO_QPE_AXIMM)
    return Kind::slave;
  return Kind::other;
}

TrafficLInst::TrafficLInst(const std::string& name, Defs::AxiProt protocol, Defs::COMP_TYPE type,
                           const std::vector<std::vector<std::string>>& externalConns)
  : isMaster(kindOf(type) == Kind::master),
    protocol(protocol),
    compType(type),
    name(name),
    externalConns(externalConns),
    errorSlave(kindOf(type) == Kind::slave && isErrorSlaveName(name))
{
}

TrafficLInst::~TrafficLInst() = default;

void TrafficLInst::addPortType(Defs::PORT_TYPE port)
{
  if (std::find(portTypes.begin(), portTypes.end(), port) == portTypes.end())
    portTypes.push_back(port);
}

void TrafficLInst::addMemoryParam(const std::string& paramName, const std::string& value)
{
  memoryParams.emplace(paramName, value);
}

}  // namespace HrdIPToolCntr
