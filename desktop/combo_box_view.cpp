#include "desktop/combo_box_view.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <optional>

#include "desktop/keys.h"
#include "desktop/list_box_view.h"

namespace survey {
namespace {

constexpr int kVisibleEntries = 15;
constexpr int kWidthInCharacters = 34;
constexpr int kWidestList = 900;

bool ChangesLine(const QKeyEvent& event) {
  return event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete ||
         event.matches(QKeySequence::Cut) || event.matches(QKeySequence::Paste);
}

}  // namespace

class ComboBoxWidget : public QComboBox {
 public:
  ComboBoxWidget(ComboBox& box, QWidget* parent) : QComboBox(parent), box_(box) {
    auto* list = new QListView(this);
    list->setUniformItemSizes(true);
    setView(list);
    setMaxVisibleItems(kVisibleEntries);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kWidthInCharacters);
    view()->installEventFilter(this);
    if (!TakesCharacters()) return;
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    // Its text changes through the control alone.
    lineEdit()->setReadOnly(true);
  }

  // Half of it where the form is too narrow; the list is as wide as its entries.
  QSize minimumSizeHint() const override {
    const QSize whole = QComboBox::minimumSizeHint();
    return {whole.width() / 2, whole.height()};
  }

  bool TakesCharacters() const { return box_.on_key_press != nullptr; }

  // Opens the list without telling the control, which wished it.
  void OpenList() {
    if (view()->isVisible()) return;
    FitListWidth();
    QComboBox::showPopup();
    // The line clears its selection once more when the list has come up.
    if (TakesCharacters()) QTimer::singleShot(0, this, [this] { ShowLine(); });
  }

  void showPopup() override {
    box_.DropDown();
    OpenList();
  }

  // A choice has the line shown anew, for Qt has written into it.
  void ForgetLine() { shown_.reset(); }

  // What the user has marked meanwhile stays marked unless the control changed something.
  void RefreshText() {
    const Line line{QString::fromStdString(box_.Text()), box_.SelectionStart, box_.SelectionLength};
    if (shown_ != line || lineEdit()->text() != line.text) {
      shown_ = line;
      ShowLine();
    }
    if (view()->isVisible() && box_.ListIndex() >= 0) {
      const QSignalBlocker blocker(this);
      view()->setCurrentIndex(model()->index(box_.ListIndex(), 0));
    }
  }

 protected:
  // Shows a text that is not in the list like any other.
  void initStyleOption(QStyleOptionComboBox* option) const override {
    QComboBox::initStyleOption(option);
    if (!TakesCharacters()) option->currentText = QString::fromStdString(box_.Text());
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (TakesCharacters() && TakeKey(*event)) return;
    if (!IsCharacter(*event) || event->key() == Qt::Key_Space) {  // which opens the list
      QComboBox::keyPressEvent(event);
    } else {
      event->ignore();
    }
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == view() && event->type() == QEvent::KeyPress) {
      auto& key = static_cast<QKeyEvent&>(*event);
      if (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) {
        LeaveList(key.key() == Qt::Key_Tab);
        return true;
      }
      // Without type-ahead of its own the list finds what begins with the characters typed.
      if (TakesCharacters() && TakeKey(key)) return true;
    }
    return QComboBox::eventFilter(watched, event);
  }

  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

  // Characters composed of several keys go to the control as those of one key do; the line would
  // take them although it is read only.
  void inputMethodEvent(QInputMethodEvent* event) override {
    if (!TakesCharacters()) return QComboBox::inputMethodEvent(event);
    HandOverSelection();
    PressKeys(event->commitString());
  }

  // The list that takes the focus would clear the selection of the line above it.
  void focusOutEvent(QFocusEvent* event) override {
    QComboBox::focusOutEvent(event);
    if (TakesCharacters() && view()->isVisible()) ShowLine();
  }

  void focusInEvent(QFocusEvent* event) override {
    QComboBox::focusInEvent(event);
    const bool by_user =
        event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason;
    if (by_user) box_.GotFocus();
  }

 private:
  struct Line {
    QString text;
    int selection_start = 0;
    int selection_length = 0;
    bool operator==(const Line&) const = default;
  };

  // The cursor is where the selection begins, so that a long text shows its beginning.
  void ShowLine() {
    if (!shown_) return;
    lineEdit()->setText(shown_->text);
    lineEdit()->setSelection(shown_->selection_start + shown_->selection_length,
                             -shown_->selection_length);
  }

  // As ENTER does, and then goes on to the next control unless the choice led elsewhere.
  void LeaveList(bool forward) {
    const QModelIndex marked = view()->currentIndex();
    hidePopup();
    if (marked.isValid() && marked.row() != box_.ListIndex()) Q_EMIT activated(marked.row());
    if (hasFocus()) focusNextPrevChild(forward);
  }

  bool TakeKey(QKeyEvent& event) {
    if (ChangesLine(event)) {
      if (!lineEdit()->text().isEmpty()) box_.Edit();
      return true;
    }
    if (!IsCharacter(event)) return false;
    HandOverSelection();
    PressKeys(event.text());
    return true;
  }

  void PressKeys(const QString& characters) {
    for (const uint character : characters.toUcs4()) {
      box_.KeyPress(static_cast<char32_t>(character));
    }
  }

  // While the list is open the line has no focus, and its selection is the control's.
  void HandOverSelection() {
    if (view()->isVisible()) return;
    const QLineEdit& line = *lineEdit();
    box_.SelectionStart = line.hasSelectedText() ? line.selectionStart() : line.cursorPosition();
    box_.SelectionLength = line.selectionLength();
  }

  // Entries are as long as they need; measuring the longest alone keeps thousands quick.
  void FitListWidth() {
    const auto& items = box_.items();
    const auto longest = std::max_element(
        items.begin(), items.end(),
        [](const ListItem& a, const ListItem& b) { return a.text.size() < b.text.size(); });
    if (longest == items.end()) return;
    const int text = fontMetrics().horizontalAdvance(QString::fromStdString(longest->text));
    const int around = 24 + view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(std::clamp(text + around, width(), std::max(width(), kWidestList)));
  }

  ComboBox& box_;
  std::optional<Line> shown_;
};

ComboBoxView::ComboBoxView(ComboBox& box, QWidget* parent)
    : ControlView(box, new ComboBoxWidget(box, parent)),
      box_(box),
      widget_(static_cast<ComboBoxWidget&>(*widget())),
      model_(*new QStringListModel(&widget_)) {
  widget_.setModel(&model_);
  QObject::connect(&widget_, &QComboBox::activated, &widget_, [this](int index) {
    widget_.ForgetLine();
    box_.Choose(index);
    Refresh();
  });
}

void ComboBoxView::RefreshState() {
  RefreshEntries();
  ShowBackColor(widget_, box_.BackColor, kWhite);
  if (box_.DroppedDown) {
    box_.DroppedDown = false;
    if (widget_.isVisible()) widget_.OpenList();
  }
}

void ComboBoxView::RefreshEntries() {
  const QSignalBlocker blocker(widget_);
  if (revision_ != box_.revision()) {
    model_.setStringList(Texts(box_.items()));
    revision_ = box_.revision();
  }
  if (widget_.currentIndex() != box_.ListIndex()) widget_.setCurrentIndex(box_.ListIndex());
  if (widget_.TakesCharacters()) {
    widget_.RefreshText();
  } else {
    widget_.update();
  }
}

}  // namespace survey
