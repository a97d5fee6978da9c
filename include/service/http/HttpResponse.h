#pragma once

#include <string>
#include <vector>

// One answer of a web service: its status line ("HTTP/1.1 200 OK"), its header lines without
// their line ends, and the content that its content-length announced.
struct HttpResponse {
  std::string statusLine;
  std::vector<std::string> headerLines;
  std::string content;
};
