#ifndef FORMS_CONTROL_TOTALS_H_
#define FORMS_CONTROL_TOTALS_H_

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "forms/form.h"

namespace survey {

// A total of a page that is measured against table 2.5.
struct Reconciliation {
  std::string_view page;
  std::string_view grid;
  int index;
  Cell total;  // compared and painted
  std::string_view text_box;
  std::int16_t code;  // ProgrammeRegistrationTypeCD
  std::string_view label_name;
  std::string_view label;  // its number is a text only: the code rules
};

// All of them, in survey order.
const std::vector<Reconciliation>& Reconciliations();

// The control totals of one page: a labelled, read-only text box for each, and the painting of
// the page's totals in green or red. A member of the page.
class ControlTotals {
 public:
  // `advice_name` is the name of the label that says what the colours mean.
  ControlTotals(Form& page, const char* advice_name);

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

  Form& page_;
  std::vector<Box> boxes_;
  Label advice_;
};

}  // namespace survey

#endif  // FORMS_CONTROL_TOTALS_H_
