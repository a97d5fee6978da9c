#pragma once

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "KovaInProcess.h"

// How kova is run as its own process. As the super-user, asNobody runs it as the user nobody, to
// whom permissions apply. A signal, when given, is sent afterMs milliseconds after the start or,
// when onText is given, as soon as the error stream shows that text. locale, when given, holds
// the NAME=value settings of the locale the program sees instead of the test's own.
struct ProcessOptions {
  bool asNobody = false;
  int signal = 0;
  int afterMs = 0;
  std::string onText;
  std::vector<std::string> locale;

  static ProcessOptions nobody() { return {true, 0, 0, "", {}}; }
  static ProcessOptions signalAfter(int signal, int ms) { return {false, signal, ms, "", {}}; }
  static ProcessOptions signalOn(int signal, std::string text) {
    return {false, signal, 0, std::move(text), {}};
  }
  static ProcessOptions under(std::vector<std::string> locale) {
    return {false, 0, 0, "", std::move(locale)};
  }
};

namespace kovaprocess {

// Reads fd to its end; sends the signal of options to pid at the first sight of its onText.
inline std::string readAll(int fd, pid_t pid, const ProcessOptions& options) {
  bool waiting = !options.onText.empty();
  std::string text;
  std::array<char, 4096> buffer{};
  for (ssize_t got; (got = read(fd, buffer.data(), buffer.size())) > 0;) {
    text.append(buffer.data(), static_cast<std::size_t>(got));
    if (waiting && text.find(options.onText) != std::string::npos) {
      kill(pid, options.signal);
      waiting = false;
    }
  }
  close(fd);
  return text;
}

}  // namespace kovaprocess

// What kova run as its own process printed and how it ended; the status is -1 when a signal
// ended it.
inline Outcome kovaProcess(const std::vector<std::string>& args,
                           const ProcessOptions& options = {}) {
  int out[2], err[2];
  if (pipe(out) != 0 || pipe(err) != 0) throw std::runtime_error("pipe");
  const pid_t pid = fork();
  if (pid == 0) {
    constexpr uid_t kNobody = 65534;
    if (options.asNobody && geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) {
      _exit(126);
    }
    if (!options.locale.empty()) {
      for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) unsetenv(name);
      for (const auto& setting : options.locale) putenv(const_cast<char*>(setting.c_str()));
    }
    dup2(out[1], STDOUT_FILENO);
    dup2(err[1], STDERR_FILENO);
    std::vector<char*> argv{const_cast<char*>(KOVA_BINARY)};
    for (const auto& arg : args) argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    execv(KOVA_BINARY, argv.data());
    _exit(127);
  }
  close(out[1]);
  close(err[1]);
  std::thread timer;
  if (options.signal != 0 && options.onText.empty()) {
    timer = std::thread([pid, options] {
      std::this_thread::sleep_for(std::chrono::milliseconds(options.afterMs));
      kill(pid, options.signal);
    });
  }
  Outcome run{-1, "", ""};
  run.err = kovaprocess::readAll(err[0], pid, options);
  run.out = kovaprocess::readAll(out[0], pid, ProcessOptions());
  int raw = 0;
  waitpid(pid, &raw, 0);
  if (timer.joinable()) timer.join();
  run.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  return run;
}
