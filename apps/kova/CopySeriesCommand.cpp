#include "CopySeriesCommand.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "ExitStatus.h"
#include "HostText.h"
#include "OpenProject.h"
#include "UsageError.h"
#include "core/Scenario.h"
#include "managers/InputSeriesCopy.h"
#include "project/database/DatabaseException.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/DatabaseUpdate.h"
#include "project/database/SQLStorage.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Outcome = InputSeriesCopy::Outcome;
using Skip = InputSeriesCopy::Skip;

std::string joined(const std::vector<std::string>& texts) {
  std::string list;
  for (const auto& text : texts) list += (list.empty() ? "" : ", ") + text;
  return list;
}

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

// What --series accepts: "0 Precipitação, 1 Evaporação, ...".
std::string inputKinds() {
  std::vector<std::string> kinds;
  for (const SerieType kind : Vocabulary::inputSerieTypes()) {
    kinds.push_back(std::to_string(static_cast<int>(kind)) + " " + Vocabulary::of(kind).getName());
  }
  return joined(kinds);
}

std::set<SerieType> kindsAsked(const CommandLine& line) {
  std::set<SerieType> kinds;
  for (const auto& text : line.values("series")) {
    const auto kind = InputSeriesCopy::inputKindNamed(text);
    if (!kind) {
      throw UsageError(
          tr("option --series: \"{1}\" is not an input series kind ({2})", {text, inputKinds()}));
    }
    kinds.insert(*kind);
  }
  return kinds;
}

bool sameFile(const std::filesystem::path& one, const std::filesystem::path& other) {
  std::error_code error;
  return std::filesystem::equivalent(one, other, error);
}

// A copy of scenario name of the project at path, made while the project is open for reading
// only: the ScenarioManager holds one project at a time, and the target's takes its place.
std::shared_ptr<Scenario> scenarioOf(const std::filesystem::path& path, const std::string& name) {
  const OpenProject project(path);
  return project.scenario(name)->copy();
}

// Every series copied goes into the open database in one transaction: a failure leaves the
// target's series as they were.
void store(const Outcome& outcome) {
  auto& storage = SQLStorage::getInstance().getStorageRef();
  DatabaseException::guard([&] {
    SQLite::Transaction transaction(storage, SQLite::TransactionBehavior::IMMEDIATE);
    for (const auto& copied : outcome.copied) {
      for (const SerieType kind : copied.kinds) {
        const Serie& serie = *copied.target->getInputSerie(kind);
        if (!DatabaseUpdate::updateInputSerie(storage, copied.target->getDatabaseId(), serie)) {
          throw std::runtime_error(tr("the project database has no series type \"{1}\" in {2}",
                                      {serie.getName(), serie.getUnit().getName()}));
        }
      }
    }
    transaction.commit();
  });
}

void printCopied(const Outcome& outcome, std::ostream& out) {
  for (const auto& copied : outcome.copied) {
    std::vector<std::string> kinds;
    for (const SerieType kind : copied.kinds) kinds.push_back(Vocabulary::of(kind).getName());
    out << tr("copied \"{1}\": {2}", {copied.target->getName(), joined(kinds)}) << '\n';
  }
}

// The elements with nothing to copy are only counted: asked for precipitation, every demand and
// link would fill a line.
void printLeftOut(const Outcome& outcome, const Scenario& source, const Scenario& target,
                  std::ostream& out) {
  for (const auto& skipped : outcome.skipped) {
    if (skipped.why != Skip::otherKind) continue;
    out << tr("skipped \"{1}\": {2} in \"{3}\" but {4} in \"{5}\"",
              {skipped.element, Vocabulary::of(skipped.sourceType).getName(), source.getName(),
               Vocabulary::of(skipped.targetType).getName(), target.getName()})
        << '\n';
  }
  if (outcome.unmatched.empty()) return;
  std::vector<std::string> names;
  for (const auto& name : outcome.unmatched) names.push_back(quoted(name));
  out << tr("not in scenario \"{1}\": {2}", {target.getName(), joined(names)}) << '\n';
}

void printSummary(const Outcome& outcome, const Scenario& source, const Scenario& target,
                  std::ostream& out) {
  const auto otherKind =
      std::count_if(outcome.skipped.begin(), outcome.skipped.end(),
                    [](const auto& skipped) { return skipped.why == Skip::otherKind; });
  out << tr("{1} of {2} element(s) copied from \"{3}\" into \"{4}\": {5} of another kind, {6} "
            "without a namesake, {7} with nothing to copy",
            {std::to_string(outcome.copied.size()), std::to_string(source.getElements().size()),
             source.getName(), target.getName(), std::to_string(otherKind),
             std::to_string(outcome.unmatched.size()),
             std::to_string(outcome.skipped.size() - static_cast<std::size_t>(otherKind))})
      << '\n';
}

// Stored results stay, as a run left them, but they no longer answer to the inputs.
void warnOfFormerResults(const Outcome& outcome, const Scenario& target, Console& console) {
  if (outcome.copied.empty()) return;
  auto& storage = SQLStorage::getInstance().getStorageRef();
  if (DatabaseSearch::getHashesOfResultsByScenID(storage, target.getDatabaseId()).empty()) return;
  console.unlessQuiet(console.err)
      << "kova copy-series: "
      << tr("warning: the stored results of scenario \"{1}\" were computed from its former "
            "inputs; run it again",
            {target.getName()})
      << '\n';
}

int copyInto(const InputSeriesCopy& series, const Scenario& source, Scenario& target,
             Console& console) {
  const Outcome outcome = series.copy(source, target);
  store(outcome);
  printCopied(outcome, console.out);
  printLeftOut(outcome, source, target, console.out);
  printSummary(outcome, source, target, console.unlessQuiet(console.out));
  warnOfFormerResults(outcome, target, console);
  return outcome.copied.empty() ? exitFindings : exitOk;
}

}  // namespace

Command CopySeriesCommand::describe() {
  return {"copy-series",
          "kova copy-series P.sjson --from NAME --to NAME [--series KIND]... [--project Q.sjson]",
          tr("copy input series between scenarios and projects"),
          HostText::help("copy-series"),
          {{"from", "to", "project"}, {"series"}, {}, 1, 1},
          run};
}

int CopySeriesCommand::run(const CommandLine& line, Console& console) {
  const InputSeriesCopy series(kindsAsked(line));
  const std::string from = line.required("from");
  const std::string to = line.required("to");
  const std::filesystem::path source = line.positional(0);
  const std::filesystem::path target = line.value("project", source.string());
  const bool oneProject = !line.has("project") || sameFile(source, target);
  if (oneProject && from == to) {
    throw UsageError(tr("--from and --to name the same scenario \"{1}\"", {from}));
  }
  const auto foreign = oneProject ? nullptr : scenarioOf(source, from);
  OpenProject project(target, nullptr, OpenProject::Access::readWrite);
  const auto original = foreign ? foreign : project.scenario(from);
  return copyInto(series, *original, *project.scenario(to), console);
}
