#include "project/database/ReservoirCAVSaver.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "core/Reservoir.h"

void ReservoirCAVSaver::save(SQLite::Database& storage, const Reservoir& reservoir,
                             const std::string& timeStamp, int64_t elementId, int64_t userId) {
  SQLite::Statement insert(storage,
                           "INSERT INTO Cav (timeStamp, enabled, line, quota, area, volume, "
                           "elementID, userID) VALUES (?, 1, ?, ?, ?, ?, ?, ?)");
  const auto& table = reservoir.getReservoirInfo().cav;
  for (std::size_t line = 0; line < table.size(); ++line) {
    insert.bind(1, timeStamp);
    insert.bind(2, static_cast<int64_t>(line));
    insert.bind(3, table[line].at(ReservoirInfo::level));
    insert.bind(4, table[line].at(ReservoirInfo::area));
    insert.bind(5, table[line].at(ReservoirInfo::volume));
    insert.bind(6, elementId);
    insert.bind(7, userId);
    insert.exec();
    insert.reset();
  }
}
