#include "HDARPartReader.h"

#include "ComMsgMgrInstance.h"
#include "HCRapidJsonParser.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "HEXAll.h"
#include "HUTEnv.h"
#include "HUTFile.h"


#include <algorithm>
#include <fstream>
#include <utility>

namespace {

using Region = HDDMQpeOracle::ZXRegion;
using BelType = HDDMQpeOracle::ZXShimBelType;

const std::pair<const char*, Region> regionNames[] = {
    {"QPE", HDDMQpeOracle::ZX_REGION_QPE},
    {"QPE_ML", HDDMQpeOracle::ZX_REGION_QPE_ML},
};

const std::pair<const char*, BelType> belTypeNames[] = {
    {"PL_IN", HDDMQpeOracle::SHIM_PL_IN},
    {"PL_OUT", HDDMQpeOracle::SHIM_PL_OUT},
    {"NOC_IN", HDDMQpeOracle::SHIM_NOC_IN},
    {"NOC_OUT", HDDMQpeOracle::SHIM_NOC_OUT},
};

const char* const mlPrefix = "QPE_ML";

// Walks one description, with the JSON pointer of where it stands for the
// failures it reports.
class DeviceWalk {
public:
  explicit DeviceWalk(const std::string& fileName) : fileName(fileName) {}

  std::unique_ptr<HDARPart> read(const JValue& root)
  {
    if (!root.IsObject())
      fail("", "an object");
    const std::string name = text(root, "", "device");
    auto oracle = std::make_unique<HDDMOracle>();
    const JValue& columns = array(root, "", "shimColumns");
    for (rapidjson::SizeType i = 0; i < columns.Size(); ++i)
      readShimColumn(columns[i], "/shimColumns/" + std::to_string(i), *oracle);
    return std::make_unique<HDARPart>(name, std::move(oracle));
  }

private:
  void readShimColumn(const JValue& entry, const std::string& at, HDDMOracle& oracle)
  {
    if (!entry.IsObject())
      fail(at, "an object");
    const std::string site = text(entry, at, "site");
    if (!splitsBack(site))
      fail(at + "/site", "a site name of two underscores, three when it begins with QPE_ML");
    const Region region = named(entry, at, "region", regionNames, "QPE or QPE_ML");
    const int column = count(entry, at, "column");
    if (oracle.getSite(site))
      givenTwice(at + "/site", site);
    if (oracle.getQpeOracle().hasZXShimColumn(column))
      givenTwice(at + "/column", std::to_string(column));
    const HDDMSiteRecord& record = *oracle.addShimSite(site, region, column);
    const JValue& channels = array(entry, at, "channels");
    for (rapidjson::SizeType i = 0; i < channels.Size(); ++i)
      readChannel(channels[i], at + "/channels/" + std::to_string(i), record, oracle);
  }

  void readChannel(const JValue& entry, const std::string& at, const HDDMSiteRecord& site,
                   HDDMOracle& oracle)
  {
    if (!entry.IsObject())
      fail(at, "an object");
    const std::string bel = text(entry, at, "bel");
    const BelType type = named(entry, at, "type", belTypeNames, "PL_IN, PL_OUT, NOC_IN or NOC_OUT");
    const int elementId = count(entry, at, "elementId");
    if (oracle.getBelByName(site.name + "/" + bel).isValid())
      givenTwice(at + "/bel", bel);
    if (oracle.getBelByElementId(elementId).isValid())
      givenTwice(at + "/elementId", std::to_string(elementId));
    oracle.addShimBel(site, bel, type, elementId);
  }

  // A non-empty string without "/".
  std::string text(const JValue& object, const std::string& at, const char* key) const
  {
    const JValue& value = member(object, at, key);
    if (!value.IsString() || value.GetStringLength() == 0)
      fail(at + "/" + key, "a non-empty string");
    std::string result(value.GetString(), value.GetStringLength());
    if (result.find('/') != std::string::npos)
      fail(at + "/" + key, "a name without '/'");
    return result;
  }

  int count(const JValue& object, const std::string& at, const char* key) const
  {
    const JValue& value = member(object, at, key);
    if (!value.IsInt() || value.GetInt() < 0)
      fail(at + "/" + key, "a non-negative integer");
    return value.GetInt();
  }

  const JValue& array(const JValue& object, const std::string& at, const char* key) const
  {
    const JValue& value = member(object, at, key);
    if (!value.IsArray())
      fail(at + "/" + key, "an array");
    return value;
  }

  template <typename Enum, std::size_t N>
  Enum named(const JValue& object, const std::string& at, const char* key,
             const std::pair<const char*, Enum> (&names)[N], const char* expected) const
  {
    const JValue& value = member(object, at, key);
    if (value.IsString()) {
      const std::string given(value.GetString(), value.GetStringLength());
      for (const auto& [text, enumerator] : names)
        if (given == text)
          return enumerator;
    }
    fail(at + "/" + key, expected);
  }

  const JValue& member(const JValue& object, const std::string& at, const char* key) const
  {
    const auto found = object.FindMember(key);
    if (found == object.MemberEnd())
      fail(at + "/" + key, "present");
    return found->value;
  }

  // The flat name "SITE_BEL" of any bel of the site splits back at the
  // right underscore only for these shapes.
  static bool splitsBack(const std::string& site)
  {
    const auto underscores = std::count(site.begin(), site.end(), '_');
    return underscores == (site.rfind(mlPrefix, 0) == 0 ? 3 : 2);
  }

  [[noreturn]] void fail(const std::string& at, const std::string& expected) const
  {
    report("@90-30@%s%s%s", at, expected);
  }

  [[noreturn]] void givenTwice(const std::string& at, const std::string& name) const
  {
    report("@90-31@%s%s%s", at, name);
  }

  [[noreturn]] void report(const char* format, const std::string& at,
                           const std::string& detail) const
  {
    ComMsgMgrInstance message = ComMsgMgrInstance::createInstance::eval(
        3, __FILE__, __LINE__, "ipconfig", ComMsgMgr::Error, format, fileName.c_str(),
        at.c_str(), detail.c_str());
    message.attachMetaType(0, ComMsgMgr::FILE, fileName, "");
    throw HEXAll(message);
  }

  const std::string& fileName;
};

}  // namespace

std::string HDARPartReader::getDeviceFile(const std::string& deviceName)
{
  const std::string& separator = HUTFile::getDirSeparator();
  const std::string relativePath = "parts" + separator + "tarnel" + separator + "common" +
                                   separator + "qpe" + separator + "devices" + separator +
                                   deviceName + ".json";
  return HUTEnv::getKVRDataDir(relativePath) + separator + relativePath;
}

std::unique_ptr<HDARPart> HDARPartReader::readByName(const std::string& deviceName)
{
  return read(getDeviceFile(deviceName));
}

std::unique_ptr<HDARPart> HDARPartReader::read(const std::string& path)
{
  std::string canonicalName;
  std::ifstream in = HCRapidJsonParser::openJsonFile(path, canonicalName);
  return read(in, canonicalName);
}

std::unique_ptr<HDARPart> HDARPartReader::read(std::istream& in, const std::string& fileName)
{
  JDocument document;
  HCRapidJsonParser::parseJsonFile(in, fileName, document);
  return DeviceWalk(fileName).read(document);
}
