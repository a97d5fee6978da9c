#include <gtest/gtest.h>

#include "reports/CellDataFactoryAndLoaderByEnumType.h"
#include "reports/CellDataFactoryAndLoaderByTypeAsInteger.h"
#include "reports/CellDataFactoryByEnumType.h"
#include "reports/CellDataFactoryByTypeAsInteger.h"
#include "reports/LoadedDataUtils.h"
#include "support/ExpectThrow.h"

TEST(CellDataFactories, EveryTypeMakesItsCellByEnumAndByNumber) {
  struct Case {
    TypeOfData type;
    int number;
    const char* contentName;
    const char* emptyText;
    const char* loaded;
  };
  const std::vector<Case> cases = {
      {TypeOfData::intType, 0, "Int", "-999", "42"},
      {TypeOfData::stringType, 1, "String", "", "Açude Orós"},
      {TypeOfData::doubleType, 2, "Double", "-999", "0.1"},
  };
  ASSERT_EQ(CellDataFactoryByEnumType::keys().size(), cases.size());
  for (const Case& c : cases) {
    SCOPED_TRACE(c.contentName);
    for (const auto& cell : {CellDataFactoryByEnumType::make(c.type),
                             CellDataFactoryByTypeAsInteger::make(c.number)}) {
      EXPECT_EQ(cell->getTypeOfData(), c.type);
      EXPECT_EQ(cell->getContentType()->getName(), c.contentName);
      EXPECT_EQ(cell->toString(), c.emptyText);
    }
    // Text read into a cell prints back the same.
    EXPECT_EQ(CellDataFactoryAndLoaderByEnumType::make(c.type, c.loaded)->toString(), c.loaded);
    EXPECT_EQ(CellDataFactoryAndLoaderByTypeAsInteger::make(c.number, c.loaded)->toString(),
              c.loaded);
  }
  EXPECT_THROW_TEXT(CellDataFactoryByEnumType::make(static_cast<TypeOfData>(3)),
                    std::invalid_argument, "CellDataFactoryByEnumType::make(): invalid typeOfData");
  EXPECT_THROW_TEXT(CellDataFactoryByTypeAsInteger::make(-1), std::invalid_argument,
                    "CellDataFactoryByTypeAsInteger::make(): invalid typeOfData");
  EXPECT_THROW_TEXT(CellDataFactoryAndLoaderByEnumType::make(static_cast<TypeOfData>(7), "1"),
                    std::invalid_argument,
                    "CellDataFactoryAndLoaderByEnumType::make(): invalid typeOfData");
  EXPECT_THROW_TEXT(CellDataFactoryAndLoaderByTypeAsInteger::make(3, "1"), std::invalid_argument,
                    "CellDataFactoryAndLoaderByTypeAsInteger::make(): invalid typeOfData");
}

TEST(CellData, NumbersRoundAndReadBackExactly) {
  auto whole = CellDataFactoryByEnumType::make(TypeOfData::intType);
  whole->setNumber(2.5);  // halves away from zero
  EXPECT_EQ(whole->toString(), "3");
  EXPECT_FALSE(whole->isEmpty());
  EXPECT_THROW_TEXT(whole->load("2.5"), std::invalid_argument,
                    "CellDataInt::load(): invalid whole number '2.5'");
  auto floating = CellDataFactoryByEnumType::make(TypeOfData::doubleType);
  EXPECT_TRUE(floating->isEmpty());
  floating->setNumber(295.0 / 119);
  EXPECT_EQ(CellDataFactoryAndLoaderByEnumType::make(TypeOfData::doubleType, floating->toString())
                ->getNumber(),
            295.0 / 119);
  EXPECT_THROW(floating->load("abc"), std::invalid_argument);
  auto text = CellDataFactoryByEnumType::make(TypeOfData::stringType);
  text->setNumber(1e-7);
  EXPECT_EQ(text->toString(), "1e-07");
  EXPECT_FALSE(text->isEmpty());
}

TEST(LoadedData, RowsFollowTheColumnsAndKeepTheirOriginalIndex) {
  LoadedData table;
  table.addColumn({TypeOfData::stringType, "Elemento"});
  table.addColumn({TypeOfData::doubleType, "Vulnerabilidade (%)"});
  const auto row = [](const std::string& name, double value) {
    return LoadedData::Row{
        CellDataFactoryAndLoaderByEnumType::make(TypeOfData::stringType, name),
        CellDataFactoryAndLoaderByEnumType::make(TypeOfData::doubleType, std::to_string(value))};
  };
  table.addRow(row("A", 50));
  table.addRow(row("B", 25));
  EXPECT_THROW_TEXT(table.addRow({row("C", 1)[0]}), std::invalid_argument,
                    "LoadedData::addRow(): invalid row size");
  EXPECT_THROW_TEXT(table.addRow({row("C", 1)[1], row("C", 1)[0]}), std::invalid_argument,
                    "LoadedData::addRow(): invalid cell type");
  EXPECT_THROW_TEXT(table.addColumn({TypeOfData::intType, "x"}), std::invalid_argument,
                    "LoadedData::addColumn(): the table already has rows");
  EXPECT_THROW_TEXT(table.getCell(2, 0), std::out_of_range, "LoadedData::getCell(): invalid index");

  const LoadedData indexed = LoadedDataUtils::getLoadedDataWithOriginalIndexIndicator(table);
  ASSERT_EQ(indexed.getColumns().size(), 3u);
  EXPECT_EQ(indexed.getColumns()[2].name, "Índice original");
  EXPECT_EQ(indexed.getColumns()[2].typeOfData, TypeOfData::intType);
  EXPECT_EQ(indexed.getCell(1, 0)->toString(), "B");
  EXPECT_EQ(indexed.getCell(0, 2)->toString(), "0");
  EXPECT_EQ(indexed.getCell(1, 2)->toString(), "1");
  EXPECT_EQ(indexed.getCell(1, 1), table.getCell(1, 1));  // the same cell, shared
}
