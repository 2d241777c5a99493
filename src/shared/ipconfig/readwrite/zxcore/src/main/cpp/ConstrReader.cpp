#include "ConstrReader.h"

#include "AreaGroupConstr.h"
#include "BaseNameResolver.h"
#include "ColocatedMemoriesConstr.h"
#include "ColocatedNodesConstr.h"
#include "ColocatedPortsConstr.h"
#include "ComplexPairWithXY.h"
#include "DependentRoutingGroupConstr.h"
#include "ConstrHandler.h"
#include "ConstrUtils.h"
#include "HCRapidJsonParser.h"
#include "HEXAlgException.h"
#include "HUTEnv.h"
#include "HUTFile.h"
#include "HUTFileUtils.h"
#include "IPConfigMessages.h"
#include "InstGroupConstr.h"
#include "IsomorphicGraphGroupConstr.h"
#include "JMemValue.h"
#include "JShimValue.h"
#include "JSimpleValue.h"
#include "JTileValue.h"
#include "JsonValueUtils.h"
#include "LineFinder.h"
#include "SchemaFile.h"

#include <boost/algorithm/string/predicate.hpp>
#include <boost/filesystem/path.hpp>

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <fstream>

namespace qpe::constraints {

namespace {

using Json = HCRapidJsonReadWriteUtils;

const char srcInfoSuffix[] = "_src_info";

std::string text(const JValue& string)
{
  return std::string(string.GetString(), string.GetStringLength());
}

// `visit(name, value)` for each member of `object` in file order; nothing for
// a value that is no object.
template <typename Visit>
void forEachMember(const JValue& object, const Visit& visit)
{
  if (!object.IsObject())
    return;
  for (const auto& member : object.GetObject())
    visit(text(member.name), member.value);
}

// An integer member, or -1.
int integerOr(const JValue& object, const char* key)
{
  return Json::IsIntegrProperty(object, key) ? Json::GetIntegrProperty(object, key) : -1;
}

using Names = std::vector<std::string>;

// A colocation key: how its names resolve, how the handler adds them, and
// where the soft flags of the names go.
struct ColocationKey {
  const char* key;
  bool ports;
  void (*add)(ConstrHandler& handler, BaseConstraint::ObjectType objType,
              const std::string& objName, const Names& names);
  void (*keepProperties)(ConstrHandler& handler, const std::string& objName,
                         const std::string& name, ConstrProperties props);
};

template <typename Kind>
void keepOn(Kind* constr, void (Kind::*keep)(const std::string&, ConstrProperties),
            const std::string& name, ConstrProperties props)
{
  if (constr)
    (constr->*keep)(name, props);
}

// The keys of both nodes and ports, then those of ports alone.
const ColocationKey colocationKeys[] = {
    {"colocated_nodes", false,
     [](ConstrHandler& h, BaseConstraint::ObjectType t, const std::string& o, const Names& n) {
       h.addColocatedNodesConstr(t, o, n, false);
     },
     [](ConstrHandler& h, const std::string& o, const std::string& n, ConstrProperties p) {
       keepOn<NodeColocationConstr>(h.getColocatedNodesConstr(o),
                                    &NodeColocationConstr::setConstrObjectProperties, n, p);
     }},
    {"not_colocated_nodes", false,
     [](ConstrHandler& h, BaseConstraint::ObjectType t, const std::string& o, const Names& n) {
       h.addColocatedNodesConstr(t, o, n, true);
     },
     [](ConstrHandler& h, const std::string& o, const std::string& n, ConstrProperties p) {
       keepOn<NodeColocationConstr>(h.getColocatedNodesConstr(o),
                                    &NodeColocationConstr::setNotColocatedConstrObjectProperties,
                                    n, p);
     }},
    {"colocated_reserved_memories", false,
     [](ConstrHandler& h, BaseConstraint::ObjectType t, const std::string& o, const Names& n) {
       h.addColocatedMemoriesConstr(t, o, n, false);
     },
     [](ConstrHandler& h, const std::string& o, const std::string& n, ConstrProperties p) {
       keepOn<NodeColocationConstr>(h.getColocatedMemoriesConstr(o),
                                    &NodeColocationConstr::setConstrObjectProperties, n, p);
     }},
    {"not_colocated_reserved_memories", false,
     [](ConstrHandler& h, BaseConstraint::ObjectType t, const std::string& o, const Names& n) {
       h.addColocatedMemoriesConstr(t, o, n, true);
     },
     [](ConstrHandler& h, const std::string& o, const std::string& n, ConstrProperties p) {
       keepOn<NodeColocationConstr>(h.getColocatedMemoriesConstr(o),
                                    &NodeColocationConstr::setNotColocatedConstrObjectProperties,
                                    n, p);
     }},
    {"colocated_ports", true,
     [](ConstrHandler& h, BaseConstraint::ObjectType t, const std::string& o, const Names& n) {
       h.addColocatedPortsConstr(t, o, n, false);
     },
     [](ConstrHandler& h, const std::string& o, const std::string& n, ConstrProperties p) {
       keepOn<ColocatedPortsConstr>(h.getColocatedPortsConstr(o),
                                    &ColocatedPortsConstr::setConstrObjectProperties, n, p);
     }},
    {"not_colocated_ports", true,
     [](ConstrHandler& h, BaseConstraint::ObjectType t, const std::string& o, const Names& n) {
       h.addColocatedPortsConstr(t, o, n, true);
     },
     [](ConstrHandler& h, const std::string& o, const std::string& n, ConstrProperties p) {
       keepOn(h.getColocatedPortsConstr(o),
              &ColocatedPortsConstr::setNotColocatedConstrObjectProperties, n, p);
     }},
    {"exclusive_colocated_ports", true,
     [](ConstrHandler& h, BaseConstraint::ObjectType t, const std::string& o, const Names& n) {
       h.addExclusiveColocatedPortsConstr(t, o, n);
     },
     [](ConstrHandler& h, const std::string& o, const std::string& n, ConstrProperties p) {
       keepOn(h.getColocatedPortsConstr(o),
              &ColocatedPortsConstr::setExclusiveColocatedConstrObjectProperties, n, p);
     }},
};

// Node entries know the first four.
constexpr std::size_t nodeColocationKeys = 4;

}  // namespace

// The key locations of one read: the file is indexed once, and the path that
// they record is worked out once.
struct ConstrReader::Locations {
  explicit Locations(ConstrReader& reader)
      : finder(reader.isTextOfFile ? LineFinder(reader.jsonPath, std::move(reader.jsonText))
                                   : LineFinder(reader.jsonPath)),
        recordedPath(std::make_shared<const std::string>(reader.getJsonPath()))
  {
  }

  LineFinder finder;
  // Shared by the locations of all keys.
  std::shared_ptr<const std::string> recordedPath;
};

ConstrReader::ConstrReader(ConstrHandler& handler)
    : handler(handler), ownResolver(std::make_unique<BaseNameResolver>()),
      resolver(ownResolver.get())
{
}

ConstrReader::ConstrReader(ConstrHandler& handler, const BaseNameResolver& resolver)
    : handler(handler), resolver(&resolver)
{
}

ConstrReader::~ConstrReader() = default;

void ConstrReader::setSchema(const std::string& path)
{
  schemaPath = path;
}

void ConstrReader::read(const std::string& path, bool validate)
{
  readFile_(path, validate, &ConstrReader::readConstraints_);
}

void ConstrReader::read(std::istream& in, const std::string& path, bool validate)
{
  readStream_(in, path, validate, &ConstrReader::readConstraints_, false);
}

void ConstrReader::readAreaGroupConstrs(const std::string& path, bool validate)
{
  readFile_(path, validate, &ConstrReader::readGlobalConstraints_);
}

void ConstrReader::readAreaGroupConstrs(std::istream& in, const std::string& path, bool validate)
{
  readStream_(in, path, validate, &ConstrReader::readGlobalConstraints_, false);
}

std::string ConstrReader::getSchemaFile() const
{
  const std::string path = schemaPath.empty() ? SchemaFile::getConstraintsSchema() : schemaPath;
  if (path.empty())
    throw HEXAll(IPCONFIG_MAKE_MSG(ComMsgMgr::Error, "@75-391@"));
  return path;
}

std::string ConstrReader::getJsonPath() const
{
  if (boost::filesystem::path(jsonPath).root_directory().empty())
    return jsonPath;
  std::string recorded = jsonPath;
  if (!HUTFileUtils::makeRelativeToPath(HUTEnv::getPWD(), recorded))
    HUTFile(jsonPath).getName(recorded);
  return recorded.empty() ? jsonPath : recorded;
}

void ConstrReader::reset()
{
  schema.reset();
  document.reset();
  jsonText = std::string();
  isTextOfFile = false;
  locations.reset();
  sourceFiles.clear();
}

bool ConstrReader::isSrcInfoBaseConstraint(const std::string& key)
{
  return boost::algorithm::ends_with(key, srcInfoSuffix);
}

bool ConstrReader::isNotEqualBaseConstraint(const std::string& key)
{
  return boost::algorithm::starts_with(key, "not_");
}

bool ConstrReader::isExclusiveBaseConstraint(const std::string& key)
{
  return boost::algorithm::starts_with(key, "exclusive_");
}

std::string ConstrReader::getConstrName(const std::string& key)
{
  return isSrcInfoBaseConstraint(key) ? key.substr(0, key.size() - (sizeof srcInfoSuffix - 1))
                                      : key;
}

bool ConstrReader::isAttrBaseConstraint(const JValue& value)
{
  return json::JSimpleValue(value).isValid();
}

void ConstrReader::readFile_(const std::string& path, bool validate, ReadSections readSections)
{
  // The host's own check may report an unreadable file; the stream test
  // below is what stops the read.
  HUTFileUtils::checkFileForReading(path, {});
  std::ifstream in(path);
  readStream_(in, path, validate, readSections, true);
}

void ConstrReader::readStream_(std::istream& in, const std::string& path, bool validate,
                               ReadSections readSections, bool isFileAtPath)
{
  reset();
  if (!in.good())
    Json::errorReadingJsonFile(path);
  jsonPath = path;
  isTextOfFile = isFileAtPath;
  readSchema_();
  readJson_(in, validate);
  (this->*readSections)();
  reset();
}

void ConstrReader::readSchema_()
{
  schema = SchemaFile::load(getSchemaFile());
}

void ConstrReader::readJson_(std::istream& in, bool validate)
{
  document = std::make_unique<JDocument>();
  HCRapidJsonParser::parseJsonFile(in, jsonPath, *document, jsonText);
  if (!validate)
    return;
  rapidjson::GenericSchemaValidator<IPConfig::JSchemaDocument> validator(*schema);
  if (!document->Accept(validator))
    throw SchemaFile::violation("@75-571@%s%s%s%s", jsonPath, validator);
}

void ConstrReader::readConstraints_()
{
  if (Json::GetBooleanProperty(*document, "isToolGenerated") && handler.isParent()) {
    readChildConstraints_(Json::GetBooleanProperty(*document, "isSoft"));
    return;
  }
  readNodeConstraints_();
  readPortConstraints_();
  readNetConstraints_();
  readGlobalConstraints_();
}

// The file is read again from its path, validated, into the child.
void ConstrReader::readChildConstraints_(bool soft)
{
  const std::string path = jsonPath;
  const std::string givenSchema = schemaPath;
  ConstrHandler* child = handler.getChildCstHandler(soft);
  if (!child)
    throw HEXAlgException("ConstrReader::readConstraints() - could not get the child tool "
                          "generated constraint handler");
  IPCONFIG_SEND_MSG(ComMsgMgr::Info, "@75-648@%s%s", path, soft ? "soft" : "hard");
  IPCONFIG_SEND_MSG(ComMsgMgr::Info, "@75-4193@%s", getSchemaFile());
  reset();
  ConstrReader childReader(*child, *resolver);
  childReader.setSchema(givenSchema);
  childReader.read(path, true);
}

void ConstrReader::readNodeConstraints_()
{
  forEachMember(json::JBaseValue::member(*document, "NodeConstraints"),
                [this](const std::string& name, const JValue& keys) {
                  const std::string resolved = resolver->resolveNodeName(name);
                  if (resolved.empty())
                    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, "@75-407@%s", name);
                  else
                    readObjectKeys_(keys, resolved, &ConstrReader::parseNodeBaseConstraint_);
                });
}

void ConstrReader::readPortConstraints_()
{
  forEachMember(json::JBaseValue::member(*document, "PortConstraints"),
                [this](const std::string& name, const JValue& keys) {
                  if (name == "fifo_locations_records") {
                    readFifoLocationsRecords_(keys);
                    return;
                  }
                  const std::string resolved = resolver->resolvePortName(name);
                  if (!resolved.empty()) {
                    readObjectKeys_(keys, resolved, &ConstrReader::parsePortBaseConstraint_);
                    return;
                  }
                  const std::string scope = resolver->getScopeName();
                  if (scope.empty())
                    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, "@75-498@%s", name);
                  else
                    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, "@75-497@%s%s", name, scope);
                });
}

// Every key of a net is an attribute, and its "_src_info" key may stand
// anywhere behind it.
void ConstrReader::readNetConstraints_()
{
  forEachMember(
      json::JBaseValue::member(*document, "NetConstraints"),
      [this](const std::string& name, const JValue& keys) {
        const std::string resolved = resolver->resolveNetName(name);
        if (resolved.empty()) {
          IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, "@75-408@%s", name);
          return;
        }
        forEachMember(keys, [&](const std::string& key, const JValue& value) {
          if (!isSrcInfoBaseConstraint(key))
            parseAttrBaseConstraint_(value, key, BaseConstraint::NET, resolved);
          setUserJsonSrcInfo_(key, resolved);
          parseSrcInfo_(value, key, resolved);
        });
      });
}

// Groups of one kind are members of one key: they are walked, not looked up.
void ConstrReader::readGlobalConstraints_()
{
  forEachMember(json::JBaseValue::member(*document, "GlobalConstraints"),
                [this](const std::string& key, const JValue& value) {
                  parseGlobalBaseConstraint_(key, value);
                });
}

// A key's source location is the "_src_info" key right behind it, if there
// is one; otherwise the place of the key in this file.
void ConstrReader::readObjectKeys_(const JValue& object, const std::string& objName,
                                   ParseKey parseKey)
{
  if (!object.IsObject())
    return;
  const auto end = object.MemberEnd();
  for (auto member = object.MemberBegin(); member != end;) {
    const std::string key = text(member->name);
    (this->*parseKey)(member->value, key, objName);
    const auto next = member + 1;
    if (next != end) {
      const std::string nextKey = text(next->name);
      if (isSrcInfoBaseConstraint(nextKey) && getConstrName(nextKey) == key) {
        parseSrcInfo_(next->value, nextKey, objName);
        member = next + 1;
        continue;
      }
    }
    setUserJsonSrcInfo_(key, objName);
    member = next;
  }
}

// Record names are no object names: they do not pass the resolver.
void ConstrReader::readFifoLocationsRecords_(const JValue& records)
{
  forEachMember(json::JBaseValue::member(records, "dma_fifos"),
                [this](const std::string& name, const JValue& record) {
                  parseDmaFifoRecord_(record, name);
                });
  forEachMember(json::JBaseValue::member(records, "stream_fifos"),
                [this](const std::string& name, const JValue& record) {
                  parseStreamFifoRecord_(record, name);
                });
}

// The keys of the node kinds are tested in the order of the file format,
// the first match winning; whatever no kind takes is an attribute.
void ConstrReader::parseNodeBaseConstraint_(const JValue& value, const std::string& key,
                                            const std::string& objName)
{
  if (key == "tile") {
    parseTileConstraint_(value, objName);
  } else if (key == "mem") {
    std::array<Address, 2> addresses;
    if (parseAddresses_(value, objName, addresses.data(), addresses.size()))
      handler.setMemConstr(objName, addresses[0], addresses[1]);
  } else if (key == "shim") {
    parseShimConstraint_(value, objName);
  } else if (key == "reserved_memory") {
    parseReservedMemoryConstraint_(value, objName);
  } else if (key == "relative_nodes") {
    parseRelativeNodesConstraint_(value, objName);
  } else if (!parseColocationList_(value, key, BaseConstraint::NODE, objName) &&
             !isSrcInfoBaseConstraint(key)) {
    parseAttrBaseConstraint_(value, key, BaseConstraint::NODE, objName);
  }
}

// As for nodes, with the keys of the port kinds; the colocation keys are
// tested last, which changes nothing since no two keys are alike.
void ConstrReader::parsePortBaseConstraint_(const JValue& value, const std::string& key,
                                            const std::string& objName)
{
  if (key == "buffers") {
    std::array<Address, 3> addresses;
    if (parseAddresses_(value, objName, addresses.data(), addresses.size()))
      handler.setBufferConstr(objName, addresses[0], addresses[1], addresses[2]);
  } else if (key == "stream_channel") {
    parseStreamChannelConstraint_(value, objName);
  } else if (key == "colocated_dma") {
    parseColocatedDmaConstraint_(value, objName);
  } else if (key == "fifo_locations") {
    parseFifoLocationsConstraint_(value, objName);
  } else if (key == "loc" || key == "port_loc") {
    parsePortLocConstraint_(value, objName);
  } else if (!parseColocationList_(value, key, BaseConstraint::PORT, objName) &&
             !isSrcInfoBaseConstraint(key)) {
    parseAttrBaseConstraint_(value, key, BaseConstraint::PORT, objName);
  }
}

// Other values, and integers beyond 32 bits, are no attribute.
void ConstrReader::parseAttrBaseConstraint_(const JValue& value, const std::string& key,
                                            BaseConstraint::ObjectType objType,
                                            const std::string& objName)
{
  if (!isAttrBaseConstraint(value))
    return;
  if (value.IsBool())
    handler.setAttrConstr(objType, objName, key, value.GetBool());
  else if (value.IsInt())
    handler.setAttrConstr(objType, objName, key, value.GetInt());
  else if (value.IsDouble())
    handler.setAttrConstr(objType, objName, key, value.GetDouble());
  else
    handler.setAttrConstr(objType, objName, key, text(value));
}

// A name, else a column or a row; the tile type defaults to core.
void ConstrReader::parseTileConstraint_(const JValue& value, const std::string& objName)
{
  const std::string name = Json::GetStringProperty(value, "name");
  if (!name.empty()) {
    handler.setTileConstr(objName, name);
    return;
  }
  if (!Json::IsIntegrProperty(value, "column") && !Json::IsIntegrProperty(value, "row"))
    return;
  handler.setTileConstr(
      objName, integerOr(value, "column"), integerOr(value, "row"),
      PhysicalSpec::toPhysicalSpecTileType(Json::GetStringProperty(value, "tile_type")));
}

// A name, else a column of 0 or more with its channel.
void ConstrReader::parseShimConstraint_(const JValue& value, const std::string& objName)
{
  const std::string name = Json::GetStringProperty(value, "name");
  if (!name.empty()) {
    handler.setShimConstr(objName, name);
    return;
  }
  const int column = integerOr(value, "column");
  if (isValSet(column))
    handler.setShimConstr(objName, column, integerOr(value, "channel"));
}

void ConstrReader::parseReservedMemoryConstraint_(const JValue& value, const std::string& objName)
{
  Address address;
  parseAddress_(value, address);
  if (address.isComplete())
    handler.setReservedMemoryConstr(objName, address);
}

bool ConstrReader::parseColocationList_(const JValue& value, const std::string& key,
                                       BaseConstraint::ObjectType objType,
                                       const std::string& objName)
{
  const std::size_t known =
      objType == BaseConstraint::NODE ? nodeColocationKeys : std::size(colocationKeys);
  const ColocationKey* const end = colocationKeys + known;
  const ColocationKey* colocation = std::find_if(
      colocationKeys, end, [&key](const ColocationKey& entry) { return key == entry.key; });
  if (colocation == end)
    return false;
  Names names;
  ConstrPropertiesMap properties;
  resolveNames_(json::readObjectArrayWithProperties(value), colocation->ports, names, properties);
  if (names.empty())
    return true;
  colocation->add(handler, objType, objName, names);
  for (const auto& [name, props] : properties)
    colocation->keepProperties(handler, objName, name, props);
  return true;
}

// A later element of a name overwrites an earlier one.
void ConstrReader::parseRelativeNodesConstraint_(const JValue& value, const std::string& objName)
{
  std::map<std::string, HDPoint<int>> offsets;
  Names names;
  for (const std::string& element : json::readStringArrayValue(value)) {
    std::string name;
    std::string offset;
    json::split(element, name, offset, ':');
    if (name.empty() || offset.empty()) {
      IPCONFIG_SEND_MSG(ComMsgMgr::Error, "@75-880@%s", element);
      continue;
    }
    const json::ComplexPairWithXY pair(offset);
    names.assign(1, name);
    resolver->resolveNodeNames(names);
    for (const std::string& resolved : names)
      offsets[resolved] = HDPoint<int>(pair.x, pair.y);
  }
  if (!offsets.empty())
    handler.addRelativeNodesConstr(BaseConstraint::NODE, objName, offsets);
}

void ConstrReader::parseColocatedDmaConstraint_(const JValue& value, const std::string& objName)
{
  Names names = json::readStringArrayValue(value);
  resolver->resolvePortNames(names);
  if (!names.empty())
    handler.addColocatedDmaConstr(BaseConstraint::PORT, objName, names);
}

// Record names are no object names: they are not resolved.
void ConstrReader::parseFifoLocationsConstraint_(const JValue& value, const std::string& objName)
{
  const Names names = json::readStringArrayValue(value);
  if (!names.empty())
    handler.setFifoLocationsConstr(BaseConstraint::PORT, objName, names);
}

// A name, else a column of 0 or more; the tile type of a port's location
// defaults to shim.
void ConstrReader::parsePortLocConstraint_(const JValue& value, const std::string& objName)
{
  const int channel = integerOr(value, "channel");
  const PhysicalSpec::ShimChannelType channelType =
      PhysicalSpec::toPhysicalSpecShimChannelType(Json::GetStringProperty(value, "channel_type"));
  const std::string name = Json::GetStringProperty(value, "name");
  if (!name.empty()) {
    handler.setPortLocConstr(objName, name, channel, channelType);
    return;
  }
  const int column = integerOr(value, "column");
  if (!isValSet(column))
    return;
  std::string tileType = Json::GetStringProperty(value, "tile_type");
  if (tileType.empty())
    tileType = "shim";
  handler.setPortLocConstr(objName, PhysicalSpec::toPhysicalSpecTileType(tileType), column,
                           integerOr(value, "row"), channel, channelType);
}

// The absolute form, else the relative one with a direction.
void ConstrReader::parseStreamChannelConstraint_(const JValue& value, const std::string& objName)
{
  const int column = integerOr(value, "column");
  const int row = integerOr(value, "row");
  const int offset = integerOr(value, "offset");
  const int channel = integerOr(value, "channel");
  const std::string direction = Json::GetStringProperty(value, "direction");
  if (isValSet(column) && isValSet(row))
    handler.setStreamChannelConstr(objName, column, row, channel, direction);
  else if (isValSet(offset) && !direction.empty())
    handler.setStreamChannelConstr(objName, offset, channel, direction);
}

void ConstrReader::resolveNames_(const std::vector<std::pair<std::string, ConstrProperties>>& pairs,
                                 bool ports, Names& names, ConstrPropertiesMap& properties) const
{
  Names resolved;
  for (const auto& [name, props] : pairs) {
    resolved.assign(1, name);
    if (ports)
      resolver->resolvePortNames(resolved);
    else
      resolver->resolveNodeNames(resolved);
    for (const std::string& each : resolved) {
      names.push_back(each);
      properties[each] = props;
    }
  }
}

bool ConstrReader::parseAddresses_(const JValue& value, const std::string& objName,
                                   Address* addresses, std::size_t count)
{
  const char* refusal = nullptr;
  if (!value.IsArray())
    refusal = "@75-579@%s%s";
  else if (value.Empty())
    refusal = "@75-574@%s%s";
  else if (value.Size() > 3)
    refusal = "@75-584@%s%s";
  if (refusal) {
    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, refusal, jsonPath, objName);
    return false;
  }
  for (rapidjson::SizeType i = 0; i < value.Size() && i < count; ++i)
    parseAddress_(value[i], addresses[i]);
  return true;
}

bool ConstrReader::parseAddress_(const JValue& value, Address& address)
{
  const int column = integerOr(value, "column");
  const int row = integerOr(value, "row");
  const int bankId = integerOr(value, "bankId");
  const int offset = integerOr(value, "offset");
  if (!isValSet(column) && !isValSet(row) && !isValSet(bankId) && !isValSet(offset))
    return false;
  address.column = AttrValue(column, -1);
  address.row = AttrValue(row, -1);
  address.bankId = AttrValue(bankId, -1);
  address.offset = AttrValue(offset, -1);
  return true;
}

void ConstrReader::parseGlobalBaseConstraint_(const std::string& key, const JValue& value)
{
  if (key == "areaGroup")
    parseAreaGroupBaseConstraint_(value);
  else if (key == "instGroup")
    parseInstGroupBaseConstraint_(value);
  else if (key == "dependentRoutingGroup")
    parseDependentRoutingGroupBaseConstraint_(value);
  else if (key == "isomorphicGraphGroup")
    parseIsomorphicGraphGroupBaseConstraint_(value);
}

// The ranges are read by kind, tile, shim and mem, and so held in that order.
// A group of a name read before merges into it.
void ConstrReader::parseAreaGroupBaseConstraint_(const JValue& value)
{
  const std::string name = json::readStringValue(value, "name");
  if (name.empty())
    return;
  std::vector<std::string> nodes = json::readStringArrayValue(value, "nodeGroup");
  resolver->resolveNodeNames(nodes);
  std::vector<PhysicalRange> ranges;
  const std::pair<const char*, ParseGroupValue> groups[] = {
      {"tileGroup", &ConstrReader::parseTileGroupValue_},
      {"shimGroup", &ConstrReader::parseShimGroupValue_},
      {"memGroup", &ConstrReader::parseMemGroupValue_},
  };
  for (const auto& [key, parse] : groups) {
    const JValue& elements = json::JBaseValue::member(value, key);
    if (elements.IsArray())
      for (const JValue& element : elements.GetArray())
        (this->*parse)(element, name, ranges);
  }
  handler.addAreaGroupConstr(
      name, nodes, ranges, Json::GetBooleanProperty(value, "exclude"),
      Json::GetBooleanProperty(value, "issoft"), Json::GetBooleanProperty(value, "contain_routing"),
      Json::GetBooleanProperty(value, "exclusive_routing"),
      Json::GetBooleanProperty(value, "exclusive_placement"));
  parseAreaGroupSrcInfo_(value, "areaGroup", name);
}

void ConstrReader::parseInstGroupBaseConstraint_(const JValue& value)
{
  const std::string name = json::readStringValue(value, "name");
  if (name.empty())
    return;
  Names nodes = json::readStringArrayValue(value, "nodeGroup");
  resolver->resolveNodeNames(nodes);
  handler.addInstGroupConstr(name, nodes, Json::GetBooleanProperty(value, "isisomorphic"));
  parseAreaGroupSrcInfo_(value, "instGroup", name);
}

void ConstrReader::parseDependentRoutingGroupBaseConstraint_(const JValue& value)
{
  const std::string name = json::readStringValue(value, "name");
  if (name.empty())
    return;
  Names nodes = json::readStringArrayValue(value, "nodeGroup");
  resolver->resolveNodeNames(nodes);
  handler.addDependentRoutingGroupConstr(name, nodes);
  parseAreaGroupSrcInfo_(value, "dependentRoutingGroup", name);
}

// Graph names are no node names: they are not resolved.
void ConstrReader::parseIsomorphicGraphGroupBaseConstraint_(const JValue& value)
{
  const std::string name = json::readStringValue(value, "name");
  if (name.empty())
    return;
  handler.addIsomorphicGraphGroupConstr(name, json::readStringValue(value, "referenceGraph"),
                                        json::readStringArrayValue(value, "stampedGraphs"));
  parseAreaGroupSrcInfo_(value, "isomorphicGraphGroup", name);
}

void ConstrReader::parseTileGroupValue_(const JValue& value, const std::string& group,
                                        std::vector<PhysicalRange>& ranges)
{
  parseGroupValue_<json::JTileValue>(value, group, ranges, "@75-596@%s%s%s", "@75-588@%s%s");
}

void ConstrReader::parseMemGroupValue_(const JValue& value, const std::string& group,
                                       std::vector<PhysicalRange>& ranges)
{
  parseGroupValue_<json::JMemValue>(value, group, ranges, "@75-748@%s%s%s", "@75-747@%s%s");
}

void ConstrReader::parseShimGroupValue_(const JValue& value, const std::string& group,
                                        std::vector<PhysicalRange>& ranges)
{
  parseGroupValue_<json::JShimValue>(value, group, ranges, "@75-595@%s%s%s", "@75-587@%s%s");
}

template <typename Location>
void ConstrReader::parseGroupValue_(const JValue& value, const std::string& group,
                                    std::vector<PhysicalRange>& ranges, const char* badWithText,
                                    const char* badWithoutText)
{
  Location location(value);
  location.parse();
  if (location.isValid()) {
    if (location.getSecond().isSet())
      ranges.emplace_back(location.getFirst(), location.getSecond());
    else
      ranges.emplace_back(location.getFirst());
  } else if (!location.getText().empty()) {
    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, badWithText, jsonPath, group,
                      location.getText());
  } else {
    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, badWithoutText, jsonPath, group);
  }
}

void ConstrReader::parseDmaFifoRecord_(const JValue& value, const std::string& name)
{
  handler.addDmaFifoRecord(
      name, PhysicalSpec::toPhysicalSpecTileType(Json::GetStringProperty(value, "tile_type")),
      integerOr(value, "column"), integerOr(value, "row"), integerOr(value, "size"),
      integerOr(value, "offset"), integerOr(value, "bankId"));
}

void ConstrReader::parseStreamFifoRecord_(const JValue& value, const std::string& name)
{
  handler.addStreamFifoRecord(
      name, PhysicalSpec::toPhysicalSpecTileType(Json::GetStringProperty(value, "tile_type")),
      integerOr(value, "column"), integerOr(value, "row"), integerOr(value, "channel"));
}

// The place of the key in this file, found by text; line and column 0 when
// the text is not found. "tile" finds the constraint "qpe.tile" through the
// handler's canonical lookup.
//
// A "not_" key's list keeps its location in a record of its own, which the
// lookup by the key does not reach: such locations do not survive a read.
void ConstrReader::setUserJsonSrcInfo_(const std::string& key, const std::string& objName)
{
  if (isSrcInfoBaseConstraint(key) || isNotEqualBaseConstraint(key))
    return;
  if (isExclusiveBaseConstraint(key)) {
    setUserJsonExclusiveSrcInfo_(key, objName);
    return;
  }
  BaseConstraint* constr = handler.getConstr(objName, key);
  if (!constr)
    return;
  std::uint32_t line = 0;
  std::uint32_t column = 0;
  findLocInJSON_(objName, key, line, column);
  constr->getSrcInfo().set(SrcInfo::UserJson, locations_().recordedPath, line, column);
}

// A "_src_info" key with a file names a place in another source file.
void ConstrReader::parseSrcInfo_(const JValue& value, const std::string& key,
                                 const std::string& objName)
{
  if (!isSrcInfoBaseConstraint(key) || isNotEqualBaseConstraint(key))
    return;
  if (isExclusiveBaseConstraint(key)) {
    parseExclusiveSrcInfo_(value, objName);
    return;
  }
  BaseConstraint* constr = handler.getConstr(objName, getConstrName(key));
  std::string file;
  std::uint32_t line = 0;
  std::uint32_t column = 0;
  if (constr && json::readSrcInfo(value, file, line, column))
    constr->getSrcInfo().set(SrcInfo::SourceFile, sharedFile_(file), line, column);
}

void ConstrReader::setUserJsonExclusiveSrcInfo_(const std::string& key,
                                                const std::string& objName)
{
  ColocatedPortsConstr* colocation = handler.getColocatedPortsConstr(objName);
  if (!colocation)
    return;
  std::uint32_t line = 0;
  std::uint32_t column = 0;
  findLocInJSON_(objName, key, line, column);
  colocation->getExclusiveSrcInfo().set(SrcInfo::UserJson, locations_().recordedPath, line,
                                        column);
}

void ConstrReader::parseExclusiveSrcInfo_(const JValue& value, const std::string& objName)
{
  ColocatedPortsConstr* colocation = handler.getColocatedPortsConstr(objName);
  std::string file;
  std::uint32_t line = 0;
  std::uint32_t column = 0;
  if (colocation && json::readSrcInfo(value, file, line, column))
    colocation->getExclusiveSrcInfo().set(SrcInfo::SourceFile, sharedFile_(file), line, column);
}

// A group's location: where its name first stands in this file, or the
// source location that its "srcInfo" gives.
void ConstrReader::parseAreaGroupSrcInfo_(const JValue& value, const std::string& key,
                                          const std::string& name)
{
  SrcInfo* srcInfo = getGroupSrcInfo_(key, name);
  if (!srcInfo)
    return;
  setUserJsonAreaGroupSrcInfo_(name, *srcInfo);
  std::string file;
  std::uint32_t line = 0;
  std::uint32_t column = 0;
  if (json::readSrcInfo(json::JBaseValue::member(value, "srcInfo"), file, line, column))
    srcInfo->set(SrcInfo::SourceFile, sharedFile_(file), line, column);
}

SrcInfo* ConstrReader::getGroupSrcInfo_(const std::string& key, const std::string& name) const
{
  BaseConstraint* group = nullptr;
  if (key == "areaGroup")
    group = handler.getAreaGroupConstr(name);
  else if (key == "instGroup")
    group = handler.getInstGroupConstr(name);
  else if (key == "dependentRoutingGroup")
    group = handler.getDependentRoutingGroupConstr(name);
  else if (key == "isomorphicGraphGroup")
    group = handler.getIsomorphicGraphGroupConstr(name);
  return group ? &group->getSrcInfo() : nullptr;
}

void ConstrReader::setUserJsonAreaGroupSrcInfo_(const std::string& name, SrcInfo& srcInfo)
{
  std::uint32_t line = 0;
  std::uint32_t column = 0;
  locations_().finder.find({name}, line, column);
  srcInfo.set(SrcInfo::UserJson, locations_().recordedPath, line, column);
}

// The key on a line after the first line that holds the object's name.
void ConstrReader::findLocInJSON_(const std::string& objName, const std::string& key,
                                  std::uint32_t& line, std::uint32_t& column)
{
  locations_().finder.find({objName, key}, line, column);
}

std::shared_ptr<const std::string> ConstrReader::sharedFile_(const std::string& file)
{
  if (file.empty())
    return nullptr;
  std::shared_ptr<const std::string>& shared = sourceFiles[file];
  if (!shared)
    shared = std::make_shared<const std::string>(file);
  return shared;
}

ConstrReader::Locations& ConstrReader::locations_()
{
  if (!locations)
    locations = std::make_unique<Locations>(*this);
  return *locations;
}

}  // namespace qpe::constraints
