// Priority runs of the chain network as a user meets them: `kova run X.sjson --no-save --quiet
// --solver S` timed as a whole process (start, loading, checks, run, exit), for the four cases of
// the benchmark and each solver. Each case is then run once more inside this program, in a child
// process, to count its linear programmes and the time spent inside the solver's simplex.

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "GeneratedProject.h"
#include "core/ConfigurationHeader.h"
#include "operation/KLPKRepresentation.h"
#include "operation/LinearProgramSolverFactory.h"

namespace {

struct ChainCase {
  std::string name;
  unsigned int reservoirs, demands;
  bool ownPriorities;
};

const std::vector<ChainCase>& chainCases() {
  static const std::vector<ChainCase> all = {{"5/10", 5, 10, false},
                                             {"20/40", 20, 40, false},
                                             {"50/100", 50, 100, false},
                                             {"20/40 own", 20, 40, true}};
  return all;
}

// What the in-process run of a case found.
struct InsideRun {
  double runSeconds = 0.0;
  double solverSeconds = 0.0;
  unsigned long long linearProgrammes = 0;
  bool ok = false;
};

double secondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Runs the program with its arguments, output thrown away; gives the wall seconds, or -1 when it
// failed.
double timedProcess(const std::vector<std::string>& args) {
  const auto start = std::chrono::steady_clock::now();
  const pid_t pid = fork();
  if (pid < 0) return -1.0;
  if (pid == 0) {
    std::vector<char*> argv;
    for (const auto& arg : args) argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    if (std::freopen("/dev/null", "w", stdout) == nullptr) _exit(127);
    execv(argv[0], argv.data());
    _exit(127);
  }
  int status = 0;
  waitpid(pid, &status, 0);
  const double seconds = secondsSince(start);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? seconds : -1.0;
}

GeneratedProjectOptions optionsOf(const ChainCase& one, unsigned int periods) {
  GeneratedProjectOptions options;
  options.reservoirs = one.reservoirs;
  options.demands = one.demands;
  options.periods = periods;
  options.mode = GeneratedMode::priority;
  options.layout = GeneratedLayout::chain;
  options.ownPriorities = one.ownPriorities;
  return options;
}

// The run inside a child process, so that the counters hold this case alone.
InsideRun insideRun(const ChainCase& one, unsigned int periods, const std::string& solver) {
  int fds[2];
  InsideRun result;
  if (pipe(fds) != 0) return result;
  const pid_t pid = fork();
  if (pid == 0) {
    close(fds[0]);
    InsideRun measured;
    ConfigurationHeader::setLinearProgramSolver(solver);
    const auto scenario = GeneratedProject::make(optionsOf(one, periods));
    const auto start = std::chrono::steady_clock::now();
    measured.ok = scenario->run(nullptr);
    measured.runSeconds = secondsSince(start);
    measured.solverSeconds = KLPKRepresentation::solverSecondsInProcess();
    measured.linearProgrammes = KLPKRepresentation::solvesInProcess();
    const bool written = write(fds[1], &measured, sizeof measured) == sizeof measured;
    _exit(written ? 0 : 1);
  }
  close(fds[1]);
  if (pid > 0 && read(fds[0], &result, sizeof result) != sizeof result) result = InsideRun();
  close(fds[0]);
  if (pid > 0) waitpid(pid, nullptr, 0);
  return result;
}

std::string fixed(double value, int decimals, int width) {
  std::ostringstream text;
  text.setf(std::ios::fixed);
  text.precision(decimals);
  text.width(width);
  text << value;
  return text.str();
}

void report(const ChainCase& one, const std::string& solver, double wholeSeconds,
            const InsideRun& inside) {
  std::cout << one.name << std::string(12 - one.name.size(), ' ') << solver
            << std::string(9 - solver.size(), ' ');
  if (wholeSeconds < 0.0 || !inside.ok) {
    std::cout << "failed" << std::endl;
    return;
  }
  std::cout << fixed(wholeSeconds, 2, 9) << fixed(inside.runSeconds, 2, 9)
            << fixed(static_cast<double>(inside.linearProgrammes), 0, 9)
            << fixed(static_cast<double>(inside.linearProgrammes) / wholeSeconds, 0, 10)
            << fixed(100.0 * inside.solverSeconds / inside.runSeconds, 1, 10) << std::endl;
}

}  // namespace

int main(int argc, char** argv) {
  unsigned int periods = 1200;
  if (argc == 3 && std::string(argv[1]) == "--periods") {
    periods = static_cast<unsigned int>(std::stoul(argv[2]));
  } else if (argc != 1 || periods == 0) {
    std::cerr << "Usage: kova_chain_bench [--periods N]\n";
    return 2;
  }
  const std::string kova = KOVA_PROGRAM;
  const auto folder =
      std::filesystem::temp_directory_path() / ("kova_chain_bench_" + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  std::cout << "Chain networks (seed 1) over " << periods << " months: kova run --no-save\n"
            << "case        solver     whole s    run s      LPs     LPs/s  solver %" << std::endl;
  for (const ChainCase& one : chainCases()) {
    const std::string path = (folder / ("chain" + std::to_string(one.reservoirs) +
                                        (one.ownPriorities ? "own" : "") + ".sjson"))
                                 .string();
    std::vector<std::string> generate = {kova,
                                         "generate",
                                         path,
                                         "--layout",
                                         "chain",
                                         "--reservoirs",
                                         std::to_string(one.reservoirs),
                                         "--demands",
                                         std::to_string(one.demands),
                                         "--periods",
                                         std::to_string(periods),
                                         "--quiet"};
    if (one.ownPriorities) generate.push_back("--own-priorities");
    const bool made = timedProcess(generate) >= 0.0;
    for (const std::string& solver : LinearProgramSolverFactory::keys()) {
      const double whole =
          made ? timedProcess({kova, "run", path, "--no-save", "--quiet", "--solver", solver})
               : -1.0;
      report(one, solver, whole, insideRun(one, periods, solver));
    }
  }
  std::filesystem::remove_all(folder);
  return 0;
}
