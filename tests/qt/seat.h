// Programs on the samples, in memory: one on the window without a toolkit, one in real widgets, and one that is used by
// somebody who does not wait.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "qt/qt_player.h"
#include "support/memory_system.h"
#include "support/watched_system.h"

namespace support {

struct Samples {
  Samples() {
    for (const auto& entry : std::filesystem::directory_iterator(SAMPLES)) {
      std::ifstream file(entry.path(), std::ios::binary);
      system.add(entry.path().filename().string(), {std::istreambuf_iterator<char>(file), {}});
    }
  }
  MemorySystem system;
  WatchedSystem watched{system};
};

struct PlainSeat : Samples, player::Player {
  PlainSeat() : Player(watched) {}
};

struct QtSeat : Samples, player::QtPlayer {
  QtSeat() : QtPlayer(watched) {}
  void load() {
    play("load");
    settle();
  }
  void settle() { EXPECT_EQ(differences(), ""); }
};

// Puts the events in line at once, on a disk that answers slowly; nothing settles between them.
class HastySeat final : public QtSeat {
 public:
  void be_slow() {
    watched.before = [](const CallInfo& info) {
      if (info.call == Call::OpenRead) std::this_thread::sleep_for(std::chrono::milliseconds(2));
      return std::nullopt;
    };
  }

 protected:
  void do_select(const player::Event& event) override { press(list()->viewport(), middle(event.entry)); }
  void do_click(const player::Event& event) override {
    press(window.widget(event.control), window.widget(event.control)->rect().center());
  }
  void do_pick(const player::Event& event) override { key(window.widget(event.control), Qt::Key_Down); }
  void do_type(const player::Event& event) override {
    key(edit(event.control), Qt::Key_A, Qt::ControlModifier);
    for (const QChar character : ui::qt::from_bytes(event.text)) key(edit(event.control), 0, {}, character);
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
