#include "service/Requisition.h"

Requisition::Requisition(uint64_t socket, const TLV& tlv) : socket(socket), tlv(tlv) {}
