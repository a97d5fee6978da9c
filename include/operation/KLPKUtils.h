#pragma once

#include <memory>
#include <string>
#include <vector>

#include "common/Date.h"
#include "core/Element.h"
#include "core/Link.h"
#include "operation/KLPKRepresentation.h"

// A link as a column of the network-flow model: its name, the share of its water that arrives
// (1 - loss / 100 seen from its downstream node, 1.0 seen from its upstream node) and the link.
struct VariableInfo {
  std::string name;
  double coefficient;
  std::shared_ptr<Link> link;
};

// The calls through which the network-flow model builds and reads a KLPKRepresentation, in the
// shape of a GLPK-like interface, and the helpers that name its rows and columns. Rows and
// columns are numbered from 0; the index and value arrays of a row are read from position 1.
class KLPKUtils {
 public:
  // A new, empty programme, or null when there is no memory for it; the caller owns it.
  static KLPKRepresentation* slp_create_prob();
  // Frees a programme made by slp_create_prob().
  static void slp_delete_prob(KLPKRepresentation* problem);
  // Drops every row and column.
  static void sglp_erase_prob(KLPKRepresentation* problem);
  // Lets lp_solve report on stderr (KLPK_ON) or keeps it silent (KLPK_OFF).
  static void slp_term_out(KLPKRepresentation* problem,
                           KLPKRepresentation::KLPK_TERMINAL_OUTPUT flag);
  // Names the programme.
  static void slp_set_prob_name(KLPKRepresentation* problem, const std::string& name);
  // 2 maximises; any other value minimises.
  static void slp_set_obj_dir(KLPKRepresentation* problem, int direction);
  // Throws std::invalid_argument "The index is out of bounds" for a column that does not exist.
  static void slp_set_obj_coef(KLPKRepresentation* problem, int column, double value);
  // Solves; 0 when an optimal solution was found, 1 otherwise.
  static int slp_simplex(KLPKRepresentation* problem);
  // The column of that name, or -1.
  static int slp_find_col(const KLPKRepresentation* problem, const std::string& name);
  // The column's value in the last optimal solution, hm³. Throws as slp_set_obj_coef.
  static double slp_get_col_prim(const KLPKRepresentation* problem, int column);
  // Gives the row the terms at positions 1 to count of indexes (columns) and values. Throws
  // std::invalid_argument "The index is out of bounds" for a row or column that does not exist.
  static void slp_set_mat_row(KLPKRepresentation* problem, int row, int count, const int* indexes,
                              const double* values);
  // Write the last solved programme in LP format / its solution; false when nothing was solved
  // or the file cannot be written.
  static bool slp_write_lp(const KLPKRepresentation* problem, const std::string& fileName);
  static bool slp_print_sol(const KLPKRepresentation* problem, const std::string& fileName);

  // The column of that name, added (at least 0.0) when absent.
  static int colValue(KLPKRepresentation* problem, const std::string& name);
  // The column of that name, added when absent, now bounded below by lower only (hm³). This
  // undoes an earlier doubleBounded(), which must therefore come last.
  static int lowColValue(KLPKRepresentation* problem, const std::string& name, double lower);
  // The column of that name, added when absent, now between lower and upper (hm³).
  static int doubleBounded(KLPKRepresentation* problem, const std::string& name, double lower,
                           double upper);
  // The row of that name, added (free) when absent.
  static int rowValue(KLPKRepresentation* problem, const std::string& name);
  // The row of that name, added when absent, now at most / at least / exactly value (hm³).
  static int upRowValue(KLPKRepresentation* problem, const std::string& name, double value);
  static int lowRowValue(KLPKRepresentation* problem, const std::string& name, double value);
  static int assignRowValue(KLPKRepresentation* problem, const std::string& name, double value);

  // The element's letter and id: "R12".
  static std::string oneVar(const std::shared_ptr<Element>& element);
  // The column of a link from source to target: "R12_D7".
  static std::string twoVar(const std::shared_ptr<Element>& source,
                            const std::shared_ptr<Element>& target);
  // The name of the next row: "r_" and the number of rows so far.
  static std::string subject(const KLPKRepresentation* problem);
  // The enabled incoming links of the node whose two ends are enabled, each with the share of
  // its water that arrives at date.
  static std::vector<VariableInfo> makeUpstreamVariables(const std::shared_ptr<Element>& element,
                                                         const Date& date);
  // The enabled outgoing links of the node whose two ends are enabled, with coefficient 1.0.
  static std::vector<VariableInfo> makeDownstreamVariables(const std::shared_ptr<Element>& element);
};
