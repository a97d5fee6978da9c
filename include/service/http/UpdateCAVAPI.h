#pragma once

#include <cstddef>
#include <memory>

#include "service/http/HttpRequestBuilder.h"
#include "service/http/UpdateAPI.h"

// The update of a reservoir's level-area-volume table.
class UpdateCAVAPI : public UpdateAPI {
 public:
  UpdateCAVAPI(std::shared_ptr<Element> element, std::shared_ptr<Scenario> scenario);

  // The request for the reservoir's table. Throws as reservoirFor.
  HttpRequestBuilder makeJsonRequest() const;
  // See UpdateAPI::update(); the number of rows stored is then getRowsStored().
  bool update() override;
  std::size_t getRowsStored() const { return rowsStored; }

 private:
  std::size_t rowsStored = 0;
};
