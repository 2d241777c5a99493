#pragma once

#include "Address.h"
#include "MemSpec.h"
#include "PhysicalSpec.h"
#include "ShimSpec.h"
#include "TileSpec.h"

#include <string>

// Locations built in one expression: each builder applies one setter to a
// copy of the given location (a fresh core location by default) and returns
// it. Addresses too.
namespace spec_builders {

using qpe::constraints::PhysicalSpec;
namespace json = qpe::constraints::json;

inline PhysicalSpec at(int x, int y, PhysicalSpec spec = {}) { spec.setXY(x, y); return spec; }
inline PhysicalSpec column(int x, PhysicalSpec spec = {}) { spec.setColumn(x); return spec; }
inline PhysicalSpec row(int y, PhysicalSpec spec = {}) { spec.setRow(y); return spec; }
inline PhysicalSpec named(const std::string& n, PhysicalSpec s = {}) { s.setName(n); return s; }
inline PhysicalSpec index(int i, PhysicalSpec spec = {}) { spec.setIndex(i); return spec; }
inline PhysicalSpec bank(int bankId, int offset, PhysicalSpec spec = {})
{
  spec.setBank(bankId);
  spec.setOffset(offset);
  return spec;
}
inline PhysicalSpec channelType(PhysicalSpec::ShimChannelType type, PhysicalSpec spec)
{
  spec.setShimChannelType(type);
  return spec;
}
inline PhysicalSpec after(void (PhysicalSpec::*operation)(), PhysicalSpec spec)
{
  (spec.*operation)();
  return spec;
}
inline PhysicalSpec shim(int x, int channel) { return index(channel, column(x, json::ShimSpec())); }

// An address whose fields of -1 are unset.
inline qpe::constraints::Address address(int column, int row, int bankId, int offset)
{
  qpe::constraints::Address made;
  made.column.setIntVal(column);
  made.row.setIntVal(row);
  made.bankId.setIntVal(bankId);
  made.offset.setIntVal(offset);
  return made;
}

}  // namespace spec_builders
