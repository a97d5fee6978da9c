#include "reports/LoadedDataUtils.h"

#include "reports/CellDataFactoryByEnumType.h"

const std::string& LoadedDataUtils::originalIndexColumnName() {
  static const std::string name = "Índice original";
  return name;
}

LoadedData LoadedDataUtils::getLoadedDataWithOriginalIndexIndicator(const LoadedData& data) {
  LoadedData indexed;
  for (const ColInfo& column : data.getColumns()) indexed.addColumn(column);
  indexed.addColumn({TypeOfData::intType, originalIndexColumnName()});
  for (std::size_t i = 0; i < data.getRows().size(); ++i) {
    LoadedData::Row row = data.getRows()[i];
    row.push_back(CellDataFactoryByEnumType::make(TypeOfData::intType));
    row.back()->setNumber(static_cast<double>(i));
    indexed.addRow(std::move(row));
  }
  return indexed;
}
