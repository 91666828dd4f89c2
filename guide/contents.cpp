#include "guide/contents.h"

#include <algorithm>

namespace survey {
namespace {

constexpr std::size_t kMostFindings = 3;  // told of one page; the checks tell all

// The parts go by the first number of their tables.
struct PartTitle {
  char number;
  const char* title;
};
constexpr PartTitle kPartTitles[] = {
    {'1', "1  The site"},
    {'2', "2  Staff and students in total"},
    {'3', "3  Students by programme"},
    {'4', "4  Each staff member"},
};
constexpr char kStaffPart = '4';

EntryState StateAfter(Finding::Kind kind) {
  switch (kind) {
    case Finding::Kind::kUnbalanced:
      return EntryState::kUnbalanced;
    case Finding::Kind::kCompulsory:
    case Finding::Kind::kIncompleteStaff:
      return EntryState::kIncomplete;
    case Finding::Kind::kEmptyTable:
      break;
  }
  return EntryState::kUnknown;
}

std::string Count(int number, const std::string& what) {
  return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

void Tell(ContentsEntry& entry, EntryState state, const std::string& words) {
  entry.state = std::max(entry.state, state);
  entry.words += (entry.words.empty() ? "" : "; ") + words;
}

void TellStored(ContentsEntry& entry, const SiteChecks& checks, const PageState& page) {
  const bool empty = page.fill == PageFill::kEmpty;
  Tell(entry, empty ? EntryState::kEmpty : EntryState::kHoldsAnswers,
       empty ? "empty" : "holds answers");
  std::size_t told = 0;
  for (const std::size_t at : page.findings) {
    const Finding& finding = checks.findings[at];
    const EntryState state = StateAfter(finding.kind);
    if (state == EntryState::kUnknown) continue;
    if (++told <= kMostFindings) {
      Tell(entry, state, finding.text);
    } else {
      entry.state = std::max(entry.state, state);
    }
  }
  if (told > kMostFindings)
    entry.words += "; and " + std::to_string(told - kMostFindings) + " more";
}

ContentsEntry StaffList(const SiteChecks* checks, bool in_front) {
  ContentsEntry entry;
  entry.about = "Staff list";
  entry.in_front = in_front;
  if (checks == nullptr) return entry;
  entry.about += ": " + Count(checks->staff, "member");
  if (checks->staff == 0) {
    Tell(entry, EntryState::kEmpty, "nobody");
  } else {
    Tell(entry, EntryState::kHoldsAnswers, Count(checks->staff, "member"));
  }
  if (checks->incomplete_staff > 0) {
    const std::string words = Count(checks->incomplete_staff, "incomplete record");
    entry.about += ", " + words;
    Tell(entry, EntryState::kIncomplete, words);
  }
  return entry;
}

}  // namespace

std::string_view SignOf(EntryState state) {
  switch (state) {
    case EntryState::kUnknown:
      break;
    case EntryState::kEmpty:
      return "\u25CB";
    case EntryState::kHoldsAnswers:
      return "\u25CF";
    case EntryState::kIncomplete:
      return "!";
    case EntryState::kUnbalanced:
      return "\u2260";
    case EntryState::kUnsaved:
      return "\u270E";
  }
  return {};
}

std::vector<ContentsPart> ContentsOf(const std::vector<PageRow>& pages, const SiteChecks* checks,
                                     const PageRow* front, bool unsaved, bool at_staff_list) {
  std::vector<ContentsPart> contents;
  for (const auto& [number, title] : kPartTitles) {
    ContentsPart& part = contents.emplace_back(ContentsPart{title, {}});
    if (number == kStaffPart) part.entries.push_back(StaffList(checks, at_staff_list));
    for (const PageRow& row : pages) {
      if (row.tables.front() != number) continue;
      ContentsEntry& entry = part.entries.emplace_back(ContentsEntry{
          &row, std::string(row.tables), std::string(row.about), {}, {}, &row == front});
      if (unsaved && entry.in_front) Tell(entry, EntryState::kUnsaved, "not saved");
      if (checks == nullptr) continue;
      const auto stored = std::ranges::find(checks->pages, &row, &PageState::page);
      if (stored != checks->pages.end()) TellStored(entry, *checks, *stored);
    }
  }
  return contents;
}

}  // namespace survey
