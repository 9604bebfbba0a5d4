// SPDX-License-Identifier: GPL-3.0-or-later
#include "Lists.h"

namespace tracewell {

std::string ListBox::chosenText() const {
  const bool isChosen = chosen() >= 0 && chosen() < std::ssize(items());
  return isChosen ? items()[static_cast<std::size_t>(chosen())] : "";
}

void ListBox::choose(int entry) {
  userDoes([this, entry] {
    chosen = entry;
    click.raise();
  });
}

void ListBox::open(int entry) {
  userDoes([this, entry] {
    chosen = entry;
    opened.raise();
  });
}

int Tree::add(const std::string& text, int parent) {
  std::vector<Node> all = nodes();
  all.push_back({text, parent});
  nodes = std::move(all);
  return static_cast<int>(nodes().size());
}

void Tree::choose(int node) {
  userDoes([this, node] { nodeClick.raise(node); });
}

void PictureBox::clickAt(int x, int y) {
  userDoes([this, x, y] { clicked.raise(x, y); });
}

}  // namespace tracewell
