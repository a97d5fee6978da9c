#include "reports/CSVCav.h"

#include <fstream>
#include <stdexcept>

#include "core/Reservoir.h"
#include "reports/CSVWriteFile.h"
#include "reports/ReportFormat.h"

void CSVCav::exportCavs(const std::vector<std::shared_ptr<Element>>& elements,
                        const std::filesystem::path& path) {
  std::vector<std::shared_ptr<Reservoir>> reservoirs;
  for (const auto& element : elements) {
    auto reservoir = std::dynamic_pointer_cast<Reservoir>(element);
    if (!reservoir) {
      throw std::invalid_argument("CSVCav::exportCavs(): element type is not a reservoir");
    }
    reservoirs.push_back(reservoir);
  }
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) throw std::runtime_error("CSVCav::exportCavs(): erro ao abrir arquivo");
  file << "Reservatório\tCota (m)\tÁrea (km²)\tVolume (hm³)\n";
  for (const auto& reservoir : reservoirs) {
    for (const auto& row : reservoir->getReservoirInfo().cav) {
      file << reservoir->getName();
      for (double value : row) file << '\t' << ReportFormat::number(value);
      file << '\n';
    }
  }
  CSVWriteFile::finish(file, path, "CSVCav::exportCavs(): erro ao escrever arquivo");
}
