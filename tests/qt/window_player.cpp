// The player on real widgets, without a display: see play_script(). Besides the events of every story it plays what only
// widgets take, and tells where the focus has gone:
//
//   focus NAME | key KEY | keys TEXT | paste TEXT | cursor NAME | wheel NAME | resize FACTOR | dialog FORM REPLIES [TEXT]
//   mouse PLACE [Ctrl|Right|Double] | drag I I | describe NAME | dictate NAME TEXT | current I | press NAME
//   asked EVENT | haste | settle
//
// KEY as in Ctrl+A; both it and TEXT go to the focus. PLACE is an entry of the list, or "empty", below them. A "dialog" is a
// real one (qt_player.h). "describe" tells what a screen reader reads, with the tooltip, and whether the frame is lit;
// "dictate", "current" (the entry of the list; -1: none) and "press" come from one, and reach also what a message box shuts
// off. What is "asked" is played while the next box stands. In "haste" the events are put in line at once, on a disk that
// answers slowly, until they "settle".
#include <QAccessible>
#include <QClipboard>
#include <QHelpEvent>
#include <QKeySequence>
#include <QToolTip>
#include <QWheelEvent>
#include <chrono>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "qt/qt_player.h"
#include "support/watched_system.h"

namespace {

using player::Event;
using player::QtPlayer;

class CheckedPlayer final : public QtPlayer {
 public:
  explicit CheckedPlayer(support::WatchedSystem& disk) : QtPlayer(disk), disk_(disk) {
    dialogs.report = [this](const std::string& line) {
      std::cout << line << '\n';
      for (const std::string& event : std::exchange(asked_, {}))
        if (!play_other(event)) play(event);
    };
  }

  bool play_other(const std::string& line) override {
    std::istringstream words(line);
    std::string verb, what, how;
    words >> verb >> what >> how;
    QWidget* const focus = QApplication::focusWidget();
    QWidget* const viewport = list()->viewport();
    QWidget* const widget = window.widget(player::find_control(what).value_or(app::lstReactions));
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
      std::string text;
      std::getline(words >> std::ws, text);
      player::play_dialog(&window, what, text, QString::fromStdString(how));
    } else if (verb == "current") {
      list()->setCurrentIndex(list()->model()->index(std::stoi(what), 0));
    } else if (verb == "press") {
      qobject_cast<QPushButton*>(widget)->click();
    } else if (verb == "asked") {
      asked_.push_back(line.substr(6));
    } else if (verb == "haste") {
      disk_.before = [](const support::CallInfo& info) {
        if (info.call == support::Call::OpenRead) std::this_thread::sleep_for(std::chrono::milliseconds(2));
        return std::nullopt;
      };
      hasty_ = true;
    } else if (verb == "settle") {
      hasty_ = false;
    } else if (verb == "describe") {
      describe(widget);
    } else if (verb == "resize") {
      window.resize(window.size() * std::stod(what));
    } else {
      return false;
    }
    after();
    if (QApplication::focusWidget() != focus) std::cout << "focus " << name_of(QApplication::focusWidget()) << '\n';
    return true;
  }

 private:
  void do_select(const Event& event) override {
    hasty_ ? post_click(list()->viewport(), middle(event.entry)) : QtPlayer::do_select(event);
  }
  void do_click(const Event& event) override {
    QWidget* const button = window.widget(event.control);
    hasty_ ? post_click(button, button->rect().center()) : QtPlayer::do_click(event);
  }
  void do_pick(const Event& event) override {
    hasty_ ? post_key(window.widget(event.control), Qt::Key_Down) : QtPlayer::do_pick(event);
  }
  void do_type(const Event& event) override {
    if (!hasty_) return QtPlayer::do_type(event);
    post_key(edit(event.control), Qt::Key_A, Qt::ControlModifier);
    for (const QChar character : ui::qt::from_bytes(event.text)) post_key(edit(event.control), 0, {}, character);
  }
  static void post_click(QWidget* widget, const QPoint& at) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
      QApplication::postEvent(widget, new QMouseEvent(type, at, widget->mapToGlobal(at), Qt::LeftButton,
                                                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {}));
  }
  static void post_key(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
      QApplication::postEvent(widget, new QKeyEvent(type, key, modifiers, text));
  }

  void after() override {
    const bool open = window.isVisible() && !hasty_;
    if (const std::string differing = open ? differences() : ""; !differing.empty())
      std::cout << "the widgets show something else:" << differing << '\n';
    if (open && form.window().ended) std::cout << "the window stays open\n";
    for (int i = 0; open && i < app::kControls; ++i) {
      const auto* caption = dynamic_cast<ui::qt::Caption*>(window.widget(i));
      if (caption != nullptr && caption->is_shortened() && !form.definition().controls[static_cast<std::size_t>(i)].path)
        std::cout << name_of(caption) << " is cut\n";
    }
  }

  static void describe(QWidget* widget) {
    QHelpEvent asked(QEvent::ToolTip, widget->rect().center(), widget->mapToGlobal(widget->rect().center()));
    QToolTip::showText({}, "none");  // one that is hidden goes only in a while
    QApplication::sendEvent(widget, &asked);
    const QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(widget);
    std::cout << "name [" << read->text(QAccessible::Name).toStdString() << "] description ["
              << read->text(QAccessible::Description).toStdString() << "] tooltip [" << QToolTip::text().toStdString()
              << "]";
    const QPalette& colors = widget->palette();
    if (colors.color(QPalette::WindowText) == colors.color(QPalette::Active, QPalette::Highlight)) std::cout << " lit";
    for (const auto& [label, relation] : read->relations(QAccessible::Label))
      std::cout << " label [" << label->text(QAccessible::Name).toStdString() << "]";
    std::cout << '\n';
  }

  std::string name_of(const QWidget* widget) const {
    for (int i = 0; i < app::kControls; ++i)
      if (window.widget(i) != nullptr && window.widget(i) == widget)
        return app::window_def().controls[static_cast<std::size_t>(i)].name;
    return "nowhere";
  }

  support::WatchedSystem& disk_;
  std::vector<std::string> asked_;
  bool hasty_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  support::WatchedSystem disk(file::system());
  CheckedPlayer player(disk);
  return player::play_script(player, argc > 1 && argv[1] == std::string_view("--echo"));
}
