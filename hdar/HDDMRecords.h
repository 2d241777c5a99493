#pragma once

#include "HDDMQpeOracle.h"

#include <cstddef>
#include <string>

// What an array device knows of a site of its interface row (a shim tile).
struct HDDMSiteRecord {
  std::string name;
  HDDMQpeOracle::ZXRegion region;
  int column;
};

// What an array device knows of a bel, one channel of a shim tile.
struct HDDMBelRecord {
  const HDDMSiteRecord* site;
  std::string name;
  std::string hierarchicalName;  // "SITE/BEL"
  int channel;                   // index of the channel in its shim
  HDDMQpeOracle::ZXShimBelType type;
  int elementId;
  std::size_t ordinal;  // place in the device, which orders the handles
};
