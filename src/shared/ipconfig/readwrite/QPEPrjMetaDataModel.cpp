#include "QPEPrjMetaDataModel.h"

#include "HCRapidJsonReadWriteUtils.h"
#include "JsonFileFrame.h"

#include <ostream>

namespace IPConfig::Frameworks {

namespace {

using Json = HCRapidJsonReadWriteUtils;

const char* const MetaDataKey = "MetaData";
const char* const NameKey = "name";
const char* const ValueKey = "value";

// Adds `value` as "value" by its held type; false when no known type is held.
bool addValue(JValue& element, const boost::any& value, JAllocator& alloc)
{
  if (const bool* held = boost::any_cast<bool>(&value))
    Json::AddBooleanProperty(element, ValueKey, *held, alloc);
  else if (const int* held = boost::any_cast<int>(&value))
    Json::AddIntegrProperty(element, ValueKey, *held, alloc);
  else if (const unsigned long* held = boost::any_cast<unsigned long>(&value))
    Json::AddULongProperty(element, ValueKey, *held, alloc);
  else if (const std::string* held = boost::any_cast<std::string>(&value))
    Json::AddStringProperty(element, ValueKey, *held, alloc);
  else if (const double* held = boost::any_cast<double>(&value))
    Json::AddDoubleProperty(element, ValueKey, *held, alloc);
  else if (const auto* held = boost::any_cast<std::vector<std::string>>(&value))
    Json::AddStringArrayProperty(element, ValueKey, *held, alloc);
  else
    return false;
  return true;
}

}  // namespace

template <typename T>
const T* QPEPrjMetaDataModel::find(const std::string& key) const
{
  const auto found = properties.find(key);
  return found == properties.end() ? nullptr : boost::any_cast<T>(&found->second);
}

bool QPEPrjMetaDataModel::copy(const QPEPrjMetaDataModel& other)
{
  if (this != &other)
    properties = other.properties;
  return true;
}

bool QPEPrjMetaDataModel::hasProperty(const std::string& key) const
{
  return properties.count(key) != 0;
}

void QPEPrjMetaDataModel::removeProperty(const std::string& key)
{
  properties.erase(key);
}

void QPEPrjMetaDataModel::addBooleanProperty(const std::string& key, bool value)
{
  properties[key] = value;
}

void QPEPrjMetaDataModel::addIntegrProperty(const std::string& key, int value)
{
  properties[key] = value;
}

void QPEPrjMetaDataModel::addULongProperty(const std::string& key, unsigned long value)
{
  properties[key] = value;
}

void QPEPrjMetaDataModel::addDoubleProperty(const std::string& key, double value)
{
  properties[key] = value;
}

void QPEPrjMetaDataModel::addStringProperty(const std::string& key, const std::string& value)
{
  properties[key] = value;
}

void QPEPrjMetaDataModel::addStringArrayProperty(const std::string& key,
                                                 const std::vector<std::string>& value)
{
  properties[key] = value;
}

bool QPEPrjMetaDataModel::getBooleanProperty(const std::string& key) const
{
  const int* held = find<int>(key);
  return held && *held != 0;
}

int QPEPrjMetaDataModel::getIntegrProperty(const std::string& key) const
{
  const int* held = find<int>(key);
  return held ? *held : 0;
}

unsigned long QPEPrjMetaDataModel::getULongProperty(const std::string& key) const
{
  const unsigned long* held = find<unsigned long>(key);
  return held ? *held : 0;
}

double QPEPrjMetaDataModel::getDoubleProperty(const std::string& key) const
{
  const double* held = find<double>(key);
  return held ? *held : 0.0;
}

std::string QPEPrjMetaDataModel::getStringProperty(const std::string& key) const
{
  const std::string* held = find<std::string>(key);
  return held ? *held : std::string();
}

std::vector<std::string> QPEPrjMetaDataModel::getStringArrayProperty(const std::string& key) const
{
  const auto* held = find<std::vector<std::string>>(key);
  return held ? *held : std::vector<std::string>();
}

void QPEPrjMetaDataModel::setQPEPLIntfID(unsigned int id)
{
  removeProperty(QPE_PL_INTF_ID_KEY);
  addIntegrProperty(QPE_PL_INTF_ID_KEY, static_cast<int>(id));
}

unsigned int QPEPrjMetaDataModel::getQPEPLIntfID() const
{
  if (!hasProperty(QPE_PL_INTF_ID_KEY))
    return 0;
  return static_cast<unsigned int>(getIntegrProperty(QPE_PL_INTF_ID_KEY));
}

void QPEPrjMetaDataModel::setQPEPLIntfIDString(const std::string& id)
{
  removeProperty(QPE_PL_INTF_ID_STR_KEY);
  addStringProperty(QPE_PL_INTF_ID_STR_KEY, id);
}

std::string QPEPrjMetaDataModel::getQPEPLIntfIDString() const
{
  if (!hasProperty(QPE_PL_INTF_ID_STR_KEY))
    return {};
  return getStringProperty(QPE_PL_INTF_ID_STR_KEY);
}

void QPEPrjMetaDataModel::writeToJSONStream(std::ostream& out) const
{
  JDocument document(rapidjson::kObjectType);
  JAllocator& alloc = document.GetAllocator();
  JValue elements(rapidjson::kArrayType);
  for (const auto& [key, value] : properties) {
    JValue element(rapidjson::kObjectType);
    Json::AddStringProperty(element, NameKey, key, alloc);
    if (addValue(element, value, alloc))
      elements.PushBack(element, alloc);
  }
  Json::AddGenericValueProperty(document, MetaDataKey, elements, alloc);
  if (!JsonFileFrame::writePretty(document, out))
    out.setstate(std::ios_base::failbit);
}

void QPEPrjMetaDataModel::readFromJSONStream(const std::string& fileName, std::istream& in)
{
  JDocument document;
  JsonFileFrame::parse(in, fileName, document);
  if (!Json::IsArrayProperty(document, MetaDataKey))
    return;
  for (const JValue& element : document[MetaDataKey].GetArray()) {
    const std::string name = Json::GetStringProperty(element, NameKey);
    if (Json::IsStringProperty(element, ValueKey))
      addStringProperty(name, Json::GetStringProperty(element, ValueKey));
    else if (Json::IsDoubleProperty(element, ValueKey))
      addDoubleProperty(name, Json::GetDoubleProperty(element, ValueKey));
    else if (Json::IsIntegrProperty(element, ValueKey))
      addIntegrProperty(name, Json::GetIntegrProperty(element, ValueKey));
    else if (Json::IsBooleanProperty(element, ValueKey))
      addBooleanProperty(name, Json::GetBooleanProperty(element, ValueKey));
    else if (Json::IsULongProperty(element, ValueKey))
      addULongProperty(name, Json::GetULongProperty(element, ValueKey));
    else if (Json::IsArrayProperty(element, ValueKey))
      addStringArrayProperty(name, Json::GetStringArrayProperty(element, ValueKey));
  }
}

void QPEPrjMetaDataModel::writeToJSONFile(const std::string& fileName) const
{
  JsonFileFrame::writeFile(fileName, JsonFileFrame::OpenCheck::refuseUnopened,
                           [this](std::ostream& out) {
                             writeToJSONStream(out);
                             return true;
                           });
}

void QPEPrjMetaDataModel::readFromJSONFile(const std::string& fileName)
{
  JsonFileFrame::readFile(fileName, isl::iostreams::basic_file(),
                          [this, &fileName](std::istream& in, const std::string&) {
                            readFromJSONStream(fileName, in);
                          });
}

}  // namespace IPConfig::Frameworks
