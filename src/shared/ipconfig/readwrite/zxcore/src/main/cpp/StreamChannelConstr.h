#pragma once

#include "AttrValue.h"
#include "BaseConstraint.h"
#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <string>

namespace qpe::constraints {

// Fixes the stream channel of a port and the side of the switch it leaves
// by: at an absolute tile (column and row) or at an offset. The two forms can
// stand side by side in one constraint.
class IPCONFIG_READWRITE_EXPORT StreamChannelConstr : public BaseConstraint {
public:
  enum Direction : std::int32_t {
    North = 0,
    South = 1,
    East = 2,
    West = 3,
    Unset = 4,
  };

  StreamChannelConstr(ObjectType objType, const std::string& objName);

  // The absolute form wins: a constraint with both loses its offset.
  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "stream_channel": {"column", "row", "offset", "direction", "channel"},
  // each only when set; nothing when none is.
  void write(JDocument& doc, JValue& objectValue, const BaseNameResolver* resolver) const override;
  // The column moves; an offset needs no shifting.
  void offsetColumn(int delta) override;
  // " stream_chan(object)=Relative:(offset,channel,direction)" when an offset
  // is set, else "...=Absolute:(column,row,channel,direction)".
  std::string str() const override;

  virtual int getColumn() const;
  virtual int getRow() const;
  virtual int getOffset() const;
  virtual Direction getDirection() const;
  // "North", "South", "East", "West", or "unset".
  virtual std::string getDirectionAsStr() const;
  virtual int getChannel() const;
  virtual void setColumn(int column);
  virtual void setRow(int row);
  virtual void setOffset(int offset);
  virtual void setDirection(Direction direction);
  // A direction's text in any case; "" unsets it, and an unknown word leaves
  // the direction as it was.
  virtual void setDirection(const std::string& direction);
  virtual void setChannel(int channel);
  // A channel and a direction, with a column and a row or with an offset.
  virtual bool isSet() const;
  virtual bool isColumnSet() const;
  virtual bool isRowSet() const;
  virtual bool isOffsetSet() const;
  virtual bool isDirectionSet() const;
  virtual bool isChannelSet() const;

private:
  AttrValue column{-1, -1};
  AttrValue row{-1, -1};
  AttrValue offset{-1, -1};
  Direction direction = Unset;
  AttrValue channel{-1, -1};
};

}  // namespace qpe::constraints
