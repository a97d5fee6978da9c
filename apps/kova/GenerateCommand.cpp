#include "GenerateCommand.h"

#include <filesystem>
#include <map>
#include <stdexcept>

#include "ExitStatus.h"
#include "HostText.h"
#include "Interrupt.h"
#include "NewProjectTarget.h"
#include "ProgressReporter.h"
#include "UsageError.h"

namespace {

constexpr unsigned long kMaxReservoirs = 1000;
constexpr unsigned long kMaxDemands = 5000;
constexpr unsigned long kMaxPeriods = 12000;  // a thousand years of months

const std::map<std::string, GeneratedMode>& modes() {
  static const std::map<std::string, GeneratedMode> names = {{"rule", GeneratedMode::rule},
                                                             {"priority", GeneratedMode::priority}};
  return names;
}

const std::map<std::string, GeneratedLayout>& layouts() {
  static const std::map<std::string, GeneratedLayout> names = {{"tree", GeneratedLayout::tree},
                                                               {"chain", GeneratedLayout::chain}};
  return names;
}

// Writes the project file and its database; false when the saving was cancelled or the file
// could not be written, nothing left behind then.
bool save(const std::filesystem::path& target, const GeneratedProjectOptions& options,
          ProgressReporter& progress) {
  try {
    const bool written =
        NewProjectTarget::save({GeneratedProject::make(options)}, target,
                               progress.callback(tr("saving"), ProgressReporter::Form::steps));
    progress.finish();
    return written;
  } catch (...) {
    progress.finish();
    throw;
  }
}

}  // namespace

Command GenerateCommand::describe() {
  return {"generate",
          "kova generate OUT.sjson --reservoirs N --demands M --periods T [--mode rule|priority] "
          "[--layout tree|chain] [--own-priorities] [--seed S] [--quiet]",
          tr("make a synthetic project of a chosen size"),
          HostText::help("generate"),
          {{"reservoirs", "demands", "periods", "mode", "layout", "seed"},
           {},
           {"quiet", "own-priorities"},
           1,
           1},
          run};
}

GeneratedProjectOptions GenerateCommand::optionsOf(const CommandLine& line) {
  GeneratedProjectOptions options;
  options.reservoirs = bounded(line, "reservoirs", 1, kMaxReservoirs);
  options.demands = bounded(line, "demands", 0, kMaxDemands);
  options.periods = bounded(line, "periods", 1, kMaxPeriods);
  const std::string layout = line.value("layout", "tree");
  const auto shape = layouts().find(layout);
  if (shape == layouts().end()) {
    throw UsageError(tr("option --layout: \"{1}\" is neither tree nor chain", {layout}));
  }
  options.layout = shape->second;
  const bool chain = options.layout == GeneratedLayout::chain;
  const std::string mode = line.value("mode", chain ? "priority" : "rule");
  const auto found = modes().find(mode);
  if (found == modes().end()) {
    throw UsageError(tr("option --mode: \"{1}\" is neither rule nor priority", {mode}));
  }
  options.mode = found->second;
  if (chain && options.mode != GeneratedMode::priority) {
    throw UsageError(tr("option --mode: a chain is operated by priorities"));
  }
  options.ownPriorities = line.has("own-priorities");
  if (options.ownPriorities && !chain) {
    throw UsageError(tr("option --own-priorities: only with --layout chain"));
  }
  if (options.ownPriorities && options.reservoirs + options.demands > 98) {
    throw UsageError(tr("option --own-priorities: at most 98 reservoirs and demands"));
  }
  options.seed = line.number("seed", 1, 0);
  return options;
}

unsigned int GenerateCommand::bounded(const CommandLine& line, const std::string& name,
                                      unsigned long minimum, unsigned long maximum) {
  line.required(name);  // absent: a UsageError
  const unsigned long value = line.number(name, minimum, minimum);
  if (value > maximum) {
    throw UsageError(tr("option --{1}: {2} is more than {3}",
                        {name, std::to_string(value), std::to_string(maximum)}));
  }
  return static_cast<unsigned int>(value);
}

int GenerateCommand::run(const CommandLine& line, Console& console) {
  const GeneratedProjectOptions options = optionsOf(line);
  const std::filesystem::path target(line.positional(0));
  NewProjectTarget::require(target);
  ProgressReporter progress(console, line.has("quiet"));
  Interrupt::Guard interruptible;
  if (!save(target, options, progress)) {
    if (!Interrupt::requested()) {
      throw std::runtime_error(target.string() + ": " + tr("could not be written"));
    }
    console.unlessQuiet(console.out)
        << target.string() << ": " << tr("cancelled, nothing written") << '\n';
    return exitCancelled;
  }
  console.unlessQuiet(console.out)
      << tr("generated {1}: {2} reservoirs, {3} demands, {4} months, ",
            {target.string(), std::to_string(options.reservoirs), std::to_string(options.demands),
             std::to_string(options.periods)})
      << (options.mode == GeneratedMode::rule ? tr("rule mode, ") : tr("priority mode, "))
      << (options.layout == GeneratedLayout::chain ? tr("chain, ") : "")
      << (options.ownPriorities ? tr("priorities of their own, ") : "")
      << tr("seed {1}", {std::to_string(options.seed)}) << '\n';
  return exitOk;
}
