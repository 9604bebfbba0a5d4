// SPDX-License-Identifier: GPL-3.0-or-later
#include "Modules.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>

#include "QtValues.h"

namespace tracewell {
namespace {

Error moduleError(int number, const QString& name, const QString& reason) {
  return {number, "Tracewell", "Cannot load " + fromQt(name) + " (" + fromQt(reason) + ")"};
}

/// Where it is, else where it should be. The system's endings of the name are the loader's.
QString placeOf(const QString& name) {
  const QString own = QCoreApplication::applicationDirPath();
  const QString installed = own + QStringLiteral("/../lib/tracewell");
  return (QFileInfo::exists(installed) ? installed : own) + QLatin1Char('/') + name;
}

/// Of a module that is linked into the program; none otherwise.
QObject* linkedModule(const QString& name) {
  for (const QStaticPlugin& plugin : QPluginLoader::staticPlugins())
    if (plugin.metaData().value(QStringLiteral("IID")).toString() == name) return plugin.instance();
  return nullptr;
}

}  // namespace

QObject& moduleObject(const QString& name, int errorNumber) {
  if (QObject* const linked = linkedModule(name)) return *linked;
  QPluginLoader loader(placeOf(name));
  if (QObject* const object = loader.instance()) return *object;
  throw moduleError(errorNumber, name, loader.errorString());
}

Error foreignModule(const QString& name, int errorNumber) {
  return moduleError(errorNumber, name,
                     QStringLiteral("it belongs to another version of the program"));
}

}  // namespace tracewell
