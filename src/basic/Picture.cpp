#include "basic/Picture.h"

#include <algorithm>
#include <cmath>

#include "basic/Conversions.h"
#include "basic/Dates.h"
#include "basic/Decimal.h"

namespace tavrelin {

namespace {

bool IsTextMark(QChar c) {
  return c == u'@' || c == u'&';
}

bool IsDigitMark(QChar c) {
  return c == u'0' || c == u'#';
}

bool HoldsAny(const QString& picture, bool (*mark)(QChar)) {
  return std::any_of(picture.begin(), picture.end(), mark);
}

// ---- numbers

// The digits before the point, put into their places from the right; digits for which there is no
// place left stand at the leftmost one.
QString FillWhole(QByteArray digits, const QString& picture) {
  const auto firstMark = std::find_if(picture.begin(), picture.end(), IsDigitMark);
  const qsizetype leftmost = firstMark - picture.begin();
  const bool grouped = picture.mid(leftmost).contains(u',');
  QString filled;
  int placed = 0;
  const auto place = [&](char digit) {
    if (grouped && placed > 0 && placed % 3 == 0) filled.prepend(u',');
    filled.prepend(QLatin1Char(digit));
    ++placed;
  };
  const auto takeLast = [&] {
    place(digits.back());
    digits.chop(1);
  };
  for (qsizetype i = picture.size() - 1; i >= 0; --i) {
    const QChar mark = picture.at(i);
    if (IsDigitMark(mark)) {
      if (!digits.isEmpty()) {
        takeLast();
      } else if (mark == u'0') {
        place('0');
      }
      while (i == leftmost && !digits.isEmpty()) takeLast();
    } else if (mark != u',' || i < leftmost) {
      filled.prepend(mark);
    }
  }
  // A picture such as ".00" has no place for what stands before the point; it is shown all the
  // same.
  return QString::fromLatin1(digits) + filled;
}

QString FillFraction(const QByteArray& digits, const QString& picture) {
  QString filled;
  qsizetype next = 0;
  for (const QChar mark : picture) {
    if (!IsDigitMark(mark)) {
      filled += mark;
    } else if (next < digits.size()) {
      filled += QLatin1Char(digits.at(next++));
    } else if (mark == u'0') {
      filled += u'0';
    }
  }
  return filled;
}

QString FormatNumber(Decimal number, const QString& picture) {
  const qsizetype point = picture.indexOf(u'.');
  const QString whole = point < 0 ? picture : picture.left(point);
  const QString fraction = point < 0 ? QString() : picture.mid(point + 1);
  number.RoundTo(static_cast<int>(std::count_if(fraction.begin(), fraction.end(), IsDigitMark)));
  QString text = FillWhole(number.Whole(), whole);
  if (point >= 0) text += u'.' + FillFraction(number.Fraction(), fraction);
  return number.IsNegative() ? u'-' + text : text;
}

QString ThroughNumberPicture(const Value& value, const QString& picture) {
  if (value.kind() == Value::Kind::Whole) return FormatNumber(Decimal(value.ToWhole()), picture);
  const bool isText = value.kind() == Value::Kind::Text;
  if (isText && !IsNumeric(value)) return value.ToText();
  const double number = isText ? CDbl(value) : value.ToNumber();
  return std::isfinite(number) ? FormatNumber(Decimal(number), picture) : value.ToText();
}

// ---- texts

// Puts the text into the marks from the left. Characters for which no mark is left stand in the
// last one, so that nothing of a text is lost.
QString FillFromLeft(QStringView text, const QString& marks) {
  const auto lastMark = std::find_if(marks.rbegin(), marks.rend(), IsTextMark);
  const qsizetype last = marks.rend() - lastMark - 1;
  QString filled;
  for (qsizetype i = 0; i < marks.size(); ++i) {
    const QChar mark = marks.at(i);
    if (!IsTextMark(mark)) {
      filled += mark;
    } else if (!text.isEmpty()) {
      const qsizetype taken = i == last ? text.size() : 1;
      filled += text.left(taken);
      text = text.mid(taken);
    } else if (mark == u'@') {
      filled += u' ';
    }
  }
  return filled;
}

QString Reversed(QString text) {
  std::reverse(text.begin(), text.end());
  return text;
}

QString ThroughTextPicture(const QString& text, const QString& picture) {
  const auto isVisible = [](QChar c) { return !IsTextMark(c) && c != u' ' && c != u'!'; };
  const bool isMask = std::any_of(picture.begin(), picture.end(), isVisible);
  if (text.isEmpty() && isMask) return {};  // dashes around nothing would look like an entry
  if (picture.startsWith(u'!')) return FillFromLeft(text, picture.mid(1));
  return Reversed(FillFromLeft(Reversed(text), Reversed(picture)));
}

// ---- dates

QString Padded(int number, qsizetype width) {
  return QString::number(number).rightJustified(width, u'0');
}

// Reads a date picture mark by mark: runs of one letter, whatever its case.
class DatePicture {
 public:
  DatePicture(const QDateTime& date, const QString& picture)
      : date_(date.date()), time_(date.time()), picture_(picture) {
    halves_ = picture.contains(u"AMPM", Qt::CaseInsensitive) ||
              picture.contains(u"AM/PM", Qt::CaseInsensitive);
  }

  QString Text() {
    QString text;
    while (at_ < picture_.size()) text += Next();
    return text;
  }

 private:
  QString Next() {
    for (const auto half : {u"AM/PM", u"AMPM"}) {
      if (QStringView(picture_).mid(at_).startsWith(QStringView(half), Qt::CaseInsensitive)) {
        at_ += QStringView(half).size();
        return time_.hour() < 12 ? QStringLiteral("AM") : QStringLiteral("PM");
      }
    }
    const QChar mark = picture_.at(at_).toLower();
    qsizetype run = 1;
    while (at_ + run < picture_.size() && picture_.at(at_ + run).toLower() == mark) ++run;
    at_ += run;
    return Shown(mark, run);
  }

  QString Shown(QChar mark, qsizetype run) {
    const bool minutes = mark == u'n' || (mark == u'm' && afterHour_);
    if (mark.isLetter()) afterHour_ = mark == u'h';
    if (minutes) return Padded(time_.minute(), std::min<qsizetype>(run, 2));
    switch (mark.unicode()) {
      case u'd':
        return DayText(run);
      case u'm':
        return MonthText(run);
      case u'y':
        return run > 2 ? Padded(date_.year(), 4) : Padded(date_.year() % 100, 2);
      case u'h':
        return Padded(halves_ ? (time_.hour() + 11) % 12 + 1 : time_.hour(), run);
      case u's':
        return Padded(time_.second(), run);
      default:
        return picture_.mid(at_ - run, run);
    }
  }

  QString DayText(qsizetype run) const {
    if (run <= 2) return Padded(date_.day(), run);
    const QString name = DayName(date_.dayOfWeek());
    return run == 3 ? name.left(3) : name;
  }

  QString MonthText(qsizetype run) const {
    if (run <= 2) return Padded(date_.month(), run);
    const QString name = MonthName(date_.month());
    return run == 3 ? name.left(3) : name;
  }

  QDate date_;
  QTime time_;
  const QString& picture_;
  qsizetype at_ = 0;
  bool halves_;
  bool afterHour_ = false;  ///< the last mark was an hour: `m` means minutes
};

QString ThroughDatePicture(const Value& value, const QString& picture) {
  const QDateTime date = value.ToDate();
  return date.isValid() ? DatePicture(date, picture).Text() : value.ToText();
}

bool IsDateMark(QChar c) {
  return QStringView(u"dmyhns").contains(c, Qt::CaseInsensitive);
}

}  // namespace

QString Format(const Value& value, const QString& picture) {
  if (value.IsNull()) return {};
  if (picture.isEmpty() || picture == u"General Number") return value.ToText();
  if (picture.startsWith(u'!') || HoldsAny(picture, IsTextMark)) {
    return ThroughTextPicture(value.ToText(), picture);
  }
  if (HoldsAny(picture, IsDigitMark)) return ThroughNumberPicture(value, picture);
  return HoldsAny(picture, IsDateMark) ? ThroughDatePicture(value, picture) : picture;
}

QString FormatSanction(const QString& sanctionID) {
  constexpr qsizetype Characters = 7;
  return sanctionID.size() == Characters ? Format(sanctionID, QStringLiteral("@@-@@-@@@"))
                                         : sanctionID;
}

}  // namespace tavrelin
