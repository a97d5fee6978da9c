#pragma once

#include "vocabulary/Enum.h"

// The kinds of frame: even numbers are requests, the odd number after each is its reply.
enum class TlvType : int {
  openExecuteAndReturnResults = 0,
  responseToOpenExecuteAndReturnResults = 1,
  requestListAvailable = 2,
  responseListOfAvailable = 3,
  requestSceneryNetwork = 4,
  responseToSceneryNetwork = 5,
  requestSerieOfElement = 6,
  responseSerieOfElement = 7,
  requestModifySerieOfElement = 8,
  responseModifySerieOfElement = 9,
  requestProject = 10,
  responseProject = 11,
};

// A frame kind with its description, the text a reply is looked up by.
using EnumTlvType = Enum<TlvType>;
