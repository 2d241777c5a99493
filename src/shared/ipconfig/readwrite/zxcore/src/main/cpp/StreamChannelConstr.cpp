#include "StreamChannelConstr.h"

#include "ConstrHandler.h"
#include "ConstrUtils.h"

#include <iterator>
#include <utility>

namespace qpe::constraints {

namespace {

using Utils = HCRapidJsonReadWriteUtils;

// Indexed by Direction.
constexpr const char* directionTexts[] = {"North", "South", "East", "West", "unset"};

}  // namespace

StreamChannelConstr::StreamChannelConstr(ObjectType objType, const std::string& objName)
    : BaseConstraint(StreamChannel, objType, objName)
{
}

void StreamChannelConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  if (isColumnSet() && isRowSet())
    target.setStreamChannelConstr(resolved, getColumn(), getRow(), getChannel(),
                                  getDirectionAsStr());
  else
    target.setStreamChannelConstr(resolved, getOffset(), getChannel(), getDirectionAsStr());
  if (StreamChannelConstr* copy = target.getStreamChannelConstr(resolved))
    copy->copySrcInfoFrom(this);
}

void StreamChannelConstr::write(JDocument& doc, JValue& objectValue,
                                const BaseNameResolver*) const
{
  static const std::string key("stream_channel");
  JAllocator& alloc = doc.GetAllocator();
  JValue channelValue(rapidjson::kObjectType);
  const std::pair<const char*, const AttrValue*> numbers[] = {
      {"column", &column}, {"row", &row}, {"offset", &offset}};
  for (const auto& [numberKey, number] : numbers)
    if (number->isSet())
      Utils::AddIntegrProperty(channelValue, numberKey, number->getIntVal(), alloc);
  if (isDirectionSet())
    Utils::AddStringProperty(channelValue, "direction", getDirectionAsStr(), alloc);
  if (isChannelSet())
    Utils::AddIntegrProperty(channelValue, "channel", getChannel(), alloc);
  if (channelValue.MemberCount() == 0)
    return;
  Utils::AddGenericValueProperty(objectValue, key, channelValue, alloc);
  writeSrcInfo(doc, objectValue, key);
}

void StreamChannelConstr::offsetColumn(int delta)
{
  if (isColumnSet())
    setColumn(getColumn() + delta);
}

std::string StreamChannelConstr::str() const
{
  const std::string head = " stream_chan(" + getObjName() + ")=";
  const std::string tail =
      std::to_string(getChannel()) + "," + getDirectionAsStr() + ")";
  if (isOffsetSet())
    return head + "Relative:(" + std::to_string(getOffset()) + "," + tail;
  return head + "Absolute:(" + std::to_string(getColumn()) + "," + std::to_string(getRow()) +
         "," + tail;
}

int StreamChannelConstr::getColumn() const
{
  return column.getIntVal();
}

int StreamChannelConstr::getRow() const
{
  return row.getIntVal();
}

int StreamChannelConstr::getOffset() const
{
  return offset.getIntVal();
}

StreamChannelConstr::Direction StreamChannelConstr::getDirection() const
{
  return direction;
}

std::string StreamChannelConstr::getDirectionAsStr() const
{
  const bool known = direction >= North && direction < Unset;
  return directionTexts[known ? direction : Unset];
}

int StreamChannelConstr::getChannel() const
{
  return channel.getIntVal();
}

void StreamChannelConstr::setColumn(int value)
{
  column = AttrValue(value, -1);
}

void StreamChannelConstr::setRow(int value)
{
  row = AttrValue(value, -1);
}

void StreamChannelConstr::setOffset(int value)
{
  offset = AttrValue(value, -1);
}

void StreamChannelConstr::setDirection(Direction value)
{
  direction = value;
}

void StreamChannelConstr::setDirection(const std::string& text)
{
  for (std::size_t i = 0; i < std::size(directionTexts); ++i)
    if (iequals(text, directionTexts[i])) {
      direction = static_cast<Direction>(i);
      return;
    }
  if (text.empty())
    direction = Unset;
}

void StreamChannelConstr::setChannel(int value)
{
  channel = AttrValue(value, -1);
}

bool StreamChannelConstr::isSet() const
{
  const bool placed = (isColumnSet() && isRowSet()) || isOffsetSet();
  return placed && isChannelSet() && isDirectionSet();
}

bool StreamChannelConstr::isColumnSet() const
{
  return column.isSet();
}

bool StreamChannelConstr::isRowSet() const
{
  return row.isSet();
}

bool StreamChannelConstr::isOffsetSet() const
{
  return offset.isSet();
}

bool StreamChannelConstr::isDirectionSet() const
{
  return direction != Unset;
}

bool StreamChannelConstr::isChannelSet() const
{
  return channel.isSet();
}

}  // namespace qpe::constraints
