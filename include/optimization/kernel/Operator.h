#pragma once

#include <map>
#include <string>

// An operator on solutions, configured by named untyped parameters. A parameter is a pointer to
// the caller's storage (double, int or an object, as each operator documents), which must
// outlive the operator's use.
class Operator {
 public:
  Operator() = default;
  explicit Operator(const std::map<std::string, void*>& parameters) : parameters(parameters) {}
  virtual ~Operator() = default;

  // Applies the operator; what it takes and gives depends on the operator.
  virtual void* execute(void* object) = 0;

  // The parameter's pointer; a missing name gives null and is inserted.
  void* getParameter(const std::string& name);
  void setParameter(const std::string& name, void* value);

 protected:
  std::map<std::string, void*> parameters;
};

// An operator that perturbs one solution in place.
class Mutation : public Operator {
 public:
  using Operator::Operator;
};

// An operator that picks from a solution set.
class Selection : public Operator {
 public:
  using Operator::Operator;
};
