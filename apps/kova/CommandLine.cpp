#include "CommandLine.h"

#include <algorithm>
#include <cctype>

#include "HostText.h"
#include "UsageError.h"

namespace {

bool isOption(const std::string& arg) { return arg.size() > 2 && arg.compare(0, 2, "--") == 0; }

std::string tooFew(std::size_t expected, std::size_t got) {
  return expected == 1 ? tr("expected 1 argument, got {1}", {std::to_string(got)})
                       : tr("expected {1} arguments, got {2}",
                            {std::to_string(expected), std::to_string(got)});
}

}  // namespace

CommandLine CommandLine::parse(const std::vector<std::string>& args, const OptionSpec& accepted) {
  CommandLine line;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (!isOption(arg)) {
      line.positionalArgs.push_back(arg);
      continue;
    }
    const std::size_t equals = arg.find('=');
    const std::string name =
        arg.substr(2, equals == std::string::npos ? std::string::npos : equals - 2);
    if (accepted.flags.count(name) != 0) {
      if (equals != std::string::npos) throw UsageError(tr("option --{1} takes no value", {name}));
      line.flagsGiven.insert(name);
    } else if (accepted.valued.count(name) != 0 || accepted.repeatable.count(name) != 0) {
      if (equals != std::string::npos) {
        line.take(name, arg.substr(equals + 1), accepted);
      } else if (i + 1 < args.size() && !isOption(args[i + 1])) {
        line.take(name, args[++i], accepted);
      } else {
        throw UsageError(tr("option --{1} needs a value", {name}));
      }
    } else {
      throw UsageError(tr("unknown option {1}", {arg.substr(0, equals)}));
    }
  }
  const std::size_t count = line.positionalArgs.size();
  if (count < accepted.minPositional) {
    throw UsageError(tooFew(accepted.minPositional, count));
  }
  if (count > accepted.maxPositional)
    throw UsageError(
        tr("unexpected argument \"{1}\"", {line.positionalArgs[accepted.maxPositional]}));
  return line;
}

void CommandLine::take(const std::string& name, const std::string& value,
                       const OptionSpec& accepted) {
  if (value.empty()) throw UsageError(tr("option --{1} needs a value", {name}));
  auto& given = valuesGiven[name];
  if (!given.empty() && accepted.repeatable.count(name) == 0) {
    throw UsageError(tr("option --{1} given twice", {name}));
  }
  given.push_back(value);
}

bool CommandLine::has(const std::string& name) const {
  return flagsGiven.count(name) != 0 || valuesGiven.count(name) != 0;
}

std::string CommandLine::value(const std::string& name, const std::string& fallback) const {
  const auto found = valuesGiven.find(name);
  return found == valuesGiven.end() ? fallback : found->second.front();
}

std::string CommandLine::required(const std::string& name) const {
  const auto found = valuesGiven.find(name);
  if (found == valuesGiven.end()) throw UsageError(tr("option --{1} is required", {name}));
  return found->second.front();
}

std::vector<std::string> CommandLine::values(const std::string& name) const {
  const auto found = valuesGiven.find(name);
  return found == valuesGiven.end() ? std::vector<std::string>() : found->second;
}

unsigned long CommandLine::number(const std::string& name, unsigned long fallback,
                                  unsigned long minimum) const {
  const auto found = valuesGiven.find(name);
  if (found == valuesGiven.end()) return fallback;
  const std::string& text = found->second.front();
  const bool digits =
      !text.empty() && text.size() <= 9 &&
      std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
  if (!digits || std::stoul(text) < minimum) {
    throw UsageError(tr("option --{1}: \"{2}\" is not a whole number of at least {3}",
                        {name, text, std::to_string(minimum)}));
  }
  return std::stoul(text);
}
