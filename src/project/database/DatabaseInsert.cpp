#include "project/database/DatabaseInsert.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "common/Calendar.h"
#include "core/Reservoir.h"
#include "core/Scenario.h"
#include "project/database/DatabaseException.h"
#include "project/database/ElementTypeSaver.h"
#include "project/database/ReservoirCAVSaver.h"
#include "project/database/SQLStorage.h"
#include "project/database/SerieSaver.h"
#include "project/database/SerieTypeLiteSaver.h"
#include "project/database/UnitTypeSaver.h"
#include "project/database/UserLiteSaver.h"

int64_t DatabaseInsert::insertSceneryEntryInDatabase(Scenario& scenario) {
  return insertSceneryEntryInDatabase(SQLStorage::getInstance().getStorageRef(), scenario);
}

int64_t DatabaseInsert::insertSceneryEntryInDatabase(SQLite::Database& storage,
                                                     Scenario& scenario) {
  return DatabaseException::guard([&] {
    SQLite::Statement insert(storage, "INSERT INTO Scenario (enabled, name) VALUES (1, ?)");
    insert.bind(1, scenario.getName());
    insert.exec();
    const int64_t key = storage.getLastInsertRowid();
    scenario.setDatabaseId(static_cast<unsigned int>(key));
    return key;
  });
}

int64_t DatabaseInsert::insertNewElementInSceneryDatabase(SQLite::Database& storage,
                                                          int64_t scenarioId, Element& element) {
  return DatabaseException::guard([&] {
    SQLite::Transaction transaction(storage, SQLite::TransactionBehavior::IMMEDIATE);
    const int64_t userId = UserLiteSaver::defaultUserId(storage);
    const auto serieTypeIds = SerieTypeLiteSaver::save(storage, UnitTypeSaver::save(storage));
    const int64_t key =
        insertElementRow(storage, scenarioId, element, ElementTypeSaver::save(storage));
    const std::string timeStamp = Calendar::getTimeStamp();
    SerieSaver::saveInputSeries(storage, element.getVectorOfInputSeries(), serieTypeIds, timeStamp,
                                key, userId);
    if (const auto* reservoir = dynamic_cast<const Reservoir*>(&element)) {
      ReservoirCAVSaver::save(storage, *reservoir, timeStamp, key, userId);
    }
    transaction.commit();
    return key;
  });
}

int64_t DatabaseInsert::insertElementRow(SQLite::Database& storage, int64_t scenarioId,
                                         Element& element,
                                         const std::map<ElementType, int64_t>& elementTypeIds) {
  SQLite::Statement insert(storage,
                           "INSERT INTO Element (name, scenId, type, enabled) VALUES (?, ?, ?, 1)");
  insert.bind(1, element.getName());
  insert.bind(2, scenarioId);
  insert.bind(3, elementTypeIds.at(element.getType()));
  insert.exec();
  const int64_t key = storage.getLastInsertRowid();
  element.setDatabaseId(static_cast<unsigned int>(key));
  return key;
}
