#include "desktop/grid_fit.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "desktop/grid_names.h"
#include "desktop/text_face.h"

namespace survey {
namespace {

constexpr double kGivesWay = 0.9;  // of a column's width in the design

// A text of the design, and the cells over which it is set.
struct FixedText {
  QString text;
  CellRange cells;
  const TextFace* face;
};

double Sum(const std::vector<double>& values, int first, int last) {
  return std::accumulate(values.begin() + first, values.begin() + last + 1, 0.0);
}

// The work on one table: widths by column and heights by row, both from 0.
class Fit {
 public:
  Fit(const Grid& grid, const GridSheet& design, const QFont& font)
      : grid_(grid), units_per_twip_(design.units_per_twip()) {
    for (int column = 0; column <= design.columns(); ++column) {
      widths_.push_back(design.X(column + 1) - design.X(column));
    }
    for (int row = 0; row <= design.rows(); ++row) {
      heights_.push_back(design.Y(row + 1) - design.Y(row));
    }
    ListTexts(font);
  }

  GridSheet InRoom(int room) {
    const std::vector<double> least = LeastWidths();
    std::vector<double> wished(widths_.size());
    std::vector<double> tight(widths_.size());
    for (std::size_t i = 0; i < widths_.size(); ++i) {
      wished[i] = std::max(widths_[i], least[i]);
      tight[i] = std::max(widths_[i] * kGivesWay, least[i]);
    }
    const int last = grid_.MaxColumns();
    const double wish = Sum(wished, 0, last);
    const double need = Sum(tight, 0, last);
    const double design = Sum(widths_, 0, last);
    const bool grows = room >= wish;
    const bool gives = !grows && room >= need;
    for (std::size_t i = 0; i < widths_.size(); ++i) {
      const double grown = wished[i] + (room - wish) * widths_[i] / std::max(1.0, design);
      const double given =
          tight[i] + (wished[i] - tight[i]) * (room - need) / std::max(1.0, wish - need);
      widths_[i] = grows ? grown : gives ? given : wished[i];
    }
    RaiseRows();
    return {grid_, units_per_twip_, widths_, heights_};
  }

 private:
  void ListTexts(const QFont& font) {
    QFont bold = font;
    bold.setBold(true);
    const TextFace* const faces[] = {&TextFace::Of(font, font.pixelSize()),
                                     &TextFace::Of(bold, font.pixelSize())};
    const auto& heads = grid_.design().heads;
    for (int column = 1; column <= std::ssize(heads); ++column) {
      texts_.push_back({HeadText(grid_, column), CellRange(column, 0), faces[1]});
    }
    for (const CellText& fixed : grid_.design().texts) {
      if (!grid_.Has(fixed.column, fixed.row)) continue;
      const bool upright = std::ranges::any_of(grid_.design().upright, [&](const CellRange& cells) {
        return cells.Contains({fixed.column, fixed.row});
      });
      if (upright || grid_.IsRowHidden(fixed.row)) continue;
      const bool is_bold = fixed.row <= grid_.design().head_rows ||
                           grid_.IsBold(fixed.column, fixed.row) ||
                           grid_.IsTotal(fixed.column, fixed.row);
      texts_.push_back({QString::fromStdString(fixed.text), grid_.SpanOf(fixed.column, fixed.row),
                        faces[is_bold ? 1 : 0]});
    }
  }

  double SidePadding(const FixedText& fixed) const {
    const bool head = fixed.cells.row <= grid_.design().head_rows;
    return 2 * (head ? kCenteredPadding : kSidePadding) * units_per_twip_ + 1;
  }

  // So wide that no text has to be broken within a word. What stands over several columns is
  // shared among them.
  std::vector<double> LeastWidths() const {
    std::vector<double> least(widths_.size(), 0);
    for (const FixedText& fixed : texts_) {
      const int last = std::min(fixed.cells.last_column, grid_.MaxColumns());
      const double design = Sum(widths_, fixed.cells.column, last);
      if (design == 0) continue;
      const double needed = fixed.face->WidestPart(fixed.text) + SidePadding(fixed);
      for (int column = fixed.cells.column; column <= last; ++column) {
        least[column] = std::max(least[column], std::ceil(needed * widths_[column] / design));
      }
    }
    return least;
  }

  // So high that every text stands whole; what stands over several rows raises the last of them.
  void RaiseRows() {
    for (const bool over_several : {false, true}) {
      for (const FixedText& fixed : texts_) {
        int last = std::min(fixed.cells.last_row, grid_.MaxRows());
        while (last > fixed.cells.row && grid_.IsRowHidden(last)) --last;
        if ((last > fixed.cells.row) != over_several) continue;
        const double missing = HeightOf(fixed) - Sum(heights_, fixed.cells.row, last);
        if (missing > 0) heights_[last] += missing;
      }
    }
  }

  double HeightOf(const FixedText& fixed) const {
    const int last = std::min(fixed.cells.last_column, grid_.MaxColumns());
    const double width = std::floor(Sum(widths_, fixed.cells.column, last) - SidePadding(fixed));
    const bool one_line = !fixed.text.contains(u'\n') && fixed.face->WidthOf(fixed.text) <= width;
    const int text = one_line ? fixed.face->line_height()
                              : fixed.face->Wrapped(fixed.text, static_cast<int>(width)).height();
    return text + 2 * kTopPadding * units_per_twip_ + 1;
  }

  const Grid& grid_;
  double units_per_twip_;
  std::vector<double> widths_;
  std::vector<double> heights_;
  std::vector<FixedText> texts_;
};

}  // namespace

int TextSizeOf(double points, double units_per_twip) {
  return std::max(1, static_cast<int>(std::lround(points * 20 * units_per_twip)));
}

GridSheet FitToRoom(const Grid& grid, double units_per_twip, const QFont& font, int room) {
  return Fit(grid, GridSheet(grid, units_per_twip), font).InRoom(room);
}

}  // namespace survey
