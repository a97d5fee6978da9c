#pragma once

#include <cstdint>

// The type of data of a report column or cell. The numbers are those the host reads: 0 for whole
// numbers, 1 for text and 2 for floating values.
enum class TypeOfData : int32_t { intType = 0, stringType = 1, doubleType = 2 };
