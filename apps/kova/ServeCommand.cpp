#include "ServeCommand.h"

#include <csignal>
#include <filesystem>

#include "ExitStatus.h"
#include "HostText.h"
#include "Interrupt.h"
#include "UsageError.h"
#include "service/ServiceLog.h"
#include "service/TlvService.h"

namespace {

constexpr unsigned long kDefaultPort = 7040;
constexpr unsigned long kMaxWorkers = 64;

// SIGTERM stops the service as SIGINT does, for as long as the guard lives.
class TerminateGuard {
 public:
  TerminateGuard() : previous(std::signal(SIGTERM, [](int) { Interrupt::request(); })) {}
  ~TerminateGuard() { std::signal(SIGTERM, previous); }
  TerminateGuard(const TerminateGuard&) = delete;
  TerminateGuard& operator=(const TerminateGuard&) = delete;

 private:
  void (*previous)(int);
};

std::string folderOf(const CommandLine& line) {
  const std::string folder = line.required("folder");
  std::error_code error;
  if (!std::filesystem::is_directory(folder, error)) {
    throw std::runtime_error(folder + ": " + tr("not a folder"));
  }
  return folder;
}

ServiceSettings settingsOf(const CommandLine& line) {
  ServiceSettings settings;
  settings.allowChanges = line.has("allow-changes");
  return settings;
}

}  // namespace

Command ServeCommand::describe() {
  return {"serve",
          "kova serve --folder DIR [--bind ADDR] [--port N] [--workers K] [--allow-changes]",
          tr("serve the projects of a folder over TCP"),
          HostText::help("serve"),
          {{"folder", "bind", "port", "workers"}, {}, {"allow-changes", "quiet"}, 0, 0},
          run};
}

int ServeCommand::run(const CommandLine& line, Console& console) {
  const std::string folder = folderOf(line);
  const std::string address = line.value("bind", "127.0.0.1");
  const unsigned long port = line.number("port", kDefaultPort, 0);
  const unsigned long workers = line.number("workers", 1, 1);
  if (port > 65535) throw UsageError(tr("--port must be at most 65535"));
  if (workers > kMaxWorkers) throw UsageError(tr("--workers must be at most 64"));
  ServiceLog log(console.out);
  TlvService service(folder, settingsOf(line), log);
  Interrupt::Guard interruptible;
  TerminateGuard terminable;
  service.start(address, std::to_string(port), static_cast<int>(workers));
  console.err << tr("serving {1} on {2} port {3} with {4} worker(s); changes {5}",
                    {folder, address, std::to_string(service.getPort()), std::to_string(workers),
                     line.has("allow-changes") ? tr("allowed") : tr("refused")})
              << std::endl;
  service.run([] { return Interrupt::requested(); });
  console.err << tr("stopped after the requests in flight") << std::endl;
  return exitOk;
}
