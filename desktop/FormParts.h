// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QWidget>

#include "Control.h"
#include "QtValues.h"
#include "Window.h"

namespace tracewell {

/// The objects of a form by their names. They are looked for once: a form has hundreds.
class FormParts {
 public:
  explicit FormParts(QWidget& form) : form(form) {
    for (QObject* part : form.findChildren<QObject*>()) parts_.insert(part->objectName(), part);
  }

  /// Null without one of that name and kind.
  template <class Object>
  Object* find(const std::string& name) const {
    return qobject_cast<Object*>(parts_.value(toQt(name)));
  }

  /// The one that stands for a control.
  template <class Object>
  Object* of(const Control& control) const {
    if (auto* object = find<Object>(control.objectName())) return object;
    throw Error(invalidProcedureCall, "Tracewell",
                "The form of " + control.owner().name() + " has no proper " + control.objectName());
  }

  QWidget& form;

 private:
  QHash<QString, QObject*> parts_;
};

}  // namespace tracewell
