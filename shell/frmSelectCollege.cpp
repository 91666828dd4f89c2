#include "shell/frmSelectCollege.h"

#include <algorithm>

#include "base/text.h"
#include "store/recordset.h"

namespace survey {
namespace {

constexpr int kCentralOffice = 1;

const GridDesign& SiteListDesign() {
  static const GridDesign design = {
      .columns = 5,
      .rows = 12,
      .column_widths = {4200, 1700, 4200, 1700, 1800},
      .heads = {"College Name", "EMIS Number", "Campus Name", "EMIS Number", "Site Type"},
      .locked_color = kWhite,
      .title = "Colleges and campuses in this database",
  };
  return design;
}

}  // namespace

FrmSelectCollege::FrmSelectCollege(FormHost& host)
    : Form(host, "frmSelectCollege", "Select college or campus to add data"),
      gridcollege(*this, "gridcollege", SiteListDesign()) {
  gridcollege.Default = &cmdContinue;
  cmdContinue.on_click = [this] { Continue(); };
  cmdAdd.on_click = [this] {
    this->host().Get("frmMainMenu").Property("EditMode") = "Add";
    this->host().Show("frmMainMenu");
    this->host().Unload(*this);
  };
  cmdExit.on_click = [this] { this->host().UnloadAll(); };
}

Layout FrmSelectCollege::Arrange() {
  return ColumnOf({Place(lblSelect), Place(gridcollege), Place(lblAdd),
                   FootOf(RowOf({Place(cmdAdd), Space(), Place(cmdExit), Place(cmdContinue)}))});
}

void FrmSelectCollege::Form_Load() {
  survey().OpenDatabaseConnection();
  LoadSiteList();
}

void FrmSelectCollege::LoadSiteList() {
  TrapSilently([this] {
    Recordset sites;
    sites.Open(
        "Select collegename, collegeemisnumber, CampusEMISnumber,CampusName,sitetype from "
        "tbl_Generalinformation where surveyyear = '2012'",
        survey().DatabaseConnection.get());
    if (sites.Eof()) {
      cmdAdd.BackColor = kYellow;
      cmdContinue.BackColor = kButtonFace;
    }
    gridcollege.SetMaxRows(std::max(gridcollege.MaxRows(), sites.RecordCount()));
    for (int row = 1; !sites.Eof(); sites.MoveNext(), ++row) {
      gridcollege.SetText(1, row, sites.Field("collegename").Text());
      gridcollege.SetText(2, row, sites.Field("collegeEMISnumber").Text());
      gridcollege.SetText(3, row, sites.Field("campusname").Text());
      gridcollege.SetText(4, row, sites.Field("campusEmisnumber").Text());
      gridcollege.SetText(5, row,
                          sites.Field("sitetype").Is(kCentralOffice) ? "Central Office" : "Campus");
    }
  });
  survey().CloseDatabaseConnection();
}

void FrmSelectCollege::Continue() {
  const int row = gridcollege.ActiveRow();
  const std::string college = gridcollege.GetText(2, row);
  const std::string campus = gridcollege.GetText(4, row);
  if (college.empty() || campus.empty()) {
    boxes().UserMessage("Please select a college or campus to continue");
    return;
  }
  survey().CampusEmisNumber = LeadingNumber(campus);
  survey().CollegeEmisNumber = LeadingNumber(college);
  host().Get("frmMainMenu").Property("EditMode") = "Edit";
  host().Show("frmMainMenu");
  host().Unload(*this);
}

}  // namespace survey
