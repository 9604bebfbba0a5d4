// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Control.h"
#include "Image.h"

/// Controls that show many things: lists, trees, pictures.
namespace tracewell {

/// Lines of which one may be chosen.
class ListBox : public Control {
 public:
  static constexpr int noEntry = -1;
  using Control::Control;
  /// Assigning leaves no entry chosen.
  Property<std::vector<std::string>> items{*this, {}, [this](bool) { chosen = noEntry; }};
  /// Index of the chosen entry or noEntry. Assigning raises nothing.
  Property<int> chosen{*this, noEntry};
  /// Raised when the user chooses an entry.
  Event<> click;
  /// Raised when the user opens an entry with a double click or Enter.
  Event<> opened;

  /// Text of the chosen entry; empty if none is.
  std::string chosenText() const;
  void choose(int entry);
  void open(int entry);
};

/// Nodes below nodes. They are numbered from 1 in the order in which they are added.
class Tree : public Control {
 public:
  struct Node {
    std::string text;
    /// Number of the node above; 0 at the top.
    int parent = 0;
    bool operator==(const Node&) const = default;
  };
  using Control::Control;
  Property<std::vector<Node>> nodes{*this};
  /// Raised with the node's number when the user chooses it.
  Event<int> nodeClick;
  /// Adds a node; the result is its number.
  int add(const std::string& text, int parent);
  void choose(int node);
};

/// A picture that the user can click.
class PictureBox : public Control {
 public:
  using Control::Control;
  Property<Image> image{*this};
  /// Raised with the clicked point in pixels of the image.
  Event<int, int> clicked;
  void clickAt(int x, int y);
};

}  // namespace tracewell
