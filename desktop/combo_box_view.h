#ifndef DESKTOP_COMBO_BOX_VIEW_H_
#define DESKTOP_COMBO_BOX_VIEW_H_

#include <QStringListModel>
#include <optional>

#include "desktop/control_view.h"

namespace survey {

class ComboBoxWidget;

// A drop-down list. A box without on_key_press can only be chosen from: letters do nothing in the
// box and find entries in its open list, arrows and the list choose. One with it hands each
// character to the control and shows the text and the selection that the control then has.
class ComboBoxView : public ControlView {
 public:
  ComboBoxView(ComboBox& box, QWidget* parent);

 private:
  void RefreshState() override;
  void RefreshEntries();

  ComboBox& box_;
  ComboBoxWidget& widget_;
  QStringListModel& model_;
  std::optional<std::uint64_t> revision_;  // of the entries shown
};

}  // namespace survey

#endif  // DESKTOP_COMBO_BOX_VIEW_H_
