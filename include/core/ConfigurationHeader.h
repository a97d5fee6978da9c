#pragma once

#include <map>
#include <string>
#include <vector>

// The project's settings, process-wide: one project is open at a time. The project file fills
// them; until then they hold their defaults.
class ConfigurationHeader {
 public:
  // A colour of the reservoir storage scale, at a percentage of the capacity.
  struct CoreReservoirColor {
    unsigned int r, g, b;
    double value;  // %
  };

  // Restores every default.
  static void reset();

  static unsigned int getPrecision();  // decimals shown, and to which shortages are rounded
  static void setPrecision(unsigned int value);
  static unsigned int getNumOfLinesInChart();
  static void setNumOfLinesInChart(unsigned int value);
  static bool isSaveResults();
  static void setSaveResults(bool value);
  static bool isSaveOnlyOneResults();
  static void setSaveOnlyOneResults(bool value);
  static bool isKeepInputSerieHistorical();
  static void setKeepInputSerieHistorical(bool value);
  static bool isSaveCheckEnableDocker();
  static void setSaveCheckEnableDocker(bool value);
  static const std::string& getUrlToWebService();
  static void setUrlToWebService(const std::string& value);
  static unsigned int getUrlPortToWebService();
  static void setUrlPortToWebService(unsigned int value);
  static bool isLoadResults();
  static void setLoadResults(bool value);
  static unsigned int getUtmZone();
  // Throws std::invalid_argument "ConfigurationHeader::setUtmZone: invalid zone" outside 1..60.
  static void setUtmZone(unsigned int value);
  // "Sul" or "Norte".
  static const std::string& getUtmHemisphere();
  // Throws std::invalid_argument "invalid HemisphereType value" for another text.
  static void setUtmHemisphere(const std::string& value);
  static unsigned int getMaxNumberOfErrors();
  static void setMaxNumberOfErrors(unsigned int value);
  static const std::string& getFolderToSaveSimulationModels();
  // Stores the folder with the platform's own separators.
  static void setFolderToSaveSimulationModels(const std::string& value);
  static bool getKeepTheSimulationFilesAfterExecution();
  static void setKeepTheSimulationFilesAfterExecution(bool value);
  // The key of the solver of the priority programmes, "lpsolve" unless the project names another
  // (LinearProgramSolverFactory knows the keys).
  static const std::string& getLinearProgramSolver();
  static void setLinearProgramSolver(const std::string& key);
  static const std::string& defaultLinearProgramSolver();
  static const std::vector<CoreReservoirColor>& getCoreReservoirColors();
  static void setCoreReservoirColors(const std::vector<CoreReservoirColor>& value);

  // Whether a scenario's file used the obsolete link limit object; false for unknown ids.
  static bool isOldTrafficLimit(unsigned int scenarioId);
  static void setOldTrafficLimit(unsigned int scenarioId, bool value);

 private:
  struct Values {
    unsigned int precision = 5;
    unsigned int numOfLinesInChart = 50;
    bool saveResults = false;
    bool saveOnlyOneResults = true;
    bool keepInputSerieHistorical = false;
    bool saveEnableDocker = true;
    std::string urlToWebService = "localhost";
    unsigned int urlPortToWebService = 80;
    bool loadResults = true;
    unsigned int utmZone = 24;
    std::string utmHemisphere = "Sul";
    unsigned int maxNumberOfErrors = 20;
    std::string simulationURL;
    bool keepTheSimulationFilesAfterExecution = false;
    std::string linearProgramSolver = defaultLinearProgramSolver();
    std::vector<CoreReservoirColor> colors = {
        {178, 246, 61, 100.0}, {0, 100, 0, 50.0}, {255, 13, 0, 0.0}};
    std::map<unsigned int, bool> oldTrafficLimit;
  };
  static Values& values();
};
