// SPDX-License-Identifier: GPL-3.0-or-later
#include "Options.h"

#include <algorithm>

#include "Controls.h"

namespace tracewell {
namespace {

/// Tab goes to the selected option alone; to the first one where none is selected.
void shareTabStop(const QRadioButton& button) {
  const auto options = button.parentWidget()->findChildren<QRadioButton*>();
  const auto canBeReached = [&button](const QRadioButton* option) {
    return option->isEnabledTo(button.parentWidget());
  };
  auto stop = std::ranges::find_if(options, [&](const QRadioButton* option) {
    return option->isChecked() && canBeReached(option);
  });
  if (stop == options.end()) stop = std::ranges::find_if(options, canBeReached);
  for (auto option = options.begin(); option != options.end(); ++option)
    (*option)->setFocusPolicy(option == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

void selectByUser(OptionButton& option) {
  option.select();
  for (Control* control : option.owner().controls()) {
    const auto* other = dynamic_cast<const OptionButton*>(control);
    if (other != nullptr && other->group() == option.group()) control->notifyChanged();
  }
}

}  // namespace

void showSelected(QRadioButton& button, bool isSelected) {
  button.setAutoExclusive(false);
  button.setChecked(isSelected);
  button.setAutoExclusive(true);
  shareTabStop(button);
}

void selectWhenChosen(QRadioButton& button, OptionButton& option) {
  // A screen reader toggles without a click; a click on the one that is selected toggles nothing,
  // and selects it once more.
  QObject::connect(&button, &QRadioButton::toggled, &button, [&option](bool isOn) {
    if (isOn) selectByUser(option);
  });
  QObject::connect(&button, &QRadioButton::clicked, &button, [&button, &option] {
    if (button.isChecked()) selectByUser(option);
  });
}

}  // namespace tracewell
