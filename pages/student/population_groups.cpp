#include "pages/student/population_groups.h"

namespace survey {
namespace {

// clang-format off
const std::vector<CellText>& Heads() {
  static const std::vector<CellText> heads = {
      {4, 2, "Black African"},  {6, 2, "Coloured"},   {8, 2, "Indian"},
      {10, 2, "White"},         {12, 2, "Other"},     {14, 2, "TOTAL"},
      {4, 3, "Male"},   {5, 3, "Female"},   {6, 3, "Male"},   {7, 3, "Female"},
      {8, 3, "Male"},   {9, 3, "Female"},   {10, 3, "Male"},  {11, 3, "Female"},
      {12, 3, "Male"},  {13, 3, "Female"},
  };
  return heads;
}

constexpr CellRange kHeadSpans[] = {
    {4, 2, 5, 2}, {6, 2, 7, 2}, {8, 2, 9, 2}, {10, 2, 11, 2}, {12, 2, 13, 2}, {14, 2, 14, 3},
};
// clang-format on

}  // namespace

// clang-format off
const Axis& PopulationColumns() {
  static const Axis columns = {
      .fields = {"populationgroupcd", "gendercd"},
      .positions = {
          {4, {1, 1}},   {5, {1, 2}},
          {6, {2, 1}},   {7, {2, 2}},
          {8, {3, 1}},   {9, {3, 2}},
          {10, {4, 1}},  {11, {4, 2}},
          {12, {5, 1}},  {13, {5, 2}},
      },
      .labels = {2, 3},
  };
  return columns;
}
// clang-format on

std::vector<CellText> WithPopulationHeads(std::vector<CellText> texts) {
  texts.insert(texts.end(), Heads().begin(), Heads().end());
  return texts;
}

std::vector<CellRange> WithPopulationSpans(std::vector<CellRange> spans) {
  spans.insert(spans.end(), std::begin(kHeadSpans), std::end(kHeadSpans));
  return spans;
}

}  // namespace survey
