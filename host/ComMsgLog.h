#pragma once

#include "ComMsgMgrInstance.h"
#include "ipconfig_host_export.h"

#include <cstddef>
#include <vector>

// Process-wide record of every message sent or thrown, oldest first, so that a
// host (or a test) can inspect what the library reported. Bounded: beyond the
// capacity the oldest records are dropped.
class IPCONFIG_HOST_EXPORT ComMsgLog {
public:
  struct Record {
    ComMsgMgrInstance message;
    bool thrown;  // carried by an HEXAll rather than sent
  };

  static void add(const ComMsgMgrInstance& message, bool thrown);
  static std::vector<Record> records();
  static void clear();
  static std::size_t capacity();
  static void setCapacity(std::size_t maxRecords);
};
