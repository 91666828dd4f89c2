#ifndef DESKTOP_QT_DIALOGS_H_
#define DESKTOP_QT_DIALOGS_H_

#include <functional>

#include "platform/dialogs.h"

class QWidget;

namespace survey {

// The desktop's boxes and dialogs, over the window in front.
class QtDialogs : public Dialogs {
 public:
  // `window_in_front` is asked at each call; it may answer null.
  explicit QtDialogs(std::function<QWidget*()> window_in_front);

  int ShowMessage(const MessageBox& box) override;
  std::string OpenFile(const std::string& filter, const std::filesystem::path& folder) override;
  std::string InputBox(const std::string& prompt, const std::string& title) override;
  std::unique_ptr<Progress> BeginProgress(const std::string& title) override;

 private:
  std::function<QWidget*()> window_in_front_;
};

}  // namespace survey

#endif  // DESKTOP_QT_DIALOGS_H_
