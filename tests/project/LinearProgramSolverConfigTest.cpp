#include <gtest/gtest.h>

#include "core/ConfigurationHeader.h"
#include "project/JsonLoadException.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/ProjectFileSupport.h"
#include "support/ExpectThrow.h"

using projectfile::replaced;
using LinearProgramSolverConfig = projectfile::ProjectFileTest;

namespace {

std::string golden() { return projectfile::readFile(projectfile::priorityGoldenPath()); }

const std::string kLastKey = "\"keepTheSimulationFilesAfterExecution\":0,";

std::string naming(const std::string& solverValue) {
  return replaced(golden(), kLastKey, kLastKey + "\"linearProgramSolver\":" + solverValue + ",");
}

}  // namespace

// A file written before the solver could be chosen names none: it runs under lp_solve, and saving
// it again gives the same text.
TEST_F(LinearProgramSolverConfig, AFileThatNamesNoSolverKeepsLpSolveAndIsWrittenBackUnchanged) {
  ConfigurationHeader::setLinearProgramSolver("clp");
  const auto scenarios = JsonProjectLoader::loadText(golden());
  EXPECT_EQ(ConfigurationHeader::getLinearProgramSolver(), "lpsolve");
  EXPECT_EQ(JsonSaveBuilder::toJson(scenarios), golden());
}

// CLP, once named, is read and written back at the end of the configuration.
TEST_F(LinearProgramSolverConfig, ClpIsReadAndWrittenBack) {
  const auto scenarios = JsonProjectLoader::loadText(naming("\"clp\""));
  EXPECT_EQ(ConfigurationHeader::getLinearProgramSolver(), "clp");
  const std::string saved = JsonSaveBuilder::toJson(scenarios);
  EXPECT_NE(saved.find("\"CoreReservoirColors\":[{\"r\":178,\"g\":246,\"b\":61,\"value\":"
                       "100.00000000000000000},{\"r\":0,\"g\":100,\"b\":0,\"value\":"
                       "50.00000000000000000},{\"r\":255,\"g\":13,\"b\":0,\"value\":"
                       "0.00000000000000000}],\"linearProgramSolver\":\"clp\"}}}"),
            std::string::npos)
      << saved;
  ConfigurationHeader::reset();
  JsonProjectLoader::loadText(saved);
  EXPECT_EQ(ConfigurationHeader::getLinearProgramSolver(), "clp");
}

// An unknown solver, or a value that is no text, is refused at its place, and the configuration
// keeps the solver it had.
TEST_F(LinearProgramSolverConfig, AnUnknownSolverIsRefusedAtItsPlace) {
  ConfigurationHeader::setLinearProgramSolver("clp");
  EXPECT_THROW_TEXT(JsonProjectLoader::loadText(naming("\"glpk\"")), JsonLoadException,
                    "/project/configuration/linearProgramSolver: expected a linear programme "
                    "solver (clp or lpsolve), found the text \"glpk\"");
  EXPECT_THROW_TEXT(JsonProjectLoader::loadText(naming("2")), JsonLoadException,
                    "/project/configuration/linearProgramSolver: expected a text, found the "
                    "number 2");
  EXPECT_EQ(ConfigurationHeader::getLinearProgramSolver(), "clp");
}
