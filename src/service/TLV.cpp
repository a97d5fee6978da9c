#include "service/TLV.h"

#include <utility>

TLV::TLV(int type, int length, std::string message)
    : type(type), length(length), message(std::move(message)) {}
