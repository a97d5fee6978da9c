#pragma once

#include <gtest/gtest.h>

#include <string>

// Asserts that statement throws exactly Exception with the message text.
#define EXPECT_THROW_TEXT(statement, Exception, text)                       \
  do {                                                                      \
    try {                                                                   \
      statement;                                                            \
      ADD_FAILURE() << "expected " #Exception " \"" << (text) << "\"";      \
    } catch (const Exception& error) {                                      \
      EXPECT_EQ(std::string(error.what()), std::string(text));              \
    } catch (const std::exception& error) {                                 \
      ADD_FAILURE() << "another exception: " << error.what();               \
    }                                                                       \
  } while (false)
