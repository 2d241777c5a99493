#include "LogicalArchWriterModelRenamer.h"

#include "ZXLogicalArchLInst.h"
#include "ZXLogicalConnection.h"
#include "ZXLogicalPort.h"

#include <boost/format.hpp>

#include <algorithm>
#include <iterator>

namespace IPConfig::Frameworks {

namespace {

using Counters = LogicalArchWriterModelRenamer::CounterStuct;
using Direction = ZXLogicalConnection::Direction;
using Connection = ZXLogicalConnection;

// A printf format with one number, and the counter that gives the number.
struct Family {
  const char* format;
  std::uint32_t Counters::*counter;
};

// The families of the two port types that get names, for one direction.
struct DirectionFamilies {
  Direction direction;
  Family stream;
  Family mem;
};

// Seen from the NoC: a connection into the NoC gives a slave name.
const DirectionFamilies nocFamilies[] = {
    {Connection::ZX_TO_NOC, {"S%02d_AXIS", &Counters::nocSAxis}, {"S%02d_AXI", &Counters::nocSAxi}},
    {Connection::PL_TO_NOC, {"S%02d_AXIS", &Counters::nocSAxis}, {"S%02d_AXI", &Counters::nocSAxi}},
    {Connection::NOC_TO_ZX, {"M%02d_AXIS", &Counters::nocMAxis}, {"M%02d_AXI", &Counters::nocMAxi}},
    {Connection::NOC_TO_PL, {"M%02d_AXIS", &Counters::nocMAxis}, {"M%02d_AXI", &Counters::nocMAxi}},
};

// Names that spell out both ends.
const DirectionFamilies zxFamilies[] = {
    {Connection::ZX_TO_PL,
     {"ZX_PL_AXIS_%d", &Counters::zxPlAxis},
     {"ZX_PL_AXI_%d", &Counters::zxPlAxi}},
    {Connection::PL_TO_ZX,
     {"PL_ZX_AXIS_%d", &Counters::plZxAxis},
     {"PL_ZX_AXI_%d", &Counters::plZxAxi}},
    {Connection::ZX_TO_NOC,
     {"ZX_NOC_AXIS_%d", &Counters::zxNocAxis},
     {"ZX_NOC_AXI_%d", &Counters::zxNocAxi}},
    {Connection::NOC_TO_ZX,
     {"NOC_ZX_AXIS_%d", &Counters::nocZxAxis},
     {"NOC_ZX_AXI_%d", &Counters::nocZxAxi}},
};

// Seen from the array: a connection out of the array gives a master name,
// and the PL and NoC sides share one sequence.
const DirectionFamilies zxAxiFamilies[] = {
    {Connection::ZX_TO_PL, {"M%02d_AXIS", &Counters::zxMAxis}, {"M%02d_AXI", &Counters::zxMAxi}},
    {Connection::PL_TO_ZX, {"S%02d_AXIS", &Counters::zxSAxis}, {"S%02d_AXI", &Counters::zxSAxi}},
    {Connection::ZX_TO_NOC, {"M%02d_AXIS", &Counters::zxMAxis}, {"M%02d_AXI", &Counters::zxMAxi}},
    {Connection::NOC_TO_ZX, {"S%02d_AXIS", &Counters::zxSAxis}, {"S%02d_AXI", &Counters::zxSAxi}},
};

// The name `family` gives next; the counter moves on.
std::string nextName(Counters& counters, const Family& family)
{
  std::uint32_t& counter = counters.*family.counter;
  return boost::str(boost::format(family.format) % counter++);
}

// The family of the port's connection direction and type, or null when the
// port keeps its name.
template <std::size_t N>
const Family* familyOf(const ZXLogicalPort& port, const DirectionFamilies (&table)[N])
{
  if (!port.connection)
    return nullptr;
  const Direction direction = port.connection->connectionDirection;
  const auto row = std::find_if(std::begin(table), std::end(table),
                                [&](const DirectionFamilies& entry) {
                                  return entry.direction == direction;
                                });
  if (row == std::end(table))
    return nullptr;
  if (port.portType == ZXLogicalPort::STREAM)
    return &row->stream;
  if (port.portType == ZXLogicalPort::MEM)
    return &row->mem;
  return nullptr;
}

}  // namespace

LogicalArchWriterModelRenamer::LogicalArchWriterModelRenamer(bool useAxiPortNames)
    : useAxiPortNames(useAxiPortNames)
{
}

LogicalArchWriterModelRenamer::~LogicalArchWriterModelRenamer() = default;

std::string LogicalArchWriterModelRenamer::rename(ZXLogicalPort* port)
{
  switch (port->owner ? port->owner->getKind() : UNSET_INSTANCE) {
  case NOC_INSTANCE:
    return renameNOCPort(port);
  case ZX_INSTANCE:
    return renameZXPort(port);
  case PL_INSTANCE:
    return renamePLPort(port);
  default:
    return port->name;
  }
}

std::string LogicalArchWriterModelRenamer::rename(ZXLogicalConnection* connection)
{
  return connection->name;
}

std::string LogicalArchWriterModelRenamer::rename(ZXLogicalArchLInst* instance)
{
  return instance->name;
}

std::string LogicalArchWriterModelRenamer::rename(ZXLogicalArchModel*)
{
  return {};
}

std::string LogicalArchWriterModelRenamer::renamePLPort(ZXLogicalPort* port)
{
  port->name = nextName(countersOf_(*port), {"port%d", &CounterStuct::pl});
  return port->name;
}

std::string LogicalArchWriterModelRenamer::renameNOCPort(ZXLogicalPort* port)
{
  if (const Family* family = familyOf(*port, nocFamilies))
    port->name = nextName(countersOf_(*port), *family);
  return port->name;
}

std::string LogicalArchWriterModelRenamer::renameZXPort(ZXLogicalPort* port)
{
  const Family* family =
      useAxiPortNames ? familyOf(*port, zxAxiFamilies) : familyOf(*port, zxFamilies);
  if (family)
    port->name = nextName(countersOf_(*port), *family);
  return port->name;
}

LogicalArchWriterModelRenamer::CounterStuct& LogicalArchWriterModelRenamer::countersOf_(
    const ZXLogicalPort& port)
{
  return counters[port.owner];
}

}  // namespace IPConfig::Frameworks
