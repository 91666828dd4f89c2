#ifndef DESKTOP_YEAR_BAND_H_
#define DESKTOP_YEAR_BAND_H_

#include <QFrame>
#include <QLabel>
#include <string>

namespace survey {

// White on the colour that calls for attention, in any theme.
void PaintAlarm(QWidget& widget);

// Says over a page that it is of another year than the survey's.
class YearBand : public QFrame {
  Q_OBJECT

 public:
  YearBand();

  // Hides the band where there is nothing to say.
  void Show(const std::string& warning);

 Q_SIGNALS:
  void BackAsked();  // to the year of the survey

 private:
  QLabel* text_;
};

}  // namespace survey

#endif  // DESKTOP_YEAR_BAND_H_
