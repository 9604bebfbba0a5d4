// SPDX-License-Identifier: GPL-3.0-or-later
#include "ThemeMenu.h"

#include <QActionGroup>
#include <array>

#include "DesktopWords.h"

namespace tracewell {
namespace {

constexpr std::array themes = {Theme::system, Theme::light, Theme::dark, Theme::highContrast};

QString nameOf(Theme theme) {
  switch (theme) {
    case Theme::light:
      return panelText("Light");
    case Theme::dark:
      return panelText("Dark");
    case Theme::highContrast:
      return panelText("High contrast");
    case Theme::system:
      break;
  }
  return panelText("Like the desktop");
}

}  // namespace

ThemeMenu::ThemeMenu(QMenu& menu, Theme present, std::function<void(Theme)> chosen) : QMenu(&menu) {
  setObjectName(QStringLiteral("theme"));
  menu.addSeparator();
  menu.addMenu(this);
  auto* const group = new QActionGroup(this);
  for (const Theme theme : themes) {
    QAction* const entry = group->addAction(addAction(QString()));
    entry->setCheckable(true);
    entry->setChecked(theme == present);
    connect(entry, &QAction::triggered, this, [chosen, theme] { chosen(theme); });
  }
  sayInLanguage();
  connect(&menu, &QMenu::aboutToShow, this, &ThemeMenu::sayInLanguage);
}

void ThemeMenu::sayInLanguage() {
  setTitle(panelText("Theme"));
  for (std::size_t i = 0; i < themes.size(); ++i)
    actions()[static_cast<qsizetype>(i)]->setText(nameOf(themes[i]));
}

}  // namespace tracewell
