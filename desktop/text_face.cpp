#include "desktop/text_face.h"

#include <QCoreApplication>
#include <algorithm>
#include <map>
#include <memory>

namespace survey {
namespace {

constexpr int kMostRemembered = 4096;  // texts of a face; what users type is among them
constexpr int kUnbounded = 1 << 20;

using Faces = std::map<std::pair<QString, int>, std::unique_ptr<const TextFace>>;

// Let go before the toolkit's fonts are.
Faces& AllFaces() {
  static Faces faces;
  static const bool registered = (qAddPostRoutine([] { AllFaces().clear(); }), true);
  static_cast<void>(registered);
  return faces;
}

bool EndsPart(QChar character) {
  return character.isSpace() || character == u'/' || character == u'-';
}

template <typename Map>
void Bound(Map& remembered) {
  if (remembered.size() >= kMostRemembered) remembered.clear();
}

}  // namespace

bool IsNumbering(const QString& text) {
  return std::ranges::all_of(
      text, [](QChar character) { return character.isDigit() || character == u'.'; });
}

const TextFace& TextFace::Of(const QFont& font, int pixel_size) {
  QFont sized = font;
  sized.setPixelSize(pixel_size);
  auto& face = AllFaces()[{sized.key(), static_cast<int>(sized.hintingPreference())}];
  if (face == nullptr) face.reset(new TextFace(sized));
  return *face;
}

TextFace::TextFace(const QFont& font)
    : font_(font), metrics_(font), digit_width_(metrics_.horizontalAdvance(u'0')) {
  for (char16_t digit = u'1'; digit <= u'9'; ++digit) {
    if (metrics_.horizontalAdvance(digit) != digit_width_) digit_width_ = 0;
  }
}

// -1 for a text that is no whole number.
int TextFace::NumberWidth(const QString& text) const {
  const bool number = digit_width_ > 0 && std::ranges::all_of(text, [](QChar character) {
                        return character >= u'0' && character <= u'9';
                      });
  return number ? static_cast<int>(text.size()) * digit_width_ : -1;
}

int TextFace::WidthOf(const QString& text) const {
  if (const int width = NumberWidth(text); width >= 0) return width;
  if (const auto known = widths_.constFind(text); known != widths_.cend()) return *known;
  Bound(widths_);
  return widths_[text] = metrics_.size(Qt::TextSingleLine, text).width();
}

int TextFace::WidestPart(const QString& text) const {
  if (IsNumbering(text)) return WidthOf(text);
  int widest = 0;
  for (qsizetype from = 0, at = 0; at < text.size(); ++at) {
    const bool last = at + 1 == text.size();
    if (!last && !EndsPart(text[at])) continue;
    widest = std::max(widest, WidthOf(text.mid(from, at + 1 - from).trimmed()));
    from = at + 1;
  }
  return widest;
}

QSize TextFace::Wrapped(const QString& text, int width) const {
  Bound(wrapped_);
  QHash<int, QSize>& sizes = wrapped_[text];
  if (const auto known = sizes.constFind(width); known != sizes.cend()) return *known;
  const QRect room(0, 0, width, kUnbounded);
  return sizes[width] = metrics_.boundingRect(room, Qt::TextWordWrap, text).size();
}

}  // namespace survey
