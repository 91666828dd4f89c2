#include "collect/collect.h"

#include <algorithm>
#include <map>
#include <set>
#include <thread>
#include <utility>

#include "base/text.h"
#include "collect/gathering.h"
#include "collect/in_order.h"

namespace survey {
namespace {

// Which files hold each site.
class FilesOfSites {
 public:
  void Add(const ReturnedFile& file) {
    for (const CheckedSite& checked : file.sites) {
      files_[{checked.site.college_emis_number, checked.site.campus_emis_number}].push_back(
          file.name);
    }
  }

  // tell(file, problem) for each file of a site that several hold. Answers how many sites these
  // are.
  template <typename Tell>
  std::size_t ForEachRepeated(Tell tell) const {
    std::size_t sites = 0;
    for (const auto& [site, names] : files_) {
      if (names.size() < 2) continue;
      ++sites;
      for (const std::string& name : names) tell(name, ProblemOf(site, name, names));
    }
    return sites;
  }

 private:
  using Site = std::pair<double, double>;       // college, campus
  static constexpr std::size_t kMostNamed = 3;  // files in one line

  static Problem ProblemOf(const Site& site, const std::string& name,
                           const std::vector<std::string>& names) {
    std::string others;
    std::size_t named = 0;
    for (const std::string& other : names) {
      if (other == name || named == kMostNamed) continue;
      (others += others.empty() ? "" : ", ") += other;
      ++named;
    }
    const std::size_t more = names.size() - 1 - named;
    if (more > 0) others += " and " + std::to_string(more) + " more";
    return {.kind = "repeated site",
            .college = site.first,
            .campus = site.second,
            .text = "Campus " + NumberText(site.second) + " of college " + NumberText(site.first) +
                    " is in " + others + ", too"};
  }

  std::map<Site, std::vector<std::string>> files_;
};

// Each file once, by the first path that leads to it.
std::vector<std::string> EachOnce(const std::vector<std::string>& paths) {
  std::set<std::filesystem::path> seen;
  std::vector<std::string> once;
  for (const std::string& path : paths) {
    std::error_code error;
    const std::filesystem::path real = std::filesystem::weakly_canonical(path, error);
    if (seen.insert(error ? std::filesystem::path(path) : real).second) once.push_back(path);
  }
  return once;
}

// Reads each file, hands `prepare` what was read where it was read, and `take` what that made of it
// in the order of the files.
template <typename Prepare, typename Take>
void ForEachFile(const Run& run, Reading reading, Prepare prepare, Take take) {
  const std::vector<std::string> paths = EachOnce(run.paths);
  const unsigned processors = std::max(std::thread::hardware_concurrency(), 1U);
  std::size_t done = 0;
  const auto make_worker = [&] {
    return [&, keys = CipherKeys()](std::size_t job) mutable {
      return prepare(ReadReturnedFile(paths[job], reading, keys));
    };
  };
  DoInOrder(paths.size(), run.workers == 0 ? processors : run.workers, make_worker,
            [&](auto prepared) {
              take(std::move(prepared));
              if (run.progress) run.progress(++done, paths.size());
            });
}

}  // namespace

Counts CheckFiles(const Run& run, std::ostream& report) {
  Counts counts;
  FilesOfSites sites;
  ForEachFile(
      run, Reading::kChecks, [](ReturnedFile file) { return file; },
      [&](const ReturnedFile& file) {
        counts.Add(file);
        sites.Add(file);
        report << ReportOf(file);
      });
  counts.repeated_sites = sites.ForEachRepeated(
      [&](const std::string& file, const Problem& problem) { report << LineOf(file, problem); });
  return counts;
}

Counts GatherFiles(const Run& run, const std::filesystem::path& folder, std::ostream& report) {
  Counts counts;
  FilesOfSites sites;
  Gathering gathering(folder);
  ForEachFile(run, Reading::kChecksAndRecords, PrepareToGather, [&](const GatheredFile& gathered) {
    const ReturnedFile& file = gathered.file;
    counts.Add(file);
    sites.Add(file);
    gathering.Add(gathered);
    if (!file.failure.empty()) report << LineOf(file.name, file.problems.front());
  });
  counts.repeated_sites =
      sites.ForEachRepeated([&](const std::string& file, const Problem& problem) {
        report << LineOf(file, problem);
        gathering.AddProblems(file, {problem});
      });
  gathering.Finish();
  return counts;
}

}  // namespace survey
