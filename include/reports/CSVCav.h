#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "core/Element.h"

// Exports the level-area-volume tables of reservoirs, as the user gave them, to one text file
// with tabs between fields: the heading "Reservatório", "Cota (m)", "Área (km²)", "Volume (hm³)",
// then one line per row of each table, the reservoir's name first.
class CSVCav {
 public:
  // Throws std::invalid_argument "CSVCav::exportCavs(): element type is not a reservoir" when an
  // element is not a reservoir (before anything is written), and std::runtime_error
  // "CSVCav::exportCavs(): erro ao abrir arquivo" when the file cannot be made, or
  // "CSVCav::exportCavs(): erro ao escrever arquivo: <path>" when a write fails (a full disk),
  // after removing what it wrote.
  static void exportCavs(const std::vector<std::shared_ptr<Element>>& elements,
                         const std::filesystem::path& path);
};
