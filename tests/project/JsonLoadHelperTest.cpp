#include <gtest/gtest.h>

#include <functional>

#include "project/JsonLoadException.h"
#include "project/JsonLoadHelper.h"
#include "support/ExpectThrow.h"

using json = nlohmann::json;
using H = JsonLoadHelper;

namespace {

const json kObject =
    json::parse(R"({"count":3,"negative":-1,"flag":2,"off":0,"share":0.5,"name":"Sul","none":null,)"
                R"("list":[1,2],"table":[[1.5],[]],"project":{"configuration":{"precision":4}}})");

}  // namespace

TEST(JsonLoadHelper, NullCountsAsAbsent) {
  for (const char* key : {"none", "missing"}) {
    SCOPED_TRACE(key);
    bool found = true;
    EXPECT_EQ(&H::findOptional(found, kObject, key), &kObject);
    EXPECT_FALSE(found);
    EXPECT_EQ(H::findOptional<unsigned int>(found, kObject, key), 0u);
    EXPECT_EQ(H::findOptional<std::string>(found, kObject, key), "");
    EXPECT_FALSE(found);
    const std::string message = "the key \"" + std::string(key) + "\" is required" +
                                (std::string(key) == "none" ? ", found null" : "");
    EXPECT_THROW_TEXT(H::findRequired(kObject, key), JsonLoadException, message);
    EXPECT_THROW_TEXT(H::getRequired<double>(kObject, key), JsonLoadException, message);
  }
}

TEST(JsonLoadHelper, TypedValues) {
  bool found = false;
  EXPECT_EQ(H::findOptional<unsigned int>(found, kObject, "count"), 3u);
  EXPECT_TRUE(found);
  // Integers are read unsigned, modulo the width of the target.
  EXPECT_EQ(H::getRequired<unsigned int>(kObject, "negative"), 4294967295u);
  EXPECT_TRUE(H::getRequired<bool>(kObject, "flag"));
  EXPECT_FALSE(H::getRequired<bool>(kObject, "off"));
  EXPECT_EQ(H::getRequired<double>(kObject, "count"), 3.0);
  EXPECT_EQ(H::getRequired<std::vector<unsigned int>>(kObject, "list"),
            (std::vector<unsigned int>{1, 2}));
  EXPECT_EQ(H::getRequired<std::vector<std::vector<double>>>(kObject, "table"),
            (std::vector<std::vector<double>>{{1.5}, {}}));
  EXPECT_EQ(H::findOptional(found, kObject, "project", "configuration")["precision"], 4);
  EXPECT_TRUE(found);
  H::findOptional(found, kObject, "project", "colors");
  EXPECT_FALSE(found);
  H::findOptional(found, kObject, "settings", "configuration");
  EXPECT_FALSE(found);
}

// A refusal says what was expected and what was found, and points at the value at fault so that
// the loader can name its place in the file.
TEST(JsonLoadHelper, WrongTypesAreRefusedAtTheirValue) {
  const json wrong =
      json::parse(R"({"text":"3","yes":true,"fraction":3.5,"object":{},"list":[1,"2"]})");
  const std::vector<std::pair<std::function<void()>, std::pair<const json*, std::string>>> cases = {
      {[&] { H::getRequired<unsigned int>(wrong, "text"); },
       {&wrong["text"], "expected a whole number, found the text \"3\""}},
      // Booleans of the format are 0 and 1: a JSON true is refused, even where a flag stands.
      {[&] { H::getRequired<bool>(wrong, "yes"); },
       {&wrong["yes"], "expected 0 or 1, found the boolean true"}},
      {[&] { H::getRequired<double>(wrong, "yes"); },
       {&wrong["yes"], "expected a number, found the boolean true"}},
      {[&] { H::getRequired<unsigned int>(wrong, "fraction"); },
       {&wrong["fraction"], "expected a whole number, found the number 3.5"}},
      {[&] { H::getRequired<std::vector<double>>(wrong, "object"); },
       {&wrong["object"], "expected a list, found an object"}},
      {[&] { H::getRequired<std::string>(wrong, "fraction"); },
       {&wrong["fraction"], "expected a text, found the number 3.5"}},
      {[&] { H::getRequired<std::vector<double>>(wrong, "list"); },
       {&wrong["list"][1], "expected a number, found the text \"2\""}},
      // A member of something that is no object is refused, never read as absent.
      {[&] { H::findRequired(wrong["list"], "text"); },
       {&wrong["list"], "expected an object, found a list"}},
      {[&] {
         bool found = false;
         H::findOptional(found, wrong["fraction"], "text");
       },
       {&wrong["fraction"], "expected an object, found the number 3.5"}},
  };
  for (const auto& [call, fault] : cases) {
    SCOPED_TRACE(fault.second);
    try {
      call();
      ADD_FAILURE() << "accepted";
    } catch (const JsonLoadException& error) {
      EXPECT_EQ(error.what(), fault.second);
      EXPECT_EQ(error.where(), fault.first);
    }
  }
}

// Long texts from the file are cut in messages: a name of megabytes must not flood the output.
TEST(JsonLoadHelper, LongTextsAreCutInMessages) {
  const json value = std::string(1000, 'a');
  EXPECT_EQ(H::describe(value), "the text \"" + std::string(60, 'a') + "...\"");
}

// A failure of the model or of a factory gets the place it came from; one that has a place
// keeps it.
TEST(JsonLoadHelper, FailuresInsideAReadGetThePlaceOfTheRead) {
  const json item = json::parse(R"({"a":{"b":1}})");
  try {
    H::at(item["a"], []() -> int { throw std::invalid_argument("Invalid day."); });
    ADD_FAILURE();
  } catch (const JsonLoadException& error) {
    EXPECT_STREQ(error.what(), "Invalid day.");
    EXPECT_EQ(error.where(), &item["a"]);
  }
  try {
    H::at(item, [&] { return H::getRequired<std::string>(item["a"], "b"); });
    ADD_FAILURE();
  } catch (const JsonLoadException& error) {
    EXPECT_EQ(error.where(), &item["a"]["b"]);
  }
}
