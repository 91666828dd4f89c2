#ifndef FORMS_CONTROL_TOTALS_H_
#define FORMS_CONTROL_TOTALS_H_

#include <memory>
#include <vector>

#include "forms/survey_page.h"

namespace survey {

// The control totals of one page: a labelled, read-only text box for each, and the painting of
// the page's totals in green or red. A member of the page.
class ControlTotals {
 public:
  // `advice_name` is the name of the label that says what the colours mean.
  ControlTotals(SurveyPage& page, const char* advice_name);

  // Puts what table 2.5 holds now into the text boxes, in survey order. Throws what
  // Survey::ControlTotal throws.
  void Fill();

  // CheckControlTotals: compares each total on screen with its text box and paints it. Any
  // difference is one; an empty text counts as 0.
  void Check();

  // Labels and text boxes, the advice below them.
  Layout Arrange();

 private:
  struct Box {
    const Reconciliation* row;
    std::unique_ptr<Label> label;
    std::unique_ptr<TextBox> text_box;
  };

  SurveyPage& page_;
  std::vector<Box> boxes_;
  Label advice_;
};

}  // namespace survey

#endif  // FORMS_CONTROL_TOTALS_H_
