#include "service/http/HttpVocabulary.h"

#include <stdexcept>

namespace {

template <typename Table, typename Type>
const auto& rowOf(const Table& table, Type type) {
  const auto* row = table.findByType(type);
  if (row == nullptr) {
    throw std::invalid_argument("HttpVocabulary::of(): value outside the vocabulary");
  }
  return *row;
}

}  // namespace

const HttpVocabulary::Methods& HttpVocabulary::methods() {
  static const Methods table({{HttpMethods::get, "GET"}, {HttpMethods::post, "POST"}});
  return table;
}

const HttpVocabulary::Headers& HttpVocabulary::headers() {
  using H = HttpHeaders;
  static const Headers table({
      {H::host, "Host:"},
      {H::connection, "Connection:"},
      {H::cacheControl, "Cache-Control:"},
      {H::contentType, "Content-Type:"},
      {H::keepAlive, "Keep-Alive:"},
      {H::accept, "Accept:"},
      {H::contentLength, "Content-Length:"},
  });
  return table;
}

const Enum<HttpMethods>& HttpVocabulary::of(HttpMethods method) { return rowOf(methods(), method); }

const Enum<HttpHeaders>& HttpVocabulary::of(HttpHeaders header) { return rowOf(headers(), header); }
