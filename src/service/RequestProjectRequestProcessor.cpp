#include "service/RequestProjectRequestProcessor.h"

#include <filesystem>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "service/ProjectLocation.h"
#include "service/ProjectSession.h"
#include "service/TemporaryWorkspace.h"
#include "service/ZipArchive.h"

namespace {

void addFile(ZipArchive& archive, const std::filesystem::path& file) {
  archive.zip_entry_open(file.filename().string());
  archive.zip_entry_fwrite(file.string());
  archive.zip_entry_close();
}

}  // namespace

bool RequestProjectRequestProcessor::serve() {
  const auto request = requestJson();
  const std::string path = ProjectLocation::projectPath(getFolder(), request);
  const std::string database = ProjectLocation::databasePath(path);
  const TemporaryWorkspace workspace;
  const auto archivePath = workspace.path() / "project.zip";
  {
    // No change request may write the files while they are being read.
    const auto lock = ProjectSession::exclusive();
    for (const auto& file : {path, database}) {
      if (!std::filesystem::is_regular_file(file)) {
        throw std::runtime_error("RequestProjectRequestProcessor: no such file " + file);
      }
    }
    ZipArchive archive(archivePath.string(), 6, 'w');
    addFile(archive, path);
    addFile(archive, database);
    archive.zip_close();
  }
  return replyWithFile("Responder projeto", archivePath);
}
