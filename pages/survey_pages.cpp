#include "pages/survey_pages.h"

#include "pages/institution/frmHostels.h"
#include "pages/institution/frmPage2.h"
#include "pages/institution/frmPage4.h"
#include "pages/staff/frmAddSubjects.h"
#include "pages/staff/frmEducatorData.h"
#include "pages/staff/frmEducatorTeaching.h"
#include "pages/staff/frmEducatorTeaching1.h"
#include "pages/staff/frmEducatorTeaching2.h"
#include "pages/staff/frmLecQualifications1.h"
#include "pages/staff/frmLecQualifications2.h"
#include "pages/staff/frmSelectEducator.h"
#include "pages/student/frmAddQualification.h"
#include "pages/student/frmOtherProgrammes.h"
#include "pages/student/frmPage12_1.h"
#include "pages/student/frmPage12_2.h"
#include "pages/student/frmPage13.h"
#include "pages/student/frmPage14.h"
#include "pages/student/frmPage3.h"
#include "pages/student/frmPage5.h"
#include "pages/student/frmPage6_1.h"
#include "pages/student/frmPage8.h"
#include "pages/student/frmPage9.h"
#include "pages/student/frmPage9_1.h"
#include "pages/student/frmPage9_10.h"
#include "pages/student/frmPage9_10_1.h"
#include "pages/student/frmStudentTotal.h"

namespace survey {
namespace {

template <typename Page>
std::unique_ptr<Form> Make(FormHost& host, const PageRow& row) {
  return std::make_unique<Page>(host, row);
}

constexpr auto kAsk = Guard::kConfirmUnsaved;
constexpr auto kNoGuard = Guard::kNone;
constexpr auto kOwnGuard = Guard::kOwn;

constexpr auto kUS = Leaving::kUnloadThenShow;
constexpr auto kSU = Leaving::kShowThenUnload;
constexpr auto kUnloadOnly = Leaving::kUnloadOnly;

const std::vector<std::string_view> kId = {"EducatorId"};
const std::vector<std::string_view> kIdAndEmis = {"EducatorId", "EmisNumber"};

constexpr auto kBefore = MarkCleared::kBeforeSave;
constexpr auto kAfter = MarkCleared::kAfterSave;
constexpr auto kNever = MarkCleared::kNever;

constexpr ErrorName kNone = {};

}  // namespace

// clang-format off
const std::vector<PageRow>& SurveyPages() {
  static const std::vector<PageRow> pages = {
      {.name = "frmPage2", .tables = "1.1 - 1.14",
       .about = "General information, address, signatures",
       .section = Section::kCampus, .make = Make<FrmPage2>,
       .caption = "General Information",
       .menu = {{"cmdGeneral"}},
       .links = {
           {"cmdNext", "frmHostels", kAsk, kUS},
           {"cmdPrevious", "frmMainMenu", kAsk, kSU}},
       .errors = {.activate = {"frmPage2", "GetPage Routine"},
                  .save = {"frmPage2", "SavePage Routine"},
                  .print = {"frmPage2", "Print Routine"}},
       .mark = kAfter, .kept = FrmPage2::Kept,
       .paper = {Head::kEmis, " General Information", {
           {"gridPage2_1", -1, 600, 1200}, {"gridGeneralInfo", -1, 600, 3500}}},
       .in_campus_print = true},

      {.name = "frmHostels", .tables = "1.15 - 1.16",
       .about = "Hostels and SETA accreditation",
       .section = Section::kCampus, .make = Make<FrmHostels>,
       .caption = "Hostel Accommodation",
       .menu = {{"cmdHostel"}},
       .links = {
           {"cmdNext", "frmPage4", kAsk, kUS},
           {"cmdPrevious", "frmPage2", kAsk, kUS},
           {"cmdMenu", "frmMainMenu", kAsk, kUS}},
       .errors = {.activate = kNone,
                  .save = kNone,
                  .print = {"frmPage2", "Print Routine"}},
       .mark = kNever, .kept = FrmHostels::Kept,
       .paper = {Head::kEmis, " Hostel and SETA Information", {
           {"gridhostels", -1, 600, 1200}, {"gridSETA", -1, 600, 3500}}},
       .in_campus_print = true},

      {.name = "frmPage4", .tables = "2.1 - 2.2",
       .about = "All staff members, highest degrees",
       .section = Section::kCampus, .make = Make<FrmPage4>,
       .caption = "Personnel Staff Information",
       .menu = {{"cmdStafffSummary"}, {"cmdLearner", 0, "2.1 - 2.2"}},
       .links = {
           {"cmdNext", "frmStudentTotal", kAsk, kUS},
           {"cmdPrevious", "frmHostels", kAsk, kUS},
           {"cmdMenu", "frmMainMenu", kAsk, kUS},
           {"cmdStaff", "frmSelectEducator", kNoGuard, kSU}},
       .errors = {.activate = {"frmPage4", "GetPage Routine"},
                  .save = {"frmPage4", "SavePage Routine"},
                  .print = {"frmPage4", "Print Routine"}},
       .mark = kBefore, .kept = FrmPage4::Kept,
       .paper = {Head::kCampusEmis, " Staff Count Information ", {
           {"gridPage4_2", -1, 300, 3000}, {"gridLectureStaff", -1, 300, 8000}}},
       .in_campus_print = true},

      {.name = "frmStudentTotal", .tables = "2.3 - 2.4",
       .about = "Enrolled students, agreements",
       .section = Section::kCampus, .make = Make<FrmStudentTotal>,
       .caption = "General Information",
       .menu = {{"cmdLearner", 4, "2.3 - 2.4"}},
       .links = {
           {"cmdNext", "frmPage3", kAsk, kSU},
           {"cmdPrevious", "frmPage4", kAsk, kSU},
           {"cmdMenu", "frmMainMenu", kAsk, kUS}},
       .errors = {.activate = {"frmStudentTotal", "GetPage Routine"},
                  .save = {"frmStudentTotal", "SavePage Routine"},
                  .print = {"frmStudentTotal", "Print Routine"}},
       .mark = kBefore, .kept = FrmStudentTotal::Kept,
       .paper = {Head::kCampusEmis, " Student Enrolment Information ", {
           {"gridEnrolment", -1, 300, 1200}, {"gridAgreements", -1, 300, 5000}}},
       .in_campus_print = true},

      {.name = "frmPage3", .tables = "2.5",
       .about = "Control table: students per programme",
       .section = Section::kCampus, .make = Make<FrmPage3>,
       .caption = "Control Totals",
       .menu = {{"cmdLearner", 7, "2.5"}},
       .links = {
           {"cmdNext", "frmPage5", kAsk, kUS},
           {"cmdPrevious", "frmStudentTotal", kAsk, kUS},
           {"cmdMenu", "frmMainMenu", kAsk, kUS}},
       .errors = {.activate = {"frmPage3", "GetPage Routine"},
                  .save = {"frmPage3", "SavePage Routine"},
                  .print = {"frmPage3", "Print Routine"}},
       .mark = kBefore, .kept = FrmPage3::Kept,
       .paper = {Head::kCampusEmis, " Student Registration", {
           {"gridEnrolment", -1, 300, 1200}}},
       .in_campus_print = true},

      {.name = "frmPage5", .tables = "3.1 - 3.4",
       .about = "Full-time equivalents, N1 to N3 by population group",
       .section = Section::kCampus, .make = Make<FrmPage5>,
       .caption = "Headcount Report",
       .menu = {{"cmdLearner", 10, "3.1 - 3.4"}},
       .links = {
           {"cmdNext", "frmPage6_1", kAsk, kUS},
           {"cmdPrevious", "frmPage3", kAsk, kUS},
           {"cmdMenu", "frmMainMenu", kAsk, kUS}},
       .errors = {.activate = {"frmPage3", "GetPage Routine"},
                  .save = {"frmPage5", "SavePage Routine"},
                  .print = {"frmPage5", "Print Routine"}},
       .mark = kBefore, .kept = FrmPage5::Kept,
       .paper = {Head::kCampusEmis, " Student Information", {
           {"gridFTE", 1, 300, 1200}, {"gridFTE", 2, 300, 3500},
           {"gridFTE", 0, 300, 7000}, {"gridReport191", 2, 300, 12000}}},
       .in_campus_print = true},

      {.name = "frmPage6_1", .tables = "3.5 - 3.7",
       .about = "N4 to N6 by population group",
       .section = Section::kCampus, .make = Make<FrmPage6_1>,
       .caption = "STUDENT ENROLMENT",
       .menu = {{"cmdLearner", 14, "3.5 - 3.7"}},
       .links = {
           {"cmdNext", "frmPage8", kAsk, kUS},
           {"cmdPrevious", "frmPage5", kAsk, kUS},
           {"cmdMenu", "frmMainMenu", kAsk, kUS}},
       .errors = {.activate = {"frmPage3", "GetPage Routine"},
                  .save = {"frmPage6_1", "SavePage Routine"},
                  .print = {"frmPage6", "Print Routine"}},
       .mark = kBefore, .kept = FrmPage6_1::Kept,
       .totals = {
           {"gridPage6_2", 1,
            {14, 10}, "txtN3", 4, "lblN3", "Control Total:Table 2.5.4:N4"},
           {"gridPage6_2", 0,
            {14, 10}, "txtN4", 5, "lblN4", "Control Total:Table 2.5.5:N5"},
           {"grid191", 0,
            {14, 10}, "txtN5", 6, "lblN5", "Control Total: Table 2.5.6: N6"}},
       .paper = {Head::kCampusEmis, " Student Information", {
           {"gridPage6_2", 1, 300, 1200}, {"gridPage6_2", 0, 300, 4500},
           {"grid191", 0, 300, 8000}}},
       .in_campus_print = true},

      {.name = "frmPage8", .tables = "3.8",
       .about = "NC(V) level 2 by population group",
       .section = Section::kCampus, .make = Make<FrmPage8>,
       .caption = "STUDENT ENROLMENT",
       .menu = {{"cmdLearner", 1, "3.8"}},
       .links = {
           {"cmdNext", "frmPage9", kAsk, kUS},
           {"cmdPrevious", "frmPage6_1", kAsk, kUS},
           {"cmdMenu", "frmMainMenu", kAsk, kUS}},
       .errors = {.activate = {"frmPage8", "GetPage Routine"},
                  .save = {"frmPage5", "SavePage Routine"},
                  .print = {"frmPage8", "Print Routine"}},
       .mark = kBefore, .kept = FrmPage8::Kept,
       .totals = {
           {"gridNCV", 1,
            {14, 23}, "txtL2", 9, "Label2", "Control Total: Table 2.5.9: Level 2"}},
       .paper = {Head::kCampusEmis, " Student Information", {
           {"gridNCV", 1, 300, 1200}}},
       .in_campus_print = true},

      {.name = "frmPage9", .tables = "3.9",
       .about = "NC(V) level 3 by population group",
       .section = Section::kCampus, .make = Make<FrmPage9>,
       .caption = "STUDENT ENROLMENT",
       .menu = {{"cmdLearner", 5, "3.9"}},
       .links = {
           {"cmdNext", "frmPage9_1", kAsk, kUS},
           {"cmdPrevious", "frmPage8", kAsk, kUS},
           {"cmdMenu", "frmMainMenu", kAsk, kUS}},
       .errors = {.activate = {"frmPage8", "GetPage Routine"},
                  .save = {"frmPage5", "SavePage Routine"},
                  .print = {"frmPage9", "Print Routine"}},
       .mark = kBefore, .kept = FrmPage9::Kept,
       .totals = {
           {"gridNCV", 1,
            {14, 23}, "txtL3", 10, "Label2", "Control Total: Table 2.5.10: Level 3"}},
       .paper = {Head::kCampusEmis, "  Student Information", {
           {"gridNCV", 1, 300, 1200}}},
       .in_campus_print = true},

      {.name = "frmPage9_1", .tables = "3.10",
       .about = "NC(V) level 4 by population group",
       .section = Section::kCampus, .make = Make<FrmPage9_1>,
       .caption = "STUDENT ENROLMENT",
       .menu = {{"cmdLearner", 3, "3.10"}},
       .links = {
           {"cmdNext", "frmOtherProgrammes", kAsk, kSU},
           {"cmdPrevious", "frmPage9", kAsk, kSU},
           {"cmdMenu", "frmMainMenu", kAsk, kUS}},
       .errors = {.activate = {"frmPage9_1", "GetPage Routine"},
                  .save = {"frmPage9_1", "SavePage Routine"},
                  .print = {"frmPage9", "Print Routine"}},
       .mark = kBefore, .kept = FrmPage9_1::Kept,
       .totals = {
           // The row of "Transport and Logistics", not the grand total.
           {"gridPage8_2", 1,
            {14, 21}, "txtL4", 11, "Label2", "Control Total: Table 2.5.11: Level 4"}},
       .paper = {Head::kCampusEmis, "  Student Information", {
           {"gridPage8_2", 1, 300, 1200}}},
       .in_campus_print = true},

      {.name = "frmOtherProgrammes", .tables = "3.11 - 3.13",
       .about = "Level 5 and higher, NSC, AET",
       .section = Section::kCampus, .make = Make<FrmOtherProgrammes>,
       .caption = "Other Programmes",
       .menu = {{"cmdLearner", 11, "3.11 - 3.13"}},
       .links = {
           {"cmdNext", "frmPage12_1", kAsk, kSU},
           {"cmdPrevious", "frmPage9_1", kAsk, kSU},
           {"cmdMenu", "frmMainMenu", kAsk, kSU}},
       .errors = {.activate = {"frmOtherProgrammes", "Get Data Routine"},
                  .save = {"frmOtherProgrammes", "Save Data Routine"},
                  .print = {"frmPage12_1", "Print Routine"}},
       .mark = kAfter, .kept = FrmOtherProgrammes::Kept,
       .totals = {
           {"gridlevel5", -1, {7, 9}, "txtL5", 12,
            "Label1", "Control Total: Table 2.5.10: Level 5 and higher Programmes"},
           {"gridNSC", -1, {14, 7}, "txtNSC", 13,
            "Label2", "Control Total: Table 2.5.11: NSC"},
           {"gridAET", -1, {14, 8}, "txtAET", 15,
            "Label3", "Control Total: Table 2.5.13: Adult Education and Training"}},
       .paper = {Head::kCampusEmis, " Student Enrolment Information", {
           {"gridlevel5", -1, 300, 1200}, {"gridNSC", -1, 300, 5200},
           {"gridAET", -1, 300, 9200}}}},

      {.name = "frmPage12_1", .tables = "3.14",
       .about = "Students per occupational qualification",
       .section = Section::kCampus, .make = Make<FrmPage12_1>,
       .caption = "STUDENT ENROLMENT FOR OCUPATIONAL QUALIFICATIONS",
       .menu = {{"cmdLearner", 13, "3.14"}},
       .links = {
           {"cmdNext", "frmPage12_2", kAsk, kSU},
           {"cmdPrevious", "frmOtherProgrammes", kAsk, kSU},
           {"cmdMenu", "frmMainMenu", kAsk, kSU}},
       .errors = {.activate = {"frmPage12_1", "GetPage Routine"},
                  .save = {"frmPage12_1", "SavePage Routine"},
                  .print = {"frmPage12_1", "Print Routine"}},
       .mark = kAfter, .kept = FrmPage12_1::Kept,
       .paper = {Head::kCampusEmis, " Student Enrolment Information", {
           {"gridPage12_2", -1, 300, 1200}}},
       .in_campus_print = true},

      {.name = "frmPage12_2", .tables = "3.15",
       .about = "Occupational qualifications by organising field",
       .section = Section::kCampus, .make = Make<FrmPage12_2>,
       .caption = "Student Enrolment Information",
       .menu = {{"cmdLearner", 2, "3.15"}},
       .links = {
           {"cmdNext", "frmPage9_10", kAsk, kUS},
           {"cmdPrevious", "frmPage12_1", kAsk, kUS},
           {"cmdMenu", "frmMainMenu", kAsk, kSU}},
       .errors = {.activate = kNone,
                  .save = {"frmPage12_1", "SavePage Routine"},
                  .print = {"frmPage12_2", "Print Routine"}},
       .mark = kBefore, .kept = FrmPage12_2::Kept,
       .totals = {
           {"gridPage12_1", 0,
            {14, 16}, "txtOC", 14, "Label3", "Control Total: Table 2.5.14"}},
       .paper = {Head::kCampusEmis, " Student Enrolment Information", {
           {"gridPage12_1", 0, 300, 1200}}},
       .in_campus_print = true},

      {.name = "frmPage9_10", .tables = "3.16",
       .about = "NC(V) level 2 by year of birth",
       .section = Section::kCampus, .make = Make<FrmPage9_10>,
       .caption = "STUDENT ENROLMENT",
       .menu = {{"cmdLearner", 6, "3.16"}},
       .links = {
           {"cmdNext", "frmPage9_10_1", kAsk, kSU},
           {"cmdPrevious", "frmPage12_2", kAsk, kSU},
           {"cmdMenu", "frmMainMenu", kAsk, kUS}},
       .errors = {.activate = {"frmPage9_10", "GetPage Routine"},
                  .save = {"frmPage9_10", "SavePage Routine"},
                  .print = {"frmPage9_10", "Print Routine"}},
       .mark = kBefore, .kept = FrmPage9_10::Kept,
       .paper = {Head::kCampusEmis, "  Student Information", {
           {"gridPage9_1", -1, 300, 1200}}, true},
       .in_campus_print = true},

      {.name = "frmPage9_10_1", .tables = "3.17",
       .about = "All programmes by year of birth",
       .section = Section::kCampus, .make = Make<FrmPage9_10_1>,
       .caption = "STUDENT ENROLMENT",
       .menu = {{"cmdLearner", 8, "3.17"}},
       .links = {
           {"cmdNext", "frmPage14", kAsk, kUS},
           {"cmdPrevious", "frmPage9_10", kAsk, kUS},
           {"cmdMenu", "frmMainMenu", kAsk, kUS}},
       .errors = {.activate = {"frmPage9_10_1", "GetPage Routine"},
                  .save = {"frmPage9_10_1", "SavePage Routine"},
                  .print = {"frmPage9_10_1", "Print Routine"}},
       .mark = kBefore, .kept = FrmPage9_10_1::Kept,
       .paper = {Head::kCampusEmis, "  Student Information", {
           {"gridPage9_1", -1, 300, 1200}}},
       .in_campus_print = true},

      {.name = "frmPage14", .tables = "3.18",
       .about = "Students with special needs",
       .section = Section::kCampus, .make = Make<FrmPage14>,
       .caption = "STUDENT ENROLMENT",
       .menu = {{"cmdLearner", 9, "3.18"}},
       .links = {
           {"cmdNext", "frmPage13", kAsk, kUS},
           {"cmdPrevious", "frmPage9_10_1", kAsk, kUS},
           {"cmdMenu", "frmMainMenu", kAsk, kUS}},
       .errors = {.activate = {"frmPage9_10_1", "GetPage Routine"},
                  .save = {"frmPage14", "SavePage Routine"},
                  .print = {"frmPage14", "Print Routine"}},
       .mark = kBefore, .kept = FrmPage14::Kept,
       .paper = {Head::kCampusEmis, " Student SNE Information", {
           {"gridPage9_1", -1, 300, 1200}}},
       .in_campus_print = true},

      {.name = "frmPage13", .tables = "3.19",
       .about = "Resident boarders",
       .section = Section::kCampus, .make = Make<FrmPage13>,
       .caption = "STUDENT ENROLMENT",
       .menu = {{"cmdLearner", 12, "3.19"}},
       .links = {
           {"cmdNext", "frmSelectEducator", kAsk, kUS},
           {"cmdPrevious", "frmPage14", kAsk, kUS},
           {"cmdMenu", "frmMainMenu", kAsk, kUS}},
       .errors = {.activate = {"frmPage13", "GetPage Routine"},
                  .save = {"frmPage14", "SavePage Routine"},
                  .print = {"frmPage13", "Print Routine"}},
       .mark = kBefore, .kept = FrmPage13::Kept,
       .paper = {Head::kCampusEmis, "Student Boarder Information", {
           {"gridPage13_1", -1, 300, 1200}}},
       .in_campus_print = true},

      {.name = "frmEducatorData", .tables = "4.1 - 4.24",
       .about = "Personal details, appointment, training",
       .section = Section::kStaffMember, .make = Make<FrmEducatorData>,
       .caption = "Staff Details",
       .staff_list_button = "cmdEdit",
       .links = {
           {"cmdNext", "frmLecQualifications1", kNoGuard, kSU, kId},
           {"cmdPrevious", "frmSelectEducator", kOwnGuard, kUnloadOnly}},
       .errors = {.activate = kNone,
                  .save = kNone,
                  .print = {"frmEducatorData", "Print Routine"}},
       .mark = kAfter, .kept = FrmEducatorData::Kept,
       .paper = {Head::kEmisAndStaff, " Personnel Details", {
           {"gridgeneral", -1, 300, 1200}, {"gridTraining", -1, 300, 8000}}},
       .staff_print = StaffSheet{.has_head = true,
                                 .grids = {{"gridgeneral", -1, 300, 1200},
                                           {"gridTraining", -1, 300, 8000}},
                                 .ends_sheet = true}},

      {.name = "frmLecQualifications1", .tables = "4.25",
       .about = "Qualification types, first part",
       .section = Section::kStaffMember, .make = Make<FrmLecQualifications1>,
       .caption = "Lecturer Qualifications",
       .staff_list_button = "cmdSpecialisation",
       .links = {
           {"cmdNext", "frmLecQualifications2", kAsk, kUS, kIdAndEmis},
           {"cmdMenu", "frmSelectEducator", kAsk, kUS}},
       .errors = {.activate = kNone,
                  .save = kNone,
                  .print = {"frmLecQualifications1", "Print Routine"}},
       .mark = kAfter, .kept = FrmLecQualifications1::Kept,
       .paper = {Head::kStaffDetails, "", {
           {"gridQual", -1, 300, 1200}}},
       .staff_print = StaffSheet{.has_head = false,
                                 .grids = {{"gridQual", -1, 300, 1200}},
                                 .ends_sheet = true}},

      {.name = "frmLecQualifications2", .tables = "4.25 - 4.27",
       .about = "Qualification types, second part",
       .section = Section::kStaffMember, .make = Make<FrmLecQualifications2>,
       .caption = "Lecturer Qualifications",
       .links = {
           {"cmdNext", "frmLecQualifications1", kAsk, kUS, kIdAndEmis},
           {"cmdEducatorList", "frmSelectEducator", kAsk, kUS}},
       .errors = {.activate = kNone,
                  .save = kNone,
                  .print = {"frmLecQualifications2", "Print Routine"}},
       .mark = kAfter, .kept = FrmLecQualifications2::Kept,
       .paper = {Head::kStaffDetails, "", {
           {"gridQual", -1, 300, 1200}}},
       .staff_print = StaffSheet{.has_head = false,
                                 .grids = {{"gridQual", -1, 300, 1200}},
                                 .ends_sheet = false}},

      {.name = "frmEducatorTeaching1", .tables = "4.28",
       .about = "Subjects qualified to teach",
       .section = Section::kStaffMember, .make = Make<FrmEducatorTeaching1>,
       .caption = "Staff Details",
       .staff_list_button = "cmdStaffteaching",
       .links = {
           {"cmdForward", "frmEducatorTeaching", kAsk, kSU, kId},
           {"cmdNext", "frmLecQualifications2", kNoGuard, kSU, kId},
           {"cmdPrevious", "frmSelectEducator", kNoGuard, kSU}},
       .errors = {.activate = {"frmEducatorTeaching1", "Load Routine"},
                  .save = {"frmEducatrorTeaching1", "Save Routine"},
                  .print = {"frmEducatorData", "Print Routine"}},
       .mark = kBefore, .kept = FrmEducatorTeaching1::Kept,
       .paper = {Head::kCampusEmisAndStaff, " Lecturer Teaching Details", {
           {"gridSubjects", -1, 300, 1200}}},
       .staff_print = StaffSheet{.has_head = false,
                                 .grids = {{"gridSubjects", -1, 300, 7500}},
                                 .ends_sheet = true}},

      {.name = "frmEducatorTeaching", .tables = "4.29 - 4.30",
       .about = "Months and subjects taught",
       .section = Section::kStaffMember, .make = Make<FrmEducatorTeaching>,
       .caption = "Staff Details",
       .staff_list_button = "cmdLoad",
       .links = {
           {"cmdForward", "frmEducatorTeaching2", kAsk, kSU, kId},
           {"cmdNext", "frmEducatorTeaching1", kNoGuard, kSU, kId},
           {"cmdPrevious", "frmSelectEducator", kNoGuard, kSU}},
       .errors = {.activate = {"frmEducatorTeaching", "Load Routine"},
                  .save = {"frmEducatrorTeaching", "Save Routine"},
                  .print = {"frmEducatorData", "Print Routine"}},
       .mark = kBefore, .kept = FrmEducatorTeaching::Kept,
       .paper = {Head::kCampusEmisAndStaff, " Lecturer Teaching Details", {
           {"gridmonths", -1, 300, 1200}, {"gridSubjects", -1, 300, 3000}}},
       .staff_print = StaffSheet{.has_head = false,
                                 .grids = {{"gridmonths", -1, 300, 1200},
                                           {"gridSubjects", -1, 300, 3000}},
                                 .ends_sheet = true}},

      {.name = "frmEducatorTeaching2", .tables = "4.31 - 4.32",
       .about = "Teaching fields, other courses",
       .section = Section::kStaffMember, .make = Make<FrmEducatorTeaching2>,
       .caption = "Staff Details",
       .staff_list_button = "cmdLoad2",
       .links = {
           {"cmdNext", "frmEducatorTeaching", kNoGuard, kSU, kId},
           {"cmdPrevious", "frmSelectEducator", kNoGuard, kSU}},
       .errors = {.activate = {"frmEducatorTeaching2", "GetPage Routine"},
                  .save = {"frmStaffQualification", "SavePage Routine"},
                  .print = {"frmEducatorTeaching2", "Print Routine"}},
       .mark = kBefore, .kept = FrmEducatorTeaching2::Kept,
       .paper = {Head::kCampusEmisAndStaff, "  Lecturer Teaching Information", {
           {"gridFields", -1, 300, 1200}}},
       .staff_print = StaffSheet{.has_head = false,
                                 .grids = {{"gridFields", -1, 300, 1200}},
                                 .ends_sheet = false}},
  };
  return pages;
}
// clang-format on

void RegisterPages(FormHost& host) {
  host.RegisterPages(SurveyPages());
  host.Register<FrmAddQualification>("frmAddQualification");
  host.Register<FrmSelectEducator>("frmSelectEducator");
  host.Register<FrmAddSubjects>("frmAddSubjects");
}

}  // namespace survey
