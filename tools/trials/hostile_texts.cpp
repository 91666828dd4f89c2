#include "hostile_texts.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "filled_site.h"

namespace survey::testing {
namespace {

const std::string kHostile[] = {
    "x'; Delete * from lst_province; --", "');Drop table lst_college;--",
    "',Manager='me' where '1'='1",        "' or ''='",
    "#2012/1/4# & /* */ \"; commit; \"",  "100%_*?[a] O'Brien & Söhne 中 \U0001F600",
    std::string("cut\0off", 7),           std::string(10'000, 'a') + "'",
};

struct BoxedForm {
  const char* form;
  std::vector<const char*> boxes, choices, buttons;
  std::vector<std::string> tables;
};

// clang-format off
const std::vector<BoxedForm> kBoxedForms = {
    {"frmAddQualification", {"txtNQFID", "txtTitle"}, {"cboField", "cboLevel"}, {"cmdSave"},
     {"lst_OccupationalQualification"}},
    {"frmAddSubjects", {"txtSubjectName", "txtSubjectCode", "txtSearch"}, {"cboProgramme"},
     {"cmdSaveSubject", "cmdSubjects"}, {"lst_Subject"}},
    {"frmEducatorTeaching", {"txtSearch", "txtRow"}, {}, {"cmdGo", "cmdRemove", "cmdSave"},
     {"tbl_LecturerTeachingSubject", "tbl_LecturerContactMonth"}},
    {"frmPage12_1", {"txtRow"}, {}, {"cmdRemove", "cmdSave"},
     {"tbl_StudentRegistrationOccupational"}},
};
// clang-format on

// What is typed there is not what is saved.
bool ComesBackElsewhere(const std::string& page, Cell cell) {
  return page == "frmHostels" || (page == "frmEducatorData" && cell.row == 8);
}

bool TakesWords(const GridControl& grid, Cell cell) {
  const CellKind::Type type = grid.Kind(cell.column, cell.row).type;
  return type != CellKind::Type::kNumber && type != CellKind::Type::kCheckBox;
}

class HostileTrial {
 public:
  HostileTrial() { StartAnew(); }

  void TypeIntoCells(const SavedPart& part) {
    for (std::size_t control = 0; control < site_->Open(part.page).controls().size(); ++control) {
      std::optional<Cell> cell = Cell{0, 1};
      while (cell) cell = TypeIntoNext(part, control, *cell);
    }
  }

  void EnterIntoBoxes(const BoxedForm& boxed, const std::string& text) {
    Form& page = Open(boxed.form);
    for (const char* box : boxed.boxes) page.Find<TextBox>(box).Enter(text);
    for (const char* box : boxed.boxes) page.Find<TextBox>(box).Enter("58" + text);
    for (const char* choice : boxed.choices) page.Find<ComboBox>(choice).Choose(1);
    for (const char* button : boxed.buttons) site_->Click(boxed.form, button);
    RequireOnlyChanged(boxed.tables, boxed.form + (" " + text.substr(0, 40)));
  }

  void EnterAsId(const SavedPart& part, const std::string& text) {
    Open("frmSelectEducator");
    site_->dialogs.inputs = {text};
    site_->Click("frmSelectEducator", "cmdAddNew");
    Form& page = site_->Open(part.page, text);
    site_->Fill(page, 1);
    site_->Click(part.page, part.button);
    site_->Click(part.page, "cmdPrintPage");
    RequireOnlyChanged(TablesOf(part.page), part.page + " of " + text.substr(0, 40));
  }

  HostileReport report;

 private:
  void StartAnew() {
    site_ = std::make_unique<FilledSite>();
    site_->SaveAll(0);
    rows_ = AllRows(site_->survey.DatabasePath);
  }

  Form& Open(const std::string& page) {
    if (site_->host.Ended()) StartAnew();
    return site_->Open(page);
  }

  // The next cell behind `from`, with a text typed into it and saved; none behind the last.
  std::optional<Cell> TypeIntoNext(const SavedPart& part, std::size_t control, Cell from) {
    Form& page = Open(part.page);
    auto* grid = dynamic_cast<GridControl*>(page.controls()[control]);
    if (grid == nullptr) return std::nullopt;
    site_->Fill(page, 1);
    std::optional<Cell> cell = grid->NextOpenCell(from);
    while (cell && !TakesWords(*grid, *cell)) cell = grid->NextOpenCell(*cell);
    const std::string& text = kHostile[++texts_ % std::size(kHostile)];
    if (!cell || !grid->Type(cell->column, cell->row, text).taken) return cell;
    const std::string typed = grid->GetText(cell->column, cell->row);
    site_->Click(part.page, part.button);
    const std::string where = part.page + " (" + std::to_string(cell->column) + "," +
                              std::to_string(cell->row) + ") " + text.substr(0, 40);
    RequireOnlyChanged(TablesOf(part.page), where);
    if (!site_->LastBox().empty()) {
      ++report.told;
    } else if (!ComesBackElsewhere(part.page, *cell)) {
      ++report.came_back;
      site_->Open(part.page);
      if (grid->GetText(cell->column, cell->row) != typed) Found(where + " did not come back");
    }
    return cell;
  }

  static std::vector<std::string> TablesOf(const std::string& page) {
    std::vector<std::string> tables;
    for (const SavedPart& part : SavedParts()) {
      if (part.page == page) tables.insert(tables.end(), part.tables.begin(), part.tables.end());
    }
    return tables;
  }

  void RequireOnlyChanged(const std::vector<std::string>& tables, const std::string& where) {
    auto now = AllRows(site_->survey.DatabasePath);
    if (now.size() != rows_.size()) Found(where + " made or removed a table");
    for (const auto& [table, rows] : rows_) {
      if (now[table] != rows && std::ranges::find(tables, table) == tables.end()) {
        Found(where + " changed " + table);
      }
    }
    rows_ = std::move(now);
  }

  void Found(const std::string& fault) {
    if (report.fault.empty()) report.fault = fault;
  }

  std::unique_ptr<FilledSite> site_;
  std::map<std::string, std::string> rows_;
  int texts_ = 0;
};

}  // namespace

HostileReport TypeHostileTexts() {
  HostileTrial trial;
  std::string clicked;  // some buttons save several parts
  for (const SavedPart& part : SavedParts()) {
    if (clicked != part.page + part.button) trial.TypeIntoCells(part);
    clicked = part.page + part.button;
  }
  return trial.report;
}

HostileReport EnterHostileTexts() {
  HostileTrial trial;
  for (const std::string& text : kHostile) {
    for (const BoxedForm& form : kBoxedForms) trial.EnterIntoBoxes(form, text);
    for (const SavedPart& part : SavedParts()) {
      const bool of_staff = part.page.starts_with("frmEd") || part.page.starts_with("frmLec");
      if (of_staff) trial.EnterAsId(part, text);
    }
  }
  return trial.report;
}

}  // namespace survey::testing
