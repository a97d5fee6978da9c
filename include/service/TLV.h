#pragma once

#include <string>

// One frame of the service: a type (see EnumTlvType), the byte count of the value and the value
// itself, JSON text for requests and JSON or the bytes of an archive for replies.
class TLV {
 public:
  TLV() = default;
  TLV(int type, int length, std::string message);

  int getType() const { return type; }
  int getLength() const { return length; }
  const std::string& getMessage() const { return message; }
  void setType(int value) { type = value; }
  void setLength(int value) { length = value; }
  void setMessage(const std::string& value) { message = value; }

 private:
  int type = 0;
  int length = 0;
  std::string message;
};
