#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

// The options a command accepts.
struct OptionSpec {
  std::set<std::string> valued;      // --name VALUE (or --name=VALUE), at most once
  std::set<std::string> repeatable;  // --name VALUE, any number of times
  std::set<std::string> flags;       // --name
  std::size_t minPositional = 0;
  std::size_t maxPositional = 0;
};

// The arguments of one command, checked against its OptionSpec. Every failure is a UsageError
// whose text names the offending argument.
class CommandLine {
 public:
  static CommandLine parse(const std::vector<std::string>& args, const OptionSpec& accepted);

  const std::vector<std::string>& positional() const { return positionalArgs; }
  const std::string& positional(std::size_t index) const { return positionalArgs.at(index); }
  // Whether a flag, or an option with a value, was given.
  bool has(const std::string& name) const;
  // The value of a valued option, or fallback when it is absent.
  std::string value(const std::string& name, const std::string& fallback) const;
  // The value of a valued option that must be given.
  std::string required(const std::string& name) const;
  // Every value of a repeatable option, in the order given.
  std::vector<std::string> values(const std::string& name) const;
  // A whole number of at least minimum; fallback when absent.
  unsigned long number(const std::string& name, unsigned long fallback,
                       unsigned long minimum) const;

 private:
  void take(const std::string& name, const std::string& value, const OptionSpec& accepted);

  std::vector<std::string> positionalArgs;
  std::set<std::string> flagsGiven;
  std::map<std::string, std::vector<std::string>> valuesGiven;
};
