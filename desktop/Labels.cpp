// SPDX-License-Identifier: GPL-3.0-or-later
#include "Labels.h"

#include <QVariant>

#include "Accessible.h"
#include "Controls.h"
#include "ElidedLabel.h"
#include "LampWidget.h"
#include "ShownText.h"
#include "TextGrowth.h"

namespace tracewell {
namespace {

void tellLamp(const ValueLabel& control, const QLabel& label, const QWidget& form) {
  const QVariant name = label.property("lamp");
  auto* lamp = name.isValid() ? form.findChild<LampWidget*>(name.toString()) : nullptr;
  if (lamp != nullptr) lamp->setState(shownText(control.caption(), roomOfLine));
}

bool isOfKind(const QLabel& label, const char* kind) {
  return label.property("kind").toString() == QLatin1String(kind);
}

/// Those that look alike are told apart by the label in front of them.
void tellExplained(const QLabel& label, const QWidget& form) {
  for (const QString& name : label.property("explains").toString().split(QLatin1Char(' ')))
    if (auto* part = form.findChild<QWidget*>(name)) part->setAccessibleDescription(label.text());
}

/// A caption that nobody has told as sentences is one.
std::vector<ElidedLabel::Sentence> shownSentences(const ValueLabel& control) {
  std::vector<ElidedLabel::Sentence> shown;
  for (const ValueLabel::Sentence& sentence : control.sentences)
    shown.push_back({shownText(sentence.text, roomOfStatus), sentence.isWarning});
  if (shown.empty()) shown.push_back({shownText(control.caption(), roomOfStatus), false});
  return shown;
}

}  // namespace

int widestOf(const QLabel& label) {
  const int em = pixelsOf(label);
  if (qobject_cast<const ElidedLabel*>(&label) != nullptr) return QWIDGETSIZE_MAX;
  if (isOfKind(label, "state")) return 35 * em;
  return (isOfKind(label, "age") ? 45 : 25) * em;
}

void showValue(const ValueLabel& control, QLabel& label, const QWidget& form) {
  const QString before = label.text();
  showInLabel(label, control.caption(), widestOf(label));
  if (auto* line = qobject_cast<ElidedLabel*>(&label); line && isOfKind(label, "status")) {
    line->setText(shownText(control.caption(), roomOfStatus));
    line->setSentences(shownSentences(control));
  }
  if (label.text() != before) tellName(label);
  tellLamp(control, label, form);
  if (label.property("explains").isValid()) tellExplained(label, form);
}

}  // namespace tracewell
