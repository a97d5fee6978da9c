#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "vocabulary/EnumTypes.h"

class Element;
class Scenario;

// Copies the input series that users supply (precipitation, evaporation, natural incremental flow,
// target volume, demand, transit-loss percentage, link limit) from the elements of one scenario to
// the elements of the same name in another, in memory; storing them is the caller's work.
//
// An element is matched by name alone, and its namesake must be of the same category (reservoir,
// demand, junction, basin or link): a demand may take the series of a demand of another use, a
// reservoir never those of a demand. A series of the target takes the source's values date for
// date, the dates outside its scenario's period included, and keeps its own interval; values the
// source lacks are gone from the target afterwards. A source series without any value (or with
// only the missing mark -999.0) is not copied, so that a copy never erases what the target holds.
class InputSeriesCopy {
 public:
  // Why a source element gave nothing to its namesake.
  enum class Skip {
    otherKind,      // the namesake is of another category
    nothingToCopy,  // none of the kinds asked holds a value in the element (or it has none)
  };

  struct Copied {
    std::shared_ptr<Element> target;  // the target's element, which now holds the copies
    std::vector<SerieType> kinds;     // the kinds it took, in the order of their numbers
  };
  struct Skipped {
    std::string element;
    Skip why;
    ElementType sourceType;
    ElementType targetType;
  };
  struct Outcome {
    std::vector<Copied> copied;
    std::vector<Skipped> skipped;
    std::vector<std::string> unmatched;  // source elements that the target has no namesake for
  };

  // kinds: the input kinds to copy; every input kind when empty. Throws std::invalid_argument
  // "InputSeriesCopy: not an input series kind: N" for a kind that users do not supply.
  explicit InputSeriesCopy(std::set<SerieType> kinds = {});

  // Copies the chosen kinds of each element of source into its namesake in target, in the order
  // of source's elements; source is left as it was. Throws std::invalid_argument
  // "InputSeriesCopy::copy(): scenario \"A\" is Mensal and scenario \"B\" Diário" when the periods
  // of the two scenarios step differently (a monthly value has no day to go to), and
  // "InputSeriesCopy::copy(): scenario \"A\" is both the source and the target" for one object.
  Outcome copy(const Scenario& source, Scenario& target) const;

  // The input kind that text names, by its name ("Precipitação") or its number ("0"); none when
  // it names no input kind. "Perda em trânsito" is the input percentage, not the result flow.
  [[nodiscard]] static std::optional<SerieType> inputKindNamed(const std::string& text);

 private:
  // The kinds of element to copy: those asked that it has and whose source series holds values.
  std::vector<SerieType> kindsToCopy(const Element& source) const;
  bool isAsked(SerieType kind) const;

  std::set<SerieType> kinds;
};
