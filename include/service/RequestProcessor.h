#pragma once

#include <filesystem>
#include <nlohmann/json_fwd.hpp>
#include <string>

#include "service/Requisition.h"
#include "service/ServiceSettings.h"

class ServiceLog;

// Serves one request frame. A processor that fails prints
// "An error hapenned in the parse of json <<<<<<<<" and the reason, sends no reply, and
// process() gives "<error>"; nothing it does throws out of process().
class RequestProcessor {
 public:
  explicit RequestProcessor(const Requisition& requisition);
  virtual ~RequestProcessor() = default;

  // Serves the request: "ok" once the reply went out, "<error>" otherwise.
  std::string process();

  void setFolder(const std::string& value) { folder = value; }
  void setSettings(const ServiceSettings& value) { settings = value; }
  void setLog(ServiceLog& value) { log = &value; }

 protected:
  // Does the work and sends the reply; false when the peer could not be given it. May throw:
  // process() reports it.
  virtual bool serve() = 0;
  // Sends a reply frame, its type found by description, with message on the request's
  // connection.
  bool reply(const std::string& description, const std::string& message) const;
  // As reply(), the message being the bytes of the file at path.
  bool replyWithFile(const std::string& description, const std::filesystem::path& path) const;
  // The request's JSON. Throws nlohmann::json::parse_error.
  nlohmann::json requestJson() const;
  // request["scenery"], refused as ProjectLocation::checkName refuses a name.
  static std::string sceneryOf(const nlohmann::json& request);
  // request["elementid"], a number or the text of one; a text is refused as
  // ProjectLocation::checkName refuses a name, or with std::invalid_argument
  // "RequestProcessor: elementid \"<text>\" is not a number".
  static unsigned int elementIdOf(const nlohmann::json& request);
  void print(const std::string& text) const;

  const Requisition& getRequisition() const { return requisition; }
  const std::string& getFolder() const { return folder; }
  const ServiceSettings& getSettings() const { return settings; }
  ServiceLog& getLog() const { return *log; }

 private:
  Requisition requisition;
  std::string folder;
  ServiceSettings settings;
  ServiceLog* log;
};
