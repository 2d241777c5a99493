#include "QPEShimBelWriter.h"

#include "QPEHDDMDeviceUtils.h"

namespace IPConfig::Frameworks {

JValue QPEShimBelWriter::writeBel(const HDARPart& part, const HDDMBel& bel, JAllocator& alloc)
{
  using Json = HCRapidJsonReadWriteUtils;
  using Device = QPEHDDMDeviceUtils;
  JValue object(rapidjson::kObjectType);
  Json::AddStringProperty(object, "name", Device::getHierName(part, bel), alloc);
  Json::AddIntegrProperty(object, "column", static_cast<int>(Device::getShimColumn(part, bel)),
                          alloc);
  Json::AddIntegrProperty(object, "channel",
                          static_cast<int>(Device::getIndexOfChanInShim(part, bel)), alloc);
  return object;
}

}  // namespace IPConfig::Frameworks
