#include "ErrorText.h"

#include <algorithm>

#include "project/database/DatabaseException.h"

std::string ErrorText::of(const std::exception& error) {
  std::string text = error.what();
  const auto* database = dynamic_cast<const DatabaseException*>(&error);
  if (database && !database->getDetail().empty())
    text += " (SQLite: " + database->getDetail() + ")";
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}
