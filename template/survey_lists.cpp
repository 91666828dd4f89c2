#include "template/survey_lists.h"

#include <csv.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string_view>

#include "base/text.h"

namespace survey {
namespace {

constexpr int kLargestNumber = 2147483647;  // the pages hold numbers of sites in 32 bits
constexpr int kLastProvince = 9;
constexpr int kCentralOffice = 1;
constexpr int kCampus = 2;
constexpr int kLastNqfField = 12;
constexpr std::array<std::string_view, 4> kProgrammes = {"Report 191", "NC(V)", "NSC",
                                                         "Report 550"};

using Columns = std::vector<std::string>;

std::string Joined(const Columns& names) {
  std::string joined;
  for (const std::string& name : names) joined += (joined.empty() ? "" : ",") + name;
  return joined;
}

// One record of a list, at the physical line on which it begins.
class Record {
 public:
  Record(const std::string& file, int line) : file_(&file), line_(line) {}

  void Add(std::string field) { fields_.push_back(std::move(field)); }
  const Columns& fields() const { return fields_; }

  [[noreturn]] void Fail(const std::string& reason) const {
    throw BadList(*file_ + ":" + std::to_string(line_) + ": " + reason);
  }

  // What the columns of a record are called is needed for the messages alone.
  void Name(const Columns& names) {
    names_ = &names;
    if (fields_.size() != names.size()) {
      Fail(std::to_string(fields_.size()) + " fields in place of " + std::to_string(names.size()));
    }
  }

  const std::string& Text(std::size_t column) const {
    const std::string& text = fields_[column];
    if (text.empty()) Fail((*names_)[column] + " is missing");
    return text;
  }

  int Number(std::size_t column, int largest = kLargestNumber) const {
    const std::string& text = Text(column);
    int number = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end || number < 1 || number > largest) {
      Fail((*names_)[column] + " is no number from 1 to " + std::to_string(largest) + ": " + text);
    }
    return number;
  }

 private:
  const std::string* file_;
  int line_;
  const Columns* names_ = nullptr;
  Columns fields_;
};

// Cuts a file into records. The parser is fed one physical line after the other, so that each
// fault can be told with its line, also behind a quoted line break.
class CsvReader {
 public:
  explicit CsvReader(const std::string& file) : file_(file) {
    csv_init(&parser_, CSV_STRICT | CSV_STRICT_FINI);
    between_records_ = parser_.pstate;
  }
  ~CsvReader() { csv_free(&parser_); }
  CsvReader(const CsvReader&) = delete;
  CsvReader& operator=(const CsvReader&) = delete;

  std::vector<Record> Read(std::string_view content) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";  // spreadsheets put it in front
    if (content.starts_with(kByteOrderMark)) content.remove_prefix(kByteOrderMark.size());
    while (!content.empty()) {
      const auto line = content.substr(0, std::min(content.find('\n'), content.size() - 1) + 1);
      content.remove_prefix(line.size());
      ReadLine(line);
    }
    if (csv_fini(&parser_, OnField, OnRecord, this) != 0) record_.Fail("a quote is not closed");
    return std::move(records_);
  }

 private:
  static void OnField(void* bytes, std::size_t size, void* reader) {
    static_cast<CsvReader*>(reader)->record_.Add({static_cast<const char*>(bytes), size});
  }

  static void OnRecord(int, void* self) {
    auto& reader = *static_cast<CsvReader*>(self);
    reader.records_.push_back(std::move(reader.record_));
    reader.record_ = Record(reader.file_, reader.line_);
  }

  void ReadLine(std::string_view line) {
    ++line_;
    if (!IsValidUtf8(line)) Fail("the text is not UTF-8");
    if (csv_parse(&parser_, line.data(), line.size(), OnField, OnRecord, this) != line.size()) {
      Fail("a quote stands in the middle of a field");
    }
    if (parser_.pstate == between_records_) record_ = Record(file_, line_ + 1);
  }

  [[noreturn]] void Fail(const std::string& reason) const { Record(file_, line_).Fail(reason); }

  const std::string& file_;
  csv_parser parser_;
  int between_records_ = 0;
  int line_ = 0;
  Record record_{file_, 1};
  std::vector<Record> records_;
};

std::vector<Record> ReadRecords(const std::filesystem::path& folder, const std::string& file,
                                const Columns& columns) {
  std::error_code error;
  std::ifstream stream;
  // Only then is it opened: a pipe in its place would be waited for without end.
  if (is_regular_file(folder / file, error)) stream.open(folder / file, std::ios::binary);
  if (!stream.is_open()) throw BadList(file + ": the file cannot be read");
  const std::string content{std::istreambuf_iterator<char>(stream), {}};
  std::vector<Record> records = CsvReader(file).Read(content);
  if (records.empty() || records.front().fields() != columns) {
    Record(file, 1).Fail("the first line must read " + Joined(columns));
  }
  if (records.size() == 1) Record(file, 1).Fail("the list is empty");
  records.erase(records.begin());
  for (Record& record : records) record.Name(columns);
  return records;
}

// Refuses a number or code that an earlier record of the list has.
class Uniqueness {
 public:
  void Require(const Record& record, const std::string& code) {
    if (!seen_.insert(code).second) record.Fail(code + " stands in the list twice");
  }
  void Require(const Record& record, int code) { Require(record, std::to_string(code)); }

 private:
  std::set<std::string> seen_;
};

std::vector<Province> ReadProvinces(const std::filesystem::path& folder) {
  const std::string file = "provinces.csv";
  const Columns columns = {"ProvinceCD", "Province"};
  std::vector<Province> provinces;
  Uniqueness codes;
  for (const Record& record : ReadRecords(folder, file, columns)) {
    provinces.push_back({record.Number(0, kLastProvince), record.Text(1)});
    codes.Require(record, provinces.back().code);
  }
  return provinces;
}

// What all records of a college must agree on.
struct College {
  Record first;
  std::string name;
  int province;
  int central_offices = 0;
};

class CollegeRules {
 public:
  explicit CollegeRules(const std::vector<Province>& provinces) {
    for (const Province& province : provinces) provinces_.insert(province.code);
  }

  void Check(const Record& record, const Site& site) {
    campuses_.Require(record, record.Number(2));
    if (!provinces_.contains(site.province)) {
      record.Fail("unknown province " + std::to_string(site.province));
    }
    const auto at =
        colleges_.try_emplace(record.Number(0), College{record, site.college_name, site.province});
    College& college = at.first->second;
    if (college.name != site.college_name) {
      record.Fail("the college is called " + college.name + " in an earlier line");
    }
    if (college.province != site.province) {
      record.Fail("the college lies in province " + std::to_string(college.province) +
                  " in an earlier line");
    }
    if (site.site_type == kCentralOffice && ++college.central_offices > 1) {
      record.Fail("the college has a second central office");
    }
  }

  void CheckCentralOffices() const {
    for (const auto& [number, college] : colleges_) {
      if (college.central_offices == 0) college.first.Fail("the college has no central office");
    }
  }

 private:
  std::set<int> provinces_;
  Uniqueness campuses_;
  std::map<int, College> colleges_;
};

std::vector<Site> ReadSites(const std::filesystem::path& folder,
                            const std::vector<Province>& provinces) {
  const std::string file = "colleges.csv";
  const Columns columns = {"CollegeEmisNumber", "CollegeName", "CampusEmisNumber",
                           "CampusName",        "SiteType",    "ProvinceCD"};
  std::vector<Site> sites;
  CollegeRules rules(provinces);
  for (const Record& record : ReadRecords(folder, file, columns)) {
    sites.push_back({static_cast<double>(record.Number(0)), record.Text(1),
                     static_cast<double>(record.Number(2)), record.Text(3),
                     record.Number(4, kCampus), record.Number(5)});
    rules.Check(record, sites.back());
  }
  rules.CheckCentralOffices();
  return sites;
}

std::vector<Subject> ReadSubjects(const std::filesystem::path& folder) {
  const std::string file = "subjects.csv";
  const Columns columns = {"SubjectCode", "Description", "Programme"};
  std::vector<Subject> subjects;
  Uniqueness codes;
  for (const Record& record : ReadRecords(folder, file, columns)) {
    const Subject& subject =
        subjects.emplace_back(Subject{record.Text(0), record.Text(1), record.Text(2)});
    if (subject.code.find_first_not_of("0123456789") != std::string::npos) {
      record.Fail("SubjectCode holds more than digits: " + subject.code);
    }
    if (std::ranges::find(kProgrammes, subject.programme) == kProgrammes.end()) {
      record.Fail("unknown programme " + subject.programme);
    }
    codes.Require(record, subject.code);
  }
  return subjects;
}

std::vector<OccupationalQualification> ReadQualifications(const std::filesystem::path& folder) {
  const std::string file = "qualifications.csv";
  const Columns columns = {"NQFID", "QualificationTitle", "NQFField", "NQFLevel"};
  std::vector<OccupationalQualification> qualifications;
  Uniqueness numbers;
  for (const Record& record : ReadRecords(folder, file, columns)) {
    qualifications.push_back({static_cast<double>(record.Number(0)), record.Text(1),
                              record.Number(2, kLastNqfField), record.Text(3)});
    numbers.Require(record, record.Number(0));
  }
  return qualifications;
}

}  // namespace

SurveyLists ReadSurveyLists(const std::filesystem::path& folder) {
  SurveyLists lists;
  lists.provinces = ReadProvinces(folder);
  lists.sites = ReadSites(folder, lists.provinces);
  lists.subjects = ReadSubjects(folder);
  lists.qualifications = ReadQualifications(folder);
  return lists;
}

}  // namespace survey
