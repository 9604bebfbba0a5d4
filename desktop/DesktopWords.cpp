// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopWords.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QList>
#include <QVariant>
#include <array>

#include "QtValues.h"

namespace tracewell {
namespace {

struct Catalogues {
  const char* panel;
  /// Qt has none for Hong Kong.
  const char* toolkit;
};
/// Of language 2 on; language 1 needs none.
constexpr std::array catalogues = {Catalogues{"zh_CN", "zh_CN"}, Catalogues{"fr", "fr"},
                                   Catalogues{"ru", "ru"}, Catalogues{"zh_HK", "zh_TW"}};

QString fileOf(const char* stem, const char* code) {
  return QStringLiteral("%1_%2.qm").arg(QLatin1String(stem), QLatin1String(code));
}

/// A text of a widget, and the property that keeps its English.
struct Text {
  const char* english;
  QString (QWidget::*get)() const;
  void (QWidget::*set)(const QString&);
};
constexpr std::array texts = {
    Text{"englishTip", &QWidget::toolTip, &QWidget::setToolTip},
    Text{"englishName", &QWidget::accessibleName, &QWidget::setAccessibleName}};

QList<QWidget*> allWithin(QWidget& widget) {
  return widget.findChildren<QWidget*>() << &widget;
}

}  // namespace

void keepEnglish(QWidget& widget) {
  for (QWidget* part : allWithin(widget)) {
    for (const Text& text : texts) {
      const QString english = (part->*text.get)();
      if (!english.isEmpty()) part->setProperty(text.english, english.toUtf8());
    }
  }
}

void sayInLanguage(QWidget& widget) {
  for (QWidget* part : allWithin(widget)) {
    // Most have none, and would look for it among all properties of their class.
    const QList<QByteArray> kept = part->dynamicPropertyNames();
    for (const Text& text : texts) {
      if (!kept.contains(text.english)) continue;
      const QByteArray english = part->property(text.english).toByteArray();
      (part->*text.set)(panelText(english.constData()));
    }
  }
}

void DesktopWords::use(int language) {
  if (language == language_) return;
  language_ = language;
  for (QTranslator* translator : {&toolkit_, &panel_})
    QCoreApplication::removeTranslator(translator);
  const auto index = static_cast<std::size_t>(language - 2);
  if (index >= catalogues.size()) return;
  const auto& [panel, toolkit] = catalogues.at(index);
  if (toolkit_.load(fileOf("qtbase", toolkit), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&toolkit_);
  if (panel_.load(fileOf("tracewell", panel), QStringLiteral(":/languages")))
    QCoreApplication::installTranslator(&panel_);
}

std::string DesktopWords::translated(const char* english) const {
  return fromQt(panelText(english));
}

}  // namespace tracewell
