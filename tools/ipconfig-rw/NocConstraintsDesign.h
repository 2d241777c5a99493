#pragma once

#include "HIPDevice.h"
#include "NOCModel.h"
#include "TrafficSpec.h"

#include <string>
#include <vector>

namespace ipconfig_rw {

// The design a NoC constraints file is read against. With a traffic file:
// its logical instances on the shipped NoC device it names, so that the names
// the reader drops without a word can be counted. Without one, every name the
// file holds is taken as present, so that a check reads the whole file and a
// round trip keeps it.
class NocConstraintsDesign {
public:
  // The names a NoC constraints file holds, in file order. A file that is no
  // JSON holds none, and the reader reports it.
  struct FileNames {
    explicit FileNames(const std::string& path);

    std::vector<std::string> instances;
    std::vector<std::string> components;
  };

  // An empty `trafficPath` takes the names as the design.
  NocConstraintsDesign(const FileNames& names, const std::string& trafficPath);

  // ", not in the design: N instances, M components" when names were dropped.
  std::string missing(const FileNames& names) const;

  HrdIPToolCntr::TrafficSpec spec;
  DevHrdIP::NOCModel model;
  DevHrdIP::HIPDevice device{&model};
};

}  // namespace ipconfig_rw
