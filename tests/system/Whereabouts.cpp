// SPDX-License-Identifier: GPL-3.0-or-later
/// Tells the system tests where the program's objects are on the screen. It is a plug-in of Qt,
/// loaded by QT_QPA_GENERIC_PLUGINS=whereabouts:SOCKET into the program as it is shipped.
///
/// A line "frmSave.cmdOK" is answered by a line "X Y WIDTH HEIGHT TEXT"; by an empty one as long as
/// no click of the user reaches the object.

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QGenericPlugin>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>

namespace {

QWidget* shownForm(const QString& name) {
  for (QWidget* form : QApplication::topLevelWidgets())
    if (form->isVisible() && form->objectName() == name) return form;
  return nullptr;
}

template <class Bar>
QRect placeIn(QObject* object, QAction& action) {
  auto* bar = qobject_cast<Bar*>(object);
  if (bar == nullptr || !bar->isVisible()) return {};
  const QRect entry = bar->actionGeometry(&action);
  return {bar->mapToGlobal(entry.topLeft()), entry.size()};
}

/// Of its entry in an open menu or a menu bar.
QRect placeOf(QAction& action) {
  QRect place;
  for (QObject* object : action.associatedObjects())
    place |= placeIn<QMenu>(object, action) | placeIn<QMenuBar>(object, action);
  return action.isEnabled() ? place : QRect();
}

QRect placeOf(const QWidget& widget) {
  QSize size = widget.size();
  // The rest of their width takes no click.
  if (qobject_cast<const QCheckBox*>(&widget) || qobject_cast<const QRadioButton*>(&widget))
    size = size.boundedTo(widget.sizeHint());
  const QRect place(widget.mapToGlobal(QPoint()), size);
  const QWidget* top = QApplication::widgetAt(place.center());
  const bool isReached = top == &widget || widget.isAncestorOf(top);
  return isReached && widget.isEnabled() ? place : QRect();
}

QByteArray answer(const QString& question) {
  const QString name = question.section(QLatin1Char('.'), 0, 0);
  const QString part = question.section(QLatin1Char('.'), 1);
  QObject* object = shownForm(name);
  if (object != nullptr && !part.isEmpty()) object = object->findChild<QObject*>(part);
  if (auto* menu = qobject_cast<QMenu*>(object)) object = menu->menuAction();
  QRect place;
  if (auto* action = qobject_cast<QAction*>(object)) place = placeOf(*action);
  if (auto* widget = qobject_cast<QWidget*>(object)) place = placeOf(*widget);
  if (place.isEmpty()) return {};
  QVariant text = object->property("text");
  if (!text.isValid()) text = object->property("plainText");
  return QStringLiteral("%1 %2 %3 %4 %5")
      .arg(place.x())
      .arg(place.y())
      .arg(place.width())
      .arg(place.height())
      .arg(text.toString().simplified())
      .toUtf8();
}

class Whereabouts : public QLocalServer {
 public:
  explicit Whereabouts(const QString& socket) {
    connect(this, &QLocalServer::newConnection, this, [this] {
      QLocalSocket* test = nextPendingConnection();
      connect(test, &QLocalSocket::disconnected, test, &QObject::deleteLater);
      connect(test, &QLocalSocket::readyRead, test, [test] {
        while (test->canReadLine())
          test->write(answer(QString::fromUtf8(test->readLine()).trimmed()) + '\n');
      });
    });
    // Of a program that was killed.
    removeServer(socket);
    if (!listen(socket)) qFatal("No socket %s", qPrintable(socket));
  }
};

class WhereaboutsPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "Whereabouts.json")

 public:
  QObject* create(const QString&, const QString& socket) override {
    return new Whereabouts(socket);
  }
};

}  // namespace

#include "Whereabouts.moc"
