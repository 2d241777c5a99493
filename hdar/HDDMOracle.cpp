#include "HDDMOracle.h"

const HDDMSiteRecord* HDDMOracle::addShimSite(const std::string& name,
                                              HDDMQpeOracle::ZXRegion region, int column)
{
  if (sitesByName.count(name) || qpeOracle.hasZXShimColumn(column))
    return nullptr;
  const HDDMSiteRecord& site = sites.emplace_back(HDDMSiteRecord{name, region, column});
  sitesByName.emplace(name, &site);
  qpeOracle.addShimSite_(site);
  return &site;
}

HDDMBel HDDMOracle::addShimBel(const HDDMSiteRecord& site, const std::string& name,
                               HDDMQpeOracle::ZXShimBelType type, int elementId)
{
  std::string hierarchicalName = site.name + "/" + name;
  if (belsByName.count(hierarchicalName) || belsByElementId.count(elementId))
    return {};
  int& channel = channelCounts[&site];
  const HDDMBelRecord& bel = bels.emplace_back(
      HDDMBelRecord{&site, name, std::move(hierarchicalName), channel++, type, elementId,
                    bels.size()});
  belsByName.emplace(bel.hierarchicalName, &bel);
  belsByElementId.emplace(elementId, &bel);
  qpeOracle.addShimBel_(bel);
  return handle_(&bel);
}

HDDMBel HDDMOracle::getBelByName(const std::string& name) const
{
  const auto found = belsByName.find(name);
  return found == belsByName.end() ? HDDMBel() : handle_(found->second);
}

HDDMBel HDDMOracle::getBelByElementId(int elementId) const
{
  const auto found = belsByElementId.find(elementId);
  return found == belsByElementId.end() ? HDDMBel() : handle_(found->second);
}

const HDDMSiteRecord* HDDMOracle::getSite(const std::string& name) const
{
  const auto found = sitesByName.find(name);
  return found == sitesByName.end() ? nullptr : found->second;
}

HDDMBel HDDMOracle::handle_(const HDDMBelRecord* bel)
{
  return {bel->site, bel};
}
