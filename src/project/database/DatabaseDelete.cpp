#include "project/database/DatabaseDelete.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <string>

#include "core/Element.h"
#include "project/database/DatabaseException.h"

void DatabaseDelete::deleteElementsWhere(SQLite::Database& storage, const char* where,
                                         int64_t key) {
  const std::string elements = std::string("SELECT databaseId FROM Element WHERE ") + where;
  for (const char* table :
       {"SerieOutput", "SerieInput", "Cav", "HidrologicalStateSeries",
        "HidrologicalStatePerReservoirSeries", "HidrologicalStatePerReservoirMonthlySeries"}) {
    SQLite::Statement erase(storage, std::string("DELETE FROM \"") + table +
                                         "\" WHERE elementID IN (" + elements + ")");
    erase.bind(1, key);
    erase.exec();
  }
  SQLite::Statement erase(storage, std::string("DELETE FROM Element WHERE ") + where);
  erase.bind(1, key);
  erase.exec();
}

void DatabaseDelete::deleteScenByID(SQLite::Database& storage, int64_t scenarioId) {
  DatabaseException::guard([&] {
    SQLite::Transaction transaction(storage, SQLite::TransactionBehavior::IMMEDIATE);
    deleteElementsWhere(storage, "scenId = ?", scenarioId);
    SQLite::Statement erase(storage, "DELETE FROM Scenario WHERE databaseId = ?");
    erase.bind(1, scenarioId);
    erase.exec();
    transaction.commit();
  });
}

void DatabaseDelete::deleteElement(SQLite::Database& storage, int64_t elementId, Element* element) {
  DatabaseException::guard([&] {
    SQLite::Transaction transaction(storage, SQLite::TransactionBehavior::IMMEDIATE);
    deleteElementsWhere(storage, "databaseId = ?", elementId);
    transaction.commit();
  });
  if (element != nullptr) element->setDatabaseId(0);
}
