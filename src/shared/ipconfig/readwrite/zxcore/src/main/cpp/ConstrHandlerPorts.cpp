// The handler's operations of the port kinds: locations, stream channels and
// FIFO locations.

#include "ConstrHandler.h"
#include "ConstrCast.h"
#include "ConstrHandlerTemplates.h"
#include "FifoLocationsConstr.h"
#include "PortLocConstr.h"
#include "StreamChannelConstr.h"

namespace qpe::constraints {

void ConstrHandler::setPortLocConstr(const std::string& objName, const std::string& name,
                                     int channel)
{
  setPortLocConstr(objName, name, channel, PhysicalSpec::Unset);
}

void ConstrHandler::setPortLocConstr(const std::string& objName, const std::string& name,
                                     int channel, PhysicalSpec::ShimChannelType channelType)
{
  if (PortLocConstr* location = findOrCreateKind_(BaseConstraint::PortLoc, BaseConstraint::PORT,
                                                  objName, &ConstrCast::toPortLoc)) {
    location->setName(name);
    location->setChannel(channel);
    location->setShimChannelType(channelType);
  }
}

void ConstrHandler::setPortLocConstr(const std::string& objName,
                                     PhysicalSpec::PhysicalType tileType, int column, int row,
                                     int channel)
{
  setPortLocConstr(objName, tileType, column, row, channel, PhysicalSpec::Unset);
}

void ConstrHandler::setPortLocConstr(const std::string& objName,
                                     PhysicalSpec::PhysicalType tileType, int column, int row,
                                     int channel, PhysicalSpec::ShimChannelType channelType)
{
  if (PortLocConstr* location = findOrCreateKind_(BaseConstraint::PortLoc, BaseConstraint::PORT,
                                                  objName, &ConstrCast::toPortLoc)) {
    location->setTileType(tileType);
    location->setRow(row);
    location->setColumn(column);
    location->setChannel(channel);
    location->setShimChannelType(channelType);
  }
}

void ConstrHandler::setStreamChannelConstr(const std::string& objName, int column, int row,
                                           int channel, const std::string& direction)
{
  if (StreamChannelConstr* stream =
          findOrCreateKind_(BaseConstraint::StreamChannel, BaseConstraint::PORT, objName,
                            &ConstrCast::toStreamChannel)) {
    stream->setColumn(column);
    stream->setRow(row);
    stream->setChannel(channel);
    stream->setDirection(direction);
  }
}

void ConstrHandler::setStreamChannelConstr(const std::string& objName, int offset, int channel,
                                           const std::string& direction)
{
  if (StreamChannelConstr* stream =
          findOrCreateKind_(BaseConstraint::StreamChannel, BaseConstraint::PORT, objName,
                            &ConstrCast::toStreamChannel)) {
    stream->setOffset(offset);
    stream->setChannel(channel);
    stream->setDirection(direction);
  }
}

void ConstrHandler::setFifoLocationsConstr(ObjectType objType, const std::string& objName,
                                           const std::vector<std::string>& recordNames)
{
  if (FifoLocationsConstr* fifos =
          findOrCreatePortKind_("setFifoLocationsConstr", BaseConstraint::FifoLocations, objType,
                                objName, &ConstrCast::toFifoLocations))
    fifos->setFifoLocationsRecordNames(recordNames);
}

void ConstrHandler::setDmaFifoLocationConstr(ObjectType objType, const std::string& objName,
                                             PhysicalSpec::PhysicalType tileType, int column,
                                             int row, int size, int offset, int bankId)
{
  const DmaFifoRecord* record =
      records.findOrAddDmaFifoRecord(tileType, column, row, size, offset, bankId);
  if (record)
    setFifoLocationsConstr(objType, objName, {record->getName()});
}

void ConstrHandler::setStreamFifoLocationConstr(ObjectType objType, const std::string& objName,
                                                PhysicalSpec::PhysicalType tileType, int column,
                                                int row, int channel)
{
  const StreamFifoRecord* record =
      records.findOrAddStreamFifoRecord(tileType, column, row, channel);
  if (record)
    setFifoLocationsConstr(objType, objName, {record->getName()});
}

void ConstrHandler::addFifoLocationsConstr(ObjectType objType, const std::string& objName,
                                           const std::vector<std::string>& recordNames)
{
  requirePort("addFifoLocationsConstr", objType);
  addOrSet_(
      objName, &ConstrCast::toFifoLocations,
      [&](FifoLocationsConstr& fifos) { fifos.addFifoLocationsRecordNames(recordNames); },
      [&] { setFifoLocationsConstr(objType, objName, recordNames); });
}

void ConstrHandler::addDmaFifoLocationConstr(ObjectType objType, const std::string& objName,
                                             PhysicalSpec::PhysicalType tileType, int column,
                                             int row, int size, int offset, int bankId)
{
  const DmaFifoRecord* record =
      records.findOrAddDmaFifoRecord(tileType, column, row, size, offset, bankId);
  if (record)
    addFifoLocationsConstr(objType, objName, {record->getName()});
}

void ConstrHandler::addStreamFifoLocationConstr(ObjectType objType, const std::string& objName,
                                                PhysicalSpec::PhysicalType tileType, int column,
                                                int row, int channel)
{
  const StreamFifoRecord* record =
      records.findOrAddStreamFifoRecord(tileType, column, row, channel);
  if (record)
    addFifoLocationsConstr(objType, objName, {record->getName()});
}

void ConstrHandler::getFifoLocationsConstrs(const std::string& recordName,
                                            std::vector<FifoLocationsConstr*>& out) const
{
  for (BaseConstraint* constr : constrs)
    if (FifoLocationsConstr* fifos = ConstrCast::toFifoLocations(constr))
      if (fifos->containsFifoRecord(recordName))
        out.push_back(fifos);
}

}  // namespace qpe::constraints
