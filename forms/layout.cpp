#include "forms/layout.h"

#include "forms/control_kinds.h"

namespace survey {

Layout Place(Control& control, int stretch) {
  return {Layout::Kind::kControl, &control, {}, stretch};
}

Layout RowOf(std::vector<Layout> parts, int stretch) {
  return {Layout::Kind::kRow, nullptr, std::move(parts), stretch};
}

Layout ColumnOf(std::vector<Layout> parts, int stretch) {
  return {Layout::Kind::kColumn, nullptr, std::move(parts), stretch};
}

Layout FieldsOf(std::vector<Layout> parts) {
  return {Layout::Kind::kFields, nullptr, std::move(parts), 0};
}

Layout FrameOf(Frame& frame, Layout part, int stretch) {
  return {Layout::Kind::kFrame, &frame, {std::move(part)}, stretch};
}

Layout Space() { return {Layout::Kind::kSpace, nullptr, {}, 1}; }

}  // namespace survey
