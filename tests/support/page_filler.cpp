#include "support/page_filler.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <stdexcept>

#include "base/text.h"
#include "forms/form.h"

namespace survey::testing {
namespace {

constexpr int kHostels = 5;
constexpr int kQualifications = 35;
constexpr int kSubjects = 15;

// ---- Answers ---------------------------------------------------------------------------------

std::string Padded(int number, int width) {
  const std::string digits = std::to_string(number);
  return std::string(static_cast<std::size_t>(std::max(width - static_cast<int>(digits.size()), 0)),
                     '0') +
         digits;
}

std::string NumberWithin(const CellKind& kind, int figure) {
  double number = figure;
  if (number < kind.minimum || number > kind.maximum) {
    const int size = static_cast<int>(std::floor(kind.maximum - kind.minimum)) + 1;
    number = std::ceil(kind.minimum) + figure % size;
  } else if (kind.decimals == 3) {  // fewer decimals are rounded away where they are stored
    number += (figure % 999 + 1) / 1000.0;
  }
  return NumberText(number);
}

std::string Telephone(int figure) { return "021555" + Padded(figure, 4); }

// What a question asks for that the kind of its cell does not tell.
struct Asked {
  const char* words;  // of the question
  std::string (*answer)(int figure);
};
// clang-format off
constexpr Asked kAsked[] = {
    {"E-mail", [](int figure) { return "info@" + WordOf(figure) + ".co.za"; }},
    {"Website", [](int figure) { return "www." + WordOf(figure) + ".co.za"; }},
    {"Telephone", Telephone},
    {"Fax", Telephone},
    {"Title", [](int figure) { return std::string(figure % 2 == 0 ? "MS" : "MR"); }},
    {"Initials", [](int figure) { return UpperCase(WordOf(figure)).substr(0, 1) + "J"; }},
    {"Please give year", [](int figure) { return std::to_string(1990 + figure % 22); }},
    {"South African citizen", [](int) { return std::string("1"); }},
};
// clang-format on

// The nearest text to the left.
std::string QuestionOf(const GridControl& grid, Cell cell) {
  for (int column = cell.column - 1; column > 0; --column) {
    const std::string& text = grid.GetText(column, cell.row);
    if (!text.empty()) return text;
  }
  return {};
}

std::string AnswerOf(const CellKind& kind, int figure) {
  constexpr int kTelephone = 10;  // digits
  constexpr int kLine = 50;       // characters that give room for two words
  switch (kind.type) {
    case CellKind::Type::kNumber:
      return NumberWithin(kind, figure);
    case CellKind::Type::kDigits:
      if (kind.length == kTelephone) return Telephone(figure);
      return (kind.length < kTelephone ? "" : "80210") + Padded(figure, std::min(kind.length, 4));
    case CellKind::Type::kDate:
      return std::to_string(1950 + figure % 40) + "/" + Padded(1 + figure % 12, 2) + "/" +
             Padded(1 + figure % 28, 2);
    case CellKind::Type::kText:
      if (kind.length < kLine) return WordOf(figure);
      return WordOf(figure) + " " + WordOf(figure + 100'000);
    case CellKind::Type::kCheckBox:
    case CellKind::Type::kLabel:
      break;
  }
  return {};
}

void Require(const Entry& entry, const GridControl& grid, Cell cell) {
  if (entry.taken) return;
  throw std::runtime_error(grid.form().name() + " " + grid.ObjectName() + " (" +
                           std::to_string(cell.column) + "," + std::to_string(cell.row) +
                           "): " + entry.reason);
}

void Answer(GridControl& grid, Cell cell, Figures& figures) {
  const auto [column, row] = cell;
  grid.MoveTo(column, row);
  const CellKind& kind = grid.Kind(column, row);
  if (kind.type != CellKind::Type::kCheckBox) {
    const std::string question = QuestionOf(grid, cell);
    const auto* const asked = std::ranges::find_if(
        kAsked, [&](const Asked& some) { return question.find(some.words) != std::string::npos; });
    const int figure = figures.Next();
    const std::string answer =
        asked == std::end(kAsked) ? AnswerOf(kind, figure) : asked->answer(figure);
    Require(grid.Type(column, row, answer), grid, cell);
  } else if (figures.Ticks() != (grid.GetText(column, row) == "1")) {
    Require(grid.Tick(column, row), grid, cell);
  }
}

FilledCell Told(const GridControl& grid, Cell cell) {
  return {grid.name(), grid.index(), cell.column, cell.row, grid.GetText(cell.column, cell.row)};
}

void FillGrid(GridControl& grid, Figures& figures, std::vector<FilledCell>& filled) {
  for (auto cell = grid.NextOpenCell({0, 1}); cell; cell = grid.NextOpenCell(*cell)) {
    if (grid.IsTotal(cell->column, cell->row)) continue;
    Answer(grid, *cell, figures);
    filled.push_back(Told(grid, *cell));
  }
}

void FillGrids(Form& page, Figures& figures, std::vector<FilledCell>& filled) {
  for (Control* control : page.controls()) {
    auto* grid = dynamic_cast<GridControl*>(control);
    if (grid != nullptr && grid->Visible && grid->Enabled) FillGrid(*grid, figures, filled);
  }
}

// ---- What differs from page to page ----------------------------------------------------------

// Entries from all over the list, the first one of each step.
void ChooseLines(ComboBox& combo, int lines, const std::function<void()>& chosen) {
  const int entries = static_cast<int>(combo.items().size());
  const int step = std::max(entries / lines, 1);
  for (int line = 0; line < lines && line * step < entries; ++line) {
    combo.Choose(line * step);
    if (chosen) chosen();
  }
}

void TellLines(const GridControl& grid, Cell first, int lines, FilledPage& filled) {
  for (int row = first.row; row < first.row + lines; ++row) {
    filled.cells.push_back(Told(grid, {first.column, row}));
  }
}

void FillHostels(Form& page, Figures& figures, FilledPage& filled) {
  for (int hostel = 0; hostel < kHostels; ++hostel) {
    page.Find<Button>("cmdAdd").Click();
    filled.cells.clear();
    FillGrid(page.Find<GridControl>("gridGeneralInfo"), figures, filled.cells);
    page.Find<Button>("cmdSaveHostel").Click();
  }
  TellLines(page.Find<GridControl>("gridhostels"), {1, 1}, kHostels, filled);
  FillGrid(page.Find<GridControl>("gridSETA"), figures, filled.cells);
}

// Some qualifications open other cells of their line, which are not stored.
void FillQualifications(Form& page, Figures& figures, FilledPage& filled) {
  auto& grid = page.Find<GridControl>("gridPage12_2");
  ChooseLines(page.Find<ComboBox>("cboSelect"), kQualifications,
              [&] { page.Find<Button>("cmdOK").Click(); });
  for (int row = 3; row < 3 + kQualifications; ++row) Answer(grid, {8, row}, figures);
  for (const int column : {3, 4, 8}) TellLines(grid, {column, 3}, kQualifications, filled);
}

void FillSubjects(Form& page, Figures& figures, FilledPage& filled) {
  page.Find<OptionButton>("optReport191").Click();
  ChooseLines(page.Find<ComboBox>("cboSubject"), kSubjects, nullptr);
  TellLines(page.Find<GridControl>("gridSubjects"), {2, 2}, kSubjects, filled);
  FillGrids(page, figures, filled.cells);
}

const std::map<std::string_view, void (*)(Form&, Figures&, FilledPage&)> kFillings = {
    {"frmHostels", FillHostels},
    {"frmPage12_1", FillQualifications},
    {"frmEducatorTeaching", FillSubjects},
    {"frmEducatorTeaching1", FillSubjects},
};

// ---- From page to page -----------------------------------------------------------------------

// Shows the page over what is on screen, fills it and closes it again; with nothing beneath it
// stays.
FilledPage ShowAndFill(FormHost& host, const std::string& name, Figures& figures) {
  Form* const beneath = host.Front();
  if (beneath == nullptr) {
    host.Start(name);
  } else {
    host.Dispatch(*beneath, [&] { host.Show(name); });
  }
  FilledPage filled = FillPage(host.Get(name), figures);
  if (beneath != nullptr) host.CloseBox(host.Get(name));
  return filled;
}

std::vector<FilledPage> FillPages(FormHost& host, Section section, Figures& figures) {
  std::vector<FilledPage> filled;
  for (const PageRow& page : host.pages()) {
    if (page.section != section) continue;
    filled.push_back(ShowAndFill(host, std::string(page.name), figures));
  }
  return filled;
}

// Answers that a page does not show again: the country of citizenship has never been saved, and
// whether there is a manager, or a programme on level 5, is told by what else was answered.
constexpr std::pair<const char*, int> kNotShownAgain[] = {
    {"gridgeneral", 8}, {"gridGeneralInfo", 24}, {"gridlevel5", 1}};
constexpr char kSortedWhenRead[] = "gridPage12_2";

void ReadCell(const GridControl& grid, const FilledCell& entered, std::vector<std::string>& texts) {
  const auto& [name, index, column, row, text] = entered;
  for (const auto& [unshown, at] : kNotShownAgain) {
    if (name == unshown && row == at) return;
  }
  if (name != kSortedWhenRead && grid.GetText(column, row) != text) {
    throw std::runtime_error(name + " " + std::to_string(column) + "," + std::to_string(row) +
                             " shows " + grid.GetText(column, row) + ", not " + text);
  }
  if (grid.Kind(column, row).type != CellKind::Type::kCheckBox) texts.push_back(text);
}

}  // namespace

Figures::Figures(int first, int last) : first_(first), size_(last - first + 1), step_(1237) {
  while (std::gcd(step_, size_) != 1) ++step_;
}

int Figures::Next() {
  return first_ + static_cast<int>(static_cast<std::int64_t>(count_++) * step_ % size_);
}

std::string WordOf(int number) {
  constexpr std::string_view kConsonants = "bdfghjklmnprstvw";
  constexpr std::string_view kVowels = "aeiou";
  constexpr int kWords = 80 * 80 * 80;
  int rest = static_cast<int>(std::int64_t{number} * 7919 % kWords);
  std::string word;
  for (int syllable = 0; syllable < 3; ++syllable) {
    word += kConsonants[static_cast<std::size_t>(rest % 16)];
    word += kVowels[static_cast<std::size_t>(rest / 16 % 5)];
    rest /= 80;
  }
  return UpperCase(word.substr(0, 1)) + word.substr(1);
}

bool Figures::Ticks() { return ticks_all_ || boxes_++ % 2 == 0; }

Figures Figures::OfVersion(int version) {
  Figures figures(1000 + version);
  figures.ticks_all_ = false;
  figures.boxes_ = version;
  return figures;
}

void ForEachCell(const Form& form, const std::function<void(const GridControl&, Cell)>& visit) {
  for (const Control* control : form.controls()) {
    const auto* grid = dynamic_cast<const GridControl*>(control);
    for (int row = 1; grid != nullptr && row <= grid->MaxRows(); ++row) {
      for (int column = 1; column <= grid->MaxColumns(); ++column) visit(*grid, {column, row});
    }
  }
}

void AnswerGrids(Form& page, Figures& figures) {
  std::vector<FilledCell> filled;
  FillGrids(page, figures, filled);
}

FilledPage FillPage(Form& page, Figures& figures) {
  FilledPage filled{page.name(), {}};
  const auto filling = kFillings.find(page.name());
  if (filling == kFillings.end()) {
    FillGrids(page, figures, filled.cells);
  } else {
    filling->second(page, figures, filled);
  }
  page.Find<Button>("cmdSave").Click();
  return filled;
}

void ChooseStaffMember(Form& form, const std::string& id, const char* mode) {
  if (auto* staff_member = form.FindProperty<std::string>("EducatorId")) *staff_member = id;
  if (auto* form_mode = form.FindProperty<std::string>("FormMode")) *form_mode = mode;
}

std::vector<FilledPage> FillCampus(FormHost& host, Figures& figures) {
  return FillPages(host, Section::kCampus, figures);
}

std::vector<FilledPage> FillStaffMember(FormHost& host, const std::string& id, Figures& figures) {
  for (const PageRow& page : host.pages()) {
    ChooseStaffMember(host.Get(std::string(page.name)), id, "New");
  }
  return FillPages(host, Section::kStaffMember, figures);
}

std::vector<std::string> ReadAgain(FormHost& host, const FilledPage& filled,
                                   const std::vector<PrintedGrid>& grids, const std::string& id) {
  std::vector<std::string> texts;
  host.RunOffScreen(filled.page, [&](Form& page) {
    ChooseStaffMember(page, id);
    page.Form_Activate();
    for (const PrintedGrid& printed : grids) {
      const auto& grid = page.Find<GridControl>(printed.name, printed.index);
      for (const FilledCell& cell : filled.cells) {
        if (cell.grid == printed.name && cell.index == printed.index) ReadCell(grid, cell, texts);
      }
      for (int cell = 0; cell < grid.MaxRows() * grid.MaxColumns(); ++cell) {
        const Cell at{cell % grid.MaxColumns() + 1, cell / grid.MaxColumns() + 1};
        if (grid.IsTotal(at.column, at.row)) texts.push_back(grid.GetText(at.column, at.row));
      }
    }
  });
  return texts;
}

}  // namespace survey::testing
