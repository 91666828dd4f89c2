#include "forms/survey_page.h"

#include <algorithm>

namespace survey {
namespace {

// "table 2.5", "tables 3.1 - 3.4".
std::string TablesOf(const PageRow& row) {
  const bool several = row.tables.find(' ') != std::string_view::npos;
  return (several ? "tables " : "table ") + std::string(row.tables);
}

}  // namespace

SurveyPage::SurveyPage(FormHost& host, const PageRow& row, const PageButtons& buttons)
    : Form(host, std::string(row.name), std::string(row.caption)),
      cmdNext(*this, "cmdNext", buttons.next.caption, buttons.next.role),
      row_(row) {
  const auto add = [this](std::optional<Button>& link, const char* name, const PageButton& button) {
    if (button.caption == nullptr) return;
    AddLink(link.emplace(*this, name, button.caption, button.role));
  };
  add(cmdPrevious, "cmdPrevious", buttons.previous);
  AddLink(cmdNext);
  add(cmdMenu, "cmdMenu", buttons.menu);
  cmdSave.on_click = [this] { Save(); };
  cmdPrintPage.on_click = [this] {
    TrapPrint(row_.errors.print, [this] {
      ChoosePrinter(TablesOf(row_), StaffId());
      Printpage();
    });
  };
}

void SurveyPage::Form_Load() {
  Caption = survey().SurveyCaption(row_.caption);
  survey().OpenDatabaseConnection();
}

void SurveyPage::Form_Activate() {
  Trap(row_.errors.activate, [this] {
    PlaceCursor();
    GetPage();
  });
}

std::string SurveyPage::PrintedHead() const {
  return HeadLine(row_.paper.head, survey().CampusEmisNumber, StaffId());
}

void SurveyPage::Printpage() {
  PrintPage(
      host().platform().printer, row_.paper, PrintedHead(),
      [this](std::string_view grid, int index) -> const Grid& { return Find<Grid>(grid, index); });
}

// What a button is for has its place, the same on every page, whether a page has the button or not.
Layout SurveyPage::Arrange() {
  std::vector<Layout> buttons;
  for (const ButtonRole role : {ButtonRole::kPrevious, ButtonRole::kNext, ButtonRole::kMenu}) {
    const auto link = std::ranges::find(links_, role, &Button::role);
    buttons.push_back(link == links_.end() ? Gap() : Place(**link));
  }
  buttons.insert(buttons.end(), {Space(), Place(cmdPrintPage), Place(cmdSave)});
  return ColumnOf(
      {FrameOf(Frame1, Body(), 1),
       FootOf(FrameOf(Frame2, ColumnOf({RowOf(std::move(buttons)),
                                        RowOf({Place(lblEnter), Space(), Place(lblTab)})})))});
}

void SurveyPage::AddLink(Button& button) {
  button.on_click = [this, &button] { FollowLink(button); };
  links_.push_back(&button);
}

void SurveyPage::FollowLink(const Button& button) {
  Form::FollowLink(LinkOf(row_.links, button.name()), &cmdSave);
}

void SurveyPage::MarkChangesOf(GridControl& grid) {
  grid.on_change = [this](int, int) { MarkUnsaved(); };
}

bool SurveyPage::MayReplace(ShownRecords& shown,
                            const std::function<std::vector<std::string>()>& stored) {
  if (shown.complete) return true;
  survey().OpenDatabaseConnection();
  for (const std::string& key : stored()) {
    if (shown.keys.contains(key)) continue;
    boxes().PlainBox(
        "The saved answers of this page could not be read when it was opened, and a save would "
        "replace them. Nothing has been changed. Please open the page anew.");
    return false;
  }
  shown.complete = true;
  return true;
}

void SurveyPage::Save() {
  if (row_.mark == MarkCleared::kBeforeSave) cmdSave.BackColor = kButtonFace;
  bool refused = false;
  const bool saved = Trap(row_.errors.save, [&] {
    refused = !MaySave();
    if (!refused) SavePage();
  });
  if (saved && !refused && row_.mark == MarkCleared::kAfterSave) cmdSave.BackColor = kButtonFace;
}

}  // namespace survey
