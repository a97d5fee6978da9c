#pragma once

#include <string>
#include <vector>

// A validation pass. It never throws for bad data: it collects one message per finding, all of
// one severity, and any finding stops the run.
class CheckCompleteness {
 public:
  // One finding: the element's or scenario's name (or a series' description) and the message.
  struct ErrorStruct {
    std::string elementName;
    std::string message;

    bool operator==(const ErrorStruct& other) const {
      return elementName == other.elementName && message == other.message;
    }
  };

  virtual ~CheckCompleteness() = default;

  // Collects the findings anew.
  virtual void check() = 0;
  bool isOk() const { return errors.empty(); }
  std::size_t getNumErrors() const { return errors.size(); }
  const std::vector<ErrorStruct>& getErrors() const { return errors; }

 protected:
  void addError(std::string elementName, std::string message) {
    errors.push_back({std::move(elementName), std::move(message)});
  }
  void clearErrors() { errors.clear(); }
  std::vector<ErrorStruct>& mutableErrors() { return errors; }

 private:
  std::vector<ErrorStruct> errors;
};
