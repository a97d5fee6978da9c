#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <regex>

#include "ServiceSupport.h"

using namespace servicetest;

namespace {

// kova serve as a process of its own on a free port of loopback, its error stream read for the
// port it took.
class ServeProcess {
 public:
  explicit ServeProcess(const std::vector<std::string>& options) {
    int errPipe[2];
    EXPECT_EQ(pipe(errPipe), 0);
    pid = fork();
    if (pid == 0) {
      dup2(errPipe[1], STDERR_FILENO);
      const int null = open("/dev/null", O_WRONLY);
      dup2(null, STDOUT_FILENO);
      close(errPipe[0]);
      std::vector<std::string> args{KOVA_BINARY, "serve"};
      args.insert(args.end(), options.begin(), options.end());
      std::vector<char*> argv;
      for (auto& arg : args) argv.push_back(arg.data());
      argv.push_back(nullptr);
      execv(KOVA_BINARY, argv.data());
      _exit(127);
    }
    close(errPipe[1]);
    err = fdopen(errPipe[0], "r");
    char line[512];
    if (fgets(line, sizeof(line), err) != nullptr) {
      firstLine = line;
      std::smatch found;
      if (std::regex_search(firstLine, found, std::regex("port ([0-9]+)"))) {
        port = std::stoi(found[1]);
      }
    }
  }
  ~ServeProcess() {
    if (pid > 0) stop(SIGKILL);
    if (err != nullptr) fclose(err);
  }

  // Sends signal and gives the exit status (-1 when a signal ended it) and the rest of stderr.
  std::pair<int, std::string> stop(int signal) {
    kill(pid, signal);
    std::string rest;
    char line[512];
    while (fgets(line, sizeof(line), err) != nullptr) rest += line;
    int status = 0;
    waitpid(pid, &status, 0);
    pid = -1;
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, rest};
  }

  std::string firstLine;
  int port = -1;

 private:
  pid_t pid = -1;
  FILE* err = nullptr;
};

}  // namespace

TEST_F(ServiceTest, KovaServeAnswersOnLoopbackAndStopsOnSigtermAfterTheRequestInFlight) {
  std::filesystem::copy(pristineProject().file("demo.sjson"), folder.file("demo.sjson"));
  std::filesystem::copy(pristineProject().file("demo.sjson.sqlite"),
                        folder.file("demo.sjson.sqlite"));
  ServeProcess serve({"--folder", folder.root().string(), "--port", "0", "--workers", "2"});
  ASSERT_GT(serve.port, 0) << serve.firstLine;
  EXPECT_NE(serve.firstLine.find("on 127.0.0.1 port"), std::string::npos);
  EXPECT_EQ(exchange(serve.port, 2, "").value,
            R"({ "projects": [{ "projname": "demo","sceneries": ["Base"] }] })");

  // Half a request is in flight when SIGTERM comes; it is still answered.
  auto client = connectTo(serve.port);
  const std::string request = R"({"projname": "demo"})";
  const std::string frame = TlvSender::header(10, static_cast<int>(request.size())) + request;
  ASSERT_TRUE(client->sendMsg(frame.substr(0, 12)));
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  std::thread finisher([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    EXPECT_TRUE(client->sendMsg(frame.substr(12)));
  });
  const auto [status, rest] = serve.stop(SIGTERM);
  finisher.join();
  const Reply reply = readReply(*client);
  EXPECT_TRUE(reply.received);
  EXPECT_EQ(reply.type, 11);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(rest, "stopped after the requests in flight\n");
}

TEST_F(ServiceTest, KovaServeStopsOnSigintAndRefusesAFolderThatIsNotOne) {
  ServeProcess serve({"--folder", folder.root().string(), "--port", "0"});
  ASSERT_GT(serve.port, 0) << serve.firstLine;
  EXPECT_EQ(serve.stop(SIGINT).first, 0);

  ServeProcess missing({"--folder", folder.file("none")});
  EXPECT_EQ(missing.firstLine, "kova serve: " + folder.file("none") + ": not a folder\n");
  EXPECT_EQ(missing.stop(0).first, 2);
}
