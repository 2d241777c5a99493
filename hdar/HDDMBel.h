#pragma once

#include "ipconfig_hdar_export.h"

#include <string>

struct HDDMSiteRecord;
struct HDDMBelRecord;

// A handle on one bel of an array device: two words, the site and the bel,
// copied by value. The default handle is the invalid one; a handle is valid
// only when both words are set. Handles of one device order as their bels
// stand in the device description.
class IPCONFIG_HDAR_EXPORT HDDMBel {
public:
  HDDMBel() = default;
  HDDMBel(const HDDMSiteRecord* site, const HDDMBelRecord* bel) : site(site), bel(bel) {}

  bool isValid() const { return site && bel; }

  // "SITE/BEL"; empty for an invalid handle.
  const std::string& getHierarchicalName1() const;
  // The device's number of the bel; -1 for an invalid handle.
  int getElementId() const;

  const HDDMSiteRecord* getSite() const { return site; }
  const HDDMBelRecord* getBel() const { return bel; }

  bool operator==(const HDDMBel& other) const { return site == other.site && bel == other.bel; }
  bool operator!=(const HDDMBel& other) const { return !(*this == other); }
  bool operator<(const HDDMBel& other) const;

private:
  const HDDMSiteRecord* site = nullptr;
  const HDDMBelRecord* bel = nullptr;
};
