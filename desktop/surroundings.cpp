#include "desktop/surroundings.h"

#include <QApplication>
#include <QItemSelectionModel>
#include <QScopeGuard>
#include <algorithm>

#include "desktop/grid_model.h"
#include "guide/cell_facts.h"

namespace survey {
namespace {

constexpr char kWindow[] = "Main";
constexpr char kGuideWindow[] = "Guide";
// Width of a window that begins with the contents beside the page, and up to which size of the
// desktop's texts that holds.
constexpr int kWideEnough = 1100;
constexpr double kUsualPoints = 11;
constexpr int kContentsWidth = 300;
constexpr int kChecksHeight = 150;

}  // namespace

Surroundings::Surroundings(DesktopView& view, FormHost& host)
    : view_(view),
      host_(host),
      guide_(host),
      memory_(host.platform().settings),
      contents_action_(AddAction("contentsAction", tr("Contents"), Qt::Key_F9,
                                 [this] { Toggle(*contents_, !contents_->isVisible()); })),
      checks_action_(AddAction("checksAction", tr("Checks"), Qt::Key_F8,
                               [this] { Toggle(*checks_, !checks_->isVisible()); })),
      guide_action_(AddAction("guideAction", tr("Help"), Qt::Key_F1, [this] { OpenGuide(); })),
      contents_(new ContentsPane(&view.window())),
      checks_(new ChecksPane(&view.window())),
      status_(new StatusLine({contents_action_, checks_action_, guide_action_})),
      band_(new YearBand) {
  QMainWindow& window = view_.window();
  AddAction("nextPaneAction", tr("Next pane"), Qt::Key_F6, [this] { GoOn(); });
  AddPane(*contents_, Qt::LeftDockWidgetArea, *contents_action_);
  AddPane(*checks_, Qt::BottomDockWidgetArea, *checks_action_);
  window.resizeDocks({contents_}, {kContentsWidth}, Qt::Horizontal);
  window.resizeDocks({checks_}, {kChecksHeight}, Qt::Vertical);
  window.setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
  window.setStatusBar(status_);
  view_.AddOverForms(*band_);
  memory_.Restore(kWindow, window);
  memory_.RestorePanes(window);
  contents_->hide();
  checks_->hide();
  Connect();
}

QAction* Surroundings::AddAction(const char* name, const QString& text, Qt::Key key,
                                 const std::function<void()>& run) {
  auto* action = new QAction(text, this);
  action->setObjectName(name);
  action->setShortcut(key);
  action->setToolTip(text + " (" + action->shortcut().toString(QKeySequence::NativeText) + ")");
  connect(action, &QAction::triggered, this, run);
  view_.window().addAction(action);
  return action;
}

void Surroundings::AddPane(Pane& pane, Qt::DockWidgetArea area, QAction& action) {
  view_.window().addDockWidget(area, &pane);
  action.setCheckable(true);
  connect(&pane, &Pane::CloseAsked, this, [this, &pane] { Toggle(pane, false); });
  connect(&pane, &Pane::Left, this, &Surroundings::FocusForm);
}

// A way somewhere else is begun once the pane has done with the click that asks for it.
void Surroundings::Connect() {
  view_.window().installEventFilter(this);
  connect(&view_, &DesktopView::ActionEnded, this, &Surroundings::Refresh);
  connect(&view_, &DesktopView::Ended, this, [this] {
    memory_.Remember(kWindow, view_.window());
    memory_.RememberPanes(view_.window());
  });
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { FollowFocus(now); });
  connect(
      contents_, &ContentsPane::Chosen, this,
      [this](const ContentsEntry& entry) { Lead([this, entry] { return guide_.GoTo(entry); }); },
      Qt::QueuedConnection);
  connect(checks_, &ChecksPane::Chosen, this, &Surroundings::LeadToCell, Qt::QueuedConnection);
  connect(contents_, &ContentsPane::PrintAsked, this, &Surroundings::PrintAllPages);
  connect(
      band_, &YearBand::BackAsked, this,
      [this] { Lead([this] { return guide_.GoToYearOfSurvey(); }); }, Qt::QueuedConnection);
}

// ---- What is to be seen --------------------------------------------------------------------

void Surroundings::Refresh() {
  if (host_.Ended()) return;
  guide_.Attend();
  const Whereabouts where = guide_.SiteChosen() ? guide_.where() : Whereabouts();
  status_->Show(where);
  band_->Show(where.warning);
  if (guide_.SiteChosen()) contents_->Refresh(guide_.contents());
  if (guide_.SiteChosen() && guide_.readings() != shown_reading_) {
    shown_reading_ = guide_.readings();
    checks_->Refresh(guide_.checks() ? &*guide_.checks() : nullptr);
  }
  ShowPanes();
  ShowCell();
}

void Surroundings::ShowPanes() {
  for (const auto& [pane, action] :
       {std::pair<Pane*, QAction*>{contents_, contents_action_}, {checks_, checks_action_}}) {
    const bool shown = guide_.SiteChosen() && Wants(*pane);
    pane->setVisible(shown);
    action->setEnabled(guide_.SiteChosen());
    action->setChecked(shown);
  }
}

bool Surroundings::Wants(const Pane& pane) const {
  const double scale = std::max(1.0, view_.window().fontInfo().pointSizeF() / kUsualPoints);
  const bool usual = &pane == contents_ && view_.window().width() >= kWideEnough * scale;
  return memory_.Wanted(pane.objectName().toStdString()).value_or(usual);
}

bool Surroundings::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) ShowPanes();
  return QObject::eventFilter(watched, event);
}

void Surroundings::Toggle(Pane& pane, bool shown) {
  const bool had_focus = pane.isAncestorOf(QApplication::focusWidget());
  memory_.SetWanted(pane.objectName().toStdString(), shown);
  ShowPanes();
  if (shown) {
    pane.list().setFocus(Qt::ShortcutFocusReason);
  } else if (had_focus) {
    FocusForm();
  }
}

// A line that is typed into stands within its table.
void Surroundings::FollowFocus(const QWidget* focus) {
  const QObject* around = focus;
  while (around != nullptr && qobject_cast<const GridView*>(around) == nullptr) {
    around = around->parent();
  }
  auto* table = qobject_cast<GridView*>(const_cast<QObject*>(around));
  if (table != nullptr && table->window() != &view_.window()) return;
  if (table != table_) {
    disconnect(selection_);
    table_ = table;
    if (table != nullptr) {
      selection_ = connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                           &Surroundings::ShowCell);
    }
  }
  ShowCell();
}

void Surroundings::ShowCell() {
  if (table_ == nullptr) return status_->ShowCell({});
  const Grid& grid = table_->grid();
  std::vector<Cell> cells;
  for (const QModelIndex& index : table_->selectionModel()->selectedIndexes()) {
    cells.push_back(GridModel::CellAt(index));
  }
  const bool several = cells.size() > 1 && table_->selectionBehavior() == GridView::SelectItems;
  status_->ShowCell(several ? SumOf(grid, cells)
                            : CellFacts(grid, {grid.ActiveColumn(), grid.ActiveRow()}));
}

// ---- Ways ----------------------------------------------------------------------------------

void Surroundings::GoOn() {
  const QWidget* focus = QApplication::focusWidget();
  bool after = !contents_->isAncestorOf(focus) && !checks_->isAncestorOf(focus);
  for (Pane* pane : {static_cast<Pane*>(contents_), static_cast<Pane*>(checks_)}) {
    if (after && pane->isVisible()) return pane->list().setFocus(Qt::ShortcutFocusReason);
    if (pane->isAncestorOf(focus)) after = true;
  }
  FocusForm();
}

void Surroundings::FocusForm() {
  FormWidget* form = view_.FrontForm();
  if (form != nullptr && form->focusWidget() != nullptr) {
    form->focusWidget()->setFocus(Qt::ShortcutFocusReason);
  }
}

void Surroundings::Lead(const std::function<bool()>& go) {
  if (FormWidget* form = view_.FrontForm(); form != nullptr && !form->CommitEntries()) return;
  QMainWindow& window = view_.window();
  window.setUpdatesEnabled(false);  // the forms on the way are not shown
  const auto painted = qScopeGuard([&window] { window.setUpdatesEnabled(true); });
  go();
  FocusForm();
}

void Surroundings::LeadToCell(const Finding& finding) {
  Lead([&] {
    if (!guide_.GoTo(finding) || finding.grid.empty() || PageInFront(host_) == nullptr)
      return false;
    auto& grid = PageInFront(host_)->Find<GridControl>(finding.grid, finding.grid_index);
    grid.MoveTo(finding.column, finding.row);
    FormWidget& form = *view_.FrontForm();
    auto* table = form.findChild<GridView*>(QString::fromStdString(grid.ObjectName()));
    form.BringIntoView(*table);
    table->Attend({finding.column, finding.row}, finding.text);
    return true;
  });
}

void Surroundings::PrintAllPages() {
  const SurveyPage* page = PageInFront(host_);
  const bool unsaved = page != nullptr && page->cmdSave.BackColor == kYellow;
  if (unsaved && !host_.boxes().UserQuestion("This page is not saved, and what is saved is "
                                             "printed. Print all pages nevertheless?")) {
    return;
  }
  host_.Dispatch(*FormInFront(host_), [this] { guide_.PrintYearOfSurvey(); });
}

void Surroundings::OpenGuide() {
  if (guide_window_ == nullptr) {
    guide_window_ = new GuideWindow(&view_.window());
    memory_.Restore(kGuideWindow, *guide_window_);
    guide_window_->setAttribute(Qt::WA_DeleteOnClose);
    connect(guide_window_, &GuideWindow::Closed, this, [this] {
      memory_.Remember(kGuideWindow, *guide_window_);
      view_.window().activateWindow();
    });
  }
  guide_window_->show();
  guide_window_->raise();
  guide_window_->activateWindow();
}

}  // namespace survey
