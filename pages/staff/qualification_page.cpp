#include "pages/staff/qualification_page.h"

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

QualificationPage::QualificationPage(FormHost& host, const PageRow& page,
                                     const PageButtons& buttons, const QualificationList& list)
    : StaffPage(host, page, buttons), gridQual(*this, "gridQual", list.design), list_(list) {
  gridQual.on_check = [this](int, int) { MarkUnsaved(); };
  cmdSave.on_click = [this] {
    try {
      SavePage();
      cmdSave.BackColor = kButtonFace;
    } catch (const RunTimeError& failure) {
      boxes().PlainBox(failure.what());
    }
  };
}

void QualificationPage::Form_Load() {
  survey().OpenDatabaseConnection();
  Caption = "Lecturer Qualifications  ID Number:  " + EducatorId;
}

Layout QualificationPage::Body() { return Place(gridQual); }

void QualificationPage::GetPage() {
  TrapSilently([this] {
    Recordset attained;
    attained.Open("select * from tbl_staffqualificationtype where IDnumber = '" +
                      OfThisStaffMemberOnAnySite(),
                  survey().DatabaseConnection.get());
    for (; !attained.Eof(); attained.MoveNext()) {
      for (const Qualification& qualification : list_.rows) {
        if (!attained.Field("qualificationtypeCD").Is(qualification.code)) continue;
        gridQual.SetText(kTickColumn, qualification.row, kTicked);
        gridQual.SetBackColor(kNameColumn, qualification.row, kYellow);
        ShowDetails(attained);
      }
    }
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
