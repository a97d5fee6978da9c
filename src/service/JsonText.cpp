#include "service/JsonText.h"

#include <nlohmann/json.hpp>

std::string JsonText::quote(const std::string& text) {
  return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}
