#pragma once

#include "ZXLogicalArchModelRenameInterface.h"
#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <map>
#include <string>

namespace IPConfig::Frameworks {

// Gives every port a regular name before a model is written: numbered per
// instance and family, the family chosen by the port's kind of instance, its
// type and the direction of its connection. Instances and connections keep
// their names. One renamer serves one pass.
class IPCONFIG_READWRITE_EXPORT LogicalArchWriterModelRenamer
    : public ZXLogicalArchModelRenameInterface {
public:
  // The next number of each family of names in one instance.
  struct CounterStuct {
    std::uint32_t pl = 0;
    std::uint32_t nocSAxi = 0;
    std::uint32_t nocSAxis = 0;
    std::uint32_t nocMAxi = 0;
    std::uint32_t nocMAxis = 0;
    std::uint32_t zxSAxi = 0;
    std::uint32_t zxSAxis = 0;
    std::uint32_t zxMAxi = 0;
    std::uint32_t zxMAxis = 0;
    std::uint32_t nocZxAxi = 0;
    std::uint32_t nocZxAxis = 0;
    std::uint32_t zxNocAxi = 0;
    std::uint32_t zxNocAxis = 0;
    std::uint32_t plZxAxi = 0;
    std::uint32_t plZxAxis = 0;
    std::uint32_t zxPlAxi = 0;
    std::uint32_t zxPlAxis = 0;
  };

  // With `useAxiPortNames`, compute-array ports take the S/M AXI names seen
  // from the array rather than names that spell out both ends.
  explicit LogicalArchWriterModelRenamer(bool useAxiPortNames);
  ~LogicalArchWriterModelRenamer() override;

  // The port's new name, or its name when it keeps it.
  std::string rename(ZXLogicalPort* port) override;
  std::string rename(ZXLogicalConnection* connection) override;
  std::string rename(ZXLogicalArchLInst* instance) override;
  std::string rename(ZXLogicalArchModel* model) override;

  std::string renamePLPort(ZXLogicalPort* port);
  std::string renameNOCPort(ZXLogicalPort* port);
  std::string renameZXPort(ZXLogicalPort* port);

private:
  CounterStuct& countersOf_(const ZXLogicalPort& port);

  bool useAxiPortNames;
  std::map<const ZXLogicalArchLInst*, CounterStuct> counters;
};

}  // namespace IPConfig::Frameworks
