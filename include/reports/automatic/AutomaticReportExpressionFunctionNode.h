#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "reports/automatic/AutomaticReportExpression.h"
#include "vocabulary/AutomaticReportSerieTypeEnum.h"
#include "vocabulary/EnumTypes.h"
#include "vocabulary/ReportMetricTypeEnum.h"

class Element;

// A call: a report metric of one element, "Escassez total em hm3(Irrigação Norte)", or a
// series operation over one series of one element, "Max(Sobradinho, Volume final)". Its
// parameters are leaves holding names; a name shared by an input and a result series
// ("Perda em trânsito") stands for the result.
class AutomaticReportExpressionFunctionNode : public AutomaticReportExpression {
 public:
  // The call of name with its parameters, not yet read: processStr() reads them. position is
  // that of the name.
  AutomaticReportExpressionFunctionNode(
      std::string name, std::vector<std::unique_ptr<AutomaticReportExpression>> parameters,
      std::size_t position);

  // Finds what the name calls and checks the parameters against it. Throws
  // std::invalid_argument "position N: <what is wrong>" for an unknown function, a wrong number
  // of parameters, a parameter that is not a name and an unknown kind of series.
  void processStr();

  AutomaticReportExpressionType getExpressionType() const override;
  // Whether processStr() has read the call and every parameter is present.
  bool isValid() const override;
  // The metric or the operation over the run, NaN when it has no value there. Throws
  // "position N: ..." naming the element the scenario lacks, the metric that does not apply to
  // it, the series it lacks or the failure of the calculation.
  double calculate(const AutomaticReportRun& run) const override;
  std::string getLabel() const override { return name; }
  // The name, then the parameters in double quotes: Max("Sobradinho", "Volume final").
  std::string print() const override;
  void release() override;
  std::vector<const AutomaticReportExpression*> children() const override;

  const std::string& getName() const { return name; }
  // The parameters, in order.
  const std::vector<std::unique_ptr<AutomaticReportExpression>>& getVectorOfFunctionParameter()
      const {
    return parameters;
  }

 private:
  // The name held by parameter index; fails at its position when it holds something else.
  const std::string& nameAt(std::size_t index, const std::string& expected) const;
  void expectParameters(std::size_t count, const std::string& what) const;
  std::shared_ptr<Element> elementOf(const AutomaticReportRun& run) const;
  double metricOver(const AutomaticReportRun& run) const;
  double operationOver(const AutomaticReportRun& run) const;

  std::string name;
  std::vector<std::unique_ptr<AutomaticReportExpression>> parameters;
  std::optional<ReportMetricType> metric;
  std::optional<SerieOperationType> operation;
  SerieType serieType = SerieType::finalVolume;
};
