#pragma once

#include "HDDMBel.h"
#include "HDDMQpeOracle.h"
#include "HDDMRecords.h"
#include "ipconfig_hdar_export.h"

#include <cstddef>
#include <deque>
#include <string>
#include <unordered_map>

// The sites and bels of an array device, and their lookup by name. Owns the
// records that handles point to; they stay in place for the oracle's life.
// Filled once by its reader, read by everyone after.
class IPCONFIG_HDAR_EXPORT HDDMOracle {
public:
  HDDMOracle() = default;
  HDDMOracle(const HDDMOracle&) = delete;
  HDDMOracle& operator=(const HDDMOracle&) = delete;

  // A shim tile at `column`; null, and nothing added, when the name or the
  // column is taken.
  const HDDMSiteRecord* addShimSite(const std::string& name, HDDMQpeOracle::ZXRegion region,
                                    int column);
  // The next channel of `site`; the invalid handle, and nothing added, when
  // "SITE/BEL" or the element id is taken.
  HDDMBel addShimBel(const HDDMSiteRecord& site, const std::string& name,
                     HDDMQpeOracle::ZXShimBelType type, int elementId);

  // `name` is "SITE/BEL"; the invalid handle if there is no such bel.
  HDDMBel getBelByName(const std::string& name) const;
  HDDMBel getBelByElementId(int elementId) const;
  // Null if there is no such site.
  const HDDMSiteRecord* getSite(const std::string& name) const;
  std::size_t getNumBels() const { return bels.size(); }

  const HDDMQpeOracle& getQpeOracle() const { return qpeOracle; }

private:
  static HDDMBel handle_(const HDDMBelRecord* bel);

  std::deque<HDDMSiteRecord> sites;
  std::deque<HDDMBelRecord> bels;
  std::unordered_map<std::string, const HDDMSiteRecord*> sitesByName;
  std::unordered_map<std::string, const HDDMBelRecord*> belsByName;
  std::unordered_map<int, const HDDMBelRecord*> belsByElementId;
  std::unordered_map<const HDDMSiteRecord*, int> channelCounts;
  HDDMQpeOracle qpeOracle;
};
