#include "service/RequestProcessor.h"

#include <exception>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "service/EnumTlvTypeFactoryByIntegerType.h"
#include "service/ProjectLocation.h"
#include "service/ServiceLog.h"
#include "service/SocketClient.h"
#include "service/TlvSender.h"

RequestProcessor::RequestProcessor(const Requisition& requisition)
    : requisition(requisition), log(&ServiceLog::standardOutput()) {}

std::string RequestProcessor::process() {
  try {
    return serve() ? "ok" : "<error>";
  } catch (const std::exception& error) {
    print("An error hapenned in the parse of json <<<<<<<<\n" + std::string(error.what()) + "\n");
  } catch (...) {
    print("An error hapenned in the parse of json <<<<<<<<\n");
  }
  return "<error>";
}

bool RequestProcessor::reply(const std::string& description, const std::string& message) const {
  const int type = EnumTlvTypeFactoryByIntegerType::findByDescription(description).getId();
  // The connection belongs to the worker, which closes it: the client is only lent it.
  SocketClient client(requisition.getSocketOfRequisition());
  const bool sent =
      TlvSender::sendTlv(TLV(type, static_cast<int>(message.size()), message), client);
  client.release();
  return sent;
}

bool RequestProcessor::replyWithFile(const std::string& description,
                                     const std::filesystem::path& path) const {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw std::runtime_error("RequestProcessor: cannot read " + path.string());
  }
  const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  return reply(description, bytes);
}

nlohmann::json RequestProcessor::requestJson() const {
  return nlohmann::json::parse(requisition.getTlv().getMessage());
}

std::string RequestProcessor::sceneryOf(const nlohmann::json& request) {
  auto scenery = request.at("scenery").get<std::string>();
  ProjectLocation::checkName("scenery", scenery);
  return scenery;
}

unsigned int RequestProcessor::elementIdOf(const nlohmann::json& request) {
  const auto& id = request.at("elementid");
  if (!id.is_string()) {
    return id.get<unsigned int>();
  }
  const auto text = id.get<std::string>();
  ProjectLocation::checkName("elementid", text);
  if (text.find_first_not_of("0123456789") != std::string::npos || text.size() > 9) {
    throw std::invalid_argument("RequestProcessor: elementid \"" + text + "\" is not a number");
  }
  return static_cast<unsigned int>(std::stoul(text));
}

void RequestProcessor::print(const std::string& text) const { log->print(text); }
