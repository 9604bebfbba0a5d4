// SPDX-License-Identifier: GPL-3.0-or-later
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTimer>

#include "DesktopDialogs.h"
#include "MainFormTest.h"
#include "ShownText.h"
#include "QtValues.h"

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
          "&lt;b&gt; &amp; [*] %1",
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

qint64 residentBytes() {
  QFile status(QStringLiteral("/proc/self/statm"));
  EXPECT_TRUE(status.open(QIODevice::ReadOnly));
  return status.readAll().split(' ').value(1).toLongLong() * 4096;
}

bool isHarmless(const QString& text) {
  return std::ranges::none_of(text, [](QChar c) {
    const bool isBreakingPlace = c == QChar(0x200B);
    return c != QLatin1Char('\n') && c != QLatin1Char('\t') && !isBreakingPlace &&
           (c.category() == QChar::Other_Control || c.category() == QChar::Other_Format);
  });
}

void expectPlainLabels(const QWidget& form) {
  for (const QLabel* label : form.findChildren<QLabel*>()) {
    EXPECT_EQ(label->textFormat(), Qt::PlainText) << fromQt(label->objectName());
    EXPECT_TRUE(isHarmless(label->text())) << fromQt(label->objectName());
  }
}

class HostileTextTest : public MainFormTest {};

#ifdef __SANITIZE_ADDRESS__
constexpr int slowness = 10;
#else
constexpr int slowness = 1;
#endif

TEST_F(HostileTextTest, EveryWindowShowsItHarmlesslyAndAtOnce) {
  std::vector<Window*> windows = program.otherWindows();
  windows.push_back(&main);
  for (const std::string& text : hostileTexts()) {
    SCOPED_TRACE(fromQt(shownText(text, {40})));
    for (Window* window : windows) {
      SCOPED_TRACE(window->name());
      const auto own = window == &main ? nullptr : makeForm(window->name(), nullptr);
      QWidget& widget = own != nullptr ? *own : *form;
      if (own != nullptr) bindControls(*window, widget);
      QElapsedTimer timer;
      timer.start();
      for (Control* control : window->controls()) fill(*control, text);
      widget.show();
      QApplication::processEvents();
      widget.grab();
      EXPECT_LT(timer.elapsed(), 1500 * slowness);
      expectPlainLabels(widget);
      if (own != nullptr) unbindControls(*window);
    }
  }
}

TEST_F(HostileTextTest, RepliesCostLittleAndLeaveTheMainWindowItsSize) {
  const qint64 before = residentBytes();
  QElapsedTimer timer;
  for (const std::string& reply : hostileTexts()) {
    timer.start();
    for (ValueLabel* label : {&main.lblChan1, &main.lblChan2, &main.lblTime, &main.lblPort,
                              &main.lblMeasure(0), &main.lblMeasure(15), &main.lblStatus})
      label->caption = reply;
    main.graphDSO.axis("XAxis").caption = reply;
    main.txtMsg.text = reply;
    QApplication::processEvents();
    EXPECT_LT(timer.elapsed(), 500 * slowness);
    EXPECT_LE(form->minimumSizeHint().width(), 1280);
    EXPECT_LE(form->minimumSizeHint().height(), 800);
  }
  EXPECT_LT((residentBytes() - before) >> 20, 100 * slowness);
}

TEST_F(HostileTextTest, BoxesAreTextOnly) {
  const Gate gate;
  DesktopDialogs boxes(gate);
  const auto closeBox = [] {
    QTimer::singleShot(0, [] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return ADD_FAILURE() << "no box";
      expectPlainLabels(*box);
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
      {"a\tb\r\nc", {9}, "a\tb\uFFFDc"},
      {"a\nb\nc", {9, 2}, "a\nb…"},
      {"a\x01\x7F\xC2\x85"
       "b",
       {9},
       "a\uFFFD\uFFFD\uFFFDb"},
      {"\xFF\xC3", {9}, "\uFFFD\uFFFD"},
      {"\U0001F600\u202E\U000E0041", {9}, "\U0001F600\uFFFD\uFFFD"},
      {"", {9}, ""}};
  for (const auto& [text, room, shown] : cases) EXPECT_EQ(fromQt(shownText(text, room)), shown);
  EXPECT_EQ(fromQt(shownCaption("a & b")), "a && b");
  EXPECT_EQ(fromQt(shownTitle("a[*]")), "a[*][*]");
  // Also where a character of two units stands across the limit of a line.
  for (const std::string edge : {"x", "\U0001F600"}) {
    const std::string line = std::string(4999, 'x') + edge;
    EXPECT_EQ(fromQt(shownText(line + "yy\nnext", roomOfPage)), line + "…\nnext");
  }
}

}  // namespace
}  // namespace tracewell
