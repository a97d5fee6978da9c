#pragma once

#include <cstdint>

#include "service/TLV.h"

// A request as a worker holds it: the connection it came on and its frame.
class Requisition {
 public:
  Requisition() = default;
  Requisition(uint64_t socket, const TLV& tlv);

  uint64_t getSocketOfRequisition() const { return socket; }
  void setSocket(uint64_t value) { socket = value; }
  const TLV& getTlv() const { return tlv; }
  void setTlv(const TLV& value) { tlv = value; }

 private:
  uint64_t socket = ~uint64_t{0};
  TLV tlv;
};
