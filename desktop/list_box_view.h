#ifndef DESKTOP_LIST_BOX_VIEW_H_
#define DESKTOP_LIST_BOX_VIEW_H_

#include <QListView>
#include <QStringListModel>
#include <optional>

#include "desktop/control_view.h"

namespace survey {

// The texts of a list's entries, as a model takes them.
QStringList Texts(const std::vector<ListItem>& items);

class ListBoxView : public ControlView {
 public:
  ListBoxView(ListBox& list, QWidget* parent);

 private:
  void RefreshState() override;

  ListBox& list_;
  QListView& widget_;
  QStringListModel& model_;
  std::optional<std::uint64_t> revision_;  // of the entries shown
};

}  // namespace survey

#endif  // DESKTOP_LIST_BOX_VIEW_H_
