// SPDX-License-Identifier: GPL-3.0-or-later
#include "Controls.h"

#include <algorithm>
#include <utility>

namespace tracewell {
namespace {

Error invalidValueError() {
  return {invalidPropertyValue, "Tracewell", "Invalid property value"};
}

void checkCheckBoxValue(std::int16_t value) {
  if (value < 0 || value > 2) throw invalidValueError();
}

}  // namespace

void Label::doubleClick() {
  userDoes([this] { doubleClicked.raise(); });
}

void Frame::copy() {
  userDoes([this] { copied.raise(); });
}

void Button::press() {
  userDoes([this] { click.raise(); });
}

void ValueButton::press() {
  userDoes([this] { click.raise(); });
}

void Switch::press() {
  notifyChanged();
}

void MenuEntry::choose() {
  userDoes([this] { click.raise(); });
}

CheckBox::CheckBox(Window& owner, std::string_view name, std::string_view captionText, int index)
    : CaptionedControl(owner, name, captionText, index),
      value(
          *this, 0,
          [this](bool isNew) {
            if (isNew) click.raise();
          },
          checkCheckBoxValue) {}

void CheckBox::toggle() {
  userDoes([this] {
    tellChosen();
    value = isChecked() ? 0 : 1;
  });
}

OptionButton::OptionButton(Window& owner, std::string_view name, std::string_view captionText,
                           std::string_view group, int index)
    : CaptionedControl(owner, name, captionText, index),
      value(*this, false,
            [this](bool isNew) {
              if (!isNew) return;
              if (value()) clearSiblings();
              click.raise();
            }),
      group_(group) {}

void OptionButton::clearSiblings() {
  for (Control* control : owner().controls()) {
    auto* option = dynamic_cast<OptionButton*>(control);
    if (option != nullptr && option != this && option->group() == group_)
      option->value.setQuietly(false);
  }
}

void OptionButton::select() {
  userDoes([this] {
    tellChosen();
    value = true;
  });
}

ComboBox::ComboBox(Window& owner, std::string_view name, std::vector<std::string> entries,
                   int index)
    : Control(owner, name, index),
      items(*this, std::move(entries)),
      listIndex(
          *this, noEntry,
          [this](bool) {
            text.setQuietly(listIndex() == noEntry
                                ? std::string()
                                : items()[static_cast<std::size_t>(listIndex())]);
            click.raise();
          },
          [this](std::int16_t value) {
            if (value < noEntry || value >= std::ssize(items())) throw invalidValueError();
          }),
      text(*this, {}, [this](bool) { listIndex.setQuietly(entryOf(text())); }) {}

std::int16_t ComboBox::entryOf(const std::string& wanted) const {
  const auto found = std::ranges::find(items(), wanted);
  return found == items().end() ? noEntry : static_cast<std::int16_t>(found - items().begin());
}

void ComboBox::choose(int entry) {
  userDoes([this, entry] {
    tellChosen();
    listIndex = static_cast<std::int16_t>(entry);
  });
}

void ComboBox::edit(const std::string& typed) {
  userDoes([this, &typed] { edited.raise(typed); });
}

void ComboBox::type(const std::string& typed) {
  userDoes([this, &typed] {
    tellChosen();
    text = typed;
    click.raise();
  });
}

void TextBox::type(const std::string& typed) {
  userDoes([this, &typed] {
    tellChosen();
    text = typed;
    edited.raise();
  });
}

void TextBox::pressKey(int code) {
  userDoes([this, code] { keyDown.raise(code); });
}

}  // namespace tracewell
