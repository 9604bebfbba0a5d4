// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>
#include <QWidget>

#include "PanelText.h"
#include "Words.h"

namespace tracewell {

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
