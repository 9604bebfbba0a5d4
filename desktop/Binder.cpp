// SPDX-License-Identifier: GPL-3.0-or-later
#include "Binder.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTimer>
#include <QTreeWidget>

#include "ButtonSigns.h"
#include "Controls.h"
#include "CopyGestures.h"
#include "Dials.h"
#include "Gestures.h"
#include "Graph.h"
#include "GraphView.h"
#include "KnobWidget.h"
#include "Labels.h"
#include "LampWidget.h"
#include "LineWidget.h"
#include "Lists.h"
#include "Options.h"
#include "PictureWidget.h"
#include "QtImages.h"
#include "QtValues.h"
#include "ShownText.h"
#include "SlideWidget.h"
#include "UnreadMark.h"

namespace tracewell {
namespace {

/// The object that stands for a control.
template <class Object>
Object* findObject(const Control& control, QWidget& form) {
  auto* object = form.findChild<Object*>(toQt(control.objectName()));
  if (object == nullptr)
    throw Error(invalidProcedureCall, "Tracewell",
                "The form of " + control.owner().name() + " has no proper " + control.objectName());
  return object;
}

/// Shows the control now and whenever it changes. The signals of its object are held back
/// meanwhile, so that nothing echoes.
template <class Object, class Show>
void showWith(Control& control, Object* object, Show show) {
  control.changed = [&control, object, show] {
    const QSignalBlocker blocker(object);
    object->setVisible(control.visible());
    object->setEnabled(control.enabled());
    show();
    control.painted = control.trust ? control.trust() : Trust::holds;
    if constexpr (std::is_base_of_v<QWidget, Object>) {
      if constexpr (!std::is_same_v<SlideWidget, Object>)
        UnreadMark::show(*object, control.isUnread());
      showPale(*object, control.isStale());
    }
  };
  control.changed();
}

void bind(Label& control, QWidget& form) {
  auto* label = findObject<QLabel>(control, form);
  showWith(control, label,
           [&control, label] { showInLabel(*label, control.caption(), widestOf(*label)); });
  if (control.doubleClicked) onDoubleClick(label, [&control] { control.doubleClick(); });
}

void bind(ValueLabel& control, QWidget& form) {
  auto* label = findObject<QLabel>(control, form);
  showWith(control, label, [&control, label, &form] { showValue(control, *label, form); });
}

void bind(Frame& control, QWidget& form) {
  auto* box = findObject<QGroupBox>(control, form);
  showWith(control, box, [&control, box] { box->setTitle(shownCaption(control.caption())); });
  if (control.copied) new CopyGestures(*box, [&control] { control.copy(); });
}

/// A button that nothing answers yet is out of reach rather than dead.
void bind(Button& control, QWidget& form) {
  auto* button = findObject<QPushButton>(control, form);
  showSign(*button);
  // A new text would take the form's shortcut away.
  showWith(control, button, [&control, button, shortcut = button->shortcut()] {
    button->setText(shownCaption(control.caption()));
    button->setShortcut(shortcut);
    button->setEnabled(control.enabled() && control.click);
    if (const auto colour = control.backColour()) showSwatch(*button, toQt(*colour));
  });
  QObject::connect(button, &QPushButton::clicked, button, [&control] { control.press(); });
}

void bind(ValueButton& control, QWidget& form) {
  auto* button = findObject<QAbstractButton>(control, form);
  showWith(control, button,
           [&control, button] { button->setText(shownCaption(control.caption())); });
  QObject::connect(button, &QAbstractButton::clicked, button, [&control] { control.press(); });
}

void bind(Switch& control, QWidget& form) {
  auto* button = findObject<QAbstractButton>(control, form);
  showWith(control, button, [&control, button] {
    button->setText(shownCaption(control.caption()));
    button->setChecked(control.value());
  });
  QObject::connect(button, &QAbstractButton::clicked, button, [&control] { control.press(); });
}

void bind(MenuEntry& control, QWidget& form) {
  if (auto* menu = form.findChild<QMenu*>(toQt(control.objectName()))) {
    showWith(control, menu->menuAction(),
             [&control, menu] { menu->setTitle(shownCaption(control.caption())); });
    return;
  }
  auto* action = findObject<QAction>(control, form);
  showWith(control, action, [&control, action] {
    action->setText(shownCaption(control.caption()));
    action->setEnabled(control.enabled() && control.click);
    action->setCheckable(control.isChecked());
    action->setChecked(control.isChecked());
  });
  QObject::connect(action, &QAction::triggered, action, [&control] {
    control.choose();
    // The click itself has changed the tick.
    control.notifyChanged();
  });
}

void bind(CheckBox& control, QWidget& form) {
  auto* box = findObject<QCheckBox>(control, form);
  showWith(control, box, [&control, box] {
    box->setText(shownCaption(control.caption()));
    box->setChecked(control.isChecked());
  });
  QObject::connect(box, &QCheckBox::clicked, box, [&control] {
    control.toggle();
    // Also where the program has not taken it.
    control.notifyChanged();
  });
}

void bind(OptionButton& control, QWidget& form) {
  auto* button = findObject<QRadioButton>(control, form);
  showWith(control, button, [&control, button] {
    button->setText(shownCaption(control.caption()));
    showSelected(*button, control.value());
  });
  QObject::connect(button, &QRadioButton::clicked, button, [&control] { selectByUser(control); });
}

QStringList shownEntries(const std::vector<std::string>& entries) {
  QStringList shown;
  for (const std::string& entry : entries) shown << shownText(entry, roomOfEntry);
  return shown;
}

void bind(ComboBox& control, QWidget& form) {
  auto* box = findObject<QComboBox>(control, form);
  showWith(control, box, [&control, box] {
    const QStringList items = shownEntries(control.items());
    QStringList shown;
    for (int i = 0; i < box->count(); ++i) shown << box->itemText(i);
    if (items != shown) {
      box->clear();
      box->addItems(items);
    }
    box->setCurrentIndex(control.listIndex());
    if (box->isEditable()) box->setEditText(shownText(control.text(), roomOfEditor));
  });
  QObject::connect(box, &QComboBox::activated, box,
                   [&control](int index) { control.choose(index); });
  if (!box->isEditable()) return;
  box->setInsertPolicy(QComboBox::NoInsert);
  // What is typed is meant: "3" is not the beginning of port 33.
  box->setCompleter(nullptr);
  keepEditingKeys(*box);
  if (box->property("opensMore").toBool()) takeOnKeys(*box, control);
  QObject::connect(box->lineEdit(), &QLineEdit::textEdited, box,
                   [&control](const QString& typed) { control.edit(fromQt(typed)); });
  QObject::connect(box->lineEdit(), &QLineEdit::editingFinished, box, [&control, box] {
    const QString typed = box->currentText();
    if (typed != shownText(control.text(), roomOfEditor)) control.type(fromQt(typed));
  });
}

/// The last line is in sight once the box has its size.
void showNewest(QPlainTextEdit& log) {
  log.moveCursor(QTextCursor::End);
  log.moveCursor(QTextCursor::StartOfLine);
  QTimer::singleShot(0, &log, &QPlainTextEdit::ensureCursorVisible);
}

void bind(TextBox& control, QWidget& form) {
  if (auto* area = form.findChild<QPlainTextEdit*>(toQt(control.objectName()))) {
    showWith(control, area, [&control, area] {
      const bool isLog = area->property("newest").toBool();
      const QString text = (isLog ? shownEnd : shownText)(control.text(), roomOfPage);
      if (area->toPlainText() != text) area->setPlainText(text);
      if (isLog) showNewest(*area);
    });
    new WholeTextCopy(*area);
    return;
  }
  auto* line = findObject<QLineEdit>(control, form);
  showWith(control, line, [&control, line] {
    if (line->text() != toQt(control.text()))
      line->setText(shownText(control.text(), roomOfEditor));
  });
  keepEditingKeys(*line);
  if (line->property("completed").toBool()) keepCaretAtEnd(*line);
  QObject::connect(line, &QLineEdit::textEdited, line,
                   [&control](const QString& text) { control.type(fromQt(text)); });
  QObject::connect(line, &QLineEdit::returnPressed, line,
                   [&control] { control.pressKey(TextBox::enterKey); });
}

void bind(Lamp& control, QWidget& form) {
  auto* lamp = findObject<LampWidget>(control, form);
  showWith(control, lamp, [&control, lamp] { lamp->setColour(toQt(control.fillColour())); });
}

void bind(Progress& control, QWidget& form) {
  auto* bar = findObject<QProgressBar>(control, form);
  showWith(control, bar, [&control, bar] { bar->setValue(control.percent()); });
}

void bind(Line& control, QWidget& form) {
  auto* line = findObject<LineWidget>(control, form);
  showWith(control, line, [&control, line] {
    line->setLine(toQt(control.borderColour()), control.borderStyle() == Line::dotted);
  });
}

void bind(Knob& control, QWidget& form) {
  auto* knob = findObject<KnobWidget>(control, form);
  QStringList detents;
  for (const std::string& detent : control.detents()) detents << toQt(detent);
  knob->setDetents(detents);
  showWith(control, knob, [&control, knob] { knob->setValue(control.value()); });
  QObject::connect(knob, &KnobWidget::turned, knob,
                   [&control](int detent) { control.turn(detent); });
}

void bind(Slide& control, QWidget& form) {
  auto* slide = findObject<SlideWidget>(control, form);
  auto* caption = form.findChild<QLabel*>(toQt(control.objectName() + "_caption"));
  slide->setRange(control.range().minimum, control.range().maximum, control.range().step);
  showWith(control, slide, [&control, slide, caption] {
    slide->setValue(control.value());
    slide->setInWords(
        shownText(control.caption(), roomOfLine).section(QLatin1Char(':'), 1).trimmed());
    if (caption == nullptr) return;
    const int room = widestOf(*caption) - (control.isUnread() ? UnreadMark::room : 0);
    showInLabel(*caption, control.caption(), room);
    showPale(*caption, control.isStale());
    // On the groove it would cover a place of the handle.
    UnreadMark::show(*caption, control.isUnread(), slide);
  });
  QObject::connect(slide, &SlideWidget::dragged, slide,
                   [&control](double to) { control.drag(to); });
  QObject::connect(slide, &SlideWidget::released, slide, [&control] { control.release(); });
  QObject::connect(slide, &SlideWidget::takenAway, slide, [&control] { control.takeAway(); });
}

void bind(Graph& control, QWidget& form) {
  auto* view = findObject<GraphView>(control, form);
  view->bind(control);
  // Empty of the controls that are hidden then, these would keep their share of the window.
  for (const char* holder : {"column", "command"})
    if (auto* widget = form.findChild<QWidget*>(QLatin1String(holder)))
      QObject::connect(view, &GraphView::enlarged, widget,
                       [widget](bool isEnlarged) { widget->setVisible(!isEnlarged); });
}

void bind(ListBox& control, QWidget& form) {
  auto* list = findObject<QListWidget>(control, form);
  showWith(control, list, [&control, list] {
    const QStringList items = shownEntries(control.items());
    QStringList shown;
    for (int i = 0; i < list->count(); ++i) shown << list->item(i)->text();
    const int reached = items == shown ? list->currentRow() : ListBox::noEntry;
    if (items != shown) {
      list->clear();
      list->addItems(items);
    }
    list->setCurrentRow(control.chosen());
    // Keys go on from an entry that the program did not take.
    if (reached >= 0) list->setCurrentRow(reached, QItemSelectionModel::NoUpdate);
    // As when the focus comes: keys go on from the first entry.
    if (list->currentRow() < 0 && list->hasFocus())
      list->setCurrentRow(0, QItemSelectionModel::NoUpdate);
  });
  QObject::connect(list, &QListWidget::itemClicked, list,
                   [&control, list] { control.choose(list->currentRow()); });
  chooseCurrentFirst(*list);
  onMoveByKey(list, [&control, list] {
    const QList<QListWidgetItem*> selected = list->selectedItems();
    const int row = selected.isEmpty() ? ListBox::noEntry : list->row(selected.first());
    if (row >= 0 && row != control.chosen()) control.choose(row);
  });
  if (!control.opened) return;
  const auto open = [&control, list] {
    if (list->currentRow() >= 0) control.open(list->currentRow());
  };
  QObject::connect(list, &QListWidget::itemDoubleClicked, list, open);
  onEnter(list, open);
}

void fillTree(QTreeWidget& tree, const std::vector<Tree::Node>& nodes) {
  tree.clear();
  std::vector<QTreeWidgetItem*> items;
  for (const Tree::Node& node : nodes) {
    auto* item = new QTreeWidgetItem({shownText(node.text, roomOfEntry)});
    items.push_back(item);
    item->setData(0, Qt::UserRole, static_cast<int>(items.size()));
    if (node.parent > 0)
      items[static_cast<std::size_t>(node.parent) - 1]->addChild(item);
    else
      tree.addTopLevelItem(item);
  }
}

void bind(Tree& control, QWidget& form) {
  auto* tree = findObject<QTreeWidget>(control, form);
  tree->setHeaderHidden(true);
  showWith(control, tree, [&control, tree] { fillTree(*tree, control.nodes()); });
  const auto choose = [&control, tree] {
    if (tree->currentItem() != nullptr)
      control.choose(tree->currentItem()->data(0, Qt::UserRole).toInt());
  };
  QObject::connect(tree, &QTreeWidget::itemClicked, tree, choose);
  chooseCurrentFirst(*tree);
  onMoveByKey(tree, choose);
}

void bind(PictureBox& control, QWidget& form) {
  auto* picture = findObject<PictureWidget>(control, form);
  showWith(control, picture, [&control, picture] { picture->setPicture(toQt(control.image())); });
  if (control.clicked) picture->setCursor(Qt::CrossCursor);
  QObject::connect(picture, &PictureWidget::clicked, picture,
                   [&control](int x, int y) { control.clickAt(x, y); });
}

template <class... Kinds>
bool bindAsOneOf(Control& control, QWidget& form) {
  const auto bindAs = [&](auto* kind) {
    if (kind != nullptr) bind(*kind, form);
    return kind != nullptr;
  };
  return (bindAs(dynamic_cast<Kinds*>(&control)) || ...);
}

void bindControl(Control& control, QWidget& form) {
  const bool isBound = bindAsOneOf<Label, ValueLabel, Frame, Button, ValueButton, Switch, MenuEntry,
                                   CheckBox, OptionButton, ComboBox, TextBox, Line, Lamp, Progress,
                                   Knob, Slide, ListBox, Tree, PictureBox, Graph>(control, form);
  if (!isBound)
    throw Error(invalidProcedureCall, "Tracewell",
                "Nothing shows a control of the kind of " + control.objectName());
}

}  // namespace

/// The form does not outlive an error, and the controls must not know it then.
void bindControls(Window& window, QWidget& form) {
  try {
    for (Control* control : window.controls()) bindControl(*control, form);
  } catch (...) {
    unbindControls(window);
    throw;
  }
}

void unbindControls(Window& window) {
  for (Control* control : window.controls()) {
    control->changed = {};
    auto* graph = dynamic_cast<Graph*>(control);
    if (graph != nullptr && graph->letGo) graph->letGo();
  }
}

}  // namespace tracewell
