// A person who uses the real window by real messages, which the window takes from its queue. After each event no shown
// control may lie over another. Besides what every window takes:
//
//   scale: tells the dots an inch      wait MILLISECONDS
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

#include "player/window_player.h"
#include "ui/win32/main_window.h"

namespace player {

// What a program does before all else: on a desktop of its own, or those that run at the same time take the focus from it.
bool sit_down();

class Win32Player : public WindowPlayer {
 public:
  explicit Win32Player(file::System& system) : WindowPlayer(system) {}

  void settle() override;
  std::string differences() override;
  bool is_cut(int control) override;
  HWND edit(int control) const;  // of a text or combo box
  void press_key(const std::string& key);

  ui::win32::MainWindow window{form};

 protected:
  void do_load() override;
  void do_select(const Event& event) override;
  void do_pick(const Event& event) override;
  void do_type(const Event& event) override;
  void do_click(const Event& event) override;
  void do_close() override;
  bool do_other(const Deed& deed) override;
  int focused() override;
  bool is_open() override { return ::IsWindowVisible(window.handle()) != 0; }

 private:
  HWND list() const { return window.control(app::lstReactions); }
  void click(HWND target, POINT at);

  std::map<int, std::vector<std::string>> entries_;  // as shown when they were other ones: to read them takes wine long
};

}  // namespace player
