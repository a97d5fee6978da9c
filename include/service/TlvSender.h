#pragma once

#include "service/TLV.h"

class SocketClient;

// Writes a frame: the 8 bytes of type and length, big-endian, in one send, then the value.
class TlvSender {
 public:
  // False when the peer is gone before every byte went out. The length sent is the message's
  // size, whatever tlv.getLength() holds.
  [[nodiscard]] static bool sendTlv(const TLV& tlv, SocketClient& socketClient);
  // The 8 header bytes of a frame of type and length.
  static std::string header(int type, int length);
};
