#include "records/record_cells.h"

#include <algorithm>
#include <stdexcept>

#include "base/run_time_error.h"
#include "base/text.h"
#include "store/dialect.h"

namespace survey {
namespace {

Cell Below(Cell cell) { return {cell.column, cell.row + 1}; }

const std::string& TextOf(const Grid& grid, Cell cell) {
  return grid.GetText(cell.column, cell.row);
}

void Show(const Value& value, const Answer& answer, Grid& grid) {
  const Cell first = answer.shown;
  if (answer.as != CellAs::kNumberAndName) {
    grid.SetText(first.column, first.row, value.Text());
    return;
  }
  if (value.IsNull()) return;
  const std::string text = value.Text();
  const auto blank = text.find(' ');
  const bool has_blank = blank != std::string::npos;
  const Cell name = Below(first);
  grid.SetText(name.column, name.row, has_blank ? text.substr(blank + 1) : text);
  if (!has_blank) throw InvalidProcedureCall();
  grid.SetText(first.column, first.row, text.substr(0, blank));
}

std::string ValueOf(const Answer& answer, const Grid& grid) {
  const std::string& text = TextOf(grid, answer.cell);
  switch (answer.as) {
    case CellAs::kText:
      return "'" + SqlEscape(text) + "'";
    case CellAs::kQuoted:
      return "'" + text + "'";
    case CellAs::kBare:
      return text;
    case CellAs::kNumber:
      return NumberText(LeadingNumber(text));
    case CellAs::kDate:
      return "#" + text + "#";
    case CellAs::kNumberAndName:
      return "'" + text + " " + SqlEscape(TextOf(grid, Below(answer.cell))) + "'";
  }
  throw std::logic_error("an answer of no kind");
}

// The column that a piece of an UPDATE names: the only word in it.
std::string_view WordIn(std::string_view piece) {
  constexpr std::string_view kAround = " ,=";
  piece.remove_prefix(std::min(piece.find_first_not_of(kAround), piece.size()));
  return piece.substr(0, piece.find_first_of(kAround));
}

}  // namespace

void ShowFields(const Recordset& record, const std::vector<FieldCell>& fields, Grid& grid) {
  for (const auto& [field, cell] : fields) {
    grid.SetText(cell.column, cell.row, record.Field(field).Text());
  }
}

void ShowAnswers(const Recordset& record, std::span<const Answer> answers, Grid& grid) {
  for (const Answer& answer : answers) Show(record.Field(answer.column), answer, grid);
}

void ShowEachAnswer(const Recordset& record, std::span<const Answer> answers, Grid& grid) {
  for (const Answer& answer : answers) {
    const Value& value = record.Field(answer.column);
    try {
      Show(value, answer, grid);
    } catch (const RunTimeError&) {  // as much of it as could be shown is
    }
  }
}

std::string ColumnsOf(std::span<const Answer> answers) {
  std::string columns;
  for (const Answer& answer : answers) (columns += columns.empty() ? "" : ",") += answer.column;
  return columns;
}

std::string ValuesOf(std::span<const Answer> answers, const Grid& grid) {
  std::string values;
  for (const Answer& answer : answers) {
    if (&answer != &answers.front()) values += ',';
    values += ValueOf(answer, grid);
  }
  return values;
}

std::string Assignments(const std::vector<const char*>& pieces, std::span<const Answer> answers,
                        const Grid& grid) {
  std::string assignments;
  for (const char* piece : pieces) {
    const auto answer = std::ranges::find_if(answers, [piece](const Answer& candidate) {
      return EqualsIgnoringCase(candidate.column, WordIn(piece));
    });
    if (answer == answers.end()) throw std::out_of_range(std::string("no answer for") + piece);
    assignments += piece;
    assignments += ValueOf(*answer, grid);
  }
  return assignments;
}

}  // namespace survey
