// A person at the window: one on the window without a toolkit, one who uses real widgets by real clicks and keys, and one
// who does so without waiting.
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "player/script.h"
#include "player/transcript.h"
#include "support/story.h"
#include "support/watched_system.h"
#include "ui/qt/main_window.h"
#include "ui/qt/text.h"
#include "ui/qt/widgets.h"

namespace support {

using player::Event;
using ui::qt::EntryList;
using ui::qt::MainWindow;

inline void add_samples(MemorySystem& system) {
  for (const auto& entry : std::filesystem::directory_iterator(SAMPLES)) {
    std::ifstream file(entry.path(), std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    system.add(entry.path().filename().string(), content.str());
  }
}

// A program on the samples, on a disk that may be slow, and a hand for it.
class Seat {
 public:
  Seat() { add_samples(system); }
  virtual ~Seat() = default;
  virtual void load() { program.form.load(); }
  virtual void select(int entry) { program.person.select(app::lstReactions, entry); }
  virtual void pick(int control, int entry) { program.person.pick(control, entry); }
  virtual void type(int control, const std::string& text) { program.person.type(control, text); }
  virtual void click(int control) { program.person.click(control); }

  void play(const Event& event) {
    switch (event.kind) {
      case Event::Kind::Load: return load();
      case Event::Kind::AnswerYes: return program.Answer(ui::Answer::Yes);
      case Event::Kind::Choose: return program.Choose(event.text);
      case Event::Kind::Select: return select(event.entry);
      case Event::Kind::Pick: return pick(event.control, event.entry);
      case Event::Kind::Type: return type(event.control, event.text);
      case Event::Kind::Click: return click(event.control);
      default: FAIL() << "an event that this test does not play";
    }
  }
  // The lines of the state in which this one differs from another.
  std::string difference(Seat& other) {
    std::istringstream ours(state()), theirs(other.state());
    std::string all;
    for (std::string a, b; std::getline(ours, a) && std::getline(theirs, b);)
      if (a != b) all += a + " | " + b + "\n";
    return all;
  }
  std::string state() { return player::state_block(program.form.window(), program.form.state()); }

  MemorySystem system;
  WatchedSystem watched{system};
  Program program{watched};
};

class QtSeat : public Seat {
 public:
  void load() override {
    Seat::load();
    window.push(true);
    window.show();
    settle();
  }
  void select(int entry) override {
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, middle(entry));
    settle();
  }
  void pick(int control, int entry) override {
    auto* combo = qobject_cast<QComboBox*>(window.widget(control));
    combo->showPopup();
    const QModelIndex index = combo->model()->index(entry, 0);
    combo->view()->scrollTo(index);
    QTest::mouseClick(combo->view()->viewport(), Qt::LeftButton, {}, combo->view()->visualRect(index).center());
    settle();
  }
  void type(int control, const std::string& text) override {
    QLineEdit* edit = this->edit(control);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, ui::qt::from_bytes(text));
    settle();
  }
  void click(int control) override {
    if (QAction* action = window.action(control))
      action->trigger();
    else
      QTest::mouseClick(window.widget(control), Qt::LeftButton);
    settle();
  }

  void settle() {
    QApplication::processEvents();
    for (int i = 0; i < app::kControls; ++i) compare(i);
  }

  EntryList* list() { return qobject_cast<EntryList*>(window.widget(app::lstReactions)); }
  QPoint middle(int entry) {
    const QModelIndex index = list()->model()->index(entry, 0);
    list()->scrollTo(index);
    return list()->visualRect(index).center();
  }
  QLineEdit* edit(int control) {
    auto* combo = qobject_cast<QComboBox*>(window.widget(control));
    return combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(window.widget(control));
  }

  MainWindow window{program.form};

 private:
  void compare(int control) {
    QWidget* widget = window.widget(control);
    if (widget == nullptr) return;
    const std::string& name = app::window_def().controls[static_cast<std::size_t>(control)].name;
    const ui::Control& value = program.form.window()[control];
    EXPECT_EQ(!widget->isHidden(), value.shown) << name;
    std::string text = value.text;
    std::vector<std::string> entries;
    if (auto* list = qobject_cast<QListView*>(widget)) {
      for (int i = 0; i < list->model()->rowCount(); ++i)
        entries.push_back(ui::qt::to_bytes(list->model()->index(i, 0).data().toString()));
      const auto selected = list->selectionModel()->selectedIndexes();
      EXPECT_EQ(selected.isEmpty() ? -1 : selected.front().row(), value.selected);
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
      for (int i = 0; i < combo->count(); ++i) entries.push_back(ui::qt::to_bytes(combo->itemText(i)));
      text = ui::qt::to_bytes(combo->currentText());
    } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
      text = ui::qt::to_bytes(edit->text());
    } else if (auto* button = qobject_cast<QPushButton*>(widget)) {
      text = ui::qt::to_bytes(button->text());
    } else if (auto* label = qobject_cast<QLabel*>(widget)) {
      text = ui::qt::to_bytes(label->text());
    }
    EXPECT_EQ(text, value.text) << name;
    EXPECT_EQ(entries, value.entries) << name;
  }
};

// The events of a user who does not wait, put in line at once; nothing settles between them.
class HastySeat final : public QtSeat {
 public:
  void load() override {
    QtSeat::load();
    watched.before = [](const CallInfo& info) {
      if (info.call == Call::OpenRead) std::this_thread::sleep_for(std::chrono::milliseconds(2));
      return std::nullopt;
    };
  }
  void select(int entry) override { press(list()->viewport(), middle(entry)); }
  void click(int control) override { press(window.widget(control), window.widget(control)->rect().center()); }
  void pick(int control, int) override { key(window.widget(control), Qt::Key_Down); }
  void type(int control, const std::string& text) override {
    key(edit(control), Qt::Key_A, Qt::ControlModifier);
    for (const QChar character : ui::qt::from_bytes(text)) key(edit(control), 0, {}, character);
  }

 private:
  static void press(QWidget* widget, const QPoint& at) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
      QApplication::postEvent(widget, new QMouseEvent(type, at, widget->mapToGlobal(at), Qt::LeftButton,
                                                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {}));
  }
  static void key(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
      QApplication::postEvent(widget, new QKeyEvent(type, key, modifiers, text));
  }
};

}  // namespace support
