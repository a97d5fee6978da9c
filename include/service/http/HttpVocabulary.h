#pragma once

#include <cstdint>

#include "vocabulary/Enum.h"
#include "vocabulary/EnumTable.h"

// The request methods the update clients send.
enum class HttpMethods : int32_t {
  get = 0,
  post = 1,
};

// The request headers the update clients send; each display name carries its colon.
enum class HttpHeaders : int32_t {
  host = 0,
  connection = 1,
  cacheControl = 2,
  contentType = 3,
  keepAlive = 4,
  accept = 5,
  contentLength = 6,
};

// The names of HTTP methods and headers as they stand in a request.
class HttpVocabulary {
 public:
  using Methods = EnumTable<Enum<HttpMethods>, HttpMethods>;
  using Headers = EnumTable<Enum<HttpHeaders>, HttpHeaders>;

  // "GET", "POST".
  static const Methods& methods();
  // "Host:", "Connection:", "Cache-Control:", "Content-Type:", "Keep-Alive:", "Accept:",
  // "Content-Length:".
  static const Headers& headers();

  // Throw std::invalid_argument "HttpVocabulary::of(): value outside the vocabulary".
  static const Enum<HttpMethods>& of(HttpMethods method);
  static const Enum<HttpHeaders>& of(HttpHeaders header);
};
