// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <vector>

namespace tracewell {

/// A line of text that ends in "…" if its room is too small; its tip is then the whole text. Where
/// the text is told as sentences, a sign in front of each shows its weight. The cell of a table has
/// narrower letters before it is cut: a value without its unit is worse than none.
class ElidedLabel : public QLabel {
  Q_OBJECT
  Q_PROPERTY(QColor warningColour MEMBER warningColour_)
  /// Every rule of the style sheet reads it. A declared property is found at once.
  Q_PROPERTY(QString kind MEMBER kind_)

 public:
  struct Sentence {
    QString text;
    bool isWarning;
    bool operator==(const Sentence&) const = default;
  };

  explicit ElidedLabel(QWidget* parent = nullptr);
  /// Labels in one row share its room by what they have to say.
  QSize sizeHint() const override {
    return {neededWidth() + width() - contentsRect().width(), QLabel::sizeHint().height()};
  }
  /// However much the others in the row have to say, sentences have some room.
  QSize minimumSizeHint() const override;
  /// Together they are the label's text. They are painted from the left, the first one before the
  /// others; where there is no room for all, a warning keeps its sign and some letters.
  void setSentences(const std::vector<Sentence>& sentences);
  /// Part of the text does not show.
  bool isCut() const;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int signWidth() const;
  int gapWidth() const;
  int neededWidth() const;
  /// Each sentence on lines of its own.
  QString wholeText() const;
  QFont fontThatFits() const;
  /// What the warnings among the last sentences need at least, `done` being those in front.
  int keptFor(std::size_t done) const;
  /// Returns what is left of the room; none where the sentence was cut for want of it.
  QRect paintSentence(QPainter& painter, const Sentence& sentence, QRect room, int kept) const;

  std::vector<Sentence> sentences_;
  QColor warningColour_;
  QString kind_;
};

}  // namespace tracewell
