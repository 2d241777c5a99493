#pragma once

#include "HDARPart.h"
#include "HDGUIStatus.h"
#include "QPEShimInterfaceSolution.h"
#include "TrafficSpec.h"
#include "ZXLogicalArchModel.h"

#include <memory>
#include <string>

namespace ipconfig_rw {

// The inputs of the compiler hand-off files: an array device, a logical
// architecture and a traffic file, and the shim solution read against them.
//
// The logical architecture file does not say which traffic instances serve
// a shim port; the tool ties port P of compute-array instance I to those of
// "I/P", "I/P<0>_INST" and "I/P<1>_INST" that the traffic file holds.
class HandOffDesign {
public:
  // DEVICE is a device file, or else the name of a device in the data directory.
  HandOffDesign(const std::string& device, const std::string& logicalArch,
                const std::string& traffic);

  void readSolution(const std::string& path);
  // Ports of compute-array instances that hold a placed channel, of all ports.
  std::size_t countPlacedPorts() const;
  std::size_t countPorts() const;

  std::unique_ptr<HDARPart> part;
  IPConfig::Frameworks::ZXLogicalArchModel model;
  HrdIPToolCntr::TrafficSpec spec;
  std::unique_ptr<IPConfig::Frameworks::QPEShimInterfaceSolution> solution;
  HDGUIStatus status;

private:
  void bindShimPorts_();
};

}  // namespace ipconfig_rw
