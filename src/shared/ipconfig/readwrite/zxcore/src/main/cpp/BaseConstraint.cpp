#include "BaseConstraint.h"

#include "Address.h"
#include "BaseNameResolver.h"
#include "HEXAlgException.h"
#include "PortRenamer.h"

#include <iterator>
#include <utility>

namespace qpe::constraints {

namespace {

using Utils = HCRapidJsonReadWriteUtils;

struct ConstrTypeTexts {
  const char* text;
  const char* canonicalName;
};

// Indexed by ConstrType.
constexpr ConstrTypeTexts constrTypeTexts[] = {
    {"Buffer", "qpe.buffers"},
    {"ReservedMemory", "qpe.reserved_memory"},
    {"Tile", "qpe.tile"},
    {"Mem", "qpe.mem"},
    {"Shim", "qpe.shim"},
    {"PortLoc", "qpe.port_loc"},
    {"StreamChannel", "qpe.stream_channel"},
    {"Attr", "qpe.attr"},
    {"ColocatedNodes", "qpe.colocated_nodes"},
    {"RelativeNodes", "qpe.relative_nodes"},
    {"ColocatedPorts", "qpe.colocated_ports"},
    {"ColocatedDma", "qpe.colocated_dma"},
    {"ColocatedMemories", "qpe.colocated_reserved_memories"},
    {"FifoLocations", "qpe.fifo_locations"},
    {"AreaGroup", "qpe.area_group"},
    {"InstGroup", "qpe.inst_group"},
    {"DependentRoutingGroup", "qpe.independent_packet_switched_routing_roup"},
    {"IsomorphicGraphGroup", "qpe.isomorphic_graph_group"},
};

// Indexed by ObjectType.
constexpr const char* objTypeTexts[] = {"NODE", "PORT", "NET", "GLOBAL"};

const ConstrTypeTexts* findTexts(BaseConstraint::ConstrType constrType)
{
  const bool known = constrType >= 0 && constrType < static_cast<int>(std::size(constrTypeTexts));
  return known ? &constrTypeTexts[constrType] : nullptr;
}

// The name of a kind that is named by its kind, which an attribute is not.
std::string nameOfUnnamedKind(BaseConstraint::ConstrType constrType)
{
  if (constrType == BaseConstraint::Attr)
    throw HEXAlgException("BaseConstraint::BaseConstraint() - Invalid constructor call: "
                          "BaseConstraints of type 'Attr' must be uniquely named");
  return BaseConstraint::getConstrNameFromType(constrType);
}

void addSrcInfoObject(JDocument& doc, JValue& parent, const std::string& key,
                      const SrcInfo& srcInfo)
{
  JValue object(rapidjson::kObjectType);
  JAllocator& alloc = doc.GetAllocator();
  Utils::AddStringProperty(object, "file", srcInfo.getFile(), alloc);
  Utils::AddULongProperty(object, "line", srcInfo.getLine(), alloc);
  Utils::AddULongProperty(object, "column", srcInfo.getColumn(), alloc);
  Utils::AddGenericValueProperty(parent, key, object, alloc);
}

bool isFromSourceFile(const SrcInfo& srcInfo)
{
  return srcInfo.getKind() == SrcInfo::SourceFile && !srcInfo.getFile().empty();
}

using ResolveList = void (BaseNameResolver::*)(std::vector<std::string>&) const;

void resolveList(std::vector<std::string>& names, const BaseNameResolver* resolver,
                 ResolveList resolve)
{
  if (resolver)
    (resolver->*resolve)(names);
}

void rekey(ConstrPropertiesMap& properties, const BaseNameResolver* resolver, ResolveList resolve)
{
  if (!resolver || properties.empty())
    return;
  const ConstrPropertiesMap original = properties;
  std::vector<std::string> names;
  for (const auto& [name, props] : original) {
    names.assign(1, name);
    (resolver->*resolve)(names);
    if (names.empty())
      continue;
    properties.erase(name);
    for (const std::string& resolved : names)
      properties[resolved] = props;
  }
}

}  // namespace

std::string BaseConstraint::getObjTypeAsStr(ObjectType objType)
{
  const bool known = objType >= 0 && objType < static_cast<int>(std::size(objTypeTexts));
  return known ? objTypeTexts[objType] : "";
}

std::string BaseConstraint::getConstrTypeAsStr(ConstrType constrType)
{
  const ConstrTypeTexts* texts = findTexts(constrType);
  return texts ? texts->text : "";
}

std::string BaseConstraint::getConstrNameFromType(ConstrType constrType)
{
  const ConstrTypeTexts* texts = findTexts(constrType);
  return texts ? texts->canonicalName : "";
}

BaseConstraint::BaseConstraint(ConstrType type, const std::string& name, ObjectType objectType,
                               const std::string& objectName)
    : constrType(type), constrName(name), objType(objectType), objName(objectName)
{
}

BaseConstraint::BaseConstraint(ConstrType type, ObjectType objectType,
                               const std::string& objectName)
    : constrType(type), constrName(nameOfUnnamedKind(type)), objType(objectType),
      objName(objectName)
{
}

BaseConstraint::BaseConstraint(ConstrType type)
    : constrType(type), constrName(nameOfUnnamedKind(type)), objType(GLOBAL)
{
}

BaseConstraint::~BaseConstraint() = default;

std::string BaseConstraint::getObjName() const
{
  return objName;
}

BaseConstraint::ObjectType BaseConstraint::getObjType() const
{
  return objType;
}

void BaseConstraint::setObjName(const std::string& name)
{
  objName = name;
}

void BaseConstraint::writeSrcInfo(JDocument& doc, JValue& parent, const std::string& key) const
{
  if (getObjType() != GLOBAL)
    writeSrcInfoObject(doc, parent, key, srcInfo);
}

std::string BaseConstraint::str() const
{
  return " constraint(" + getObjName() + ")=(" + constrName + ")";
}

// As PortRenamer::renamePortObject, on the name held here, which is not copied.
void BaseConstraint::renamePorts(const std::map<std::string, std::string>& oldToNew)
{
  if (objType != PORT)
    return;
  const std::string* newName = PortRenamer::findNewName(oldToNew, objName);
  if (newName && *newName != objName)
    setObjName(*newName);
}

void BaseConstraint::copySrcInfoFrom(const BaseConstraint* other)
{
  if (other)
    srcInfo = other->srcInfo;
}

std::string BaseConstraint::getResolvedName(const BaseConstraint* constr,
                                            const BaseNameResolver* resolver)
{
  std::string name = constr->getObjName();
  if (!resolver)
    return name;
  switch (constr->getObjType()) {
  case NODE: return resolver->resolveNodeName(name);
  case PORT: return resolver->resolvePortName(name);
  case NET: return resolver->resolveNetName(name);
  case GLOBAL: break;
  }
  return name;
}

void BaseConstraint::resolveNodeNames(std::vector<std::string>& names,
                                      const BaseNameResolver* resolver)
{
  resolveList(names, resolver, &BaseNameResolver::resolveNodeNames);
}

void BaseConstraint::resolvePortNames(std::vector<std::string>& names,
                                      const BaseNameResolver* resolver)
{
  resolveList(names, resolver, &BaseNameResolver::resolvePortNames);
}

void BaseConstraint::resolveNetNames(std::vector<std::string>& names,
                                     const BaseNameResolver* resolver)
{
  resolveList(names, resolver, &BaseNameResolver::resolveNetNames);
}

void BaseConstraint::resolveScopedNodeNames(std::vector<std::string>& names,
                                            const BaseNameResolver* resolver)
{
  resolveList(names, resolver, &BaseNameResolver::resolveScopedNodeNames);
}

void BaseConstraint::resolveScopedPortNames(std::vector<std::string>& names,
                                            const BaseNameResolver* resolver)
{
  resolveList(names, resolver, &BaseNameResolver::resolveScopedPortNames);
}

void BaseConstraint::resolveScopedNetNames(std::vector<std::string>& names,
                                           const BaseNameResolver* resolver)
{
  resolveList(names, resolver, &BaseNameResolver::resolveScopedNetNames);
}

void BaseConstraint::resolveNodeNames(ConstrPropertiesMap& properties,
                                      const BaseNameResolver* resolver)
{
  rekey(properties, resolver, &BaseNameResolver::resolveNodeNames);
}

void BaseConstraint::resolvePortNames(ConstrPropertiesMap& properties,
                                      const BaseNameResolver* resolver)
{
  rekey(properties, resolver, &BaseNameResolver::resolvePortNames);
}

void BaseConstraint::resolveScopedNodeNames(ConstrPropertiesMap& properties,
                                            const BaseNameResolver* resolver)
{
  rekey(properties, resolver, &BaseNameResolver::resolveScopedNodeNames);
}

void BaseConstraint::resolveScopedPortNames(ConstrPropertiesMap& properties,
                                            const BaseNameResolver* resolver)
{
  rekey(properties, resolver, &BaseNameResolver::resolveScopedPortNames);
}

const ConstrPropertiesMap& BaseConstraint::getConstrObjectsProperties() const
{
  static const ConstrPropertiesMap none;
  return properties ? *properties : none;
}

ConstrPropertiesMap& BaseConstraint::mutableConstrObjectsProperties()
{
  if (!properties)
    properties = std::make_unique<ConstrPropertiesMap>();
  return *properties;
}

void BaseConstraint::setConstrObjectProperties(const std::string& name, ConstrProperties props)
{
  if (props.isSoft)
    mutableConstrObjectsProperties()[name] = props;
}

void BaseConstraint::setConstrObjectsProperties(const ConstrPropertiesMap& props)
{
  for (const auto& [name, entry] : props)
    setConstrObjectProperties(name, entry);
}

bool BaseConstraint::isSoftConstraintForObject(const std::string& name,
                                               const ConstrPropertiesMap& props)
{
  return ConstrProperties::hasNonDefaultProps(name, props);
}

void BaseConstraint::setSoftConstraintForObject(const std::string& name, bool isSoft,
                                                ConstrPropertiesMap& props)
{
  const auto entry = props.find(name);
  if (entry != props.end())
    entry->second.isSoft = isSoft;
  else if (isSoft)
    props[name].isSoft = true;
}

void BaseConstraint::writePropertiesObject(const std::string& name,
                                           const ConstrPropertiesMap& props, JDocument& doc,
                                           JValue& out)
{
  if (ConstrProperties::hasNonDefaultProps(name, props))
    Utils::AddBooleanProperty(out, "issoft", true, doc.GetAllocator());
}

void BaseConstraint::writeConstraintObjectWithProperties(const std::string& name,
                                                         const ConstrPropertiesMap& props,
                                                         JDocument& doc, JValue& out)
{
  JAllocator& alloc = doc.GetAllocator();
  if (!ConstrProperties::hasNonDefaultProps(name, props)) {
    out.SetString(name.data(), static_cast<rapidjson::SizeType>(name.size()), alloc);
    return;
  }
  JValue propsObject(rapidjson::kObjectType);
  writePropertiesObject(name, props, doc, propsObject);
  out.SetObject();
  Utils::AddGenericValueProperty(out, name, propsObject, alloc);
}

void BaseConstraint::writeConstraintObjectsWithProperties(const std::vector<std::string>& names,
                                                          const ConstrPropertiesMap& props,
                                                          JDocument& doc, JValue& parent,
                                                          const char* key)
{
  if (names.empty())
    return;
  JAllocator& alloc = doc.GetAllocator();
  JValue list(rapidjson::kArrayType);
  list.Reserve(static_cast<rapidjson::SizeType>(names.size()), alloc);
  for (const std::string& name : names) {
    JValue element;
    writeConstraintObjectWithProperties(name, props, doc, element);
    list.PushBack(element, alloc);
  }
  Utils::AddGenericValueProperty(parent, key, list, alloc);
}

void BaseConstraint::writeAddress(JDocument& doc, JValue& value, const Address& address)
{
  JAllocator& alloc = doc.GetAllocator();
  const std::pair<const char*, const AttrValue*> fields[] = {
      {"column", &address.column},
      {"row", &address.row},
      {"bankId", &address.bankId},
      {"offset", &address.offset},
  };
  for (const auto& [key, field] : fields)
    if (field->isSet())
      Utils::AddIntegrProperty(value, key, field->getIntVal(), alloc);
}

bool BaseConstraint::writeAddresses(JDocument& doc, JValue& parent, const char* key,
                                    std::initializer_list<const Address*> addresses)
{
  JAllocator& alloc = doc.GetAllocator();
  JValue array(rapidjson::kArrayType);
  for (const Address* address : addresses) {
    JValue object(rapidjson::kObjectType);
    writeAddress(doc, object, *address);
    if (object.MemberCount() > 0)
      array.PushBack(object, alloc);
  }
  if (array.Empty())
    return false;
  Utils::AddGenericValueProperty(parent, key, array, alloc);
  return true;
}

bool BaseConstraint::writeNamesWithProperties(JDocument& doc, JValue& parent, const char* key,
                                              std::vector<std::string> names,
                                              ConstrPropertiesMap props, ObjectType namesType,
                                              const BaseNameResolver* resolver)
{
  const bool ports = namesType == PORT;
  if (ports)
    resolveScopedPortNames(names, resolver);
  else
    resolveScopedNodeNames(names, resolver);
  if (names.empty())
    return false;
  if (ports)
    resolveScopedPortNames(props, resolver);
  else
    resolveScopedNodeNames(props, resolver);
  writeConstraintObjectsWithProperties(names, props, doc, parent, key);
  return true;
}

void BaseConstraint::writeSrcInfoObject(JDocument& doc, JValue& parent, const std::string& key,
                                        const SrcInfo& srcInfo)
{
  if (isFromSourceFile(srcInfo))
    addSrcInfoObject(doc, parent, key + "_src_info", srcInfo);
}

void BaseConstraint::writeGroupSrcInfo(JDocument& doc, JValue& parent, const SrcInfo& srcInfo)
{
  if (isFromSourceFile(srcInfo))
    addSrcInfoObject(doc, parent, "srcInfo", srcInfo);
}

}  // namespace qpe::constraints
