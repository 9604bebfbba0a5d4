// SPDX-License-Identifier: GPL-3.0-or-later
#include "Drawn.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTest>
#include <QWheelEvent>
#include <optional>

#include "Doubles.h"
#include "Places.h"
#include "QtValues.h"
#include "Regions.h"

namespace tracewell {
namespace {

QList<int> numbersIn(const QString& text) {
  static const QRegularExpression number(QStringLiteral("-?\\d+"));
  QList<int> found;
  for (const auto& match : number.globalMatch(text)) found << match.captured().toInt();
  return found;
}

QString boxText(const QRect& box) {
  if (box.isEmpty()) return QStringLiteral("none");
  const auto text = QStringLiteral("%1,%2 to %3,%4");
  return text.arg(box.left()).arg(box.top()).arg(box.right()).arg(box.bottom());
}

class Page {
 public:
  Page(QWidget& widget, const std::function<QString(const QString&)>& told, QColor ground)
      : widget_(widget), told_(told), ground_(ground) {}

  /// What stands before the colon, and what is found.
  QString find(QString asked) {
    const bool isFaint = asked.startsWith(QLatin1String("faint "));
    const double share = isFaint ? 0.12 : 0.4;
    if (isFaint) asked.remove(0, 6);
    const QString what = asked.section(QLatin1Char(' '), 0, 0);
    const QList<int> numbers = numbersIn(asked.mid(what.size()));
    if (const auto* part = widget_.findChild<QWidget*>(what)) return placeOf(*part);
    const QColor colour(what);
    if (!colour.isValid()) return use(what, asked.mid(what.size() + 1), numbers);
    if (!picture_) picture_ = seen(widget_, {}, ground_);
    if (numbers.size() == 2)
      return QStringLiteral("%1 %").arg(qRound(
          100 * picture_->shareOf(colour.rgb(), picture_->picture.pixel(numbers[0], numbers[1]))));
    if (numbers.size() != 4)
      return boxText(picture_->find(colour, picture_->picture.rect(), share));
    const QRect where(QPoint(numbers[0], numbers[1]), QPoint(numbers[2], numbers[3]));
    if (where.width() > 1 && where.height() > 1)
      return boxText(picture_->find(colour, where, share));
    QStringList runs;
    for (const auto& [from, to] : picture_->runs(colour, where, share))
      runs << QStringLiteral("%1 to %2").arg(from).arg(to);
    return runs.isEmpty() ? QStringLiteral("none") : runs.join(QStringLiteral(", "));
  }

 private:
  QString placeOf(const QWidget& part) const {
    if (!part.isVisibleTo(&widget_)) return QStringLiteral("hidden");
    return boxText({part.mapTo(&widget_, QPoint()), part.size()});
  }

  QString use(const QString& verb, const QString& how, const QList<int>& numbers) {
    picture_.reset();
    const QPoint place = numbers.size() < 2 ? QPoint() : QPoint(numbers[0], numbers[1]);
    const auto with = how.startsWith(QLatin1String("Shift")) ? Qt::ShiftModifier : Qt::NoModifier;
    if (verb == QLatin1String("press")) {
      const QKeyCombination key = QKeySequence(how)[0];
      QTest::keyClick(&widget_, key.key(), key.keyboardModifiers());
    } else if (verb == QLatin1String("type")) {
      QTest::keyClicks(&widget_, how);
    } else if (verb == QLatin1String("click")) {
      QTest::mouseClick(&widget_, Qt::LeftButton, with, place);
    } else if (verb == QLatin1String("hover")) {
      QTest::mouseMove(&widget_, place);
    } else if (verb == QLatin1String("double-click")) {
      QTest::mouseDClick(&widget_, Qt::LeftButton, with, place);
    } else if (verb == QLatin1String("drag")) {
      const QPoint end(numbers.at(2), numbers.at(3));
      QTest::mousePress(&widget_, Qt::LeftButton, with, place);
      QTest::mouseMove(&widget_, end);
      QTest::mouseRelease(&widget_, Qt::LeftButton, with, end);
    } else if (verb == QLatin1String("wheel")) {
      QWheelEvent event(QPointF(place), {}, {}, 120 * QPoint(numbers.at(2), numbers.at(3)),
                        Qt::NoButton, with, Qt::NoScrollPhase, false);
      QApplication::sendEvent(&widget_, &event);
    } else if (verb != QLatin1String("tell")) {
      return QStringLiteral("no such thing");
    }
    QApplication::processEvents();
    return told_(how);
  }

  QWidget& widget_;
  const std::function<QString(const QString&)>& told_;
  const QColor ground_;
  std::optional<Regions> picture_;
};

/// To the letter; "about" allows each number two more or less.
bool isMeant(const QString& said, const QString& found) {
  if (!said.startsWith(QLatin1String("about "))) return found == said;
  const QList<int> meant = numbersIn(said), there = numbersIn(found);
  return std::ranges::equal(meant, there, [](int a, int b) { return std::abs(a - b) <= 2; });
}

}  // namespace

void expectDrawn(QWidget& widget, const std::string& section,
                 const std::function<QString(const QString&)>& told, QColor ground) {
  Page page(widget, told, ground);
  const auto heading = QStringLiteral("[%1]").arg(toQt(section));
  const QString all = toQt(contentOf(std::filesystem::path(scriptFolder) / "drawn.txt"));
  QStringList lines = all.split(QLatin1Char('\n'));
  const auto from = lines.indexOf(heading) + 1;
  EXPECT_GT(from, 0) << section;
  for (const QString& line : lines.mid(from, lines.indexOf(QString(), from) - from)) {
    if (line.startsWith(QLatin1String("# "))) continue;
    const QString said = line.section(QStringLiteral(": "), 1);
    const QString found = page.find(line.section(QStringLiteral(": "), 0, 0));
    EXPECT_TRUE(isMeant(said, found)) << section << ": " << fromQt(line) << " is " << fromQt(found);
  }
}

}  // namespace tracewell
