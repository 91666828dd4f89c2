#include "pages/student/frmAddQualification.h"

#include "base/text.h"
#include "store/recordset.h"

namespace survey {
namespace {

constexpr ErrorName kSaveName{"frmAddQualification", "SavePage Routine"};

struct NqfField {
  int code;
  const char* text;
};

// clang-format off
constexpr NqfField kFields[] = {
    {1,  "1 = Agriculture and Nature Conservation"},
    {2,  "2 = Culture and Arts"},
    {3,  "3 = Business, Commerce and Management Studies"},
    {4,  "4 = Communicaiton Studies and Language"},
    {5,  "5 = Education, Training and Development"},
    {6,  "6 = Manufacturing, Engineering and Technology"},
    {7,  "7 = Human and Social Studies"},
    {8,  "8 = Law, Military Science and Security"},
    {9,  "9 = Health Sciences and Social Services"},
    {10, "10= Physical, Mathematical, Computer and Life Sciences"},
    {11, "11= Services"},
    {12, "12= Physical Planning and Construction"},
};

constexpr const char* kLevels[] = {"Level 2", "Level 3", "Level 4"};
// clang-format on

}  // namespace

FrmAddQualification::FrmAddQualification(FormHost& host)
    : Form(host, "frmAddQualification", "Add an NQF Qualification") {
  cboField.on_click = [this] {
    field_ = cboField.items().at(cboField.ListIndex()).item_data;
    MarkUnsaved();
  };
  cboLevel.on_click = [this] {
    level_ = cboLevel.Text();
    MarkUnsaved();
  };
  txtNQFID.on_change = txtTitle.on_change = [this] { MarkUnsaved(); };
  cmdSave.on_click = [this] { Save(); };
  cmdCancel.on_click = [this] { this->host().ConfirmUnsaved(cmdSave, *this); };
}

Layout FrmAddQualification::Arrange() {
  return ColumnOf(
      {FieldsOf({{Label1, cboField}, {Label2, txtNQFID}, {Label3, txtTitle}, {Label4, cboLevel}}),
       RowOf({Space(), Place(cmdSave), Place(cmdCancel)})});
}

void FrmAddQualification::Form_Load() {
  survey().OpenDatabaseConnection();
  for (const NqfField& field : kFields) cboField.AddItem(field.text, field.code);
  for (const char* level : kLevels) cboLevel.AddItem(level, 0);
}

void FrmAddQualification::Form_Unload() {
  field_ = id_ = 0;
  title_.clear();
  level_.clear();
}

void FrmAddQualification::Save() {
  bool added = false;
  const bool committed = Trap(kSaveName, [&] {
    title_ = txtTitle.Text;
    // The page's list carries 32-bit ids; one that is longer fails here, before the catalogue
    // holds it.
    id_ = ToWholeNumber(LeadingNumber(txtNQFID.Text));
    if (!IsComplete() || !IsNew()) return;
    Insert();
    added = true;
  });
  if (committed && added) host().Unload(*this);
}

bool FrmAddQualification::IsComplete() {
  if (field_ == 0) {
    Ask("You must select the NQF field", cboField);
  } else if (title_.empty()) {
    Ask("You must enter the qualification title", txtTitle);
  } else if (id_ == 0) {
    Ask("You must enter the NQF ID number", txtNQFID);
  } else if (level_.empty()) {
    Ask("You must enter the qualification level", cboLevel);
  } else {
    return true;
  }
  return false;
}

bool FrmAddQualification::IsNew() {
  Recordset known;
  known.Open("Select NQFid, qualificationtitle from lst_occupationalqualification where NQFID =" +
                 NumberText(id_),
             survey().DatabaseConnection.get());
  if (known.Eof()) return true;
  Ask("Please enter a new NQFID as the ID already exists for the qualification " +
          known.Field("qualificationtitle").Text(),
      txtNQFID);
  txtNQFID.Text.clear();
  return false;
}

// The title goes in as it was typed: one with a quote is refused by the store.
void FrmAddQualification::Insert() {
  survey().Execute(
      "insert into lst_occupationalqualification(NQFField,NQFId,QualificationTitle,NQFLevel)"
      "VALUES(" +
      NumberText(field_) + "," + NumberText(id_) + ",'" + title_ + "','" + level_ + "')");
}

void FrmAddQualification::Ask(std::string_view request, Control& control) {
  boxes().UserMessage(request);
  SetFocus(control);
}

}  // namespace survey
