#pragma once

#include "BaseConstraint.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "JsonFileFrame.h"
#include "ipconfig_readwrite_export.h"

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace qpe::constraints {

class Address;
class BaseNameResolver;
class ConstrHandler;
class LineFinder;
class PhysicalRange;

// Reads a constraints file into a handler: validates it against the
// constraints schema, walks "NodeConstraints", "PortConstraints",
// "NetConstraints" and "GlobalConstraints" in that order, resolves each
// object's name, and sets one constraint for each key, with the place of the
// key in the file or the source location that the file gives for it. A file
// that says it is tool generated goes to the handler's child. A read adds to
// the handler, and what it added stays when a later step fails. Content that
// can be passed over is reported (critical warnings) and the read goes on.
class IPCONFIG_READWRITE_EXPORT ConstrReader {
public:
  // Names resolve to themselves.
  explicit ConstrReader(ConstrHandler& handler);
  // `resolver` must outlive the reader.
  ConstrReader(ConstrHandler& handler, const BaseNameResolver& resolver);
  ~ConstrReader();
  ConstrReader(const ConstrReader&) = delete;
  ConstrReader& operator=(const ConstrReader&) = delete;

  // A schema path that wins over the search in the data directory.
  void setSchema(const std::string& path);
  // Reads the plain text file at `path`.
  void read(const std::string& path, bool validate);
  // Reads `in`; `path` names it in reports and locations, and is the file
  // that the locations of the keys are looked up in.
  void read(std::istream& in, const std::string& path, bool validate);
  // The same for "GlobalConstraints" alone, into this handler whatever the
  // root says of the file.
  void readAreaGroupConstrs(const std::string& path, bool validate);
  void readAreaGroupConstrs(std::istream& in, const std::string& path, bool validate);
  // The setSchema path, else the one that SchemaFile finds. Throws HEXAll
  // "@75-391@" when there is none.
  std::string getSchemaFile() const;
  // The path of the file being read as a location records it: relative to
  // the current directory where it can be.
  std::string getJsonPath() const;
  // Releases the documents; the paths stay.
  void reset();

  // Key tests.
  static bool isSrcInfoBaseConstraint(const std::string& key);   // ends in "_src_info"
  static bool isNotEqualBaseConstraint(const std::string& key);   // begins with "not_"
  static bool isExclusiveBaseConstraint(const std::string& key);  // begins with "exclusive_"
  // The key without its "_src_info" ending.
  static std::string getConstrName(const std::string& key);
  // A boolean, a signed 32-bit integer, a double or a string.
  static bool isAttrBaseConstraint(const JValue& value);

private:
  using ParseKey = void (ConstrReader::*)(const JValue& value, const std::string& key,
                                          const std::string& objName);
  using ReadSections = void (ConstrReader::*)();
  using ParseGroupValue = void (ConstrReader::*)(const JValue& value, const std::string& group,
                                                 std::vector<PhysicalRange>& ranges);
  struct Locations;

  void readFile_(const std::string& path, bool validate, ReadSections readSections);
  // `isFileAtPath`: `in` reads the file at `path`, whose text then serves
  // the key locations as well.
  void readStream_(std::istream& in, const std::string& path, bool validate,
                   ReadSections readSections, bool isFileAtPath);
  void readSchema_();
  void readJson_(std::istream& in, bool validate);
  void readConstraints_();
  void readChildConstraints_(bool soft);
  void readNodeConstraints_();
  void readPortConstraints_();
  void readNetConstraints_();
  void readGlobalConstraints_();
  void readObjectKeys_(const JValue& object, const std::string& objName, ParseKey parseKey);
  void readFifoLocationsRecords_(const JValue& records);
  void parseNodeBaseConstraint_(const JValue& value, const std::string& key,
                                const std::string& objName);
  void parsePortBaseConstraint_(const JValue& value, const std::string& key,
                                const std::string& objName);
  void parseAttrBaseConstraint_(const JValue& value, const std::string& key,
                                BaseConstraint::ObjectType objType, const std::string& objName);
  void parseTileConstraint_(const JValue& value, const std::string& objName);
  void parseShimConstraint_(const JValue& value, const std::string& objName);
  void parseReservedMemoryConstraint_(const JValue& value, const std::string& objName);
  // A list with properties of a colocation key; false for a key that is none.
  bool parseColocationList_(const JValue& value, const std::string& key,
                            BaseConstraint::ObjectType objType, const std::string& objName);
  // "name:(X=1,Y=2)" elements; one without a name or an offset is reported.
  void parseRelativeNodesConstraint_(const JValue& value, const std::string& objName);
  void parseColocatedDmaConstraint_(const JValue& value, const std::string& objName);
  void parseFifoLocationsConstraint_(const JValue& value, const std::string& objName);
  void parsePortLocConstraint_(const JValue& value, const std::string& objName);
  void parseStreamChannelConstraint_(const JValue& value, const std::string& objName);
  // Each name through the resolver's operation for node or port lists; the
  // names it gives take the properties of the file's name.
  void resolveNames_(const std::vector<std::pair<std::string, ConstrProperties>>& pairs,
                     bool ports, std::vector<std::string>& names,
                     ConstrPropertiesMap& properties) const;
  // The first `count` of an array of one to three addresses; false, reported,
  // for any other value.
  bool parseAddresses_(const JValue& value, const std::string& objName, Address* addresses,
                       std::size_t count);
  // An address with a field of 0 or more; otherwise false, and `address` stays.
  static bool parseAddress_(const JValue& value, Address& address);
  void parseGlobalBaseConstraint_(const std::string& key, const JValue& value);
  void parseAreaGroupBaseConstraint_(const JValue& value);
  void parseInstGroupBaseConstraint_(const JValue& value);
  void parseDependentRoutingGroupBaseConstraint_(const JValue& value);
  void parseIsomorphicGraphGroupBaseConstraint_(const JValue& value);
  // One element of a group's ranges, appended when it has a first location,
  // reported otherwise.
  void parseTileGroupValue_(const JValue& value, const std::string& group,
                            std::vector<PhysicalRange>& ranges);
  void parseMemGroupValue_(const JValue& value, const std::string& group,
                           std::vector<PhysicalRange>& ranges);
  void parseShimGroupValue_(const JValue& value, const std::string& group,
                            std::vector<PhysicalRange>& ranges);
  template <typename Location>
  void parseGroupValue_(const JValue& value, const std::string& group,
                        std::vector<PhysicalRange>& ranges, const char* badWithText,
                        const char* badWithoutText);
  void parseDmaFifoRecord_(const JValue& value, const std::string& name);
  void parseStreamFifoRecord_(const JValue& value, const std::string& name);
  void setUserJsonSrcInfo_(const std::string& key, const std::string& objName);
  void parseSrcInfo_(const JValue& value, const std::string& key, const std::string& objName);
  // The exclusive list's own location, in the object's ColocatedPortsConstr.
  void setUserJsonExclusiveSrcInfo_(const std::string& key, const std::string& objName);
  void parseExclusiveSrcInfo_(const JValue& value, const std::string& objName);
  void parseAreaGroupSrcInfo_(const JValue& value, const std::string& key,
                              const std::string& name);
  SrcInfo* getGroupSrcInfo_(const std::string& key, const std::string& name) const;
  void setUserJsonAreaGroupSrcInfo_(const std::string& name, SrcInfo& srcInfo);
  void findLocInJSON_(const std::string& objName, const std::string& key, std::uint32_t& line,
                      std::uint32_t& column);
  Locations& locations_();
  // One string for all locations in the same source file.
  std::shared_ptr<const std::string> sharedFile_(const std::string& file);

  ConstrHandler& handler;
  std::unique_ptr<BaseNameResolver> ownResolver;
  const BaseNameResolver* resolver;
  std::unique_ptr<IPConfig::JSchemaDocument> schema;
  std::unique_ptr<JDocument> document;
  std::string jsonPath;
  // The text of the read under way, kept for the key locations when it is
  // the file at jsonPath, so that the file is not read twice.
  std::string jsonText;
  bool isTextOfFile = false;
  std::string schemaPath;
  // The key locations of the read under way, made at the first one.
  std::unique_ptr<Locations> locations;
  std::unordered_map<std::string, std::shared_ptr<const std::string>> sourceFiles;
};

}  // namespace qpe::constraints
