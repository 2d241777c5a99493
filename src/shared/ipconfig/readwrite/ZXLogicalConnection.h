#pragma once

#include "ZXLogicalPort.h"
#include "ipconfig_readwrite_export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace IPConfig::Frameworks {

// A named connection from one source port to any number of destination
// ports. The model owns it; the ports belong to their instances.
class IPCONFIG_READWRITE_EXPORT ZXLogicalConnection {
public:
  using ConnectionType = ZXLogicalPort::PortType;
  enum MemMode : std::uint32_t {
    READ_ONLY = 0,
    WRITE_ONLY = 1,
    READ_WRITE = 2,
    UNSET_MEM_MODE = 3,
  };
  enum AddrType : std::uint32_t { VIRTUAL = 0, PHYSICAL = 1, UNSET_ADDR_TYPE = 2 };
  enum Direction : std::uint32_t {
    ZX_TO_PL = 0,
    PL_TO_ZX = 1,
    ZX_TO_NOC = 2,
    NOC_TO_ZX = 3,
    NOC_TO_PL = 4,
    PL_TO_NOC = 5,
    NOC_TO_NOC = 6,
    PL_TO_PL = 7,
    UNSET_DIRECTION = 8,
  };

  explicit ZXLogicalConnection(const std::string& name);
  // Copies the name and the four enumerations; the copy has no ports.
  ZXLogicalConnection(const ZXLogicalConnection& other);
  ZXLogicalConnection& operator=(const ZXLogicalConnection&) = delete;

  // A heap copy through the copy constructor, owned by the caller.
  ZXLogicalConnection* clone() const;
  // The source port, each destination port, then the connection itself.
  void accept(const ZXLogicalArchModelVisitorInterface& visitor);
  void rename(ZXLogicalArchModelRenameInterface& renamer);
  // Appends `dstPorts`; gives the new size of `out`.
  std::size_t getDstPorts(std::vector<ZXLogicalPort*>& out) const;

  std::string name;
  ZXLogicalPort* srcPort = nullptr;
  std::vector<ZXLogicalPort*> dstPorts;
  ConnectionType connectionType = ZXLogicalPort::UNSET_PORT_TYPE;
  MemMode memMode = UNSET_MEM_MODE;
  AddrType addrType = UNSET_ADDR_TYPE;
  Direction connectionDirection = UNSET_DIRECTION;
};

}  // namespace IPConfig::Frameworks
