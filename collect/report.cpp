#include "collect/report.h"

#include <string_view>

#include "base/text.h"
#include "collect/table.h"

namespace survey {
namespace {

constexpr int kCentralOffice = 1;

std::string Shown(std::string_view text) {
  return KeepCharacters(text, [](char32_t c) {
    const bool control = c < U' ' || (c >= 0x7f && c < 0xa0);
    const bool changes_direction = (c >= 0x202a && c <= 0x202e) || (c >= 0x2066 && c <= 0x2069);
    return !control && !changes_direction && c != 0x2028 && c != 0x2029;
  });
}

std::string Counted(std::size_t count, const char* one, const char* several) {
  return std::to_string(count) + " " + (count == 1 ? one : several);
}

std::string TitleOf(const SiteOfFile& site) {
  std::string title = "  Campus " + NumberText(site.campus_emis_number) + " of college " +
                      NumberText(site.college_emis_number);
  if (!site.college_name.empty()) {
    title += ": " + site.campus_name + ", " + site.college_name;
    title += site.site_type == kCentralOffice ? " (central office)" : " (campus)";
  }
  return Shown(title) + "\n";
}

bool IsOf(const Problem& problem, const SiteOfFile& site) {
  return problem.college == site.college_emis_number && problem.campus == site.campus_emis_number;
}

std::string SiteText(const CheckedSite& checked, const std::vector<Problem>& problems) {
  const auto& [site, checks] = checked;
  std::string text = TitleOf(site);
  text += "    Holds answers: " + TablesThat(PageFill::kHoldsAnswers, checks) + "\n";
  text += "    Empty: " + TablesThat(PageFill::kEmpty, checks) + "\n";
  text += "    " +
          Counted(static_cast<std::size_t>(checks.staff), "staff member", "staff members") + ", " +
          std::to_string(checks.incomplete_staff) + " with an incomplete record\n";
  for (const Problem& problem : problems) {
    const bool said = problem.kind == kEmptyTable;
    if (IsOf(problem, site) && !said) text += "    ! " + Shown(problem.text) + "\n";
  }
  return text;
}

}  // namespace

void Counts::Add(const ReturnedFile& file) {
  ++files;
  if (!file.failure.empty()) ++not_read;
  sites += file.sites.size();
  for (const CheckedSite& site : file.sites) {
    incomplete_staff += static_cast<std::size_t>(site.checks.incomplete_staff);
    unbalanced += CountOf(Finding::Kind::kUnbalanced, site.checks);
    compulsory += CountOf(Finding::Kind::kCompulsory, site.checks);
  }
}

std::string LineOf(const std::string& file, const Problem& problem) {
  return Shown(file) + ": " + Shown(problem.text) + "\n";
}

std::string ReportOf(const ReturnedFile& file) {
  std::string text = Shown(file.name) + "\n";
  for (const Problem& problem : file.problems) {
    if (problem.college == 0) text += "  ! " + Shown(problem.text) + "\n";
  }
  for (const CheckedSite& site : file.sites) text += SiteText(site, file.problems);
  return text;
}

std::string SummaryOf(const Counts& counts) {
  return Counted(counts.files, "file", "files") + ", " + std::to_string(counts.not_read) +
         " of them not read; " + Counted(counts.sites, "site", "sites") + ", " +
         std::to_string(counts.repeated_sites) + " of them in more than one file; " +
         Counted(counts.unbalanced, "total does", "totals do") + " not balance; " +
         Counted(counts.compulsory, "compulsory answer is", "compulsory answers are") +
         " missing; " + Counted(counts.incomplete_staff, "staff record is", "staff records are") +
         " incomplete\n";
}

}  // namespace survey
