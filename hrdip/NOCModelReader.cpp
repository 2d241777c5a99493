#include "NOCModelReader.h"

#include "HCRapidJsonParser.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "HEXAll.h"
#include "HUTEnv.h"
#include "HUTFile.h"
#include "NOCModel.h"

#include <fstream>
#include <unordered_map>

namespace DevHrdIP {

namespace {

using Json = HCRapidJsonReadWriteUtils;

// The description being read, for the failures' file name and pointer.
class DescriptionWalk {
public:
  DescriptionWalk(const std::string& fileName, NOCModel& model)
    : fileName(fileName), model(model)
  {
  }

  void readDevice(const JValue& root)
  {
    if (!root.IsObject())
      fail("", "expected an object");
    requiredString(root, "", "Name");
    const JValue& components = requiredArray(root, "", "Components");
    for (rapidjson::SizeType i = 0; i < components.Size(); ++i)
      readComponent(components[i], "/Components/" + std::to_string(i), nullptr);
    const JValue& links = requiredArray(root, "", "Links");
    for (rapidjson::SizeType i = 0; i < links.Size(); ++i)
      readLink(links[i], "/Links/" + std::to_string(i));
  }

private:
  [[noreturn]] void fail(const std::string& pointer, const std::string& reason) const
  {
    ComMsgMgrInstance message = ComMsgMgrInstance::createInstance::eval(
        3, __FILE__, __LINE__, "ipconfig", ComMsgMgr::Error, "@90-6@%s%s%s", fileName.c_str(),
        pointer.c_str(), reason.c_str());
    message.attachMetaType(0, ComMsgMgr::FILE, fileName, "");
    throw HEXAll(message);
  }

  void requireObject(const JValue& value, const std::string& pointer) const
  {
    if (!value.IsObject())
      fail(pointer, "expected an object");
  }

  std::string requiredString(const JValue& object, const std::string& pointer,
                             const char* key) const
  {
    const std::string text = Json::GetStringProperty(object, key);
    if (text.empty())
      fail(pointer + "/" + key, "expected a non-empty string");
    return text;
  }

  const JValue& requiredArray(const JValue& object, const std::string& pointer,
                              const char* key) const
  {
    const auto found = object.FindMember(key);
    if (found == object.MemberEnd() || !found->value.IsArray())
      fail(pointer + "/" + key, "expected an array");
    return found->value;
  }

  Component::Role role(const JValue& object, const std::string& pointer) const
  {
    static const std::unordered_map<std::string, Component::Role> roles{
        {"master", Component::MASTER_SIDE},
        {"slave", Component::SLAVE_SIDE},
        {"none", Component::NO_SIDE}};
    if (object.FindMember("Role") == object.MemberEnd())
      return Component::NO_SIDE;
    const auto found = roles.find(Json::GetStringProperty(object, "Role"));
    if (found == roles.end())
      fail(pointer + "/Role", "expected \"master\", \"slave\" or \"none\"");
    return found->second;
  }

  void readComponent(const JValue& element, const std::string& pointer, Component* parent)
  {
    requireObject(element, pointer);
    const std::string name = requiredString(element, pointer, "Name");
    const std::string typeText = requiredString(element, pointer, "Type");
    const Definitions::COMP_TYPE type = Definitions::toCompTypeEnum(typeText);
    if (type == Definitions::COMP_TYPE_UNKNOWN)
      fail(pointer + "/Type", "unknown component type " + typeText);
    const Component::Role side = role(element, pointer);
    Component* component = parent ? model.addSubComponent(*parent, name, type, side)
                                  : model.addComponent(name, type, side);
    if (!component)
      fail(pointer + "/Name", "a component of that name exists: " + name);
    if (parent || element.FindMember("Ports") == element.MemberEnd())
      return;
    const JValue& ports = requiredArray(element, pointer, "Ports");
    for (rapidjson::SizeType i = 0; i < ports.Size(); ++i)
      readComponent(ports[i], pointer + "/Ports/" + std::to_string(i), component);
  }

  const Component& end(const JValue& link, const std::string& pointer, const char* key) const
  {
    const std::string name = requiredString(link, pointer, key);
    const Component* component = model.getComponent(name);
    if (!component)
      fail(pointer + "/" + key, "no component of that name: " + name);
    return *component;
  }

  void readLink(const JValue& element, const std::string& pointer)
  {
    requireObject(element, pointer);
    const Component& from = end(element, pointer, "From");
    const std::string fromPort = requiredString(element, pointer, "FromPort");
    const Component& to = end(element, pointer, "To");
    const std::string toPort = requiredString(element, pointer, "ToPort");
    model.addLink(from, fromPort, to, toPort);
  }

  const std::string& fileName;
  NOCModel& model;
};

}  // namespace

void NOCModelReader::read(const std::string& path, NOCModel& model)
{
  std::string canonicalName;
  std::ifstream in = HCRapidJsonParser::openJsonFile(path, canonicalName);
  read(in, canonicalName, model);
}

void NOCModelReader::read(std::istream& in, const std::string& fileName, NOCModel& model)
{
  JDocument document;
  HCRapidJsonParser::parseJsonFile(in, fileName, document);
  DescriptionWalk(fileName, model).readDevice(document);
}

std::string NOCModelReader::getDeviceFile(const std::string& deviceName)
{
  const std::string sep = HUTFile::getDirSeparator();
  const std::string relative =
      "parts" + sep + "tarnel" + sep + "common" + sep + "noc" + sep + "devices" + sep + deviceName +
      ".json";
  return HUTEnv::getKVRDataDir(relative) + sep + relative;
}

}  // namespace DevHrdIP
