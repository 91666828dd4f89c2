#ifndef DESKTOP_TEXT_FACE_H_
#define DESKTOP_TEXT_FACE_H_

#include <QFont>
#include <QFontMetrics>
#include <QHash>
#include <QSize>
#include <QString>

namespace survey {

// A font in one size, and how much room its texts take. It remembers what it has measured: the
// same heads and labels come back with every page, and setting a text is what costs most of it.
// All in the units of the font's pixel size.
class TextFace {
 public:
  // Of the family and weight of `font`, in that size. Lives as long as the application.
  static const TextFace& Of(const QFont& font, int pixel_size);

  const QFont& font() const { return font_; }
  int line_height() const { return metrics_.height(); }
  int ascent() const { return metrics_.ascent(); }

  // On one line.
  int WidthOf(const QString& text) const;
  // Of the longest part of a text that no line may be broken in.
  int WidestPart(const QString& text) const;
  // Broken into lines of `width` between its words; wider where a word is.
  QSize Wrapped(const QString& text, int width) const;

 private:
  explicit TextFace(const QFont& font);
  int NumberWidth(const QString& text) const;

  QFont font_;
  QFontMetrics metrics_;
  int digit_width_;  // 0 where digits differ in width
  mutable QHash<QString, int> widths_;
  mutable QHash<QString, QHash<int, QSize>> wrapped_;
};

// Whether a text has nothing but digits and the points between them: it is never broken.
bool IsNumbering(const QString& text);

}  // namespace survey

#endif  // DESKTOP_TEXT_FACE_H_
