// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopWindows.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QMainWindow>
#include <QMenuBar>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <algorithm>

#include "Accessible.h"
#include "Binder.h"
#include "Control.h"
#include "DesktopWords.h"
#include "Forms.h"
#include "ManualEntry.h"
#include "QtValues.h"
#include "ShownText.h"
#include "ThemeMenu.h"
#include "Window.h"

namespace tracewell {
namespace {

/// The chosen option of a group stands for the others.
QWidget& chosenLike(QWidget& stop) {
  if (qobject_cast<QRadioButton*>(&stop) == nullptr) return stop;
  for (auto* option : stop.parentWidget()->findChildren<QRadioButton*>())
    if (option->isChecked() && option->isEnabled()) return *option;
  return stop;
}

/// Where the user begins, whatever had the focus when the form was last closed.
void focusFirst(QWidget& form) {
  for (QWidget* next = form.nextInFocusChain(); next != &form; next = next->nextInFocusChain()) {
    const bool isStop = (next->focusPolicy() & Qt::TabFocus) != 0 && next->isEnabledTo(&form);
    if (isStop && next->isVisibleTo(&form) && next->focusProxy() == nullptr)
      return chosenLike(*next).setFocus(Qt::TabFocusReason);
  }
}

/// At the right, over the controls, which are out of reach meanwhile: the traces and what the
/// banner says of them can be seen. Nothing of it leaves the screen.
void placeBesideTraces(QDialog& dialog) {
  const QWidget* const main = dialog.parentWidget();
  if (main == nullptr || !main->isVisible()) return;
  constexpr int margin = 12;
  constexpr int titleBar = 40;
  dialog.ensurePolished();
  const QSize size = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : dialog.sizeHint();
  const QRect room = main->geometry() & main->screen()->availableGeometry();
  const int left = std::max(room.right() - margin - size.width(), room.left());
  int bottom = room.center().y() + size.height() / 2;
  // What the user reads while the dialog is open.
  const QString read = dialog.property("leavesFree").toString();
  if (const auto* const free = main->findChild<const QWidget*>(read); free && !read.isEmpty())
    bottom = std::min(bottom, free->mapToGlobal(QPoint()).y() - titleBar);
  dialog.move(left, std::max(bottom - size.height(), room.top()));
}

}  // namespace

/// A window's widget. Its title bar's button and Escape ask the window to close; the widget itself
/// only ever goes when the window says so.
class DesktopWindows::Form : public QObject {
 public:
  Form(Window& window, QWidget* parent, DesktopWindows& windows) : window_(window) {
    widget_ = makeForm(window.name(), parent);
    bindControls(window, *widget_);
    window.changed = [this] { widget_->setWindowTitle(shownTitle(window_.caption())); };
    window.changed();
    widget_->installEventFilter(this);
    if (isMain()) {
      reachMenusByKey();
      new ManualEntry(*widget_->findChild<QMenu*>(QStringLiteral("mnbHelp")),
                      [&windows](const QString& file) {
                        if (windows.manualRefused) windows.manualRefused(file);
                      });
      new ThemeMenu(*widget_->findChild<QMenu*>(QStringLiteral("mnbView")), windows.state_.theme(),
                    [&windows](Theme theme) { windows.use(theme); });
    }
  }
  ~Form() override {
    window_.changed = {};
    unbindControls(window_);
    widget_->removeEventFilter(this);
    widget_->hide();
    // Possibly in the middle of one of its own events.
    // What it still loses, as the focus, must not reach controls that may be gone by then. That it
    // is gone itself is told nevertheless, to those who read the screen.
    for (QObject* part : widget_->findChildren<QObject*>()) part->blockSignals(true);
    widget_.release()->deleteLater();
  }

  QWidget& widget() { return *widget_; }
  QDialog& dialog() { return *qobject_cast<QDialog*>(widget_.get()); }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::LanguageChange) sayAgain();
    const bool isEscape = event->type() == QEvent::KeyPress && !isMain() &&
                          static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (!isEscape && event->type() != QEvent::Close) return false;
    event->ignore();
    if (isMain())
      window_.closeForGood();
    else
      window_.close();
    return true;
  }

  bool isMain() const { return mainWindow() != nullptr; }

 private:
  QMainWindow* mainWindow() const { return qobject_cast<QMainWindow*>(widget_.get()); }

  /// The parts of the form are told of the language behind this.
  void sayAgain() {
    sayInLanguage(*widget_);
    QTimer::singleShot(0, this, [this] { tellTips(*widget_); });
  }

  /// The captions of the menus come from files and name no keys.
  void reachMenusByKey() {
    auto* const key = new QShortcut(Qt::Key_F10, widget_.get());
    QMenuBar* const menus = mainWindow()->menuBar();
    connect(key, &QShortcut::activated, menus,
            [menus] { menus->setActiveAction(menus->actions().value(0)); });
  }

  Window& window_;
  std::unique_ptr<QWidget> widget_;
};

DesktopWindows::DesktopWindows(const std::filesystem::path& programFolder) : state_(programFolder) {
  applyTheme(*qApp, state_.theme());
}
DesktopWindows::~DesktopWindows() = default;

QWidget* DesktopWindows::widgetOf(const Control& control) const {
  const auto form = forms_.find(&control.owner());
  if (form == forms_.end()) return nullptr;
  return form->second->widget().findChild<QWidget*>(toQt(control.objectName()));
}

void DesktopWindows::unloadAll() {
  forms_.clear();
}

QWidget* DesktopWindows::mainForm() const {
  for (const auto& [window, form] : forms_)
    if (form->isMain()) return &form->widget();
  return nullptr;
}

DesktopWindows::Form& DesktopWindows::formOf(Window& window) {
  const auto known = forms_.find(&window);
  if (known != forms_.end()) return *known->second;
  auto form = std::make_unique<Form>(window, mainForm(), *this);
  if (form->isMain()) {
    state_.restore(form->widget());
    if (mainMade) mainMade(form->widget());
  }
  return *forms_.emplace(&window, std::move(form)).first->second;
}

void DesktopWindows::use(Theme theme) {
  state_.setTheme(theme);
  applyTheme(*qApp, theme);
  if (const QWidget* form = mainForm()) state_.keep(*form);
}

void DesktopWindows::showModal(Window& window) {
  QDialog& dialog = formOf(window).dialog();
  focusFirst(dialog);
  placeBesideTraces(dialog);
  dialog.exec();
}

void DesktopWindows::show(Window& window) {
  formOf(window).widget().show();
}

void DesktopWindows::hide(Window& window) {
  if (forms_.contains(&window)) formOf(window).widget().hide();
}

void DesktopWindows::repaint(Window& window) {
  if (!forms_.contains(&window)) return;
  QWidget& widget = formOf(window).widget();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  widget.repaint();
}

void DesktopWindows::unload(Window& window) {
  const auto found = forms_.find(&window);
  if (found == forms_.end()) return;
  const bool wasMain = found->second->isMain();
  if (wasMain) state_.keep(found->second->widget());
  forms_.erase(found);
  if (wasMain) QCoreApplication::quit();
}

}  // namespace tracewell
