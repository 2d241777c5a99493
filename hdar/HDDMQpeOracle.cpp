#include "HDDMQpeOracle.h"

#include "HDDMRecords.h"

#include <algorithm>

bool HDDMQpeOracle::getZXShimArrayCoords(const HDDMBel& bel, ZXRegion& region, int& column,
                                         int& channel, ZXShimBelType& type) const
{
  if (!owns_(bel))
    return false;
  region = bel.getSite()->region;
  column = bel.getSite()->column;
  channel = bel.getBel()->channel;
  type = bel.getBel()->type;
  return true;
}

HDDMBel HDDMQpeOracle::getZXShimBel(int column, int channel) const
{
  const auto found = channels.find(key_(column, channel));
  if (found == channels.end())
    return {};
  return {found->second->site, found->second};
}

std::vector<int> HDDMQpeOracle::getZXShimColumns() const
{
  std::vector<int> result;
  result.reserve(columns.size());
  for (const auto& entry : columns)
    result.push_back(entry.first);
  std::sort(result.begin(), result.end());
  return result;
}

void HDDMQpeOracle::addShimSite_(const HDDMSiteRecord& site)
{
  columns.emplace(site.column, &site);
}

void HDDMQpeOracle::addShimBel_(const HDDMBelRecord& bel)
{
  channels.emplace(key_(bel.site->column, bel.channel), &bel);
}

bool HDDMQpeOracle::owns_(const HDDMBel& bel) const
{
  // A handle of another device must not be read as one of ours.
  return bel.isValid() && getZXShimBel(bel.getSite()->column, bel.getBel()->channel) == bel;
}

std::uint64_t HDDMQpeOracle::key_(int column, int channel)
{
  return (static_cast<std::uint64_t>(static_cast<std::uint32_t>(column)) << 32) |
         static_cast<std::uint32_t>(channel);
}
