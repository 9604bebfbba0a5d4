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
#include "FormParts.h"
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

void bind(Label& control, const FormParts& parts) {
  auto* label = parts.of<QLabel>(control);
  showWith(control, label,
           [&control, label] { showInLabel(*label, control.caption(), widestOf(*label)); });
  if (control.doubleClicked) onDoubleClick(label, [&control] { control.doubleClick(); });
}

void bind(ValueLabel& control, const FormParts& parts) {
  auto* label = parts.of<QLabel>(control);
  showWith(control, label,
           [&control, label, &form = parts.form] { showValue(control, *label, form); });
}

void bind(Frame& control, const FormParts& parts) {
  auto* box = parts.of<QGroupBox>(control);
  showWith(control, box, [&control, box] { box->setTitle(shownCaption(control.caption())); });
  if (control.copied) new CopyGestures(*box, [&control] { control.copy(); });
}

/// A button that nothing answers yet is out of reach rather than dead.
void bind(Button& control, const FormParts& parts) {
  auto* button = parts.of<QPushButton>(control);
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

void bind(ValueButton& control, const FormParts& parts) {
  auto* button = parts.of<QAbstractButton>(control);
  showWith(control, button,
           [&control, button] { button->setText(shownCaption(control.caption())); });
  QObject::connect(button, &QAbstractButton::clicked, button, [&control] { control.press(); });
}

void bind(Switch& control, const FormParts& parts) {
  auto* button = parts.of<QAbstractButton>(control);
  showWith(control, button, [&control, button] {
    button->setText(shownCaption(control.caption()));
    button->setChecked(control.value());
  });
  // Not clicked: a screen reader toggles.
  QObject::connect(button, &QAbstractButton::toggled, button, [&control] { control.press(); });
}

void bind(MenuEntry& control, const FormParts& parts) {
  if (auto* menu = parts.find<QMenu>(control.objectName())) {
    showWith(control, menu->menuAction(),
             [&control, menu] { menu->setTitle(shownCaption(control.caption())); });
    return;
  }
  auto* action = parts.of<QAction>(control);
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

void bind(CheckBox& control, const FormParts& parts) {
  auto* box = parts.of<QCheckBox>(control);
  showWith(control, box, [&control, box] {
    box->setText(shownCaption(control.caption()));
    box->setChecked(control.isChecked());
  });
  QObject::connect(box, &QCheckBox::toggled, box, [&control] {
    control.toggle();
    // Also where the program has not taken it.
    control.notifyChanged();
  });
}

void bind(OptionButton& control, const FormParts& parts) {
  auto* button = parts.of<QRadioButton>(control);
  showWith(control, button, [&control, button] {
    button->setText(shownCaption(control.caption()));
    showSelected(*button, control.value());
  });
  selectWhenChosen(*button, control);
}

QStringList shownEntries(const std::vector<std::string>& entries) {
  QStringList shown;
  for (const std::string& entry : entries) shown << shownText(entry, roomOfEntry);
  return shown;
}

void bind(ComboBox& control, const FormParts& parts) {
  auto* box = parts.of<QComboBox>(control);
  showWith(control, box, [&control, box] {
    // A new mark, or a new language, must not take what is being typed.
    if (box->isEditable() && box->hasFocus() && box->lineEdit()->isModified()) return;
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
    box->lineEdit()->setModified(false);
    if (typed != shownText(control.text(), roomOfEditor)) control.type(fromQt(typed));
  });
}

/// The last line is in sight once the box has its size.
void showNewest(QPlainTextEdit& log) {
  log.moveCursor(QTextCursor::End);
  log.moveCursor(QTextCursor::StartOfLine);
  QTimer::singleShot(0, &log, &QPlainTextEdit::ensureCursorVisible);
}

void bind(TextBox& control, const FormParts& parts) {
  if (auto* area = parts.find<QPlainTextEdit>(control.objectName())) {
    showWith(control, area, [&control, area] {
      const bool isLog = area->property("newest").toBool();
      const QString text = (isLog ? shownEnd : shownText)(control.text(), roomOfPage);
      if (area->toPlainText() != text) area->setPlainText(text);
      if (isLog) showNewest(*area);
    });
    new WholeTextCopy(*area);
    return;
  }
  auto* line = parts.of<QLineEdit>(control);
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

void bind(Lamp& control, const FormParts& parts) {
  auto* lamp = parts.of<LampWidget>(control);
  showWith(control, lamp, [&control, lamp] { lamp->setColour(toQt(control.fillColour())); });
}

void bind(Progress& control, const FormParts& parts) {
  auto* bar = parts.of<QProgressBar>(control);
  showWith(control, bar, [&control, bar] { bar->setValue(control.percent()); });
}

void bind(Line& control, const FormParts& parts) {
  auto* line = parts.of<LineWidget>(control);
  showWith(control, line, [&control, line] {
    line->setLine(toQt(control.borderColour()), control.borderStyle() == Line::dotted);
  });
}

void bind(Knob& control, const FormParts& parts) {
  auto* knob = parts.of<KnobWidget>(control);
  QStringList detents;
  for (const std::string& detent : control.detents()) detents << toQt(detent);
  knob->setDetents(detents);
  showWith(control, knob, [&control, knob] { knob->setValue(control.value()); });
  QObject::connect(knob, &KnobWidget::turned, knob,
                   [&control](int detent) { control.turn(detent); });
}

void bind(Slide& control, const FormParts& parts) {
  auto* slide = parts.of<SlideWidget>(control);
  auto* caption = parts.find<QLabel>(control.objectName() + "_caption");
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

void bind(Graph& control, const FormParts& parts) {
  auto* view = parts.of<GraphView>(control);
  view->bind(control);
  // Empty of the controls that are hidden then, these would keep their share of the window.
  for (const char* holder : {"column", "command"})
    if (auto* widget = parts.find<QWidget>(holder))
      QObject::connect(view, &GraphView::enlarged, widget,
                       [widget](bool isEnlarged) { widget->setVisible(!isEnlarged); });
}

/// Enter means the entry at which the keys are, and not one chosen before that the program has
/// kept.
void chooseOnEnter(ListBox& control, QListWidget& list) {
  onEnter(&list, [&control, &list] {
    const int row = list.currentRow();
    if (row < 0 || row == control.chosen()) return false;
    control.choose(row);
    return true;
  });
}

void bind(ListBox& control, const FormParts& parts) {
  auto* list = parts.of<QListWidget>(control);
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
  if (!control.opened) return chooseOnEnter(control, *list);
  const auto open = [&control, list] {
    if (list->currentRow() >= 0) control.open(list->currentRow());
    return true;
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

void bind(Tree& control, const FormParts& parts) {
  auto* tree = parts.of<QTreeWidget>(control);
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

void bind(PictureBox& control, const FormParts& parts) {
  auto* picture = parts.of<PictureWidget>(control);
  showWith(control, picture, [&control, picture] { picture->setPicture(toQt(control.image())); });
  if (control.clicked) picture->setCursor(Qt::CrossCursor);
  QObject::connect(picture, &PictureWidget::clicked, picture,
                   [&control](int x, int y) { control.clickAt(x, y); });
}

template <class... Kinds>
bool bindAsOneOf(Control& control, const FormParts& parts) {
  const auto bindAs = [&](auto* kind) {
    if (kind != nullptr) bind(*kind, parts);
    return kind != nullptr;
  };
  return (bindAs(dynamic_cast<Kinds*>(&control)) || ...);
}

void bindControl(Control& control, const FormParts& parts) {
  const bool isBound = bindAsOneOf<Label, ValueLabel, Frame, Button, ValueButton, Switch, MenuEntry,
                                   CheckBox, OptionButton, ComboBox, TextBox, Line, Lamp, Progress,
                                   Knob, Slide, ListBox, Tree, PictureBox, Graph>(control, parts);
  if (!isBound)
    throw Error(invalidProcedureCall, "Tracewell",
                "Nothing shows a control of the kind of " + control.objectName());
}

}  // namespace

/// The form does not outlive an error, and the controls must not know it then.
void bindControls(Window& window, QWidget& form) {
  try {
    const FormParts parts(form);
    for (Control* control : window.controls()) bindControl(*control, parts);
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
