#ifndef FORMS_LAYOUT_H_
#define FORMS_LAYOUT_H_

#include <vector>

namespace survey {

class Control;
class Frame;

// How a form arranges its controls, as data. A desktop turns it into widgets.
struct Layout {
  enum class Kind {
    kControl,  // one control
    kRow,      // parts beside each other
    kColumn,   // parts below each other
    kFields,   // rows of label and field, the fields one below the other
    kFrame,    // a Frame around its one part
    kSpace,    // takes the room that is left
  };

  Kind kind = Kind::kSpace;
  Control* control = nullptr;  // of kControl and kFrame; the form owns it
  std::vector<Layout> parts = {};
  int stretch = 0;  // share of the room that is left, among its neighbours
};

Layout Place(Control& control, int stretch = 0);
Layout RowOf(std::vector<Layout> parts, int stretch = 0);
Layout ColumnOf(std::vector<Layout> parts, int stretch = 0);
// Each part is a RowOf label and field.
Layout FieldsOf(std::vector<Layout> parts);
Layout FrameOf(Frame& frame, Layout part, int stretch = 0);
Layout Space();

}  // namespace survey

#endif  // FORMS_LAYOUT_H_
