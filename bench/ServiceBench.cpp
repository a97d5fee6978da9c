#include <benchmark/benchmark.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <ostream>
#include <thread>
#include <vector>

#include "core/ElementsFilter.h"
#include "managers/ProjectFunctions.h"
#include "project/database/SaveProject.h"
#include "scenario/ScenarioManager.h"
#include "service/ServiceLog.h"
#include "service/SocketClient.h"
#include "service/SocketUtils.h"
#include "service/TlvSender.h"
#include "service/TlvService.h"
#include "support/RealisticNetwork.h"

namespace {

// The realistic network over 1931-1935 (60 months, 45 elements) saved in a folder of its own;
// the request asks for the demand series of its human demand.
class ServedProject {
 public:
  ServedProject()
      : folder(std::filesystem::temp_directory_path() /
               ("kova_service_bench_" + std::to_string(getpid()))) {
    std::filesystem::create_directories(folder);
    RealisticNetwork network(
        Interval(Date(1931, 1, 1), Date(1935, 12, 1), Vocabulary::of(Periodicity::monthly)));
    network.net.scenario->setName("Base");
    const auto demand = ElementsFilter::filterByType(network.net.scenario->getElements(),
                                                     {ElementType::humanDemand})
                            .front();
    request = R"({"projname": "bench", "scenery": "Base", "elementid": )" +
              std::to_string(demand->getId()) + R"(, "serietypename": "Demanda"})";
    ScenarioManager::getInstance().addScenery(0, network.net.scenario);
    if (!SaveProject::saveAs((folder / "bench.sjson").string(), nullptr)) std::abort();
    ProjectFunctions::closeProject();
  }
  ~ServedProject() { std::filesystem::remove_all(folder); }

  std::filesystem::path folder;
  std::string request;
};

const ServedProject& project() {
  static const ServedProject served;
  return served;
}

// One request of type 6 on a new connection; false when no whole reply came.
bool askSeries(int port, const std::string& request) {
  SocketClient client;
  client.create(AF_INET, SOCK_STREAM, IPPROTO_TCP, "127.0.0.1", std::to_string(port));
  if (!client.connectTo()) return false;
  if (!client.sendMsg(TlvSender::header(6, static_cast<int>(request.size())) + request))
    return false;
  const auto deadline = SocketUtils::Clock::now() + std::chrono::seconds(30);
  try {
    if (SocketUtils::readIntFourBytes(client.getSocket(), deadline) != 7) return false;
    const int32_t length = SocketUtils::readIntFourBytes(client.getSocket(), deadline);
    return SocketUtils::readNBytesAsString(length, client.getSocket(), deadline).size() > 0;
  } catch (const std::exception&) {
    return false;
  }
}

// Requests of type 6 answered per second by a service with range(0) workers, asked by 4 clients
// at once, 8 requests each per iteration.
void BM_ServiceSeriesRequests(benchmark::State& state) {
  const auto& served = project();
  // The workers' console lines go nowhere: the figure is the service's, not the terminal's.
  std::ostream nowhere(nullptr);
  ServiceLog log(nowhere);
  TlvService service(served.folder.string(), ServiceSettings{}, log);
  service.start("127.0.0.1", "0", static_cast<int>(state.range(0)));
  std::atomic<bool> stopping{false};
  std::thread accepting([&] { service.run([&] { return stopping.load(); }); });
  constexpr int clients = 4;
  constexpr int requestsEach = 8;
  std::atomic<long> answered{0};
  for (auto _ : state) {
    std::vector<std::thread> askers;
    for (int c = 0; c < clients; ++c) {
      askers.emplace_back([&] {
        for (int r = 0; r < requestsEach; ++r)
          answered += askSeries(service.getPort(), served.request);
      });
    }
    for (auto& asker : askers) asker.join();
  }
  stopping = true;
  accepting.join();
  if (answered != static_cast<long>(state.iterations()) * clients * requestsEach)
    state.SkipWithError("a request went unanswered");
  state.SetItemsProcessed(answered);
}

}  // namespace

BENCHMARK(BM_ServiceSeriesRequests)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond)->UseRealTime();
