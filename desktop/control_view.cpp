#include "desktop/control_view.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "desktop/colors.h"
#include "desktop/combo_box_view.h"
#include "desktop/grid_view.h"
#include "desktop/keys.h"
#include "desktop/list_box_view.h"

namespace survey {
namespace {

constexpr int kButtonWidth = 112;
constexpr int kButtonHeight = 30;
constexpr int kButtonPadding = 10;
constexpr int kHeadingPercent = 130;
// Longer texts are broken into lines instead of making the window wide.
constexpr int kLongLabel = 60;
constexpr int kLongLabelWidth = 260;
// Shorter ones only where the room is too narrow, and the shortest never.
constexpr int kShortLabel = 24;
constexpr int kTextBoxCharacters = 6;  // that a box shows at least

// ---- Label ---------------------------------------------------------------------------------

// Qt's size hint of a text that may wrap is about a square. This one is a whole line for all but
// long texts, and less than half of it where there is no room.
class LabelWidget : public QLabel {
 public:
  using QLabel::QLabel;

  QSize sizeHint() const override { return MayBreak() ? OneLine() : QLabel::sizeHint(); }
  QSize minimumSizeHint() const override {
    return MayBreak() ? QSize(OneLine().width() * 2 / 5, OneLine().height())
                      : QLabel::minimumSizeHint();
  }

 private:
  bool MayBreak() const { return wordWrap() && text().size() <= kLongLabel; }
  QSize OneLine() const { return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(2, 0); }
};

class LabelView : public ControlView {
 public:
  LabelView(Label& label, QWidget* parent)
      : ControlView(label, new LabelWidget(parent)),
        label_(label),
        widget_(static_cast<QLabel&>(*widget())) {
    widget_.setTextFormat(Qt::PlainText);
    if (!label.Heading) return;
    QFont font = widget_.font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * kHeadingPercent / 100);
    widget_.setFont(font);
  }

 private:
  void RefreshState() override {
    const QString text = QString::fromStdString(label_.Caption);
    if (widget_.text() == text) return;
    widget_.setWordWrap(text.size() > kShortLabel);
    widget_.setMinimumWidth(text.size() > kLongLabel ? kLongLabelWidth : 0);
    widget_.setText(text);
  }

  Label& label_;
  QLabel& widget_;
};

// ---- Frame ---------------------------------------------------------------------------------

// A frame without a title only groups what is hidden together, and has no border.
class FrameWidget : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (!title().isEmpty()) QGroupBox::paintEvent(event);
  }
  void resizeEvent(QResizeEvent* event) override {
    QGroupBox::resizeEvent(event);
    if (title().isEmpty()) setContentsMargins(0, 0, 0, 0);
  }
};

class FrameView : public ControlView {
 public:
  FrameView(Frame& frame, QWidget* parent)
      : ControlView(frame, new FrameWidget(parent)),
        frame_(frame),
        widget_(static_cast<QGroupBox&>(*widget())) {}

 private:
  void RefreshState() override {
    // The name of a college may hold an ampersand, which stands for no key here.
    widget_.setTitle(QString::fromStdString(frame_.Caption).replace("&", "&&"));
  }

  Frame& frame_;
  QGroupBox& widget_;
};

// ---- Button --------------------------------------------------------------------------------

class ButtonWidget : public QPushButton {
 public:
  ButtonWidget(Button& button, const FormContext& context)
      : QPushButton(context.parent), button_(button), run_on_(context.run_on) {
    setAutoDefault(false);
  }

  QSize minimumSizeHint() const override { return sizeHint(); }
  QSize sizeHint() const override {
    const QSize size = QPushButton::sizeHint() + QSize(2 * kButtonPadding, 0);
    return size.expandedTo({kButtonWidth, kButtonHeight});
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (IsEnter(*event) && event->modifiers().testFlag(Qt::ShiftModifier) &&
        button_.role() == ButtonRole::kSave) {
      run_on_(button_, true);  // the way on which ENTER came here
      return;
    }
    if (!event->isAutoRepeat() && !IsModifier(*event)) button_.KeyDown();
    if (IsEnter(*event) && !event->isAutoRepeat()) {
      click();
    } else {
      QPushButton::keyPressEvent(event);
    }
  }

  // The second press of a double click is none of its own: the first may already have brought
  // another form, whose button now stands here.
  void mouseDoubleClickEvent(QMouseEvent* event) override { event->accept(); }

  // A key of the form presses its button at once and leaves the cursor where it is.
  bool event(QEvent* event) override {
    if (event->type() != QEvent::Shortcut) return QPushButton::event(event);
    if (!static_cast<QShortcutEvent&>(*event).isAmbiguous()) click();
    return true;
  }

 private:
  Button& button_;
  std::function<void(const Control&, bool)> run_on_;
};

class ButtonView : public ControlView {
 public:
  ButtonView(Button& button, const FormContext& context)
      : ControlView(button, new ButtonWidget(button, context)),
        button_(button),
        widget_(static_cast<QPushButton&>(*widget())) {
    QObject::connect(&widget_, &QPushButton::clicked, &widget_,
                     [this, commit_entries = context.commit_entries] {
                       if (commit_entries()) button_.Click();
                     });
  }

 private:
  void RefreshState() override {
    const QString caption = QString::fromStdString(button_.Caption);
    if (widget_.text() != caption) {
      widget_.setText(caption);
      // Behind the caption, which may give the button a key of its own.
      if (const QKeySequence key = KeyOf(button_.role()); !key.isEmpty()) widget_.setShortcut(key);
    }
    TellKey();
    ShowBackColor(widget_, button_.BackColor, kButtonFace);
  }

  void TellKey() {
    const QString key = widget_.shortcut().toString(QKeySequence::NativeText);
    if (key.isEmpty()) return;
    const QString tip = button_.ToolTip.empty() ? widget_.text().remove('&')
                                                : QString::fromStdString(button_.ToolTip);
    widget_.setToolTip(tip + QStringLiteral(" (%1)").arg(key));
    widget_.setAccessibleDescription(QStringLiteral("Key: ") + key);
  }

  Button& button_;
  QPushButton& widget_;
};

// ---- CheckBox, OptionButton ----------------------------------------------------------------

class CheckBoxView : public ControlView {
 public:
  CheckBoxView(CheckBox& box, QWidget* parent)
      : ControlView(box, new QCheckBox(parent)),
        box_(box),
        widget_(static_cast<QCheckBox&>(*widget())) {
    widget_.setText(QString::fromStdString(box.Caption));
    QObject::connect(&widget_, &QCheckBox::clicked, &widget_, [this] {
      box_.Click();
      Refresh();
    });
  }

 private:
  void RefreshState() override {
    const QSignalBlocker blocker(widget_);
    widget_.setChecked(box_.Value());
  }

  CheckBox& box_;
  QCheckBox& widget_;
};

class OptionButtonView : public ControlView {
 public:
  OptionButtonView(OptionButton& option, const FormContext& context)
      : ControlView(option, new QRadioButton(context.parent)),
        option_(option),
        widget_(static_cast<QRadioButton&>(*widget())),
        group_(*context.option_group(option.group())) {
    widget_.setText(QString::fromStdString(option.Caption));
    group_.addButton(&widget_);
    QObject::connect(&widget_, &QRadioButton::clicked, &widget_, [this] {
      option_.Click();
      Refresh();
    });
  }

 private:
  void RefreshState() override {
    if (widget_.isChecked() == option_.Value()) return;
    // Qt lets no button of an exclusive group be unchecked by itself.
    const QSignalBlocker blocker(widget_);
    group_.setExclusive(false);
    widget_.setChecked(option_.Value());
    group_.setExclusive(true);
  }

  OptionButton& option_;
  QRadioButton& widget_;
  QButtonGroup& group_;
};

// ---- TextBox -------------------------------------------------------------------------------

class TextBoxWidget : public QLineEdit {
 public:
  TextBoxWidget(TextBox& box, const FormContext& context)
      : QLineEdit(context.parent), box_(box), commit_entries_(context.commit_entries) {}

  QSize minimumSizeHint() const override {
    const int text = kTextBoxCharacters * fontMetrics().horizontalAdvance(u'0');
    return QLineEdit::minimumSizeHint() + QSize(text, 0);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    box_.KeyDown();
    if (IsEnter(*event)) {
      if (!event->isAutoRepeat()) GoOn();
    } else if (event->key() != Qt::Key_Backspace || TakesBackspace()) {
      QLineEdit::keyPressEvent(event);
    }
  }

 private:
  void GoOn() {
    if (box_.Default == nullptr) {
      window()->setAttribute(Qt::WA_KeyboardFocusChange);  // as TAB does: shows the ring
      focusNextChild();
    } else if (commit_entries_()) {
      box_.Default->Click();
    }
  }
  bool TakesBackspace() const { return !box_.takes_key || box_.takes_key(U'\b'); }

  TextBox& box_;
  std::function<bool()> commit_entries_;
};

class TextBoxView : public ControlView {
 public:
  TextBoxView(TextBox& box, const FormContext& context)
      : ControlView(box, new TextBoxWidget(box, context)),
        box_(box),
        widget_(static_cast<QLineEdit&>(*widget())) {
    widget_.setAlignment(box.Centered ? Qt::AlignCenter : Qt::AlignLeft);
    QObject::connect(&widget_, &QLineEdit::textEdited, &widget_, [this](const QString& text) {
      box_.Enter(text.toStdString());
      Refresh();
    });
  }

 private:
  void RefreshState() override {
    if (widget_.isReadOnly() != box_.Locked) {
      widget_.setReadOnly(box_.Locked);
      ShowBackColor(widget_, box_.Locked ? kLockedGrey : kWhite, kWhite);
    }
    const QString text = QString::fromStdString(box_.Text);
    if (widget_.text() == text) return;
    // The cursor stays before the same text, also where characters that were typed are left out.
    const qsizetype behind = widget_.text().size() - widget_.cursorPosition();
    widget_.setText(text);
    widget_.setCursorPosition(static_cast<int>(text.size() - behind));
  }

  TextBox& box_;
  QLineEdit& widget_;
};

// ---- Grid ----------------------------------------------------------------------------------

class GridControlView : public ControlView {
 public:
  GridControlView(GridControl& grid, const FormContext& context)
      : ControlView(grid, new GridView(grid, context.parent)),
        grid_(grid),
        widget_(static_cast<GridView&>(*widget())) {
    QObject::connect(&widget_, &GridView::PassedEnd, &widget_,
                     [this, run_on = context.run_on](bool back) { run_on(grid_, back); });
  }

  bool CommitEntry() override { return widget_.CommitEntry(); }
  bool IsOpenForEntry() const override {
    return grid_.Enabled && grid_.NextOpenCell({0, 0}).has_value();
  }
  void Begin(bool at_end) override { widget_.Begin(at_end); }

 private:
  void RefreshState() override { widget_.Refresh(); }

  GridControl& grid_;
  GridView& widget_;
};

}  // namespace

ControlView::ControlView(Control& control, QWidget* widget) : control_(control), widget_(widget) {
  widget_->setObjectName(QString::fromStdString(control.ObjectName()));
  widget_->setAccessibleName(QString::fromStdString(control.AccessibleName));
}

void ControlView::Refresh() {
  widget_->setVisible(control_.Visible);
  widget_->setEnabled(control_.Enabled);
  widget_->setToolTip(QString::fromStdString(control_.ToolTip));
  RefreshState();
}

void ControlView::Begin(bool) { widget_->setFocus(Qt::TabFocusReason); }

std::unique_ptr<ControlView> MakeControlView(Control& control, const FormContext& context) {
  if (auto* label = dynamic_cast<Label*>(&control)) {
    return std::make_unique<LabelView>(*label, context.parent);
  }
  if (auto* frame = dynamic_cast<Frame*>(&control)) {
    return std::make_unique<FrameView>(*frame, context.parent);
  }
  if (auto* button = dynamic_cast<Button*>(&control)) {
    return std::make_unique<ButtonView>(*button, context);
  }
  if (auto* box = dynamic_cast<CheckBox*>(&control)) {
    return std::make_unique<CheckBoxView>(*box, context.parent);
  }
  if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    return std::make_unique<OptionButtonView>(*option, context);
  }
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    return std::make_unique<TextBoxView>(*box, context);
  }
  if (auto* list = dynamic_cast<ListBox*>(&control)) {
    return std::make_unique<ListBoxView>(*list, context.parent);
  }
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    return std::make_unique<ComboBoxView>(*combo, context.parent);
  }
  return std::make_unique<GridControlView>(dynamic_cast<GridControl&>(control), context);
}

void ShowBackColor(QWidget& widget, Color color, Color standard) {
  QPalette palette;
  if (color != standard) {
    for (const auto role : {QPalette::Button, QPalette::Base}) {
      palette.setColor(role, ToQColor(color));
    }
    for (const auto role : {QPalette::ButtonText, QPalette::Text}) {
      palette.setColor(role, Qt::black);
    }
  }
  widget.setPalette(palette);
}

}  // namespace survey
