#include "service/SocketContainer.h"

SocketContainer::SocketContainer(uint64_t socket) : socket(socket) {}
