#include "records/codes.h"

#include <algorithm>
#include <cctype>
#include <string_view>

#include "base/text.h"

namespace survey {
namespace {

constexpr std::string_view kDigits = "0123456789";

void AddOnce(std::vector<Code>& codes, Code code) {
  const bool known = std::ranges::any_of(codes, [&](const Code& other) {
    return other.column == code.column && other.code == code.code;
  });
  if (!known) codes.push_back(std::move(code));
}

std::string TableOf(const CellTable& table) {
  return table.insert.substr(table.insert.rfind(' ') + 1);
}

// `label_of` finds the cell where the meaning of an index is written.
template <typename LabelCell>
void AddAxis(const CellTable& table, const Axis& axis, int first, int last,
             const GridDesign& design, LabelCell label_cell, std::vector<Code>& codes) {
  for (std::size_t field = 0; field < axis.fields.size(); ++field) {
    const auto add = [&](int index, int code) {
      const std::string meaning = LabelOf(design, label_cell(axis.labels.at(field), index));
      if (!meaning.empty()) AddOnce(codes, {TableOf(table), axis.fields[field], code, meaning});
    };
    for (const CodePosition& position : axis.positions) add(position.index, position.codes[field]);
    if (!axis.positions.empty()) continue;
    for (int index = first; index <= last; ++index) add(index, index - axis.offset);
  }
}

// "(1=Central Office; 2 = Campus)"
std::vector<std::pair<int, std::string>> CodesIn(std::string_view question) {
  std::vector<std::pair<int, std::string>> codes;
  for (auto sign = question.find('='); sign != std::string_view::npos;
       sign = question.find('=', sign + 1)) {
    const auto last = question.find_last_not_of(' ', sign - 1);
    if (sign == 0 || last == std::string_view::npos || kDigits.find(question[last]) == kDigits.npos)
      continue;
    const auto before = question.find_last_not_of(kDigits, last);
    const auto start = before == std::string_view::npos ? 0 : before + 1;
    const auto end = std::min(question.find_first_of(";,)]\n", sign), question.size());
    codes.emplace_back(static_cast<int>(LeadingNumber(question.substr(start))),
                       Trim(question.substr(sign + 1, end - sign - 1)));
  }
  return codes;
}

std::vector<std::pair<int, std::string>> CodesOfQuestion(const Grid& grid, Cell cell) {
  constexpr int kLines = 2;
  for (int row = cell.row; row < cell.row + kLines; ++row) {
    for (int column = cell.column - 1; column > 0; --column) {
      const auto codes = CodesIn(grid.GetText(column, row));
      if (!codes.empty()) return codes;
      if (row == cell.row && !grid.GetText(column, row).empty()) break;  // another question before
    }
  }
  return {};
}

}  // namespace

std::string LabelOf(const GridDesign& design, Cell cell) {
  for (const CellRange& span : design.spans) {
    if (span.Contains(cell)) cell = {span.column, span.row};
  }
  const auto text = std::ranges::find_if(design.texts, [&](const CellText& candidate) {
    return candidate.column == cell.column && candidate.row == cell.row;
  });
  if (text == design.texts.end()) return {};
  std::string label;
  for (const char c : text->text) {
    const bool blank = std::isspace(static_cast<unsigned char>(c)) != 0;
    if (!blank || (!label.empty() && label.back() != ' ')) label += blank ? ' ' : c;
  }
  label.erase(0, std::min(label.find_first_not_of("* "), label.size()));
  const auto counted = label.find_first_not_of(kDigits);
  if (counted != std::string::npos && counted > 0 && label[counted] == '.') {
    label.erase(0, counted + 1);
  }
  return Trim(label);
}

std::vector<Code> CodesOf(const CellTable& table, const GridDesign& design,
                          std::optional<int> code) {
  std::vector<Code> codes;
  const CellRange& body = table.body;
  AddAxis(
      table, table.rows, body.row, body.last_row, design,
      [](int column, int row) {
        return Cell{column, row};
      },
      codes);
  AddAxis(
      table, table.columns, body.column, body.last_column, design,
      [](int row, int column) {
        return Cell{column, row};
      },
      codes);
  for (const auto& [name, value] : table.values) {
    if (code && value.kind == InsertValue::Kind::kCode) {
      AddOnce(codes, {TableOf(table), name, *code, ""});
    }
  }
  return codes;
}

std::vector<Code> CodesOf(const char* table, std::span<const Answer> answers,
                          const GridDesign& design) {
  const Grid grid(design);
  std::vector<Code> codes;
  for (const Answer& answer : answers) {
    if (answer.as != CellAs::kNumber && answer.as != CellAs::kBare) continue;
    for (auto& [code, meaning] : CodesOfQuestion(grid, answer.cell)) {
      AddOnce(codes, {table, answer.column, code, std::move(meaning)});
    }
  }
  return codes;
}

}  // namespace survey
