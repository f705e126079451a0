// The window on the screen: builds itself from the form's table of controls, tells the form what the user does, and shows
// what differs from what it showed last.
#pragma once

#include <windows.h>
// Needs what that declares.
#include <commctrl.h>

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "ui/layout.h"
#include "ui/type_ahead.h"
#include "ui/window.h"

struct IAccPropServices;

namespace ui::win32 {

class MainWindow {
 public:
  explicit MainWindow(Form& form);
  ~MainWindow();
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;

  // Shows what the form holds.
  void push();
  void show();
  // Waits for the next message of the system's and handles it; false when the window is gone.
  bool take_message();
  // Handles one, as in the program's own loop.
  void handle(MSG& message);

  HWND handle() const { return window_; }
  // The window of a control; null for a menu item, and as long as it has not been shown.
  HWND control(int control) const { return views_[static_cast<std::size_t>(control)].window; }

 private:
  // A control on the screen.
  struct View {
    HWND window = nullptr;
    std::wstring text{};                 // as shown last
    std::vector<std::string> entries{};  // of a list or combo box
    std::wstring name{};                 // for a screen reader
    bool shown = false;
    Place place{};
    HFONT font = nullptr;
  };

  static LRESULT CALLBACK window_procedure(HWND window, UINT message, WPARAM w, LPARAM l);
  static LRESULT CALLBACK control_procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR id, DWORD_PTR self);
  LRESULT receive(UINT message, WPARAM w, LPARAM l);
  LRESULT receive_in_list(int control, HWND list, UINT message, WPARAM w, LPARAM l);
  bool press(const MSG& message);
  void move_focus(int from, bool back);
  void notified(int control, UINT notice);
  void show_tip(NMTTDISPINFOW& asked);

  void build_menu();
  void build(int control);
  void describe();
  void add_tooltip(HWND control);
  void measure();
  void arrange();
  HFONT font_of(const Font& font, double pixels_per_point);

  void choose(int control, int entry);
  void settle_combo();
  void typed(int control);
  void run(int control);
  void show_entries(int control, const Control& now);
  std::wstring written(int control, std::wstring text) const;
  void show_text(int control, const std::wstring& text);
  void name_boxes();
  void name(int control, const wchar_t* text);
  void widen(int control);

  const ControlDef& def(int control) const { return form_.definition().controls[static_cast<std::size_t>(control)]; }
  View& view(int control) { return views_[static_cast<std::size_t>(control)]; }
  int controls() const { return static_cast<int>(views_.size()); }
  int control_of(HWND window) const;  // also of a part of it; -1: none
  Size area() const;
  Size framed(Size area, UINT dpi) const;

  Form& form_;
  const HBRUSH background_;
  const HWND window_;
  HWND tooltip_ = nullptr;
  HMENU menu_ = nullptr;
  HWND focus_ = nullptr;  // where it was when the window was last in use
  std::vector<View> views_;
  std::vector<int> order_;                              // of the controls, from the first in the focus and above all
  std::map<std::tuple<int, bool, bool>, HFONT> fonts_;  // by height in pixels, bold, italic
  std::optional<Layout> layout_;
  TypeAhead letters_;
  IAccPropServices* names_ = nullptr;
  std::wstring tip_;
  int closing_ = -1;      // a combo box that was closed, until the message that closed it is done with
  bool picked_ = false;   // by a pick from its list
  bool pushing_ = false;  // what changes in the controls is not the user's doing
  bool running_ = false;  // a handler runs, perhaps in a message box: no other may begin
};

}  // namespace ui::win32
