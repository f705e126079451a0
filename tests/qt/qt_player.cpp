// Does a person's part to widgets of Qt.
#include "qt/qt_player.h"

#include <QAccessible>
#include <QClipboard>
#include <QHelpEvent>
#include <QKeySequence>
#include <QToolTip>
#include <QWheelEvent>
#include <iostream>

namespace player {
namespace {

void post_click(QWidget* widget, const QPoint& at) {
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
    QApplication::postEvent(widget, new QMouseEvent(type, at, widget->mapToGlobal(at), Qt::LeftButton,
                                                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {}));
}

void post_key(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
    QApplication::postEvent(widget, new QKeyEvent(type, key, modifiers, text));
}

void describe(QWidget* widget) {
  QHelpEvent asked(QEvent::ToolTip, widget->rect().center(), widget->mapToGlobal(widget->rect().center()));
  QToolTip::showText({}, "none");  // one that is hidden goes only in a while
  QApplication::sendEvent(widget, &asked);
  const QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(widget);
  std::cout << "name [" << read->text(QAccessible::Name).toStdString() << "] description ["
            << read->text(QAccessible::Description).toStdString() << "] tooltip [" << QToolTip::text().toStdString() << "]";
  const QPalette& colors = widget->palette();
  if (colors.color(QPalette::WindowText) == colors.color(QPalette::Active, QPalette::Highlight)) std::cout << " lit";
  for (const auto& [label, relation] : read->relations(QAccessible::Label))
    std::cout << " label [" << label->text(QAccessible::Name).toStdString() << "]";
  std::cout << '\n';
}

}  // namespace

QPoint QtPlayer::middle(int entry) {
  const QModelIndex index = list()->model()->index(entry, 0);
  list()->scrollTo(index);
  return list()->visualRect(index).center();
}

QLineEdit* QtPlayer::edit(int control) {
  auto* combo = qobject_cast<QComboBox*>(window.widget(control));
  return combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(window.widget(control));
}

void QtPlayer::do_load() {
  Player::do_load();
  window.push();
  window.setVisible(!form.window().ended);
}

void QtPlayer::do_select(const Event& event) {
  if (hasty_) return post_click(list()->viewport(), middle(event.entry));
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, middle(event.entry));
}

void QtPlayer::do_pick(const Event& event) {
  if (hasty_) return post_key(window.widget(event.control), Qt::Key_Down);
  auto* combo = qobject_cast<QComboBox*>(window.widget(event.control));
  combo->showPopup();
  const QModelIndex index = combo->model()->index(event.entry, 0);
  combo->view()->scrollTo(index);
  QTest::mouseClick(combo->view()->viewport(), Qt::LeftButton, {}, combo->view()->visualRect(index).center());
}

void QtPlayer::do_type(const Event& event) {
  QLineEdit* edit = this->edit(event.control);
  if (hasty_) {
    post_key(edit, Qt::Key_A, Qt::ControlModifier);
    for (const QChar character : ui::qt::from_bytes(event.text)) post_key(edit, 0, {}, character);
    return;
  }
  edit->setFocus();
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClicks(edit, ui::qt::from_bytes(event.text));
}

void QtPlayer::do_click(const Event& event) {
  QWidget* const button = window.widget(event.control);
  if (QAction* action = window.action(event.control))
    action->trigger();
  else
    hasty_ ? post_click(button, button->rect().center()) : QTest::mouseClick(button, Qt::LeftButton);
}

bool QtPlayer::do_other(const Deed& deed) {
  const auto& [verb, what, how, text, control] = deed;
  QWidget* const focus = QApplication::focusWidget();
  QWidget* const viewport = list()->viewport();
  QWidget* const widget = window.widget(control);
  const auto at = [&](const std::string& place) {
    return place == "empty" ? QPoint(viewport->width() / 2, viewport->height() - 3) : middle(std::stoi(place));
  };
  if (verb == "focus") {
    widget->setFocus();
  } else if (verb == "key") {
    const QKeyCombination key = QKeySequence(QString::fromStdString(what))[0];
    QTest::keyClick(focus, key.key(), key.keyboardModifiers());
  } else if (verb == "keys") {
    QTest::keyClicks(focus, ui::qt::from_bytes(what));
  } else if (verb == "paste") {
    QApplication::clipboard()->setText(QString::fromStdString(what));
    qobject_cast<QLineEdit*>(focus)->paste();
    std::cout << "tooltip [" << QToolTip::text().toStdString() << "]\n";
  } else if (verb == "mouse" && how == "Double") {
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, at(what));
  } else if (verb == "mouse") {
    QTest::mouseClick(viewport, how == "Right" ? Qt::RightButton : Qt::LeftButton,
                      how == "Ctrl" ? Qt::ControlModifier : Qt::NoModifier, at(what));
  } else if (verb == "drag") {
    QTest::mousePress(viewport, Qt::LeftButton, {}, at(what));
    QTest::mouseMove(viewport, at(how));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, at(how));
  } else if (verb == "wheel") {
    QWheelEvent wheel({5, 5}, widget->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &wheel);
  } else if (verb == "cursor") {
    std::cout << "cursor " << qobject_cast<QLineEdit*>(widget)->cursorPosition() << '\n';
  } else if (verb == "dictate") {
    QAccessible::queryAccessibleInterface(widget)->setText(QAccessible::Value, QString::fromStdString(how));
  } else if (verb == "dialog") {
    play_dialog(&window, what, text, QString::fromStdString(how));
    window.activateWindow();
  } else if (verb == "current") {
    list()->setCurrentIndex(list()->model()->index(std::stoi(what), 0));
  } else if (verb == "press") {
    qobject_cast<QPushButton*>(widget)->click();
  } else if (verb == "describe") {
    describe(widget);
  } else if (verb == "resize") {
    window.resize(window.size() * std::stod(what));
  } else {
    return false;
  }
  return true;
}

int QtPlayer::focused() {
  for (int i = 0; i < app::kControls; ++i)
    if (window.widget(i) != nullptr && window.widget(i) == QApplication::focusWidget()) return i;
  return -1;
}

bool QtPlayer::is_cut(int control) {
  const auto* caption = dynamic_cast<ui::qt::Caption*>(window.widget(control));
  const bool path = app::window_def().controls[static_cast<std::size_t>(control)].path;
  return caption != nullptr && caption->is_shortened() && !path;
}

std::string QtPlayer::differences() {
  std::string all;
  for (int i = 0; i < app::kControls; ++i) {
    QWidget* widget = window.widget(i);
    if (widget == nullptr) continue;
    const ui::Control& value = form.window()[i];
    const auto* combo = qobject_cast<QComboBox*>(widget);
    const QAbstractItemModel* model = combo != nullptr ? combo->model() : widget == list() ? list()->model() : nullptr;
    std::vector<std::string> entries;
    for (int j = 0; model != nullptr && j < model->rowCount(); ++j)
      entries.push_back(ui::qt::to_bytes(model->index(j, 0).data().toString()));
    const int selected = widget == list() ? list()->selected() : value.selected;
    const QVariant text = combo != nullptr ? combo->currentText() : widget->property("text");
    if (widget->isHidden() == value.shown || entries != value.entries || selected != value.selected ||
        (text.isValid() && ui::qt::to_bytes(text.toString()) != value.text))
      all += " " + app::window_def().controls[static_cast<std::size_t>(i)].name;
  }
  return all;
}

}  // namespace player
