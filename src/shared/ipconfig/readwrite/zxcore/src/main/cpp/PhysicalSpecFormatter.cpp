#include "PhysicalSpecFormatter.h"

#include "PhysicalSpec.h"

namespace qpe::constraints {

PhysicalSpecFormatter::PhysicalSpecFormatter(const PhysicalSpec& formatted) : spec(&formatted) {}

const std::string& PhysicalSpecFormatter::toString()
{
  text.clear();
  if (spec->isNameBased()) {
    text = spec->getName();
  } else if (spec->isColumnSet()) {
    text = std::to_string(spec->getColumn());
    // A shim's row and a tile's channel are never shown.
    if ((spec->isTile() || spec->isMem()) && spec->isRowSet())
      text = "(" + text + "," + std::to_string(spec->getRow()) + ")";
    else if (spec->isShim() && spec->isChannelSet())
      text = "(" + text + "," + std::to_string(spec->getIndex()) + ")";
  }
  return text;
}

}  // namespace qpe::constraints
