#include "records/cell_table.h"

#include "store/store_fixture.h"

namespace survey {
namespace {

using testing::ElementsAre;

constexpr char kSelect[] = "Select * from tbl_StudentEnrolment where collegeemisnumber = ";
constexpr char kRemove[] = "Delete * from tbl_StudentEnrolment where collegeemisnumber = ";
const std::string kInsert =
    "Insert into tbl_StudentEnrolment(CollegeEmisNumber,CampusEmisnumber,ProgrammeTypeCD,GenderCD,"
    "SurveyYear,Quantity)VALUES";

// clang-format off
// Each column has two codes, each row none; and a code each.
const CellTable kTwoCodes = {
    .select = kSelect, .remove = kRemove, .insert = "Insert into tbl_StudentEnrolment",
    .body = {2, 2, 3, 3}, .walk = Walk::kColumnByColumn,
    .rows = {.fields = {}, .offset = 2},
    .columns = {.fields = {"programmetypecd", "gendercd"},
                .positions = {{2, {4, 1}}, {3, {1, 2}}}},
    .values = {{"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
               {"ProgrammeTypeCD", ColumnCode(0)}, {"GenderCD", ColumnCode(1)},
               {"SurveyYear", kYear}, {"Quantity", kQuantity}},
    .remove_tail = " and programmetypecd < "};
const CellTable kACodeEach = {
    .select = kSelect, .remove = kRemove, .insert = "Insert into tbl_StudentEnrolment",
    .body = {2, 2, 3, 3}, .walk = Walk::kRowByRow,
    .rows = {.fields = {"programmetypecd"}, .offset = 1},
    .columns = {.fields = {"gendercd"}, .positions = {{2, {2}}, {3, {1}}}},
    .values = {{"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
               {"ProgrammeTypeCD", RowCode()}, {"GenderCD", ColumnCode()},
               {"SurveyYear", kYear}, {"Quantity", kQuantity}},
    .filled = Filled::kNotZero};
// clang-format on

const GridDesign kDesign = {.columns = 4, .rows = 5, .column_widths = {9, 9, 9, 9}};

class CellTableTest : public StoreTest {
 protected:
  CellTableTest() {
    survey_.DatabasePath = path_;
    survey_.CollegeEmisNumber = 10;
    survey_.CampusEmisNumber = 11;
    survey_.SurveyYear = 2012;
    survey_.OpenDatabaseConnection();
    survey_.set_statement_observer([this](std::string_view text) { seen_.emplace_back(text); });
  }
  std::string Rows() {
    return Answer(
        "select group_concat(CampusEmisNumber || ' ' || ProgrammeTypeCD || ' ' || GenderCD || ' ' "
        "|| SurveyYear || ' ' || Quantity, '; ') from tbl_StudentEnrolment",
        *survey_.DatabaseConnection);
  }
  std::string Shown(const std::vector<Cell>& cells) {
    std::string shown;
    for (const auto& [column, row] : cells) shown += grid_.GetText(column, row) + "|";
    return shown;
  }

  Survey survey_;
  Grid grid_{kDesign};
  std::vector<std::string> seen_;
};

TEST_F(CellTableTest, StoresFilledCellsInItsOrderAndReplacesThoseOfItsSiteYearAndTail) {
  for (const char* row : {"11,1,2,2012,9", "11,7,2,2012,8", "11,1,2,2010,7", "12,1,2,2012,6"}) {
    survey_.Execute(kInsert + "(10," + row + ")");
  }
  seen_.clear();
  grid_.SetText(3, 2, "5");
  grid_.SetText(2, 2, "0");
  grid_.SetText(2, 3, "1.5 x");
  grid_.SetText(4, 2, "beside the body");
  SaveCells(survey_, kTwoCodes, grid_, 5);
  EXPECT_THAT(seen_, ElementsAre("Delete * from tbl_StudentEnrolment where collegeemisnumber = 10 "
                                 "and campusemisnumber = 11 and surveyyear = 2012 and "
                                 "programmetypecd < 5",
                                 kInsert + "(10,11,4,1,2012,0)", kInsert + "(10,11,4,1,2012,1.5)",
                                 kInsert + "(10,11,1,2,2012,5)"));
  EXPECT_EQ(Rows(),
            "11 7 2 2012 8; 11 1 2 2010 7; 12 1 2 2012 6; 11 4 1 2012 0; 11 4 1 2012 1.5; "
            "11 1 2 2012 5");
}

TEST_F(CellTableTest, ARecordOfUnknownCodesGoesWhereTheOneBeforeWent) {
  for (const char* row : {"9,2,2012,1", "3,1,2012,2", "4,9,2012,3", "null,1,2012,4"}) {
    survey_.Execute(kInsert + "(10,11," + row + ")");
  }
  grid_.SetText(2, 2, "as it was");
  FailsWith(94, [&] { LoadCells(survey_, kACodeEach, grid_); });  // a code that is no number
  EXPECT_EQ(Shown({{2, 2}, {3, 4}, {3, 5}}), "as it was|2|3|") << "the first is outside the grid";
}

}  // namespace
}  // namespace survey
