#include "desktop/form_widget.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <algorithm>
#include <optional>

#include "desktop/grid_view.h"

namespace survey {
namespace {

constexpr int kMargin = 14;
constexpr int kSpacing = 10;
constexpr int kBlockSpacing = 14;  // between the parts of the form itself
constexpr int kFrameMargin = 12;
// Forms are no wider than this, unless a table is, and stand in the middle of the window.
constexpr int kReadingWidth = 860;
// Stretch factor of what grows up to its maximum before the space beside it gets any room.
constexpr int kFirst = 100000;
constexpr int kFieldWidth = 520;
constexpr int kDialogWidth = 480;
constexpr int kWholeTable = 340;  // height up to which a table does not scroll by itself

bool HasTable(const std::vector<Layout>& parts) {
  return std::ranges::any_of(parts,
                             [](const Layout& part) { return part.kind == Layout::Kind::kTable; });
}

// What scrolls as a whole only when its parts cannot be made any smaller. A scroll area asks for
// the height that its contents would like, and would rather scroll a large table out of view,
// heads and all, than let it scroll by itself.
class Contents : public QWidget {
 public:
  int heightForWidth(int width) const override { return layout()->minimumHeightForWidth(width); }
};

// Qt keeps a scroll bar once it was needed, although the texts may need no scrolling without it.
class ContentsArea : public QScrollArea {
 public:
  using QScrollArea::QScrollArea;

 protected:
  void resizeEvent(QResizeEvent* event) override {
    ChooseBar();
    QScrollArea::resizeEvent(event);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) ChooseBar();
    return QScrollArea::eventFilter(watched, event);
  }

 private:
  void ChooseBar() {
    const QSize room = maximumViewportSize();
    const bool fits = widget()->heightForWidth(room.width()) <= room.height();
    setVerticalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  }
};

void SetUp(QBoxLayout& box) {
  box.setContentsMargins(0, 0, 0, 0);
  box.setSpacing(kSpacing);
}

}  // namespace

FormWidget::FormWidget(Form& form, QWidget* parent)
    : QWidget(parent), form_(form), scroll_(new ContentsArea(this)) {
  setObjectName(QString::fromStdString(form.name()));
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidgetResizable(true);
  auto* whole = new QVBoxLayout(this);
  SetUp(*whole);
  whole->setSpacing(0);
  whole->addWidget(scroll_);

  Layout arrangement = form.Arrange();
  if (arrangement.kind != Layout::Kind::kColumn) arrangement = ColumnOf({std::move(arrangement)});
  std::optional<Layout> foot;
  if (arrangement.parts.back().kind == Layout::Kind::kFoot) {
    foot = std::move(arrangement.parts.back().parts.front());
    arrangement.parts.pop_back();
  }
  auto* place = new Contents;
  QVBoxLayout* column = AddBlock(*place);
  AddParts(arrangement, *column, column->parentWidget());
  scroll_->setWidget(place);
  if (foot) {
    auto* below = new QWidget(this);
    QVBoxLayout* foot_column = AddBlock(*below);
    Add(*foot, *foot_column, foot_column->parentWidget());
    below->layout()->setContentsMargins(kMargin, kSpacing, kMargin, kMargin);
    whole->addWidget(below);
  } else {
    column->insertStretch(0, 1);
    column->addStretch(2);
  }
  FitWidth();
  AddHistoryKeys();
}

FormWidget::~FormWidget() = default;

// Adds a column that is centred horizontally in `place`.
QVBoxLayout* FormWidget::AddBlock(QWidget& place) {
  auto* across = new QHBoxLayout(&place);
  across->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  blocks_.push_back(new QWidget(&place));
  across->addStretch(1);
  across->addWidget(blocks_.back(), kFirst);
  across->addStretch(1);
  auto* column = new QVBoxLayout(blocks_.back());
  SetUp(*column);
  column->setSpacing(kBlockSpacing);
  return column;
}

// As wide as the widest table or the foot asks for, and kReadingWidth at least.
void FormWidget::FitWidth() {
  int width = kReadingWidth;
  for (const QWidget* block : blocks_) width = std::max(width, block->sizeHint().width());
  for (QWidget* block : blocks_) block->setMaximumWidth(width);
}

void FormWidget::BringIntoView(QWidget& widget) {
  if (scroll_->widget()->isAncestorOf(&widget)) scroll_->ensureWidgetVisible(&widget);
}

// The scroll area scrolls to the focus only where the focus was in it before.
bool FormWidget::focusNextPrevChild(bool next) {
  const bool moved = QWidget::focusNextPrevChild(next);
  if (QWidget* focus = focusWidget()) BringIntoView(*focus);
  return moved;
}

void FormWidget::Refresh() {
  const QWidget* const before = focusWidget();
  for (const auto& view : views_) view->Refresh();
  FitWidth();
  // Code has hidden the part of the form that had the focus: begin in the part shown instead.
  if (before != nullptr && !before->isVisibleTo(this)) begun_ = false;
  if (const Control* wished = form_.TakeFocusRequest()) {
    begun_ = true;
    if (QWidget* widget = WidgetOf(*wished)) {
      window()->setAttribute(Qt::WA_KeyboardFocusChange);  // the ring shows where it has gone
      widget->setFocus();
    }
  } else if (!begun_) {
    begun_ = true;
    BeginEntry();
  }
}

bool FormWidget::CommitEntries() {
  return std::all_of(views_.begin(), views_.end(),
                     [](const auto& view) { return view->CommitEntry(); });
}

QSize FormWidget::sizeHint() const {
  int width = kDialogWidth;
  for (const QWidget* block : blocks_) {
    const QWidget& place = *block->parentWidget();
    width = std::max({width, place.sizeHint().width(), place.minimumSizeHint().width()});
  }
  int height = 0;
  for (const QWidget* block : blocks_) {
    const QLayout& place = *block->parentWidget()->layout();
    height += place.hasHeightForWidth() ? place.totalHeightForWidth(width)
                                        : place.totalSizeHint().height();
  }
  const QSize largest = screen()->availableSize() * 0.9;
  if (height > largest.height()) {
    width += style()->pixelMetric(QStyle::PM_ScrollBarExtent) +
             style()->pixelMetric(QStyle::PM_ScrollView_ScrollBarSpacing);
  }
  return QSize(width, height).boundedTo(largest);
}

// The first table with an open cell, else the first control that takes the focus.
void FormWidget::BeginEntry() {
  const auto begins_with = [this](const auto& is_place) {
    for (const auto& view : views_) {
      QWidget* widget = view->widget();
      if (!widget->isVisibleTo(this) || !widget->isEnabledTo(this) || !is_place(*view)) continue;
      widget->setFocus();
      return true;
    }
    return false;
  };
  if (begins_with([](const ControlView& view) { return view.IsOpenForEntry(); })) return;
  begins_with([](const ControlView& view) {
    const auto* line = qobject_cast<const QLineEdit*>(view.widget());
    const bool only_shows = line != nullptr && line->isReadOnly();
    return !only_shows && (view.widget()->focusPolicy() & Qt::TabFocus) != 0;
  });
}

// Where ENTER stops on its way through the form.
bool FormWidget::IsStop(const ControlView& view) const {
  const QWidget* widget = view.widget();
  if (!widget->isVisibleTo(this) || !widget->isEnabledTo(this)) return false;
  const auto* button = dynamic_cast<const Button*>(&view.control());
  return view.IsOpenForEntry() || (button != nullptr && button->role() == ButtonRole::kSave);
}

// ENTER goes through the tables of a form one after the other, and from the last one to Save.
void FormWidget::RunOn(const Control& from, bool back) {
  std::vector<ControlView*> stops;
  std::ptrdiff_t at = 0;
  for (const auto& view : views_) {
    const bool here = &view->control() == &from;
    if (here) at = std::ssize(stops);
    if (here || IsStop(*view)) stops.push_back(view.get());
  }
  at += back ? -1 : 1;
  // Whatever has the focus shows it, as when TAB has brought it there.
  window()->setAttribute(Qt::WA_KeyboardFocusChange);
  if (0 <= at && at < std::ssize(stops)) {
    stops[at]->Begin(back);
    BringIntoView(*stops[at]->widget());
  } else if (!back) {
    focusNextPrevChild(true);
  }
}

// ---- Taking back ---------------------------------------------------------------------------

void FormWidget::AddHistoryKeys() {
  const auto add = [this](const QKeySequence& key, EditHistory::Replay (EditHistory::*replay)()) {
    auto* shortcut = new QShortcut(key, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this,
            [this, replay] { Attend((form_.history().*replay)()); });
  };
  add(Qt::CTRL | Qt::Key_Z, &EditHistory::Undo);
  add(Qt::CTRL | Qt::Key_Y, &EditHistory::Redo);
  add(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &EditHistory::Redo);
}

// Shows where something has been taken back or done again.
void FormWidget::Attend(const EditHistory::Replay& replay) {
  for (const auto& view : views_) {
    auto* table = qobject_cast<GridView*>(view->widget());
    const auto* grid = dynamic_cast<const GridControl*>(&view->control());
    if (table == nullptr || grid != replay.grid) continue;
    table->Attend(replay.cell, replay.entry.reason);
    BringIntoView(*table);
  }
}

// ---- Building ------------------------------------------------------------------------------

void FormWidget::Add(const Layout& part, QBoxLayout& box, QWidget* parent) {
  switch (part.kind) {
    case Layout::Kind::kControl:
      box.addWidget(MakeWidget(*part.control, parent), part.stretch);
      break;
    case Layout::Kind::kTable:
      AddTable(*MakeWidget(*part.control, parent), box);
      break;
    case Layout::Kind::kRow:
    case Layout::Kind::kColumn: {
      const bool is_row = part.kind == Layout::Kind::kRow;
      auto* inner = new QBoxLayout(is_row ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
      SetUp(*inner);
      box.addLayout(inner, part.stretch);
      AddParts(part, *inner, parent);
      break;
    }
    case Layout::Kind::kFields:
      AddFields(part, box, parent);
      break;
    case Layout::Kind::kFrame:
      AddFrame(part, box, parent);
      break;
    case Layout::Kind::kFoot:
      AddParts(part, box, parent);  // somewhere within the form it is a part like any other
      break;
    case Layout::Kind::kSpace:
      box.addStretch(std::max(1, part.stretch));
      break;
  }
}

void FormWidget::AddParts(const Layout& part, QBoxLayout& box, QWidget* parent) {
  for (const Layout& child : part.parts) Add(child, box, parent);
  NameByLabel(part.parts);
  if (part.kind != Layout::Kind::kRow && HasTable(part.parts)) box.addStretch(1);
}

// Stands at the top left of its place. Small tables are shown whole; the room is given to all by
// what they need.
void FormWidget::AddTable(QWidget& table, QBoxLayout& box) {
  const int height = table.sizeHint().height();
  if (height <= kWholeTable) table.setMinimumHeight(height);
  auto* across = new QHBoxLayout;
  SetUp(*across);
  across->addWidget(&table, kFirst);
  across->addStretch(1);
  if (box.direction() == QBoxLayout::TopToBottom) {
    box.addLayout(across, height);
    return;
  }
  auto* down = new QVBoxLayout;
  SetUp(*down);
  down->addLayout(across, kFirst);
  down->addStretch(1);
  box.addLayout(down, kFirst);
}

void FormWidget::AddFields(const Layout& part, QBoxLayout& box, QWidget* parent) {
  auto* fields = new QGridLayout;
  fields->setHorizontalSpacing(kSpacing);
  fields->setVerticalSpacing(kSpacing);
  fields->setColumnStretch(1, 1);
  box.addLayout(fields, part.stretch);
  for (int row = 0; row < static_cast<int>(part.parts.size()); ++row) {
    const std::vector<Layout>& line = part.parts[row].parts;
    fields->addWidget(MakeWidget(*line.front().control, parent), row, 0);
    auto* field = new QHBoxLayout;
    SetUp(*field);
    QWidget* widget = MakeWidget(*line.back().control, parent);
    widget->setMaximumWidth(kFieldWidth);
    field->addWidget(widget, kFirst);
    field->addStretch(1);
    fields->addLayout(field, row, 1);
    NameByLabel(line);
  }
}

void FormWidget::AddFrame(const Layout& part, QBoxLayout& box, QWidget* parent) {
  QWidget* frame = MakeWidget(*part.control, parent);
  box.addWidget(frame, part.stretch);
  auto* inner = new QVBoxLayout(frame);
  SetUp(*inner);
  const bool has_border = !static_cast<const Frame*>(part.control)->Caption.empty();
  if (has_border) inner->setContentsMargins(kFrameMargin, kSpacing, kFrameMargin, kFrameMargin);
  AddParts(part, *inner, frame);
}

QWidget* FormWidget::MakeWidget(Control& control, QWidget* parent) {
  const FormContext context = {
      .parent = parent,
      .commit_entries = [this] { return CommitEntries(); },
      .run_on = [this](const Control& from, bool back) { RunOn(from, back); },
      .option_group = [this](const std::string& group) { return OptionGroup(group); },
  };
  views_.push_back(MakeControlView(control, context));
  // Now, since layouts ask once how much room the texts need, and remember it.
  views_.back()->Refresh();
  return views_.back()->widget();
}

// A control that has no name of its own is called by the label before it, which also brings the
// focus to it.
void FormWidget::NameByLabel(const std::vector<Layout>& row) {
  for (std::size_t i = 1; i < row.size(); ++i) {
    const auto* label = dynamic_cast<const Label*>(row[i - 1].control);
    const bool has_caption = dynamic_cast<const Button*>(row[i].control) != nullptr;
    if (label == nullptr || row[i].control == nullptr || has_caption) continue;
    QWidget* widget = WidgetOf(*row[i].control);
    static_cast<QLabel*>(WidgetOf(*label))->setBuddy(widget);
    if (widget->accessibleName().isEmpty()) {
      widget->setAccessibleName(QString::fromStdString(label->Caption).remove(':').trimmed());
    }
  }
}

QWidget* FormWidget::WidgetOf(const Control& control) const {
  const auto view = std::find_if(views_.begin(), views_.end(), [&](const auto& candidate) {
    return &candidate->control() == &control;
  });
  return view == views_.end() ? nullptr : (*view)->widget();
}

QButtonGroup* FormWidget::OptionGroup(const std::string& group) {
  QButtonGroup*& made = option_groups_[group];
  if (made == nullptr) made = new QButtonGroup(this);
  return made;
}

}  // namespace survey
