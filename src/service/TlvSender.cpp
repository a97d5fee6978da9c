#include "service/TlvSender.h"

#include <cstdint>
#include <limits>
#include <string>

#include "service/SocketClient.h"

namespace {

void putBigEndian(std::string& out, int value) {
  const auto bits = static_cast<uint32_t>(value);
  for (int shift = 24; shift >= 0; shift -= 8) {
    out.push_back(static_cast<char>((bits >> shift) & 0xFF));
  }
}

}  // namespace

std::string TlvSender::header(int type, int length) {
  std::string bytes;
  putBigEndian(bytes, type);
  putBigEndian(bytes, length);
  return bytes;
}

bool TlvSender::sendTlv(const TLV& tlv, SocketClient& socketClient) {
  const std::string& message = tlv.getMessage();
  if (message.size() > static_cast<std::size_t>(std::numeric_limits<int32_t>::max())) {
    return false;
  }
  if (!socketClient.sendMsg(header(tlv.getType(), static_cast<int>(message.size())))) {
    return false;
  }
  return message.empty() || socketClient.sendMsg(message);
}
