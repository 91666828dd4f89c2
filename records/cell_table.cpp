#include "records/cell_table.h"

#include <algorithm>
#include <stdexcept>

#include "base/text.h"

namespace survey {
namespace {

std::string Tail(const std::string& tail, std::optional<int> code) {
  return code ? tail + NumberText(*code) : tail;
}

bool Matches(const CodePosition& position, const std::vector<const Value*>& codes) {
  return std::equal(codes.begin(), codes.end(), position.codes.begin(), position.codes.end(),
                    [](const Value* value, int code) { return value->Is(code); });
}

bool IsFilled(const CellTable& table, const std::string& text) {
  return table.filled == Filled::kNotEmpty ? !text.empty() : LeadingNumber(text) != 0;
}

double NumberOf(const InsertValue& value, const Survey& survey, const CellTable& table, Cell cell,
                const std::string& text, std::optional<int> code) {
  switch (value.kind) {
    case InsertValue::Kind::kCollege:
      return survey.CollegeEmisNumber;
    case InsertValue::Kind::kCampus:
      return survey.CampusEmisNumber;
    case InsertValue::Kind::kYear:
      return survey.SurveyYear;
    case InsertValue::Kind::kQuantity:
      return LeadingNumber(text);
    case InsertValue::Kind::kRowCode:
      return table.rows.CodeAt(cell.row, value.number);
    case InsertValue::Kind::kColumnCode:
      return table.columns.CodeAt(cell.column, value.number);
    case InsertValue::Kind::kCode:
      return code.value();
    case InsertValue::Kind::kConstant:
      return value.number;
  }
  throw std::logic_error("an INSERT value of no kind");
}

void InsertCell(Survey& survey, const CellTable& table, const Grid& grid, Cell cell,
                std::optional<int> code) {
  const std::string& text = grid.GetText(cell.column, cell.row);
  if (!IsFilled(table, text)) return;
  std::string columns;
  std::string values;
  for (const auto& [name, value] : table.values) {
    const char separator = columns.empty() ? '(' : ',';
    (columns += separator) += name;
    (values += separator) += NumberText(NumberOf(value, survey, table, cell, text, code));
  }
  survey.Execute(table.insert + columns + ")VALUES" + values + ")");
}

}  // namespace

int Axis::CodeAt(int index, int which) const {
  if (positions.empty()) return index - offset;
  const auto position = std::find_if(positions.begin(), positions.end(),
                                     [&](const CodePosition& p) { return p.index == index; });
  if (position == positions.end()) throw std::out_of_range("a row or column without a code");
  return position->codes.at(which);
}

void Axis::Place(const Recordset& record, int& index) const {
  if (fields.empty()) {
    index = offset;
    return;
  }
  if (positions.empty()) {
    index = ToWholeNumber(record.Field(fields.front()).Number() + offset);
    return;
  }
  std::vector<const Value*> codes;
  for (const char* field : fields) codes.push_back(&record.Field(field));
  for (const CodePosition& position : positions) {
    if (Matches(position, codes)) index = position.index;
  }
}

void LoadCells(const SiteRecords& site, const CellTable& table, Grid& grid,
               std::optional<int> code) {
  Recordset records;
  records.Open(table.select + OfThisSiteAndYear(site) + Tail(table.select_tail, code),
               site.connection);
  Cell cell;
  for (; !records.Eof(); records.MoveNext()) {
    table.rows.Place(records, cell.row);
    table.columns.Place(records, cell.column);
    grid.SetText(cell.column, cell.row, records.Field("quantity").Text());
  }
}

void SaveCells(Survey& survey, const CellTable& table, const Grid& grid, std::optional<int> code) {
  RemoveRecords(survey, table, code);
  InsertRecords(survey, table, grid, code);
}

void RemoveRecords(Survey& survey, const CellTable& table, std::optional<int> code) {
  survey.Execute(table.remove + OfThisSiteAndYear(survey) + Tail(table.remove_tail, code));
}

void InsertRecords(Survey& survey, const CellTable& table, const Grid& grid,
                   std::optional<int> code) {
  const CellRange& body = table.body;
  if (table.walk == Walk::kRowByRow) {
    for (int row = body.row; row <= body.last_row; ++row) {
      for (int column = body.column; column <= body.last_column; ++column) {
        InsertCell(survey, table, grid, {column, row}, code);
      }
    }
  } else {
    for (int column = body.column; column <= body.last_column; ++column) {
      for (int row = body.row; row <= body.last_row; ++row) {
        InsertCell(survey, table, grid, {column, row}, code);
      }
    }
  }
}

}  // namespace survey
