// Whole-run timings of generated projects: a rule run and a priority run of each size, and the
// storing and loading of their results. Each case runs in a child process of its own, so that
// its peak memory is its own and no case warms another's caches. A run's peak includes making
// the project; a save's, the run before it; a load's, nothing else.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "GeneratedProject.h"
#include "managers/ProjectFunctions.h"
#include "operation/PriorityOperation.h"
#include "project/database/LoadProject.h"
#include "project/database/SQLStorage.h"
#include "project/database/SaveProject.h"
#include "scenario/ScenarioManager.h"

namespace {

struct Size {
  std::string name;
  unsigned int reservoirs, demands;
};

const std::map<std::string, Size>& sizes() {
  static const std::map<std::string, Size> all = {
      {"S", {"S", 5, 10}}, {"M", {"M", 20, 40}}, {"L", {"L", 50, 100}}};
  return all;
}

enum class Phase { run, save, load };

const std::vector<std::pair<Phase, std::string>>& phases() {
  static const std::vector<std::pair<Phase, std::string>> all = {
      {Phase::run, "run"}, {Phase::save, "save"}, {Phase::load, "load"}};
  return all;
}

// What a child tells its parent through a pipe: a plain record, written and read whole.
struct Measure {
  double seconds = 0.0;
  double linearProgrammes = 0.0;  // solved in the timed run; 0 when there is none
  bool ok = false;
  char failure[240] = {};
};

struct Case {
  Size size;
  GeneratedMode mode;
  Phase phase;
  std::string name;
};

double secondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The linear programmes of a priority run: no counter is kept, but with a single hydrological
// state every date solves one programme per distinct priority.
double linearProgrammesOf(const Scenario& scenario) {
  const auto operation =
      std::dynamic_pointer_cast<PriorityOperation>(scenario.getCurrentOperationSystem());
  if (!operation || !operation->getNetworkFlow()) return 0.0;
  const auto passes = operation->getNetworkFlow()->makePriorities(scenario.getElements()).size();
  return static_cast<double>(passes) * scenario.getInterval().period();
}

void requireRun(Scenario& scenario) {
  if (!scenario.run(nullptr)) {
    throw std::runtime_error("the run ended with: " + scenario.getSceneryStatus().getName());
  }
}

// Saves the project to a new database beside path before running it, so that the database
// holds no results yet, then stores the results of the run; gives the seconds of the storing.
double runAndSaveResults(const std::shared_ptr<Scenario>& scenario, const std::string& path) {
  ScenarioManager::getInstance().addScenery(0, scenario);
  if (!SaveProject::saveAs(path, nullptr)) throw std::runtime_error(path + ": not written");
  requireRun(*scenario);
  auto& storage = SQLStorage::getInstance().getStorageRef();
  return secondsOf(
      [&] { ScenarioManager::updateSceneryResultsInDatabase(scenario, storage, nullptr); });
}

double loadWithResults(const std::string& path) {
  ProjectFunctions::closeProject();
  std::vector<std::shared_ptr<Scenario>> loaded;
  const double seconds = secondsOf([&] { loaded = LoadProject::load(path, nullptr); });
  if (loaded.size() != 1 || !loaded.front()->hasResults()) {
    throw std::runtime_error(path + ": loaded without its results");
  }
  return seconds;
}

std::shared_ptr<Scenario> generated(const Case& one, unsigned int periods) {
  GeneratedProjectOptions options;
  options.reservoirs = one.size.reservoirs;
  options.demands = one.size.demands;
  options.periods = periods;
  options.mode = one.mode;
  return GeneratedProject::make(options);
}

// Runs work in a process of its own and waits for it; throws when it fails.
void inOwnProcess(const std::function<void()>& work) {
  const pid_t pid = fork();
  if (pid < 0) throw std::runtime_error("no child process");
  if (pid == 0) {
    try {
      work();
    } catch (const std::exception& error) {
      std::cerr << "kova_macro_bench: " << error.what() << std::endl;
      _exit(1);
    }
    _exit(0);
  }
  int status = 0;
  waitpid(pid, &status, 0);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    throw std::runtime_error("a helper process failed");
  }
}

// Writes the project of one case and its results at path.
void writeProjectWithResults(const Case& one, unsigned int periods, const std::string& path) {
  runAndSaveResults(generated(one, periods), path);
}

std::string projectPath(const Case& one, const std::filesystem::path& folder) {
  return (folder / (one.name + ".sjson")).string();
}

Measure measure(const Case& one, unsigned int periods, const std::filesystem::path& folder) {
  Measure result;
  if (one.phase == Phase::load) {
    result.seconds = loadWithResults(projectPath(one, folder));
  } else {
    const auto scenario = generated(one, periods);
    if (one.phase == Phase::run) {
      result.seconds = secondsOf([&] { requireRun(*scenario); });
      result.linearProgrammes = linearProgrammesOf(*scenario);
    } else {
      result.seconds = runAndSaveResults(scenario, projectPath(one, folder));
    }
  }
  ProjectFunctions::closeProject();
  result.ok = true;
  return result;
}

void writeWhole(int fd, const Measure& result) {
  const auto* bytes = reinterpret_cast<const char*>(&result);
  std::size_t written = 0;
  while (written < sizeof result) {
    const ssize_t step = write(fd, bytes + written, sizeof result - written);
    if (step <= 0) return;
    written += static_cast<std::size_t>(step);
  }
}

bool readWhole(int fd, Measure& result) {
  auto* bytes = reinterpret_cast<char*>(&result);
  std::size_t got = 0;
  while (got < sizeof result) {
    const ssize_t step = read(fd, bytes + got, sizeof result - got);
    if (step <= 0) return false;
    got += static_cast<std::size_t>(step);
  }
  return true;
}

[[noreturn]] void child(const Case& one, unsigned int periods, const std::filesystem::path& folder,
                        int fd) {
  Measure result;
  try {
    result = measure(one, periods, folder);
  } catch (const std::exception& error) {
    std::snprintf(result.failure, sizeof result.failure, "%s", error.what());
  }
  writeWhole(fd, result);
  close(fd);
  _exit(0);
}

std::string fixed(double value, int decimals, int width) {
  std::ostringstream text;
  text.setf(std::ios::fixed);
  text.precision(decimals);
  text.width(width);
  text << value;
  return text.str();
}

std::string padded(const std::string& text, std::size_t width) {
  return text + std::string(width > text.size() ? width - text.size() : 1, ' ');
}

void report(const Case& one, unsigned int periods, const Measure& result, long peakKiB) {
  std::cout << padded(one.name, 18);
  if (!result.ok) {
    std::cout << "failed: " << (result.failure[0] ? result.failure : "the child ended early")
              << std::endl;
    return;
  }
  std::cout << fixed(result.seconds, 3, 10) << fixed(periods / result.seconds, 1, 12)
            << (result.linearProgrammes > 0.0
                    ? fixed(result.linearProgrammes / result.seconds, 1, 12)
                    : std::string(11, ' ') + "-")
            << fixed(static_cast<double>(peakKiB) / 1024.0, 1, 11) << std::endl;
}

// The measure of one case from a child process, and the child's peak memory (KiB).
std::pair<Measure, long> measureInChild(const Case& one, unsigned int periods,
                                        const std::filesystem::path& folder) {
  int fds[2];
  if (pipe(fds) != 0) throw std::runtime_error("no pipe for a child");
  const pid_t pid = fork();
  if (pid < 0) throw std::runtime_error("no child process");
  if (pid == 0) {
    close(fds[0]);
    child(one, periods, folder, fds[1]);
  }
  close(fds[1]);
  Measure result;
  const bool told = readWhole(fds[0], result);
  close(fds[0]);
  int status = 0;
  rusage usage{};
  wait4(pid, &status, 0, &usage);
  if (!told) result = Measure();
  return {result, usage.ru_maxrss};
}

// A load is measured in a process that does nothing else, so that its peak memory is the
// loading's: another process writes the project it loads first.
void runCase(const Case& one, unsigned int periods, const std::filesystem::path& folder) {
  try {
    if (one.phase == Phase::load) {
      inOwnProcess([&] { writeProjectWithResults(one, periods, projectPath(one, folder)); });
    }
    const auto [result, peak] = measureInChild(one, periods, folder);
    report(one, periods, result, peak);
  } catch (const std::exception& error) {
    Measure failed;
    std::snprintf(failed.failure, sizeof failed.failure, "%s", error.what());
    report(one, periods, failed, 0);
  }
}

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::stringstream stream(text);
  std::string part;
  while (std::getline(stream, part, separator)) parts.push_back(part);
  return parts;
}

struct BenchOptions {
  std::vector<Size> sizes;
  unsigned int periods = 1200;
};

unsigned int periodsOf(const std::string& value) {
  const bool digits = !value.empty() && value.size() <= 5 &&
                      value.find_first_not_of("0123456789") == std::string::npos;
  if (!digits || std::stoul(value) == 0 || std::stoul(value) > 12000) {
    throw std::invalid_argument("--periods: \"" + value +
                                "\" is not a whole number from 1 to 12000");
  }
  return static_cast<unsigned int>(std::stoul(value));
}

BenchOptions benchOptionsOf(int argc, char** argv) {
  BenchOptions settings;
  std::string chosen = "S,M,L";
  for (int i = 1; i < argc; i += 2) {
    const std::string arg = argv[i];
    if (i + 1 >= argc || (arg != "--sizes" && arg != "--periods")) {
      throw std::invalid_argument("unknown or incomplete argument \"" + arg + "\"");
    }
    if (arg == "--sizes") {
      chosen = argv[i + 1];
    } else {
      settings.periods = periodsOf(argv[i + 1]);
    }
  }
  for (const auto& name : split(chosen, ',')) {
    const auto found = sizes().find(name);
    if (found == sizes().end())
      throw std::invalid_argument("--sizes: unknown size \"" + name + "\"");
    settings.sizes.push_back(found->second);
  }
  return settings;
}

}  // namespace

int main(int argc, char** argv) {
  BenchOptions settings;
  try {
    settings = benchOptionsOf(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "kova_macro_bench: " << error.what()
              << "\nUsage: kova_macro_bench [--sizes S,M,L] [--periods N]\n";
    return 2;
  }
  const auto folder =
      std::filesystem::temp_directory_path() / ("kova_macro_bench_" + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  std::cout << "Generated projects (seed 1) over " << settings.periods << " monthly periods\n"
            << padded("case", 18) << "    wall s   periods/s       LPs/s   peak MiB" << std::endl;
  for (const Size& size : settings.sizes) {
    for (GeneratedMode mode : {GeneratedMode::rule, GeneratedMode::priority}) {
      for (const auto& [phase, phaseName] : phases()) {
        const std::string modeName = mode == GeneratedMode::rule ? "rule" : "priority";
        runCase({size, mode, phase, size.name + " " + modeName + " " + phaseName}, settings.periods,
                folder);
      }
    }
  }
  std::filesystem::remove_all(folder);
  return 0;
}
