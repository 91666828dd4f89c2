#ifndef PAGES_STAFF_FRMADDSUBJECTS_H_
#define PAGES_STAFF_FRMADDSUBJECTS_H_

#include <array>
#include <string>
#include <string_view>

#include "forms/form.h"

namespace survey {

// The catalogue of subjects: shows, filters, searches and sorts it, and adds to it. Shown over
// the pages of subjects. Its mark, the yellow of cmdSaveSubject, is asked about by nobody.
class FrmAddSubjects : public Form {
 public:
  explicit FrmAddSubjects(FormHost& host);
  Layout Arrange() override;

  int FormLogic = 0;     // for whoever opens the form; has no effect
  int FilterChosen = 0;  // index of the filter chosen last; has no effect

  // The programme of a filter, "ALL" for 5, "" for an index that is none.
  static std::string TransformFilters(int index);
  // Fills the list: "1" to "4" by programme, "5" with all subjects, "6" and "7" with those whose
  // code or name matches txtSearch. Reports a failure; the list is empty then.
  void GetSubject(std::string_view code);
  void ResetSubjectList();
  // Adds the subject of the three fields unless its code is taken, and says so. Reports a failure.
  void CheckDuplicationBeforeSave();
  void ClearSubjectDetails();
  // Whether the college has this subject in its load. No handler calls it.
  bool SubjectInLoad(double code);

  Frame Frame1{*this, "Frame1", "Subject Details"};
  Label Label1{*this, "Label1", "Name of Subject"};
  TextBox txtSubjectName{*this, "txtSubjectName", "Name of Subject"};
  Label Label2{*this, "Label2", "Subject Code"};
  TextBox txtSubjectCode{*this, "txtSubjectCode", "Subject Code"};
  Label Label3{*this, "Label3", "Programme"};
  ComboBox cboProgramme{*this, "cboProgramme", "Programme"};
  Button cmdSaveSubject{*this, "cmdSaveSubject", "SAVE Subject", ButtonRole::kSave};

  Frame Frame2{*this, "Frame2", "Filter Subjects"};
  std::array<OptionButton, 5> optFilterSubjects{{
      {*this, "optFilterSubjects", "Report 191", "filter", 1},
      {*this, "optFilterSubjects", "NSC", "filter", 2},
      {*this, "optFilterSubjects", "NC(V)", "filter", 3},
      {*this, "optFilterSubjects", "Report 550", "filter", 4},
      {*this, "optFilterSubjects", "Show All", "filter", 5},
  }};
  Label Label4{*this, "Label4", "Search by :"};
  std::array<OptionButton, 2> optSearch{{
      {*this, "optSearch", "Code", "search", 1},
      {*this, "optSearch", "Name", "search", 2},
  }};
  TextBox txtSearch{*this, "txtSearch", "Search by :"};
  Button cmdSubjects{*this, "cmdSubjects", "GO"};

  Frame Frame3{*this, "Frame3", "Subject List"};
  GridControl gridSubjectList;
  Label Label5{*this, "Label5", "Click on Column Header to sort the list"};
  Button cmdDone{*this, "cmdDone", "Done", ButtonRole::kCancel};

 protected:
  void Form_Load() override;
  void OnUntrappedFailure(const RunTimeError& failure) override { ReportUntrapped(failure); }

 private:
  std::string StatementFor(int code) const;
  void Search();
  void SaveSubject();
  // A second time by the same column turns the order round.
  void SortBy(int column);

  int sorted_by_ = 0;  // column, 0 while the list stands as it was read
  bool descending_ = false;
};

}  // namespace survey

#endif  // PAGES_STAFF_FRMADDSUBJECTS_H_
