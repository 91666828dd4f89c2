#include "filled_site.h"
#include "support/page_test.h"

namespace survey::testing {
namespace {

const std::string kHostile[] = {
    "x'; Delete * from lst_province; --", "');Drop table lst_college;--",
    "',Manager='me' where '1'='1",        "' or ''='",
    "#2012/1/4# & /* */ \"; commit; \"",  "100%_*?[a] O'Brien & Söhne 中 \U0001F600",
    std::string("cut\0off", 7),           std::string(10'000, 'a') + "'",
};

// What is typed there is not what is saved; frmHostels shows a hostel when its name is clicked.
constexpr char kNationality[] = "frmEducatorData8";

class HostileTextTest : public ::testing::Test {
 protected:
  HostileTextTest() { StartAnew(); }

  void StartAnew() {
    site_ = std::make_unique<FilledSite>();
    site_->SaveAll(0);
    rows_ = AllRows(site_->survey.DatabasePath);
  }
  // Nothing but `tables` may differ from what they were.
  void ExpectOnlyChanged(const std::vector<std::string>& tables) {
    auto now = AllRows(site_->survey.DatabasePath);
    for (const auto& [table, rows] : rows_) {
      if (std::ranges::find(tables, table) != tables.end()) continue;
      ASSERT_TRUE(now[table] == rows) << table;
    }
    ASSERT_EQ(now.size(), rows_.size());
    rows_ = std::move(now);
  }

  std::unique_ptr<FilledSite> site_;
  std::map<std::string, std::string> rows_;
};

TEST_F(HostileTextTest, TypedIntoACellComesBackOrIsToldAndRunsNothingElse) {
  int came_back = 0, told = 0, number = 0;
  for (const SavedPart& part : SavedParts()) {
    for (std::size_t i = 0; i < site_->Open(part.page).controls().size(); ++i) {
      for (std::optional<Cell> cell = Cell{0, 1}; cell;) {
        if (site_->forms.Ended()) StartAnew();
        Form& page = site_->Open(part.page);
        auto* grid = dynamic_cast<GridControl*>(page.controls()[i]);
        if (grid == nullptr) break;
        site_->Fill(page, 1);
        const std::string& text = kHostile[++number % std::size(kHostile)];
        while ((cell = grid->NextOpenCell(*cell))) {
          const auto kind = grid->Kind(cell->column, cell->row).type;
          if (kind != CellKind::Type::kNumber && kind != CellKind::Type::kCheckBox) break;
        }
        if (!cell || !grid->Type(cell->column, cell->row, text).taken) continue;
        SCOPED_TRACE(part.page + " " + std::to_string(cell->column) + "," +
                     std::to_string(cell->row) + " " + text.substr(0, 40));
        const std::string typed = grid->GetText(cell->column, cell->row);
        const std::string typed_cell = part.page + std::to_string(cell->row);
        site_->Click(part.page, part.button);
        ExpectOnlyChanged(part.page == "frmEducatorData"
                              ? std::vector<std::string>{"tbl_StaffDetail", "tbl_StaffTraining"}
                              : part.tables);
        if (!site_->LastBox().empty()) {
          ++told;
        } else if (part.page != "frmHostels" && typed_cell != kNationality) {
          EXPECT_EQ(site_->Open(part.page)
                        .Find<GridControl>(grid->name(), grid->index())
                        .GetText(cell->column, cell->row),
                    typed);
          ++came_back;
        }
      }
    }
  }
  EXPECT_GT(came_back, 30);
  EXPECT_GT(told, 0);
}

TEST_F(HostileTextTest, TypedIntoABoxOrAsAnIdRunsNothingElse) {
  struct Boxed {
    const char* form;
    std::vector<const char*> boxes, choices, buttons;
    std::vector<std::string> tables;
  };
  const std::vector<Boxed> forms = {
      {"frmAddQualification",
       {"txtNQFID", "txtTitle"},
       {"cboField", "cboLevel"},
       {"cmdSave"},
       {"lst_OccupationalQualification"}},
      {"frmAddSubjects",
       {"txtSubjectName", "txtSubjectCode", "txtSearch"},
       {"cboProgramme"},
       {"cmdSaveSubject", "cmdSubjects"},
       {"lst_Subject"}},
      {"frmEducatorTeaching",
       {"txtSearch", "txtRow"},
       {},
       {"cmdGo", "cmdRemove", "cmdSave"},
       {"tbl_LecturerTeachingSubject", "tbl_LecturerContactMonth"}},
      {"frmPage12_1",
       {"txtRow"},
       {},
       {"cmdRemove", "cmdSave"},
       {"tbl_StudentRegistrationOccupational"}},
  };
  for (const std::string& text : kHostile) {
    SCOPED_TRACE(text.substr(0, 40));
    for (const auto& [form, boxes, choices, buttons, tables] : forms) {
      if (site_->forms.Ended()) StartAnew();
      Form& page = site_->Open(form);
      for (const char* box : boxes) page.Find<TextBox>(box).Enter(text);
      for (const char* box : boxes) page.Find<TextBox>(box).Enter("58" + text);
      for (const char* choice : choices) page.Find<ComboBox>(choice).Choose(1);
      for (const char* button : buttons) site_->Click(form, button);
      ExpectOnlyChanged(tables);
    }
    for (const SavedPart& part : SavedParts()) {
      if (!part.page.starts_with("frmEd") && !part.page.starts_with("frmLec")) continue;
      if (site_->forms.Ended()) StartAnew();
      site_->dialogs.inputs = {text, text};
      site_->forms.Start("frmSelectEducator");
      site_->Click("frmSelectEducator", "cmdAddNew");
      Form& page = site_->Open(part.page, text);
      site_->Fill(page, 1);
      site_->Click(part.page, part.button);
      site_->Click(part.page, "cmdPrintPage");
      ExpectOnlyChanged(
          {"tbl_StaffDetail", "tbl_StaffTraining", part.tables.back(), part.tables.front()});
    }
  }
}

}  // namespace
}  // namespace survey::testing
