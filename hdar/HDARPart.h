#pragma once

#include "HDDMOracle.h"
#include "ipconfig_hdar_export.h"

#include <memory>
#include <string>

// An array device: its name and the oracle that knows its sites and bels.
// Made by HDARPartReader from a device file.
class IPCONFIG_HDAR_EXPORT HDARPart {
public:
  HDARPart(std::string name, std::unique_ptr<HDDMOracle> oracle);
  HDARPart(const HDARPart&) = delete;
  HDARPart& operator=(const HDARPart&) = delete;
  ~HDARPart();

  const std::string& getName() const { return name; }
  const HDDMOracle& getOracle() const { return *oracle; }
  const HDDMQpeOracle& getQpeOracle() const { return oracle->getQpeOracle(); }

private:
  std::string name;
  std::unique_ptr<HDDMOracle> oracle;
};
