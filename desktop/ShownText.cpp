// SPDX-License-Identifier: GPL-3.0-or-later
#include "ShownText.h"

#include <QEvent>
#include <algorithm>
#include <utility>

namespace tracewell {
namespace {

constexpr QChar stranger = QChar::ReplacementCharacter;
constexpr QChar dots(0x2026);
/// Where no line of a paragraph could be broken, it may be broken here.
constexpr QChar breakingPlace(0x200B);
constexpr qsizetype longestWord = 60;
/// Of a line of a page; a record in the reply box has some 3000.
constexpr qsizetype longestLine = 5000;

bool isHarmless(char32_t character) {
  if (QChar::isNonCharacter(character) || character == QChar::ObjectReplacementCharacter)
    return false;
  switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return false;
    default:
      return true;
  }
}

/// Takes characters as long as there is room.
class Shown {
 public:
  explicit Shown(Room room) : room_(room) {}

  /// False when there was no room for it.
  bool take(char32_t character) {
    if (character == '\r') return true;
    if (text_.size() >= room_.characters) return false;
    if (character == '\n' && room_.lines > 1) return startLine();
    if (isTooLong()) return true;
    if (character == '\t' && !room_.hasTabs) character = ' ';
    if (character != '\t' && !isHarmless(character)) character = stranger.unicode();
    if (QChar::requiresSurrogates(character))
      text_ += QStringView(QChar::fromUcs4(character));
    else
      text_ += QChar(static_cast<char16_t>(character));
    return true;
  }

  QString text(bool isWhole) const { return isWhole ? text_ : text_ + dots; }

 private:
  bool startLine() {
    if (++lines_ > room_.lines) return false;
    text_ += QLatin1Char('\n');
    lineStart_ = text_.size();
    hasDots_ = false;
    return true;
  }

  /// A line of a page that is too long ends in dots, and the next one is shown again.
  bool isTooLong() {
    if (text_.size() - lineStart_ < longestLine) return false;
    if (!std::exchange(hasDots_, true)) text_ += dots;
    return true;
  }

  Room room_;
  QString text_;
  qsizetype lines_ = 1;
  qsizetype lineStart_ = 0;
  bool hasDots_ = false;
};

/// Paths break at their separators already.
QString breakable(const QString& text) {
  QString broken;
  qsizetype wordLength = 0;
  for (const QChar character : text) {
    const bool isBreak = character.isSpace() || character == QLatin1Char('/');
    wordLength = isBreak ? 0 : wordLength + 1;
    broken += character;
    if (wordLength < longestWord || character.isHighSurrogate()) continue;
    broken += breakingPlace;
    wordLength = 0;
  }
  return broken;
}

/// For what would take "&" for a keyboard mark.
QString withoutMarks(QString text) {
  return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

class PlainLabels : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Polish) return false;
    auto* label = qobject_cast<QLabel*>(watched);
    if (label != nullptr && label->textFormat() == Qt::AutoText)
      label->setTextFormat(Qt::PlainText);
    return false;
  }
};

}  // namespace

QString shownText(const std::string& text, Room room) {
  // Each character is four bytes at most: what is cut off here would have found no room.
  const auto bytes = std::min(static_cast<qsizetype>(text.size()), 4 * room.characters + 4);
  const QString decoded = QString::fromUtf8(text.data(), bytes);
  Shown shown(room);
  for (const char32_t character : decoded.toUcs4())
    if (!shown.take(character)) return shown.text(false);
  return shown.text(bytes == static_cast<qsizetype>(text.size()));
}

QString shownEnd(const std::string& text, Room room) {
  const std::size_t most = static_cast<std::size_t>(room.characters);
  std::size_t start = text.size() > most ? text.find('\n', text.size() - most) + 1 : 0;
  std::size_t lineStart = text.size();
  for (qsizetype lines = 2; lines < room.lines && lineStart > start; ++lines)
    lineStart = lineStart < 2 ? 0 : text.rfind('\n', lineStart - 2) + 1;
  start = std::max(start, lineStart);
  return start == 0 ? shownText(text, room)
                    : QString(dots) + QLatin1Char('\n') + shownText(text.substr(start), room);
}

QString shownCaption(const std::string& caption) {
  return withoutMarks(shownText(caption, roomOfCaption));
}

QString shownTitle(const std::string& title) {
  return shownText(title, roomOfLine).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

void showInLabel(QLabel& label, const std::string& text, int widest) {
  label.setTextFormat(Qt::PlainText);
  label.ensurePolished();
  const QString shown = label.wordWrap() ? breakable(shownText(text, roomOfParagraph))
                                         : label.fontMetrics().elidedText(
                                               shownText(text, roomOfLine), Qt::ElideRight, widest);
  label.setText(label.buddy() == nullptr ? shown : withoutMarks(shown));
}

void keepLabelsPlain(QApplication& application) {
  application.installEventFilter(new PlainLabels(&application));
}

}  // namespace tracewell
