// SPDX-License-Identifier: GPL-3.0-or-later
#include <QRadioButton>
#include <set>

#include "GraphView.h"
#include "Listener.h"
#include "MainFormTest.h"
#include "QtValues.h"

namespace tracewell {
namespace {

class AccessibilityTest : public EveryFormTest {
 protected:
  void hear(QAccessibleEvent& event) {
    const std::string name = fromQt(event.object()->objectName());
    if (event.type() == QAccessible::ValueChanged)
      heard.push_back(name + " = " +
                      fromQt(static_cast<QAccessibleValueChangeEvent&>(event).value().toString()));
    if (event.type() == QAccessible::DescriptionChanged && !said(*event.object()).empty())
      heard.push_back(name + ": " + said(*event.object()));
  }
  static QAccessibleInterface& reader(QObject& object) {
    return *QAccessible::queryAccessibleInterface(&object);
  }
  static std::string said(QObject& object) {
    return fromQt(reader(object).text(QAccessible::Value));
  }

  Lines heard;
  const Listener listener{[this](QAccessibleEvent& event) { hear(event); }};
};

/// What is no more to a reader than a part of a window.
bool isNothing(QAccessible::Role role) {
  return role == QAccessible::Client || role == QAccessible::NoRole;
}

/// With the groups that it stands in.
QString heardOf(QAccessibleInterface* reader) {
  QString heard = reader->text(QAccessible::Description);
  for (; reader != nullptr; reader = reader->parent())
    heard += QStringLiteral(" / ") + reader->text(QAccessible::Name);
  return heard;
}

/// The name is its caption in the chosen language, or one of its own with what it shows. No two
/// that the user comes to are said alike.
TEST_F(AccessibilityTest, EveryFormHasAWindowAndEveryControlARoleAndAName) {
  const std::map<std::string, QAccessible::Role> roles = {
      {"knobChan1", QAccessible::Dial},         {"slideTime", QAccessible::Slider},
      {"spConnect", QAccessible::Graphic},      {"graphDSO", QAccessible::Graphic},
      {"opTime", QAccessible::RadioButton},     {"obProbe_1", QAccessible::RadioButton},
      {"linePlot_0", QAccessible::Graphic},     {"lblStatus", QAccessible::StatusBar},
      {"pictureAbout", QAccessible::Graphic},   {"slideDataBrightness", QAccessible::Slider},
      {"lblMeasure_3", QAccessible::StaticText}};
  std::size_t found = 0;
  main.mnbLA3.choose();
  Lines names;
  const auto expectRoles = [&](Window& window, QWidget& shown) {
    std::set<QString> different;
    names.push_back(window.name());
    for (Control* control : window.controls()) {
      SCOPED_TRACE(control->objectName());
      EXPECT_TRUE(control->changed);
      // Menus and their entries are their texts.
      if (dynamic_cast<MenuEntry*>(control) != nullptr) continue;
      auto* widget = shown.findChild<QWidget*>(toQt(control->objectName()));
      const QAccessible::Role role = reader(*widget).role();
      EXPECT_FALSE(control->visible() && isNothing(role));
      EXPECT_FALSE(reader(*widget).text(QAccessible::Name).isEmpty());
      const bool isStop = (widget->focusPolicy() & Qt::TabFocus) != 0;
      EXPECT_TRUE(!isStop || different.insert(heardOf(&reader(*widget))).second);
      if (!roles.contains(control->objectName())) continue;
      ++found;
      EXPECT_EQ(role, roles.at(control->objectName()));
    }
  };
  expectRoles(main, *form);
  for (ValueLabel& plot : program.graphStyle.lblPlot)
    plot.caption = "Load" + std::to_string(plot.index());
  forEachDialog(expectRoles);
  EXPECT_EQ(found, roles.size());
  std::ranges::sort(names);
  EXPECT_EQ(names, formNames());
  EXPECT_EQ(reader(*find("cmdClose")).text(QAccessible::Name), QStringLiteral("Fermer"));
  main.lblMeasure(3).caption = "Vpp(1) 2.00 V";
  EXPECT_TRUE(reader(*find("lblMeasure_3"))
                  .text(QAccessible::Name)
                  .endsWith(QStringLiteral(" 4: Vpp(1) 2.00 V")));
}

TEST_F(AccessibilityTest, WhatChangesIsTold) {
  // That it is pale until it has been sent is told, too.
  main.slideTime.drag(1);
  heard.clear();
  main.knobChan1.turn(7);
  heard.erase(std::unique(heard.begin(), heard.end()), heard.end());
  EXPECT_EQ(heard, (Lines{"knobChan1 = 7", "knobChan1: 500 mV"}));
  for (const auto& [detent, text] : std::map<int, std::string>{
           {0, "2 ns"}, {5, "100 ns"}, {8, "1 \u00b5s"}, {16, "500 \u00b5s"}, {28, "5 s"}}) {
    main.knobTime.turn(detent);
    EXPECT_EQ(said(*find("knobTime")), text);
  }
  heard.clear();
  for (const auto key : {Qt::Key_2, Qt::Key_Q, Qt::Key_Return, Qt::Key_Escape})
    QTest::keyClick(find("knobTime"), key, Qt::NoModifier);
  EXPECT_EQ(heard, (Lines{"knobTime: 2", "knobTime: 2q is no value", "knobTime: 2q is no value",
                          "knobTime: 5 s"}));
  heard.clear();
  for (const auto key : {Qt::Key_Period, Qt::Key_Return, Qt::Key_5, Qt::Key_Escape})
    QTest::keyClick(find("knobTime"), key, Qt::NoModifier);
  EXPECT_EQ(heard,
            (Lines{"knobTime: .", "knobTime: . is no value", "knobTime: .5", "knobTime: 5 s"}));
  heard.clear();
  for (const auto key : {Qt::Key_Period, Qt::Key_5, Qt::Key_Return})
    QTest::keyClick(find("knobTime"), key, Qt::NoModifier);
  heard.resize(4);
  EXPECT_EQ(heard, (Lines{"knobTime: .", "knobTime: .5", "knobTime = 25", "knobTime: 500 ms"}));
  heard.clear();
  main.slideTime.drag(1.5);
  EXPECT_EQ(heard, (Lines{"slideTime = 1.5", "slideTime: 1.50 Div"}));
  heard.clear();
  main.lblConnect.caption = "Stopped";
  EXPECT_EQ(heard, Lines{"spConnect: Stopped"});
  heard.clear();
  GraphMarks marks;
  marks.banner.text = "Stopped";
  main.graphDSO.marks = [marks] { return marks; };
  main.graphDSO.notifyChanged();
  main.lblAge.caption = "CH1: live";
  QApplication::processEvents();
  main.graphDSO.notifyChanged();
  QApplication::processEvents();
  EXPECT_EQ(heard, Lines{"graphDSO: Stopped. CH1: live"});
}

TEST_F(AccessibilityTest, ReaderTurnsAndTicksAsTheUserDoes) {
  QAccessibleValueInterface* knob = reader(*find("knobTime")).valueInterface();
  EXPECT_EQ(knob->maximumValue(), 28);
  knob->setCurrentValue(18);
  EXPECT_EQ(main.knobTime.value(), 18);
  QAccessibleValueInterface* slide = reader(*find("slideTrig")).valueInterface();
  slide->setCurrentValue(99);
  EXPECT_EQ(main.slideTrig.value(), slide->maximumValue().toDouble());
  EXPECT_FALSE(takeWire().empty());
  EXPECT_EQ(takeWire(), Lines());
  const auto toggle = [this](const char* name) {
    reader(*find(name)).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  };
  for (const int value : {1, 0}) {
    toggle("cbCh2");
    EXPECT_EQ(takeWire(), Lines{":CHAN2:DISP " + std::to_string(value)});
  }
  const bool isLocked = main.cmdLock.value();
  toggle("cmdLock");
  EXPECT_EQ(find("cmdLock")->property("checked").toBool(), isLocked);
  for (const char* option : {"opVoltage", "opTime"}) {
    toggle(option);
    EXPECT_EQ(main.opTime.value(), option == std::string("opTime"));
    EXPECT_TRUE(main.graphDSO.cursor("cur1").visible());
  }
}

/// The mark adds to what the widget says of itself.
TEST_F(AccessibilityTest, MarkKeepsTheDescription) {
  const QString own = QStringLiteral("Sum or difference of the channels");
  for (const auto& [trust, said] :
       {std::pair(Trust::unread, own + ". The instrument may have another value"),
        {Trust::holds, own},
        {Trust::stale, own + ". The instrument may have another value"},
        {Trust::holds, own}}) {
    main.cbMath.trust = [told = trust] { return told; };
    main.cbMath.notifyChanged();
    EXPECT_EQ(reader(*find("cbMath")).text(QAccessible::Description), said);
  }
  // The mark of a slide stands on its caption, which gets no focus.
  main.slideTrig.trust = [] { return Trust::unread; };
  main.slideTrig.notifyChanged();
  const QString described = reader(*find("slideTrig")).text(QAccessible::Description);
  EXPECT_TRUE(described.endsWith(QStringLiteral("The instrument may have another value")));
  EXPECT_TRUE(described.startsWith(QStringLiteral("0.00 V. ")));
}

/// Of each group one can be reached with Tab, and the arrow keys go round it.
TEST_F(AccessibilityTest, OptionsAreOneGroup) {
  const auto tryOptions = [](Window& window, QWidget& shown) {
    shown.show();
    shown.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&shown));
    std::map<std::string, std::vector<OptionButton*>> groups;
    for (Control* control : window.controls())
      if (auto* option = dynamic_cast<OptionButton*>(control))
        groups[option->group()].push_back(option);
    for (const auto& [name, options] : groups) {
      SCOPED_TRACE(name);
      const auto button = [&shown](const OptionButton* option) {
        return shown.findChild<QRadioButton*>(toQt(option->objectName()));
      };
      const auto tabStops = [&button, &all = options] {
        return std::ranges::count_if(all, [&button](const OptionButton* option) {
          return (button(option)->focusPolicy() & Qt::TabFocus) != 0;
        });
      };
      EXPECT_EQ(tabStops(), 1);
      options[0]->select();
      button(options[0])->setFocus(Qt::TabFocusReason);
      std::set<std::string> selected = {options[0]->objectName()};
      for (std::size_t i = 0; i < options.size(); ++i) {
        const QWidget* before = shown.focusWidget();
        QTest::keyClick(shown.focusWidget(), Qt::Key_Down);
        if (shown.focusWidget() == before) QTest::keyClick(shown.focusWidget(), Qt::Key_Right);
        const auto now = std::ranges::find_if(options, [](OptionButton* o) { return o->value(); });
        ASSERT_NE(now, options.end());
        EXPECT_EQ(shown.focusWidget(), button(*now));
        selected.insert((*now)->objectName());
      }
      EXPECT_GE(selected.size(), 2u);
      EXPECT_EQ(tabStops(), 1);
    }
  };
  tryOptions(main, *form);
  forEachDialog(tryOptions);
  // A click that is refused leaves all as they were.
  main.opTime.select();
  main.opVoltage.enabled = false;
  find<QRadioButton>("opVoltage")->setEnabled(true);
  find<QRadioButton>("opVoltage")->click();
  EXPECT_TRUE(find<QRadioButton>("opTime")->isChecked());
  for (OptionButton* option : {&main.opOff, &main.opTime, &main.opVoltage})
    option->value.setQuietly(false);
  EXPECT_FALSE(find<QRadioButton>("opTime")->isChecked());
}

}  // namespace
}  // namespace tracewell
