#include "ConstrWriter.h"

#include "AttrConstr.h"
#include "BaseNameResolver.h"
#include "ConstrHandler.h"
#include "ForwardingHandler.h"
#include "HCBufferedOStream.h"
#include "HEXAlgException.h"
#include "HUTFile.h"
#include "IPConfigMessages.h"
#include "SchemaFile.h"

#include <rapidjson/prettywriter.h>

#include <fstream>

namespace qpe::constraints {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using PrettyWriter = rapidjson::PrettyWriter<HCBufferedOStream>;

}  // namespace

ConstrWriter::ConstrWriter(const ConstrHandler& handler)
    : ownResolver(std::make_unique<BaseNameResolver>()), handler(handler),
      resolver(ownResolver.get())
{
}

ConstrWriter::ConstrWriter(const ConstrHandler& handler, const BaseNameResolver& resolver)
    : handler(handler), resolver(&resolver)
{
}

ConstrWriter::~ConstrWriter() = default;

void ConstrWriter::setSchema(const std::string& path)
{
  schemaPath = path;
}

std::string ConstrWriter::getSchemaFile() const
{
  return schemaPath.empty() ? SchemaFile::getConstraintsSchema() : schemaPath;
}

JDocument* ConstrWriter::getDocument()
{
  return m_doc.get();
}

const JDocument* ConstrWriter::getDocument() const
{
  return m_doc.get();
}

JAllocator& ConstrWriter::getAllocator()
{
  return allocator_();
}

const JAllocator& ConstrWriter::getAllocator() const
{
  return allocator_();
}

void ConstrWriter::write(const std::string& path, bool validate)
{
  writeFile_(path, [&](std::ostream& out) { write(out, path, validate); });
}

void ConstrWriter::write(std::ostream& out, const std::string& path, bool validate)
{
  if (handler.empty())
    return;
  start_(out, path);
  IPCONFIG_SEND_MSG(ComMsgMgr::Info, "@75-4195@%s", path);
  IPCONFIG_SEND_MSG(ComMsgMgr::Info, "@75-4193@%s", getSchemaFile());
  readSchema_();
  saveConstrs_();
  writeToJson_(out, validate);
  reset();
}

void ConstrWriter::writeAreaGroupConstrs(const std::string& path, bool validate)
{
  writeFile_(path, [&](std::ostream& out) { writeAreaGroupConstrs(out, path, validate); });
}

void ConstrWriter::writeAreaGroupConstrs(std::ostream& out, const std::string& path,
                                         bool validate)
{
  if (handler.empty())
    return;
  start_(out, path);
  readSchema_();
  newDocument_();
  writeAllGlobalConstrs_();
  writeToJson_(out, validate);
  reset();
}

void ConstrWriter::reset()
{
  schema.reset();
  m_doc.reset();
}

void ConstrWriter::stripQPEPrefix(std::string& text) const
{
  qpe::constraints::stripQPEPrefix(text);
}

void ConstrWriter::stripOldZXPrefix(std::string& text) const
{
  qpe::constraints::stripOldZXPrefix(text);
}

void ConstrWriter::writeFile_(const std::string& path,
                              const std::function<void(std::ostream&)>& writeStream)
{
  if (handler.empty()) {
    HUTFile(path).rm();
    return;
  }
  std::ofstream out(path, std::ios_base::out | std::ios_base::trunc);
  writeStream(out);
}

JAllocator& ConstrWriter::allocator_() const
{
  if (!m_doc)
    throw HEXAlgException("ConstrWriter::getAllocator() - m_doc is null");
  return m_doc->GetAllocator();
}

void ConstrWriter::start_(std::ostream& out, const std::string& path)
{
  reset();
  if (!out.good()) {
    ComMsgMgrInstance message = IPCONFIG_MAKE_MSG(ComMsgMgr::Error, "@75-573@%s", path);
    message.attachMetaType(0, ComMsgMgr::FILE, path, "");
    throw HEXAll(message);
  }
  jsonPath = path;
}

// Also without validation: a write needs its schema.
void ConstrWriter::readSchema_()
{
  const std::string path = getSchemaFile();
  if (path.empty())
    throw HEXAll(IPCONFIG_MAKE_MSG(ComMsgMgr::Error, "@75-395@"));
  schema = SchemaFile::load(path);
}

void ConstrWriter::newDocument_()
{
  m_doc = std::make_unique<JDocument>();
  m_doc->SetObject();
}

void ConstrWriter::saveConstrs_()
{
  newDocument_();
  writeToolGenAttributes_();
  writeAllNodeConstrs_();
  writeAllPortConstrs_();
  writeAllNetConstrs_();
  writeAllGlobalConstrs_();
}

void ConstrWriter::writeToolGenAttributes_()
{
  if (!handler.isToolGenerated())
    return;
  Json::AddBooleanProperty(*m_doc, "isToolGenerated", true, m_doc->GetAllocator());
  if (handler.isSoft())
    Json::AddBooleanProperty(*m_doc, "isSoft", true, m_doc->GetAllocator());
}

void ConstrWriter::writeAllNodeConstrs_()
{
  JValue section(rapidjson::kObjectType);
  writeConstrsForObjects_(&ConstrHandler::getAllConstrainedNodes,
                          &BaseNameResolver::resolveScopedNodeName, section);
  addSection_("NodeConstraints", section);
}

void ConstrWriter::writeAllPortConstrs_()
{
  JValue section(rapidjson::kObjectType);
  handler.getFifoLocationsRecords().write(*m_doc, section);
  writeConstrsForObjects_(&ConstrHandler::getAllConstrainedPorts,
                          &BaseNameResolver::resolveScopedPortName, section);
  addSection_("PortConstraints", section);
}

void ConstrWriter::writeAllNetConstrs_()
{
  JValue section(rapidjson::kObjectType);
  writeConstrsForObjects_(&ConstrHandler::getAllConstrainedNets,
                          &BaseNameResolver::resolveScopedNetName, section);
  addSection_("NetConstraints", section);
}

// Each group adds its own member, so that groups of one kind share a key.
void ConstrWriter::writeAllGlobalConstrs_()
{
  std::vector<BaseConstraint*> groups;
  handler.getConstrs(BaseConstraint::GLOBAL, groups);
  JValue section(rapidjson::kObjectType);
  for (const BaseConstraint* group : groups)
    group->write(*m_doc, section, resolver);
  addSection_("GlobalConstraints", section);
}

// An object whose scoped name is empty is left out; one whose constraints
// write nothing stays, empty.
void ConstrWriter::writeConstrsForObjects_(GetNames getNames, ResolveName resolveScoped,
                                           JValue& section)
{
  std::vector<std::string> names;
  (handler.*getNames)(names);
  std::vector<BaseConstraint*> constrs;
  for (const std::string& name : names) {
    const std::string scoped = (resolver->*resolveScoped)(name);
    if (scoped.empty())
      continue;
    constrs.clear();
    handler.getConstrs(name, constrs);
    JValue object(rapidjson::kObjectType);
    for (const BaseConstraint* constr : constrs)
      constr->write(*m_doc, object, resolver);
    Json::AddGenericValueProperty(section, scoped, object, m_doc->GetAllocator());
  }
}

void ConstrWriter::addSection_(const char* key, JValue& section)
{
  if (section.MemberCount() > 0)
    Json::AddGenericValueProperty(*m_doc, key, section, m_doc->GetAllocator());
}

// Validation and output are one pass: what precedes the first offending
// value is written.
void ConstrWriter::writeToJson_(std::ostream& out, bool validate)
{
  HCBufferedOStream buffered(out);
  PrettyWriter writer(buffered);
  writer.SetIndent(' ', 2);
  writer.SetFormatOptions(rapidjson::kFormatSingleLineArray);
  if (!validate) {
    m_doc->Accept(writer);
    buffered.Flush();
    return;
  }
  IPConfig::ForwardingHandler<PrettyWriter> toWriter(writer);
  rapidjson::GenericSchemaValidator<IPConfig::JSchemaDocument, decltype(toWriter)> validator(
      *schema, toWriter);
  if (!m_doc->Accept(validator))
    buffered.Flush();
  if (!validator.IsValid())
    throw SchemaFile::violation("@75-572@%s%s%s%s", jsonPath, validator);
}

}  // namespace qpe::constraints
