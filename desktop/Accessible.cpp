// SPDX-License-Identifier: GPL-3.0-or-later
#include "Accessible.h"

#include <QAccessibleWidget>
#include <QLabel>

#include "Graph.h"
#include "GraphView.h"
#include "KnobWidget.h"
#include "LampWidget.h"
#include "LineWidget.h"
#include "PictureWidget.h"
#include "ShownText.h"
#include "SlideWidget.h"
#include "UnreadMark.h"

namespace tracewell {
namespace {

constexpr const char* toldProperty = "toldDescription";
constexpr const char* roleProperty = "accessibleRole";
constexpr const char* wordsProperty = "accessibleWords";

QString sentences(QStringList parts) {
  parts.removeAll(QString());
  return parts.join(QStringLiteral(". "));
}

QString listed(const std::vector<GraphMarks::Text>& texts) {
  QStringList list;
  for (const GraphMarks::Text& text : texts) list << shownText(text.text, roomOfLine);
  return list.join(QStringLiteral(", "));
}

/// Where the badge has nothing, the read-out, unless it is counted in a scale that does not hold.
QString cursorValues(const Graph& graph, const GraphMarks& marks) {
  const Axis& axis = graph.axis("XAxis");
  const bool areShown = graph.cursor("cur1").visible();
  if (!areShown || !marks.badge.empty() || axis.isPale()) return listed(marks.badge);
  return shownText(axis.caption(), roomOfLine);
}

/// The weightiest first. What is not known has no marks.
QString described(const GraphView& view) {
  const Graph* const graph = view.graph();
  if (graph == nullptr) return {};
  const GraphMarks marks = graph->marks ? graph->marks() : GraphMarks();
  return sentences({shownText(marks.banner.text, roomOfLine), cursorValues(*graph, marks),
                    listed(marks.scales), listed(marks.names),
                    shownText(graph->note(), roomOfLine)});
}

QString agesBeside(const GraphView& view) {
  const auto* ages = view.window()->findChild<const QLabel*>(QStringLiteral("lblAge"));
  return ages != nullptr ? ages->text() : QString();
}

QString wordsOf(const KnobWidget& knob) {
  return knob.inWords();
}
QString wordsOf(const SlideWidget& slide) {
  return slide.inWords();
}
QString wordsOf(const LampWidget& lamp) {
  return lamp.state();
}
QString wordsOf(const GraphView& view) {
  return sentences({described(view), agesBeside(view)});
}

/// One thing, whatever widgets it is made of.
template <class Widget>
class AccessibleThing : public QAccessibleWidget {
 public:
  AccessibleThing(Widget& thing, QAccessible::Role role)
      : QAccessibleWidget(&thing, role), thing_(thing) {}

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return wordsOf(thing_);
    const QString own = QAccessibleWidget::text(kind);
    return kind == QAccessible::Description ? sentences({wordsOf(thing_), own}) : own;
  }
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

 protected:
  Widget& thing_;
};

QVariant minimumOf(const KnobWidget&) {
  return 0;
}
QVariant minimumOf(const SlideWidget& slide) {
  return slide.minimum();
}
QVariant maximumOf(const KnobWidget& knob) {
  return knob.lastDetent();
}
QVariant maximumOf(const SlideWidget& slide) {
  return slide.maximum();
}
QVariant stepOf(const KnobWidget&) {
  return 1;
}
QVariant stepOf(const SlideWidget& slide) {
  return slide.step();
}
void move(KnobWidget& knob, const QVariant& value) {
  knob.turnTo(qRound(value.toDouble()));
}
void move(SlideWidget& slide, const QVariant& value) {
  slide.stepTo(value.toDouble());
}

/// Setting its value turns the widget as the user does.
template <class Widget>
class AccessibleDial : public AccessibleThing<Widget>, public QAccessibleValueInterface {
 public:
  using AccessibleThing<Widget>::AccessibleThing;

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return AccessibleThing<Widget>::interface_cast(type);
  }
  QVariant currentValue() const override { return this->thing_.value(); }
  void setCurrentValue(const QVariant& value) override {
    if (this->thing_.isEnabled()) move(this->thing_, value);
  }
  QVariant minimumValue() const override { return minimumOf(this->thing_); }
  QVariant maximumValue() const override { return maximumOf(this->thing_); }
  QVariant minimumStepSize() const override { return stepOf(this->thing_); }
};

/// Says what the label is about and what it shows.
class AccessibleLabel : public QAccessibleWidget {
 public:
  explicit AccessibleLabel(QLabel& label)
      : QAccessibleWidget(&label, label.property("kind").toString() == QLatin1String("status")
                                      ? QAccessible::StatusBar
                                      : QAccessible::StaticText),
        label_(label) {}

  QString text(QAccessible::Text kind) const override {
    const QString own = QAccessibleWidget::text(kind);
    if (kind != QAccessible::Name || label_.text().isEmpty()) return own;
    return own + QStringLiteral(": ") + label_.text();
  }

 private:
  QLabel& label_;
};

template <template <class> class Interface, class Widget>
QAccessibleInterface* interfaceOf(QObject* object, QAccessible::Role role) {
  auto* widget = qobject_cast<Widget*>(object);
  return widget == nullptr ? nullptr : new Interface<Widget>(*widget, role);
}

QAccessibleInterface* labelInterface(QObject* object) {
  auto* label = qobject_cast<QLabel*>(object);
  if (label == nullptr || label->accessibleName().isEmpty()) return nullptr;
  return new AccessibleLabel(*label);
}

QAccessibleInterface* pictureInterface(QObject* object) {
  const bool isPicture = qobject_cast<PictureWidget*>(object) != nullptr ||
                         qobject_cast<LineWidget*>(object) != nullptr;
  if (isPicture) return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
  if (qobject_cast<UnreadMark*>(object) == nullptr) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::StaticText);
}

class AccessibleFrame : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;
  QString text(QAccessible::Text kind) const override {
    const QVariant words = object()->property(wordsProperty);
    const bool hasWords = kind == QAccessible::Description && words.isValid();
    return hasWords ? words.toString() : QAccessibleWidget::text(kind);
  }
};

QAccessibleInterface* roleInterface(QObject* object) {
  const QVariant role = object->property(roleProperty);
  if (!role.isValid()) return nullptr;
  return new AccessibleFrame(static_cast<QWidget*>(object),
                             static_cast<QAccessible::Role>(role.toInt()));
}

/// The toolkit calls it with the object's class first, then with each base class.
QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
  if (object == nullptr || object->metaObject()->className() != className) return nullptr;
  // The Linux desktop calls an indicator "unknown".
  for (QAccessibleInterface* made :
       {interfaceOf<AccessibleDial, KnobWidget>(object, QAccessible::Dial),
        interfaceOf<AccessibleDial, SlideWidget>(object, QAccessible::Slider),
        interfaceOf<AccessibleThing, LampWidget>(object, QAccessible::Graphic),
        interfaceOf<AccessibleThing, GraphView>(object, QAccessible::Graphic),
        labelInterface(object), pictureInterface(object), roleInterface(object)})
    if (made != nullptr) return made;
  return nullptr;
}

/// Whether anybody listens. Qt tells when that changes.
class Listening : public QAccessible::ActivationObserver {
 public:
  Listening() { QAccessible::installActivationObserver(this); }
  void accessibilityActiveChanged(bool isActive) override { is = isActive; }
  bool is = QAccessible::isActive();
};

bool isHeard() {
  static const Listening listening;
  return listening.is;
}

void tell(QWidget& widget, QAccessible::Event what) {
  QAccessibleEvent event(&widget, what);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

void installAccessible() {
  static const bool isInstalled = [] {
    QAccessible::installFactory(makeInterface);
    isHeard();
    return true;
  }();
  Q_UNUSED(isInstalled);
}

void setRole(QWidget& widget, QAccessible::Role role) {
  widget.setProperty(roleProperty, static_cast<int>(role));
}

void setWords(QWidget& widget, const QString& words) {
  widget.setProperty(wordsProperty, words);
}

/// Qt has kept what it had made for their texts.
void takeNamedLabels(QWidget& form) {
  for (QLabel* label : form.findChildren<QLabel*>())
    if (!label->accessibleName().isEmpty())
      QAccessible::deleteAccessibleInterface(
          QAccessible::uniqueId(QAccessible::queryAccessibleInterface(label)));
}

void tellValue(QWidget& widget) {
  if (!isHeard()) return;
  QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(&widget);
  if (reader == nullptr || reader->valueInterface() == nullptr) return;
  QAccessibleValueChangeEvent event(&widget, reader->valueInterface()->currentValue());
  QAccessible::updateAccessibility(&event);
}

void tellWords(QWidget& widget) {
  if (isHeard()) tell(widget, QAccessible::DescriptionChanged);
}

void setTip(QWidget& widget, const QString& tip) {
  if (tip == widget.toolTip()) return;
  widget.setToolTip(tip);
  tellWords(widget);
}

void tellTips(QWidget& form) {
  if (!isHeard()) return;
  for (QWidget* part : form.findChildren<QWidget*>())
    if (!part->toolTip().isEmpty()) tell(*part, QAccessible::DescriptionChanged);
}

void tellName(QWidget& label) {
  if (isHeard() && !label.accessibleName().isEmpty()) tell(label, QAccessible::NameChanged);
}

void tellGraph(QWidget& graphView) {
  if (!isHeard()) return;
  const QString now = described(static_cast<GraphView&>(graphView));
  if (now == graphView.property(toldProperty).toString()) return;
  graphView.setProperty(toldProperty, now);
  tell(graphView, QAccessible::DescriptionChanged);
}

}  // namespace tracewell
