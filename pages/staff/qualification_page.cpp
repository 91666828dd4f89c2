#include "pages/staff/qualification_page.h"

#include <algorithm>

#include "base/text.h"

namespace survey {
namespace {

constexpr int kNameColumn = 2;
constexpr int kTickColumn = 3;
constexpr char kTicked[] = "1";

}  // namespace

QualificationList WithRows(QualificationList list) {
  for (const auto& [row, code, name] : list.rows) {
    list.design.texts.push_back({1, row, std::to_string(code)});
    list.design.texts.push_back({kNameColumn, row, name});
    list.design.rules.push_back({{kTickColumn, row}, CheckBoxCell()});
  }
  return list;
}

std::vector<Code> CodesOf(const QualificationList& list) {
  std::vector<Code> codes;
  for (const Qualification& qualification : list.rows) {
    codes.push_back({"tbl_StaffQualificationType", "QualificationTypeCD", qualification.code,
                     Trim(qualification.name)});
  }
  return codes;
}

QualificationPage::QualificationPage(FormHost& host, const PageRow& page,
                                     const PageButtons& buttons, const QualificationList& list)
    : StaffPage(host, page, buttons), gridQual(*this, "gridQual", list.design), list_(list) {
  gridQual.on_check = [this](int, int) { MarkUnsaved(); };
  cmdSave.on_click = [this] {
    try {
      if (!MaySave()) return;
      SavePage();
      survey().EndStatements();
      cmdSave.BackColor = kButtonFace;
    } catch (const RunTimeError& failure) {
      boxes().PlainBox(failure.what());
    }
  };
}

void QualificationPage::Form_Load() {
  survey().OpenDatabaseConnection();
  shown_ = {};
  Caption = "Lecturer Qualifications  ID Number:  " + EducatorId;
}

Layout QualificationPage::Body() { return Place(gridQual); }

void QualificationPage::GetPage() {
  shown_.complete = TrapSilently([this] {
    for (Recordset attained = ReadAttained(); !attained.Eof(); attained.MoveNext()) {
      const Qualification* qualification = QualificationOf(attained);
      if (qualification == nullptr) continue;
      gridQual.SetText(kTickColumn, qualification->row, kTicked);
      gridQual.SetBackColor(kNameColumn, qualification->row, kYellow);
      ShowDetails(attained);
      shown_.keys.insert(NumberText(qualification->code));
    }
  });
}

Recordset QualificationPage::ReadAttained() {
  Recordset attained;
  attained.Open(
      "select * from tbl_staffqualificationtype where IDnumber = '" + OfThisStaffMemberOnAnySite(),
      survey().DatabaseConnection.get());
  return attained;
}

const Qualification* QualificationPage::QualificationOf(const Recordset& attained) const {
  const Value& code = attained.Field("qualificationtypeCD");
  const auto found = std::ranges::find_if(
      list_.rows, [&](const Qualification& qualification) { return code.Is(qualification.code); });
  return found == list_.rows.end() ? nullptr : &*found;
}

bool QualificationPage::MaySave() {
  return MayReplace(shown_, [this] {
    std::vector<std::string> codes;
    for (Recordset attained = ReadAttained(); !attained.Eof(); attained.MoveNext()) {
      const Qualification* qualification = QualificationOf(attained);
      if (qualification != nullptr) codes.push_back(NumberText(qualification->code));
    }
    return codes;
  });
}

void QualificationPage::SavePage() {
  TrapSilently([this] {
    survey().Execute(list_.remove + EducatorId + list_.remove_tail +
                     NumberText(survey().SurveyYear));
    const auto [trade, other, workplace_experience] = DetailsToSave();
    for (const Qualification& qualification : list_.rows) {
      if (gridQual.GetText(kTickColumn, qualification.row) != kTicked) continue;
      survey().Execute(
          "insert into tbl_StaffQualificationType(CollegeEMISNumber,CampusEmisNumber,surveyyear,"
          "IDNumber,qualificationTypeCD,tradedescription,qualificationother,workplaceexperience)"
          "VALUES(" +
          KeyValues() + NumberText(qualification.code) + ",'" + trade + "','" + other + "'," +
          NumberText(workplace_experience) + ")");
    }
  });
}

}  // namespace survey
