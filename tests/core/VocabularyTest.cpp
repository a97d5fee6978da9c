#include <gtest/gtest.h>

#include "core/ContentTypeEnum.h"
#include "core/ElementSets.h"
#include "support/ExpectThrow.h"
#include "vocabulary/EnumFactories.h"
#include "vocabulary/Vocabulary.h"

TEST(Vocabulary, EveryTableRoundTripsByName) {
  for (const auto& row : Vocabulary::periodicities().getRows()) {
    SCOPED_TRACE(row.getName());
    EXPECT_EQ(EnumPeriodicityFactory::makePeriodicity(row.getName()), row);
    EXPECT_EQ(EnumPeriodicityFactoryByType::make(row.getType()), row);
  }
  for (const auto& row : Vocabulary::hydrologicalStateTypes().getRows()) {
    EXPECT_EQ(*Vocabulary::hydrologicalStateTypes().findByName(row.getName()), row);
    EXPECT_EQ(Vocabulary::of(row.getType()), row);
  }
  for (const auto& row : Vocabulary::units().getRows()) {
    SCOPED_TRACE(row.getName());
    EXPECT_EQ(EnumUnitFactory::makeUnit(row.getName()), row);
  }
  for (const auto& row : Vocabulary::serieTypes().getRows()) {
    SCOPED_TRACE(row.getName());
    EXPECT_EQ(&EnumSerieTypeFactory::makeSerieType(row.getType()), &row);
  }
  for (const auto& row : Vocabulary::scenarioTypes().getRows()) {
    EXPECT_EQ(EnumSceneryTypeFactoryByType::make(row.getType()), row);
    EXPECT_EQ(EnumSceneryIndiatorFactoryByType::make(static_cast<SceneryIndicator>(row.getId()))
                  .getName(),
              row.getName());
  }
}

TEST(Vocabulary, NamesAreKeptLetterForLetter) {
  EXPECT_EQ(Vocabulary::of(ElementType::irrigationDemand).getName(), "Demanda de irrigação");
  EXPECT_EQ(Vocabulary::of(ElementType::drain).getLetter(), 'D');
  EXPECT_EQ(Vocabulary::of(ElementType::junction).getLetter(), 'J');
  EXPECT_EQ(Vocabulary::of(Unit::degreesCelsius).getName(), "cº");
  EXPECT_EQ(Vocabulary::of(Unit::litresPerSecond).getName(), "LitersBySeconds");
  EXPECT_EQ(Vocabulary::of(SerieType::transitLoss).getName(),
            Vocabulary::of(SerieType::transitLossPercentage).getName());
  EXPECT_EQ(Vocabulary::unitOf(SerieType::transitLossPercentage), Unit::percentage);
  EXPECT_EQ(Vocabulary::unitOf(SerieType::transitLoss), Unit::cubicMetresPerSecond);
  EXPECT_EQ(Vocabulary::releaseSerieLabel(), "Vazão liberada(m³/s)");
  EXPECT_EQ(Vocabulary::of(Periodicity::monthly).getFormat(), "%m/%Y");
  EXPECT_EQ(Vocabulary::of(SceneryStatus::cancelled).getName(),
            "A execução do cenário foi cancelada!");
  const std::vector<ScenarioType> offered = {ScenarioType::ruleSimulator, ScenarioType::ruleOptimizer,
                                             ScenarioType::priorityOptimizer,
                                             ScenarioType::guaranteeCurve,
                                             ScenarioType::systemGuaranteeCurve};
  EXPECT_EQ(Vocabulary::scenarioTypesInOfferOrder(), offered);
}

TEST(Vocabulary, MgAndKgShareTheirNumber) {
  EXPECT_EQ(EnumUnitFactory::makeUnit("Mg").getId(), 13);
  EXPECT_EQ(EnumUnitFactory::makeUnit("Kg").getId(), 13);
  EXPECT_EQ(EnumUnitFactoryByType::makeUnit(Unit::kilograms).getName(), "Mg");
  EXPECT_NE(EnumUnitFactory::makeUnit("Mg"), EnumUnitFactory::makeUnit("Kg"));
}

TEST(Vocabulary, EnumEqualityNeedsTypeAndName) {
  EXPECT_EQ(Enum<Sense>(Sense::original, "Original"), Vocabulary::of(Sense::original));
  EXPECT_NE(Enum<Sense>(Sense::original, "Invertido"), Vocabulary::of(Sense::original));
  EXPECT_NE(Enum<Sense>(Sense::inverted, "Original"), Vocabulary::of(Sense::original));
}

// The target volume is given by the user and written back among the results.
TEST(Vocabulary, TheTargetVolumeIsBothInputAndOutput) {
  EXPECT_EQ(Vocabulary::inputSerieTypes().count(SerieType::targetVolume), 1u);
  EXPECT_EQ(Vocabulary::outputSerieTypes().count(SerieType::targetVolume), 1u);
}

TEST(EnumFactories, MissesThrowTheirTexts) {
  EXPECT_THROW_TEXT(EnumPeriodicityFactory::makePeriodicity("Semanal"), std::invalid_argument,
                    "Error: invalid periodicity name.");
  EXPECT_THROW_TEXT(EnumPeriodicityFactoryByType::make(static_cast<Periodicity>(3)),
                    std::invalid_argument, "Error: invalid periodicity name.");
  EXPECT_THROW_TEXT(EnumUnitFactory::makeUnit("kg"), std::invalid_argument,
                    "Error: invalid unit name.");
  EXPECT_THROW_TEXT(EnumUnitFactoryByType::makeUnit(static_cast<Unit>(14)), std::invalid_argument,
                    "Error: invalid unit name.");
  EXPECT_THROW_TEXT(EnumSerieTypeFactory::makeSerieType(static_cast<SerieType>(4)),
                    std::invalid_argument, "Error: invalid serie type.");
  EXPECT_THROW_TEXT(EnumSceneryTypeFactoryByType::make(static_cast<ScenarioType>(5)),
                    std::invalid_argument, "Error: invalid scenarioType object.");
  EXPECT_THROW_TEXT(EnumSceneryIndiatorFactoryByType::make(static_cast<SceneryIndicator>(-1)),
                    std::invalid_argument, "Error: invalid scenarioType object.");
  EXPECT_THROW_TEXT(ContentTypeEnumFactoryByEnumType::make(static_cast<ContentType>(3)),
                    std::invalid_argument,
                    "ContentTypeEnumFactoryByEnumType::make(): invalid typeOfData");
  EXPECT_THROW_TEXT(ElementSetFactoryByCategory::getSetFromElementType(ElementType::genericLink),
                    std::invalid_argument,
                    "ElementSetFactoryByCategory::getSetFromElementType(): invalid elementType");
}

TEST(EnumFactories, ContentTypesAndElementSets) {
  EXPECT_EQ(ContentTypeEnumFactoryByEnumType::make(ContentType::doubleType)->getName(), "Double");
  EXPECT_NE(std::dynamic_pointer_cast<StringContentTypeEnum>(
                ContentTypeEnumFactoryByEnumType::make(ContentType::stringType)),
            nullptr);
  EXPECT_EQ(ElementSetFactoryByCategory::getSetFromElementType(ElementType::drain),
            ElementSets::demands());
  EXPECT_EQ(ElementSetFactoryByCategory::make(ElementGroup::ElementCategoriesEnum::links),
            (std::set<ElementType>{ElementType::artificialLink, ElementType::naturalLink}));
  EXPECT_EQ(ElementSets::allElements().count(ElementType::genericDemand), 0u);
}
