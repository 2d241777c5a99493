#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "JsonFileFrame.h"
#include "ipconfig_readwrite_export.h"

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace qpe::constraints {

class BaseNameResolver;
class ConstrHandler;

// Writes the contents of a handler as a constraints file: each constraint
// adds its own keys to a document, which goes out through a pretty writer, in
// the same pass through the schema validator when validating. Root keys in
// this order, each only when it has something: "isToolGenerated",
// "isSoft", "NodeConstraints", "PortConstraints" (the FIFO records first),
// "NetConstraints", "GlobalConstraints". Objects follow the order in which
// they were first constrained, and their keys the order in which their
// constraints were made.
class IPCONFIG_READWRITE_EXPORT ConstrWriter {
public:
  // Names are written as they are.
  explicit ConstrWriter(const ConstrHandler& handler);
  // Object names are written as `resolver`'s scoped names.
  ConstrWriter(const ConstrHandler& handler, const BaseNameResolver& resolver);
  virtual ~ConstrWriter();
  ConstrWriter(const ConstrWriter&) = delete;
  ConstrWriter& operator=(const ConstrWriter&) = delete;

  // A schema path that wins over the search in the data directory.
  void setSchema(const std::string& path);
  // The setSchema path, else the one that SchemaFile finds; may be empty.
  std::string getSchemaFile() const;
  // The document of the write under way; null outside a write.
  JDocument* getDocument();
  const JDocument* getDocument() const;
  // Throws HEXAlgException outside a write.
  JAllocator& getAllocator();
  const JAllocator& getAllocator() const;

  // An empty handler removes the file: its constraints shall not exist.
  // Otherwise the file is truncated and written in place, so that a failure
  // leaves what was written before it.
  void write(const std::string& path, bool validate);
  // Nothing for an empty handler. Throws HEXAll "@75-573@%s" for a stream
  // that is not good, "@75-395@" without a schema (whether validating or
  // not), and "@75-572@%s%s%s%s" when the output breaks the schema, leaving
  // the text written up to the offending value.
  void write(std::ostream& out, const std::string& path, bool validate);
  // The same for "GlobalConstraints" alone, without the tool-generated keys
  // and the two reports of a write.
  void writeAreaGroupConstrs(const std::string& path, bool validate);
  void writeAreaGroupConstrs(std::ostream& out, const std::string& path, bool validate);
  // Releases the schema and the document.
  void reset();

  // The key of an attribute: see the free functions of the same name.
  void stripQPEPrefix(std::string& text) const;
  void stripOldZXPrefix(std::string& text) const;

private:
  using GetNames = void (ConstrHandler::*)(std::vector<std::string>&) const;
  using ResolveName = std::string (BaseNameResolver::*)(const std::string&) const;

  void writeFile_(const std::string& path, const std::function<void(std::ostream&)>& writeStream);
  JAllocator& allocator_() const;
  void start_(std::ostream& out, const std::string& path);
  void readSchema_();
  void newDocument_();
  void saveConstrs_();
  void writeToolGenAttributes_();
  void writeAllNodeConstrs_();
  void writeAllPortConstrs_();
  void writeAllNetConstrs_();
  void writeAllGlobalConstrs_();
  // The objects that `getNames` gives, under `resolveScoped` names.
  void writeConstrsForObjects_(GetNames getNames, ResolveName resolveScoped, JValue& section);
  void addSection_(const char* key, JValue& section);
  void writeToJson_(std::ostream& out, bool validate);

  std::unique_ptr<BaseNameResolver> ownResolver;
  const ConstrHandler& handler;
  const BaseNameResolver* resolver;
  std::unique_ptr<IPConfig::JSchemaDocument> schema;
  std::unique_ptr<JDocument> m_doc;
  std::string jsonPath;
  std::string schemaPath;
};

}  // namespace qpe::constraints
