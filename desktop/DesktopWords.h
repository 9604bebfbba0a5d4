// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>
#include <QWidget>

#include "Words.h"

namespace tracewell {

/// What the desktop itself says, in the language in force. Its translations are in
/// languages/*.ts, as are those of the forms and of what the logic says.
QString panelText(const char* english);

/// The English tool tips and accessible names of a widget and of those within it, as they are now,
/// are what sayInLanguage translates.
void keepEnglish(QWidget& widget);

/// Gives a widget, and those within it, the kept tool tips and accessible names in the language in
/// force. Captions and values stay as the program has set them.
void sayInLanguage(QWidget& widget);

/// Speaks Qt's way: installs the translations of the panel's words, and of the toolkit's own where
/// the system has them. Qt then sends QEvent::LanguageChange to every window.
class DesktopWords : public Words {
 public:
  void use(int language) override;

 protected:
  std::string translated(const char* english) const override;

 private:
  int language_ = 1;
  QTranslator toolkit_;
  QTranslator panel_;
};

}  // namespace tracewell
