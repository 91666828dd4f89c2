#ifndef FORMS_LAYOUT_H_
#define FORMS_LAYOUT_H_

#include <vector>

namespace survey {

class Control;
class Frame;
class GridControl;
class Label;

// How a form arranges its controls, as data. A desktop turns it into widgets.
struct Layout {
  enum class Kind {
    kControl,  // one control
    kTable,    // a survey table, never larger than its cells; what is left goes below the last one
    kRow,      // parts beside each other
    kColumn,   // parts below each other, all as wide as the column
    kFields,   // labels and what is filled in beside them, each kind in a column of its own
    kFrame,    // a Frame around its one part
    kFoot,     // stays in view below its form
    kGap,      // the room of a button that this form does not have, others of its kind do
    kSpace,    // takes the room that is left
  };

  Kind kind = Kind::kSpace;
  Control* control = nullptr;  // of kControl, kTable and kFrame; the form owns it
  std::vector<Layout> parts = {};
  int stretch = 0;  // share of the room that is left, among its neighbours
};

// A control that is to be filled in, and the label that stands before it.
struct Field {
  Label& label;
  Control& control;
};

Layout Place(Control& control, int stretch = 0);
Layout Place(GridControl& table);
Layout RowOf(std::vector<Layout> parts, int stretch = 0);
Layout ColumnOf(std::vector<Layout> parts, int stretch = 0);
Layout FieldsOf(const std::vector<Field>& fields);
Layout FrameOf(Frame& frame, Layout part, int stretch = 0);
// The buttons that work on the whole form, as the last part of its outermost column. A form that
// has them fills its window from the top, and scrolls behind them; any other stands in the middle.
Layout FootOf(Layout part);
Layout Gap();
Layout Space();

}  // namespace survey

#endif  // FORMS_LAYOUT_H_
