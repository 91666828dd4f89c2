#include "forms/survey_page.h"

#include "printing/page_print.h"

namespace survey {

SurveyPage::SurveyPage(FormHost& host, std::string name, std::string title,
                       const PageCaptions& captions)
    : Form(host, std::move(name), title),
      cmdNext(*this, "cmdNext", captions.next),
      title_(std::move(title)),
      rules_(RulesOf(this->name())) {
  if (captions.previous != nullptr) {
    AddLink(cmdPrevious.emplace(*this, "cmdPrevious", captions.previous));
  }
  AddLink(cmdNext);
  if (captions.menu != nullptr) AddLink(cmdMenu.emplace(*this, "cmdMenu", captions.menu));
  cmdSave.on_click = [this] { Save(); };
  cmdPrintPage.on_click = [this] {
    Trap(rules_.print, [this] {
      this->host().platform().printer.ShowPrinter();
      Printpage();
    });
  };
}

void SurveyPage::Form_Load() {
  Caption = survey().SurveyCaption(title_);
  survey().OpenDatabaseConnection();
}

void SurveyPage::Form_Activate() {
  Trap(rules_.activate, [this] {
    PlaceCursor();
    GetPage();
  });
}

void SurveyPage::Printpage() {
  const PagePrint& page = PrintOf(name());
  PrintPage(
      host().platform().printer, page, HeadLine(page.head, survey().CampusEmisNumber, EducatorId),
      [this](std::string_view grid, int index) -> const Grid& { return Find<Grid>(grid, index); });
}

Layout SurveyPage::Arrange() {
  std::vector<Layout> buttons;
  for (Button* link : links_) buttons.push_back(Place(*link));
  buttons.insert(buttons.end(), {Space(), Place(cmdPrintPage), Place(cmdSave)});
  return ColumnOf({FrameOf(Frame1, Body(), 1),
                   FrameOf(Frame2, ColumnOf({RowOf(std::move(buttons)),
                                             RowOf({Place(lblEnter), Space(), Place(lblTab)})}))});
}

void SurveyPage::AddLink(Button& button) {
  button.on_click = [this, &button] { FollowLink(button, &cmdSave); };
  links_.push_back(&button);
}

void SurveyPage::MarkChangesOf(GridControl& grid) {
  grid.on_change = [this](int, int) { MarkUnsaved(); };
}

void SurveyPage::Save() {
  if (rules_.mark == MarkCleared::kBeforeSave) cmdSave.BackColor = kButtonFace;
  bool refused = false;
  const bool saved = Trap(rules_.save, [&] {
    refused = !MaySave();
    if (!refused) SavePage();
  });
  if (saved && !refused && rules_.mark == MarkCleared::kAfterSave) cmdSave.BackColor = kButtonFace;
}

}  // namespace survey
