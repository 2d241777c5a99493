#pragma once

#include "ipconfig_readwrite_export.h"

#include <boost/any.hpp>

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

namespace IPConfig::Frameworks {

// The identifier of the array-to-PL interface, as a number and as its text.
inline const std::string QPE_PL_INTF_ID_KEY = "QPE_PL_INTF_ID";
inline const std::string QPE_PL_INTF_ID_STR_KEY = "QPE_PL_INTF_ID_STR";

// A project's bag of named, typed values and its JSON file. A value holds a
// bool, int, unsigned long, double, string or vector of strings, and a getter
// of another type gives that type's default rather than a conversion.
class IPCONFIG_READWRITE_EXPORT QPEPrjMetaDataModel {
public:
  using Properties = std::map<std::string, boost::any>;

  bool isEmpty() const { return properties.empty(); }
  void clear() { properties.clear(); }
  bool copy(const QPEPrjMetaDataModel& other);
  const Properties& getProperties() const { return properties; }

  bool hasProperty(const std::string& key) const;
  void removeProperty(const std::string& key);

  // Each add replaces whatever value of whatever type the key held.
  void addBooleanProperty(const std::string& key, bool value);
  void addIntegrProperty(const std::string& key, int value);
  void addULongProperty(const std::string& key, unsigned long value);
  void addDoubleProperty(const std::string& key, double value);
  void addStringProperty(const std::string& key, const std::string& value);
  void addStringArrayProperty(const std::string& key, const std::vector<std::string>& value);

  // True for a held int other than 0, and false for everything else, a held
  // bool included: callers depend on this.
  bool getBooleanProperty(const std::string& key) const;
  int getIntegrProperty(const std::string& key) const;
  unsigned long getULongProperty(const std::string& key) const;
  double getDoubleProperty(const std::string& key) const;
  std::string getStringProperty(const std::string& key) const;
  std::vector<std::string> getStringArrayProperty(const std::string& key) const;

  void setQPEPLIntfID(unsigned int id);
  unsigned int getQPEPLIntfID() const;
  void setQPEPLIntfIDString(const std::string& id);
  std::string getQPEPLIntfIDString() const;

  // Writes {"MetaData": [{"name", "value"}...]} in key order. A value the
  // writer cannot represent (a NaN) sets failbit on `out`.
  void writeToJSONStream(std::ostream& out) const;
  // Merges the file's properties into this model.
  void readFromJSONStream(const std::string& fileName, std::istream& in);
  // Gives no result and no message when the file cannot be opened.
  void writeToJSONFile(const std::string& fileName) const;
  void readFromJSONFile(const std::string& fileName);

private:
  template <typename T>
  const T* find(const std::string& key) const;

  Properties properties;
};

}  // namespace IPConfig::Frameworks
