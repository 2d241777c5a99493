#include "ZXLogicalPort.h"

#include "ZXLogicalArchLInst.h"
#include "ZXLogicalArchModelRenameInterface.h"
#include "ZXLogicalArchModelVisitorInterface.h"

#include <boost/algorithm/string/join.hpp>

#include <algorithm>

namespace IPConfig::Frameworks {

namespace {

std::string firstOf(const std::vector<std::string>& list)
{
  return list.empty() ? std::string() : list.front();
}

std::string joinNonEmpty(const std::vector<std::string>& list)
{
  return boost::algorithm::join_if(list, ";", [](const std::string& entry) {
    return !entry.empty();
  });
}

}  // namespace

ZXLogicalPort::ZXLogicalPort(const std::string& name) : name(name) {}

ZXLogicalPort::ZXLogicalPort(const ZXLogicalPort& other)
    : name(other.name),
      clkFreq(other.clkFreq),
      dataWidth(other.dataWidth),
      busWidth(other.busWidth),
      parameterIndex(other.parameterIndex),
      traceFile(other.traceFile),
      qpechannel(other.qpechannel),
      logicalInstNames(other.logicalInstNames),
      annotation(other.annotation),
      hw_annotation(other.hw_annotation),
      sdfioName(other.sdfioName),
      vlnvName(other.vlnvName),
      portType(other.portType),
      direction(other.direction),
      registeredInterface(other.registeredInterface),
      tracedInterface(other.tracedInterface)
{
}

ZXLogicalPort* ZXLogicalPort::clone() const
{
  return new ZXLogicalPort(*this);
}

void ZXLogicalPort::accept(const ZXLogicalArchModelVisitorInterface& visitor)
{
  visitor.visit(this);
}

void ZXLogicalPort::rename(ZXLogicalArchModelRenameInterface& renamer)
{
  renamer.rename(this);
  if (owner)
    owner->portRenamed_();
}

std::string ZXLogicalPort::getSDFIONameFirst() const
{
  return firstOf(sdfioName);
}

std::string ZXLogicalPort::getAnnotationFirst() const
{
  return firstOf(annotation);
}

std::string ZXLogicalPort::getHWAnnotationORAnnotationFirst() const
{
  return getAnnotationFirst();
}

std::string ZXLogicalPort::getSDFIONamesAsString() const
{
  return joinNonEmpty(sdfioName);
}

std::string ZXLogicalPort::getAnnotationsAsString() const
{
  return joinNonEmpty(annotation);
}

bool ZXLogicalPort::matchSWAnnotation(const std::string& wanted) const
{
  return !wanted.empty() &&
         std::find(annotation.begin(), annotation.end(), wanted) != annotation.end();
}

bool ZXLogicalPort::matchSWAnnotation(const std::vector<std::string>& wanted) const
{
  return std::any_of(wanted.begin(), wanted.end(),
                     [this](const std::string& entry) { return matchSWAnnotation(entry); });
}

bool ZXLogicalPort::matchHWAnnotation(const std::string& wanted) const
{
  return !hw_annotation.empty() && hw_annotation == wanted;
}

}  // namespace IPConfig::Frameworks
