#include "forms/layout.h"

#include "forms/control_kinds.h"

namespace survey {

Layout Place(Control& control, int stretch) {
  return {Layout::Kind::kControl, &control, {}, stretch};
}

Layout Place(GridControl& table) { return {Layout::Kind::kTable, &table, {}, 0}; }

Layout RowOf(std::vector<Layout> parts, int stretch) {
  return {Layout::Kind::kRow, nullptr, std::move(parts), stretch};
}

Layout ColumnOf(std::vector<Layout> parts, int stretch) {
  return {Layout::Kind::kColumn, nullptr, std::move(parts), stretch};
}

Layout FieldsOf(const std::vector<Field>& fields) {
  std::vector<Layout> lines;
  for (const Field& field : fields) {
    lines.push_back(RowOf({Place(field.label), Place(field.control, 1)}));
  }
  return {Layout::Kind::kFields, nullptr, std::move(lines), 0};
}

Layout FrameOf(Frame& frame, Layout part, int stretch) {
  return {Layout::Kind::kFrame, &frame, {std::move(part)}, stretch};
}

Layout FootOf(Layout part) { return {Layout::Kind::kFoot, nullptr, {std::move(part)}, 0}; }

Layout Gap() { return {Layout::Kind::kGap, nullptr, {}, 0}; }

Layout Space() { return {Layout::Kind::kSpace, nullptr, {}, 1}; }

}  // namespace survey
