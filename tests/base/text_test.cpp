#include "base/text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "base/run_time_error.h"
#include "store/dialect.h"
#include "store/value.h"

namespace survey {
namespace {

TEST(Text, LeadingNumberReadsAsFarAsTheTextIsANumber) {
  const std::pair<const char*, double> cases[] = {
      {"A", 0}, {"12 A", 12}, {"  7", 7}, {"1,5", 1}, {"1.5.2", 1.5},    {"-3", -3},  {"+4x", 4},
      {"-", 0}, {".25", .25}, {"2E3", 2}, {"inf", 0}, {"12 500", 12500}, {"0x1F", 0}, {"007", 7}};
  for (const auto& [text, number] : cases) EXPECT_EQ(LeadingNumber(text), number) << text;
  EXPECT_THROW(LeadingNumber(std::string(400, '9')), RunTimeError);
}

TEST(Text, NumberTextIsPlainAndShortest) {
  const std::pair<double, const char*> cases[] = {
      {-0.0, "0"}, {-2.125, "-2.125"}, {1e15, "1000000000000000"}, {1e-7, "0.0000001"}};
  for (const auto& [number, text] : cases) EXPECT_EQ(NumberText(number), text);
  EXPECT_EQ(std::strtod(NumberText(5e-324).c_str(), nullptr), 5e-324);
}

TEST(Text, WholeNumbersRoundHalfToEvenAndOverflow) {
  EXPECT_EQ(ToWholeNumber(2.5), 2);
  EXPECT_EQ(ToWholeNumber(-1.5), -2);
  EXPECT_EQ(ToWholeNumber(2147483647.4), 2147483647);
  EXPECT_EQ(ToSmallWholeNumber(32767.4), 32767);
  for (const double large : {2147483647.5, -2147483649.0, std::nan("")}) {
    EXPECT_THROW(ToWholeNumber(large), RunTimeError);
  }
  EXPECT_THROW(ToSmallWholeNumber(32767.5), RunTimeError);
}

TEST(Text, CharactersAreCountedCapitalisedAndChecked) {
  EXPECT_EQ(CharacterCount("Zoë 😀"), 5);
  EXPECT_EQ(UpperCase("élan ß1"), "ÉLAN SS1");
  EXPECT_EQ(Trim("  a b ") + "|" + Trim("   "), "a b|");
  EXPECT_EQ(SqlEscape("O'Neil ''"), "O''Neil ''''");
  EXPECT_TRUE(IsValidUtf8("Zoë \xEF\xBF\xBD"));
  for (const char* bad : {"Zo\xEB", "\xC3", "\xED\xA0\x80"}) EXPECT_FALSE(IsValidUtf8(bad));
  EXPECT_TRUE(EqualsIgnoringCase("SurveyYear", "surveyYEAR"));
  EXPECT_FALSE(EqualsIgnoringCase("survey", "surveys") || EqualsIgnoringCase("a[", "a{"));
}

TEST(Text, TextsCompareWithoutRegardToTheCaseOfAnyLetter) {
  EXPECT_EQ(FoldCase("WÊRELD ß"), FoldCase("we\u0302reld SS"));
  EXPECT_NE(FoldCase("WÊRELD"), FoldCase("wereld"));
  EXPECT_TRUE(BeginsWith("ÉTé", "étÉ") && BeginsWith("Été", "E\u0301") && !BeginsWith("a", "ab"));
  const std::vector<std::string> sorted = {"", "'n", "1", "e", "Éa", "eb", "éB", "f", "Šabc", "T"};
  for (std::size_t i = 1; i < sorted.size(); ++i) {
    EXPECT_LT(CompareTexts(sorted[i - 1], sorted[i]), 0) << sorted[i];
    EXPECT_GT(CompareTexts(sorted[i], sorted[i - 1]), 0) << sorted[i];
  }
}

TEST(Value, NullIsNoNumberAndATextIsACodeOnlyAsAWhole) {
  EXPECT_TRUE(Value().IsNull() && Value().IsEmpty() && !Value().Is(0));
  EXPECT_THROW(Value().Number(), RunTimeError);
  EXPECT_TRUE(Value("").IsEmpty() && !Value("").IsNull() && !Value(0.0).IsEmpty());
  EXPECT_TRUE(Value(" 07 ").Is(7) && !Value("7a").Is(7) && !Value("").Is(0));
  EXPECT_EQ(Value("7a").Number(), 7);
  EXPECT_EQ(Value().Text() + "|" + Value(2.50).Text(), "|2.5");
}

}  // namespace
}  // namespace survey
