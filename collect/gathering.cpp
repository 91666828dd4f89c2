#include "collect/gathering.h"

#include <stdexcept>

#include "base/text.h"
#include "collect/csv.h"

namespace survey {
namespace {

constexpr char kDatabase[] = "survey.sqlite";
constexpr char kLoadScript[] = "postgresql.sql";

// Of every table whose rows come from a file.
const std::vector<StoreColumn>& FileColumn() {
  static const std::vector<StoreColumn> columns = {{"File", true}};
  return columns;
}

std::string LineOf(const Row& row) {
  std::string line;
  for (const Value& value : row) {
    if (&value != &row.front()) line += ',';
    AppendCsv(line, value);
  }
  return line.append(kCsvLineEnd);
}

std::string LinesOf(const std::string& file, const Records& records) {
  std::string name;
  AppendCsv(name, file);
  std::string lines;
  for (const Row& row : records) ((lines += name) += ',') += LineOf(row);
  return lines;
}

// For psql, which runs in the folder.
std::string LoadStatements(const std::string& table, const std::vector<StoreColumn>& columns) {
  std::string declared;
  for (const StoreColumn& column : columns) {
    declared += declared.empty() ? "" : ", ";
    declared += column.name + (column.is_text ? " text" : " numeric");
  }
  return "create table " + table + " (" + declared + ");\n\\copy " + table + " from '" + table +
         ".csv' with (format csv, header)\n";
}

[[noreturn]] void Refuse(const std::filesystem::path& path, const std::string& why) {
  throw std::runtime_error('"' + Utf8(path) + "\" " + why);
}

}  // namespace

GatheredFile PrepareToGather(ReturnedFile file) {
  GatheredFile gathered{std::move(file), {}};
  for (std::size_t i = 0; i < gathered.file.records.size(); ++i) {
    gathered.lines[StoreTables()[i].name] = LinesOf(gathered.file.name, gathered.file.records[i]);
  }
  return gathered;
}

Gathering::Gathering(const std::filesystem::path& folder) : folder_(folder), unfinished_(folder) {
  unfinished_ += ".unfinished";
  std::error_code error;
  if (exists(folder_)) Refuse(folder_, "is there already: name a folder that is not");
  if (exists(unfinished_)) {
    Refuse(unfinished_, "is left of a run that was stopped: remove it, and start again");
  }
  if (!create_directories(unfinished_, error)) Refuse(unfinished_, "cannot be made");
  database_ = std::make_unique<PlainDatabase>(Utf8(unfinished_ / kDatabase));
  for (const StoreTable& table : StoreTables()) AddTable(table, FileColumn());
  AddTable(SitesTable(), FileColumn());
  AddTable(ProblemsTable(), FileColumn());
  AddTable(CodesTable());
  for (const Row& row : CodeRows()) AddRow(CodesTable().name, row);
}

void Gathering::AddTable(const StoreTable& table, const std::vector<StoreColumn>& first) {
  database_->AddTable(table, first);
  files_[table.name].open(unfinished_ / (table.name + ".csv"), std::ios::binary);
  std::vector<StoreColumn> columns = first;
  columns.insert(columns.end(), table.columns.begin(), table.columns.end());
  Row heads;
  for (const StoreColumn& column : columns) heads.emplace_back(column.name);
  Write(table.name, LineOf(heads));
  load_script_ += LoadStatements(table.name, columns);
}

void Gathering::AddRow(const std::string& table, const Row& row) {
  Write(table, LineOf(row));
  database_->AddRow(table, row);
}

void Gathering::Write(const std::string& table, const std::string& lines) {
  if (files_.at(table) << lines) return;
  Refuse(unfinished_ / (table + ".csv"), "cannot be written; is the disk full?");
}

void Gathering::Add(const GatheredFile& gathered) {
  const ReturnedFile& file = gathered.file;
  const Row name = {Value(file.name)};
  for (std::size_t i = 0; i < file.records.size(); ++i) {
    const std::string& table = StoreTables()[i].name;
    Write(table, gathered.lines.at(table));
    for (const Row& row : file.records[i]) database_->AddRow(table, name, row);
  }
  for (const CheckedSite& site : file.sites) AddRow(SitesTable().name, SiteRow(file.name, site));
  AddProblems(file.name, file.problems);
}

void Gathering::AddProblems(const std::string& file, const std::vector<Problem>& problems) {
  for (const Problem& problem : problems) AddRow(ProblemsTable().name, ProblemRow(file, problem));
}

void Gathering::Finish() {
  database_->Finish();
  database_.reset();
  for (auto& [table, stream] : files_) {
    stream.close();
    if (!stream) Refuse(unfinished_ / (table + ".csv"), "cannot be written; is the disk full?");
  }
  if (!(std::ofstream(unfinished_ / kLoadScript) << load_script_ << std::flush)) {
    Refuse(unfinished_ / kLoadScript, "cannot be written; is the disk full?");
  }
  std::error_code error;
  rename(unfinished_, folder_, error);
  if (error) Refuse(folder_, "cannot be made: " + error.message());
}

}  // namespace survey
