// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Colour.h"
#include "Control.h"

/// The plain controls of every toolkit. Setting a property from code raises nothing, unless its
/// comment says so.
namespace tracewell {

class Label : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  Event<> doubleClicked;
  void doubleClick();
};

/// A label that shows a value of the program: the caption files leave it alone.
class ValueLabel : public Control {
 public:
  ValueLabel(Window& owner, std::string_view name, std::string_view captionText,
             int index = noIndex)
      : Control(owner, name, index), caption(*this, std::string(captionText)) {}
  ValueLabel(Window& owner, std::string_view name, int index)
      : ValueLabel(owner, name, "", index) {}
  Property<std::string> caption;
  struct Sentence {
    std::string text;
    /// The view makes it stand out.
    bool isWarning;
  };
  /// Those of the caption, where each has a weight of its own. Assigned before the caption.
  std::vector<Sentence> sentences;
};

/// A titled box around other controls. Disabled, it takes them out of the user's reach.
class Frame : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  /// The user wants to copy its content to another program.
  Event<> copied;
  void copy();
};

class Button : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  /// Shown as a swatch; none for an ordinary button.
  Property<std::optional<Colour>> backColour{*this};
  Event<> click;
  void press();
};

/// A button whose text is the program's: the caption files leave it alone.
class ValueButton : public Control {
 public:
  using Control::Control;
  Property<std::string> caption{*this};
  Event<> click;
  void press();
};

/// A button that shows a state, in or out. A press leaves it as it is.
class Switch : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  Property<bool> value{*this};
  /// Shows the state again, since the widget has gone in or out by itself.
  void press();
};

/// An entry of the menu bar, or the title of a menu, which then only has its caption.
class MenuEntry : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  Property<bool> isChecked{*this};
  Event<> click;
  void choose();
};

class CheckBox : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  /// 0 clear, 1 checked, 2 undetermined; anything else raises "Invalid property value". A new value
  /// raises click.
  Property<std::int16_t> value;
  Event<> click;
  CheckBox(Window& owner, std::string_view name, std::string_view captionText, int index = noIndex);
  bool isChecked() const { return value() == 1; }
  void toggle();
};

/// One of several of which one is selected: those of the same `group` on the same window.
class OptionButton : public CaptionedControl {
 public:
  /// The options of a control array are a group by themselves.
  OptionButton(Window& owner, std::string_view name, std::string_view captionText, int index)
      : OptionButton(owner, name, captionText, name, index) {}
  OptionButton(Window& owner, std::string_view name, std::string_view captionText,
               std::string_view group, int index = noIndex);
  /// Selecting clears the others without events, then raises click.
  Property<bool> value;
  Event<> click;
  const std::string& group() const { return group_; }
  void select();

 private:
  void clearSiblings();
  std::string group_;
};

/// A list with one entry chosen, and a text that need not be on the list.
class ComboBox : public Control {
 public:
  static constexpr std::int16_t noEntry = -1;
  ComboBox(Window& owner, std::string_view name, std::vector<std::string> entries,
           int index = noIndex);
  ComboBox(Window& owner, std::string_view name, int index) : ComboBox(owner, name, {}, index) {}
  Property<std::vector<std::string>> items;
  /// Index of the chosen entry or noEntry; beyond the list raises "Invalid property value". Every
  /// assignment, of the same index too, makes `text` the entry's and raises click.
  Property<std::int16_t> listIndex;
  /// Assigning makes listIndex follow quietly.
  Property<std::string> text;
  Event<> click;
  /// Raised with the text of the box while the user types, before it is taken.
  Event<const std::string&> edited;
  /// The user changes a letter.
  void edit(const std::string& typed);
  /// The user takes an entry of the list.
  void choose(int entry);
  /// The user types into the box and leaves it.
  void type(const std::string& typed);

 private:
  std::int16_t entryOf(const std::string& wanted) const;
};

class TextBox : public Control {
 public:
  static constexpr int enterKey = 13;
  using Control::Control;
  Property<std::string> text{*this};
  /// The user has changed the text.
  Event<> edited;
  Event<int> keyDown;
  void type(const std::string& typed);
  /// `code` is 13 for Enter; no other key is reported.
  void pressKey(int code);
};

/// A short line that shows how a trace will look.
class Line : public Control {
 public:
  static constexpr int solid = 1;
  static constexpr int dotted = 3;
  using Control::Control;
  Property<Colour> borderColour{*this};
  Property<int> borderStyle{*this, solid};
};

/// How far something has got.
class Progress : public Control {
 public:
  using Control::Control;
  /// 0 to 100.
  Property<int> percent{*this};
};

/// A filled shape that shows a state by its colour.
class Lamp : public Control {
 public:
  using Control::Control;
  Property<Colour> fillColour{*this};
};

}  // namespace tracewell
