#ifndef DESKTOP_CONTENTS_PANE_H_
#define DESKTOP_CONTENTS_PANE_H_

#include <vector>

#include "desktop/pane.h"
#include "guide/contents.h"

namespace survey {

// The parts and pages of the survey, with their states; leads to each.
class ContentsPane : public Pane {
  Q_OBJECT

 public:
  explicit ContentsPane(QWidget* window);

  // Cheap when nothing has changed.
  void Refresh(const std::vector<ContentsPart>& contents);

 Q_SIGNALS:
  void Chosen(const ContentsEntry& entry);
  void PrintAsked();  // of all pages

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Build();
  void Show(QTreeWidgetItem& line, const ContentsEntry& entry);

  std::vector<ContentsPart> shown_;
};

}  // namespace survey

#endif  // DESKTOP_CONTENTS_PANE_H_
