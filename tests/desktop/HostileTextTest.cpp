// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolTip>
#include <QTreeWidget>
#include <map>

#include "DesktopDialogs.h"
#include "DesktopWindows.h"
#include "MainFormTest.h"
#include "QtValues.h"
#include "ShownText.h"

namespace tracewell {
namespace {

/// Texts that a line, a file or a file system might hold.
Lines hostileTexts() {
  std::string everyByte;
  for (int byte = 0; byte < 256; ++byte) everyByte += static_cast<char>(byte);
  std::string tables;
  for (int i = 0; i < 2000; ++i) tables += "<table><tr><td>";
  return {tables,
          "<img src=/dev/zero>",
          "&lt;b&gt; &amp; [*] %1 &x",
          std::string(500, '\t') + "x",
          everyByte,
          "\u202Egnp.exe\u202C \u2066\u061C\u200F\uFEFF\U000E0041",
          "\uFDD0\uFDD1\uFFFC\u2028\u2029",
          std::string("NUL\0NUL", 7),
          std::string(1 << 20, 'W'),
          std::string(1 << 20, '\n'),
          std::string(1 << 20, '\xC3')};
}

/// Puts the text wherever the program might; the events of controls stay out of it.
void fill(Control& control, const std::string& text) {
  if (auto* captioned = dynamic_cast<CaptionedControl*>(&control)) captioned->caption = text;
  if (auto* label = dynamic_cast<ValueLabel*>(&control)) label->caption = text;
  if (auto* box = dynamic_cast<TextBox*>(&control)) box->text = text;
  if (auto* list = dynamic_cast<ListBox*>(&control)) list->items = {text, text};
  if (auto* tree = dynamic_cast<Tree*>(&control)) tree->nodes = {{text, 0}, {text, 1}};
  if (auto* graph = dynamic_cast<Graph*>(&control)) {
    graph->note = text;
    graph->axis("XAxis").caption = text;
  }
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    combo->items.setQuietly({text, text});
    combo->text.setQuietly(text);
  }
}

bool isHarmless(const QString& text) {
  return std::ranges::none_of(text, [](QChar c) {
    const bool isBreakingPlace = c == QChar(0x200B);
    return c != QLatin1Char('\n') && c != QLatin1Char('\t') && !isBreakingPlace &&
           (c.category() == QChar::Other_Control || c.category() == QChar::Other_Format);
  });
}

/// What the widgets below `top` show, kind by kind; how many lines each may have, and whether it
/// takes "&" for a mark.
struct Kind {
  const char* name;
  qsizetype lines;
  bool hasMarks;
  QStringList (*shown)(const QWidget& top);
};

template <class Item>
QStringList textsOf(const QWidget& top, QString (Item::*text)() const) {
  QStringList texts;
  for (const Item* item : top.findChildren<Item*>()) texts << (item->*text)();
  return texts;
}

QStringList entriesOf(const QAbstractItemModel& model, const QModelIndex& parent = {}) {
  QStringList texts;
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex index = model.index(row, 0, parent);
    texts << index.data().toString() << entriesOf(model, index);
  }
  return texts;
}

template <class View>
QStringList entriesIn(const QWidget& top) {
  QStringList texts;
  for (const View* view : top.findChildren<View*>()) texts << entriesOf(*view->model());
  return texts;
}

template <bool hasBuddy>
QStringList labels(const QWidget& top) {
  QStringList texts;
  for (const QLabel* label : top.findChildren<QLabel*>()) {
    EXPECT_EQ(label->textFormat(), Qt::PlainText) << fromQt(label->objectName());
    if ((label->buddy() != nullptr) == hasBuddy) texts << label->text();
  }
  return texts;
}

const Kind kinds[] = {
    {"title", 1, false, [](const QWidget& top) { return QStringList(top.windowTitle()); }},
    {"label", roomOfParagraph.lines, false, labels<false>},
    {"label of a field", 1, true, labels<true>},
    {"button", 1, true, [](const QWidget& top) { return textsOf(top, &QAbstractButton::text); }},
    {"frame", 1, true, [](const QWidget& top) { return textsOf(top, &QGroupBox::title); }},
    {"menu", 1, true, [](const QWidget& top) { return textsOf(top, &QMenu::title); }},
    {"menu entry", 1, true, [](const QWidget& top) { return textsOf(top, &QAction::text); }},
    {"combo", 1, false, [](const QWidget& top) { return textsOf(top, &QComboBox::currentText); }},
    {"combo's list", 1, false, entriesIn<QComboBox>},
    {"list", 1, false, entriesIn<QListWidget>},
    {"tree", 1, false, entriesIn<QTreeWidget>},
    {"line", 1, false, [](const QWidget& top) { return textsOf(top, &QLineEdit::text); }},
    {"page", roomOfPage.lines, false,
     [](const QWidget& top) { return textsOf(top, &QPlainTextEdit::toPlainText); }}};

/// Counts in `seen` what was looked at.
void expectHarmless(const QWidget& top, qsizetype textSize, std::map<std::string, int>& seen) {
  constexpr qsizetype longestCaption = 60;
  for (const Kind& kind : kinds) {
    for (QString shown : kind.shown(top)) {
      const QString start = shown.left(80);
      SCOPED_TRACE(kind.name + (": " + fromQt(start)));
      if (!shown.isEmpty()) ++seen[kind.name];
      EXPECT_TRUE(isHarmless(shown));
      EXPECT_TRUE(kind.lines == roomOfPage.lines || !shown.contains(QLatin1Char('\t')));
      EXPECT_LT(shown.count(QLatin1Char('\n')), kind.lines);
      const bool isShortened = shown.contains(QChar(0x2026));
      EXPECT_TRUE(textSize < 1 << 20 || shown.size() < longestCaption || isShortened);
      const qsizetype marks = shown.remove(QLatin1String("&&")).count(QLatin1Char('&'));
      EXPECT_TRUE(!kind.hasMarks || marks == 0);
    }
  }
}

class HostileTextTest : public MainFormTest {};

TEST_F(HostileTextTest, EveryWindowShowsItHarmlesslyAndAtOnce) {
  std::vector<Window*> windows = program.otherWindows();
  windows.push_back(&main);
  std::map<std::string, int> seen;
  for (const std::string& text : hostileTexts()) {
    SCOPED_TRACE(fromQt(shownText(text, {40})));
    for (Window* window : windows) {
      SCOPED_TRACE(window->name());
      window->caption = text;
      for (Control* control : window->controls()) fill(*control, text);
      DesktopWindows screen(folder.path());
      QWidget* widget = nullptr;
      const auto show = [&] {
        screen.show(*window);
        QApplication::processEvents();
        const Control& inside = window == &main ? main.graphDSO : *window->controls()[0];
        widget = screen.widgetOf(inside)->window();
        widget->grab();
      };
      expectCheap(show);
      expectHarmless(*widget, std::ssize(text), seen);
    }
  }
  for (const Kind& kind : kinds) EXPECT_GT(seen[kind.name], 0) << kind.name;
}

TEST_F(HostileTextTest, RepliesLeaveTheMainWindowItsSize) {
  for (const std::string& reply : hostileTexts()) {
    for (Control* control : main.controls())
      if (dynamic_cast<ValueLabel*>(control) != nullptr) fill(*control, reply);
    fill(main.graphDSO, reply);
    fill(main.txtMsg, reply);
    QApplication::processEvents();
    EXPECT_LE(form->minimumSizeHint().width(), 1280);
    EXPECT_LE(form->minimumSizeHint().height(), 800);
  }
}

TEST_F(HostileTextTest, BoxesAreTextOnly) {
  const Gate gate;
  DesktopDialogs boxes(gate);
  const auto closeBox = [] {
    QTimer::singleShot(0, [] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return ADD_FAILURE() << "no box";
      for (const QString& text : labels<false>(*box) + QStringList(box->windowTitle()))
        EXPECT_TRUE(isHarmless(text));
      EXPECT_LT(box->width(), 1280);
      box->reject();
    });
  };
  for (const std::string& text : hostileTexts()) {
    closeBox();
    boxes.showMessage(text);
    closeBox();
    EXPECT_EQ(boxes.askYesNo(text, text), Answer::No);
    closeBox();
    boxes.showRunTimeError({5, text, text});
  }
  QToolTip::showText({}, QStringLiteral("<b>x</b>"), form.get());
  EXPECT_TRUE(std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget* top) {
    const auto* tip = qobject_cast<const QLabel*>(top);
    return tip != nullptr && tip->isVisible() && tip->textFormat() == Qt::PlainText;
  }));
  // The toolkit's own, like the question of a file dialog about a file of such a name.
  closeBox();
  QMessageBox::warning(nullptr, QString(), QStringLiteral("<b>x</b>.dso already exists."));
}

TEST(ShownText, WhatIsLeftOfATextWhereThereIsLittleRoom) {
  const std::tuple<std::string, Room, const char*> cases[] = {
      {"500.0 mV", {20}, "500.0 mV"},
      {"12345", {5}, "12345"},
      {"123456", {5}, "12345…"},
      {"мкВ\r", {3}, "мкВ"},
      {"мкВ²", {3}, "мкВ…"},
      {"a\tb\r\nc", {9}, "a b\uFFFDc"},
      {"a\nb\nc", {9, 2}, "a\nb…"},
      {"a\x01\x7F\xC2\x85"
       "b",
       {9},
       "a\uFFFD\uFFFD\uFFFDb"},
      {"\xFF\xC3", {9}, "\uFFFD\uFFFD"},
      {"\U0001F600\u202E\U000E0041", {9}, "\U0001F600\uFFFD\uFFFD"},
      {"\uFFFC\uFDD0\u2028\u2029", {9}, "\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"", {9}, ""}};
  for (const auto& [text, room, shown] : cases) EXPECT_EQ(fromQt(shownText(text, room)), shown);
  EXPECT_EQ(fromQt(shownText("a\tb", roomOfPage)), "a\tb");
  for (const char* log : {"a\nb\nc\n", "a\nb\nc"}) EXPECT_EQ(fromQt(shownEnd(log, {99, 5})), log);
  EXPECT_EQ(fromQt(shownEnd("a\r\nb\r\nc\r\n", {99, 3})), "…\nc\n");
  EXPECT_EQ(fromQt(shownEnd("aa\nbb\ncc\n", {6, 9})), "…\ncc\n");
  EXPECT_EQ(fromQt(shownCaption("a & b")), "a && b");
  EXPECT_EQ(fromQt(shownTitle("a[*]")), "a[*][*]");
  // A word that no paragraph has room for may be broken.
  QLabel label;
  label.setWordWrap(true);
  showInLabel(label, std::string(130, 'w') + " " + std::string(50, 'w') + "/" + "wwwwwwwwww", 0);
  QList<qsizetype> parts;
  for (const QString& part : label.text().split(QChar(0x200B))) parts << part.size();
  EXPECT_EQ(parts, (QList<qsizetype>{60, 60, 72}));
  // Also where a character of two units stands across the limit of a line.
  for (const std::string edge : {"x", "\U0001F600"}) {
    const std::string line = std::string(4999, 'x') + edge;
    EXPECT_EQ(fromQt(shownText(line + "yy\nnext", roomOfPage)), line + "…\nnext");
  }
}

}  // namespace
}  // namespace tracewell
