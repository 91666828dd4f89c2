#ifndef PAGES_STAFF_SUBJECT_PAGE_H_
#define PAGES_STAFF_SUBJECT_PAGE_H_

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pages/staff/staff_page.h"

namespace survey {

// A figure that goes with each subject: a field of its record, a column of the grid.
struct SubjectFigure {
  const char* field;
  int column;
};

// What tells the two subject lists of a staff member apart.
struct SubjectList {
  GridDesign design;                   // WithLines completes it
  std::vector<SubjectFigure> figures;  // in the order of the INSERT
  int code_column;                     // hidden, behind the figures
  const char* select;                  // up to the college number
  const char* remove;                  // up to the college number
  const char* insert;                  // up to the bracket before the values
  const char* already_assigned;        // said of a subject that is in the list
  const char* title;                   // of the frame around the search
  std::vector<const char*> advice;
  bool offers_report_550;
  const char* add_button;      // name of the button that opens the catalogue
  ErrorName printing_routine;  // what a failure of Printpage is reported under
};

// For StaffRecords: of the lines that come back.
inline constexpr char kOfTheCatalogue[] =
    " and SubjectCode in (select SubjectCode from lst_Subject)";

// `list` with the numbers of its 15 lines in the design.
SubjectList WithLines(SubjectList list);

// A list of up to 15 subjects that a staff member teaches or could teach, one page twice over.
// Subjects are not typed but picked from the catalogue, found by a search or by their type; the
// figures beside them are typed. A line is in use while its hidden column holds a subject code: a
// line without one is not stored, whatever figures it holds.
class SubjectPage : public StaffPage {
 public:
  // Writes what is stored over what is on screen, and clears nothing: lines and ticks that are
  // not stored stay. Also when frmAddSubjects has closed.
  void Form_Activate() override;
  void Printpage() override;  // reports its failures itself

  // Whether a line of this page holds exactly this code.
  bool SubjectAssigned(std::string_view code) const;
  // The code of a catalogue entry, or the id as text where there is no such entry. Throws
  // RunTimeError.
  std::string GetSubjectCode(std::int32_t subjectid);

  GridControl gridSubjects;
  Frame Frame3;
  Label Label1{*this, "Label1", "Search for a subject by name or code:"};
  TextBox txtSearch{*this, "txtSearch", "Search for a subject by name or code:"};
  OptionButton optname{*this, "optname", "By Name", "search"};
  OptionButton optCode{*this, "optCode", "By Code", "search"};
  Button cmdGo{*this, "cmdGo", "Search"};
  Label Label2{*this, "Label2", "OR Select a Subject Type:"};
  // The captions are what the catalogue calls the programmes.
  std::optional<OptionButton> opt550;
  OptionButton optNCV{*this, "optNCV", "NC(V)", "subject type"};
  OptionButton optReport191{*this, "optReport191", "Report 191", "subject type"};
  OptionButton optNSC{*this, "optNSC", "NSC", "subject type"};
  Label Label3{*this, "Label3", "Select a Subject:"};
  ComboBox cboSubject{*this, "cboSubject", "Select a Subject:"};
  Button cmdSubject;  // called cmdAddSubject on frmEducatorTeaching1
  Label Label4{*this, "Label4", "Line Number:"};
  TextBox txtRow{*this, "txtRow", "Line Number:"};
  Button cmdRemove{*this, "cmdRemove", "Remove data in line from grid"};
  std::deque<Label> lblAdvice;
  Button cmdForward{*this, "cmdForward", "Next", ButtonRole::kNext};

 protected:
  // `list` is complete and outlives the page.
  SubjectPage(FormHost& host, const PageRow& page, const SubjectList& list);

  void Form_Load() override;  // opens no connection
  Layout Body() override;
  void GetPage() override { GetSubjects(); }
  void SavePage() override { SaveSubjects(); }

  void GetSubjects();
  void SaveSubjects();

 private:
  void AddSubjectType(OptionButton& type);
  void Search();
  void FillWithType(const OptionButton& type);
  // Replaces the combo's entries by the subjects of a query; false where there are none.
  bool FillCombo(const std::string& query);
  void TakePick();
  void EnterInFirstFreeLine(const std::string& code);
  void RemoveLine();
  void MaintainCatalogue();

  const SubjectList& list_;
  std::vector<OptionButton*> subject_types_;
};

}  // namespace survey

#endif  // PAGES_STAFF_SUBJECT_PAGE_H_
