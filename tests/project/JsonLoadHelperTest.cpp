#include <gtest/gtest.h>

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
    EXPECT_THROW_TEXT(H::findRequired(kObject, key), JsonLoadException, "Invalid json file");
    EXPECT_THROW_TEXT(H::getRequired<double>(kObject, key), JsonLoadException, "Invalid json file");
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

TEST(JsonLoadHelper, WrongTypesAreTheLibrarysTypeErrors) {
  const json wrong = json::parse(R"({"text":"3","yes":true,"fraction":3.5,"object":{}})");
  using E = json::type_error;
  EXPECT_THROW_TEXT(H::getRequired<unsigned int>(wrong, "text"), E,
                    "[json.exception.type_error.302] type must be number, but is string");
  // Booleans of the format are 0 and 1: a JSON true is refused, even where a flag stands.
  EXPECT_THROW_TEXT(H::getRequired<bool>(wrong, "yes"), E,
                    "[json.exception.type_error.302] type must be number, but is boolean");
  EXPECT_THROW_TEXT(H::getRequired<double>(wrong, "yes"), E,
                    "[json.exception.type_error.302] type must be number, but is boolean");
  EXPECT_THROW_TEXT(H::getRequired<unsigned int>(wrong, "fraction"), E,
                    "[json.exception.type_error.302] type must be integer, but is number");
  EXPECT_THROW_TEXT(H::getRequired<std::vector<double>>(wrong, "object"), E,
                    "[json.exception.type_error.302] type must be array, but is object");
  EXPECT_THROW_TEXT(H::getRequired<std::string>(wrong, "fraction"), E,
                    "[json.exception.type_error.302] type must be string, but is number");
  // A member of something that is no object does not exist.
  EXPECT_THROW_TEXT(H::findRequired(json::array(), "text"), JsonLoadException, "Invalid json file");
}
