#ifndef TOOLS_TRIALS_SHOWN_FORM_H_
#define TOOLS_TRIALS_SHOWN_FORM_H_

#include <string>

namespace survey {

class FormWidget;

// Where a form's widgets show or allow something else than its controls hold, in a line; "" where
// the two agree. To be asked between user actions only.
std::string WhereShownDiffers(const FormWidget& shown);

}  // namespace survey

#endif  // TOOLS_TRIALS_SHOWN_FORM_H_
