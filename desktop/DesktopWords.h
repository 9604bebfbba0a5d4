// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>
#include <QWidget>

#include "PanelText.h"
#include "Words.h"

namespace tracewell {

/// Keeps the present English tool tips and accessible names of a widget and its children for
/// sayInLanguage.
void keepEnglish(QWidget& widget);

/// Gives a widget and its children the kept tool tips and accessible names in the language in
/// force. Captions and values stay.
void sayInLanguage(QWidget& widget);

/// Translates with Qt: installs the translations of the panel's words, and of the toolkit's if the
/// system has them. Qt then sends QEvent::LanguageChange to every window.
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
