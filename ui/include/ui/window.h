// The window as a value: what it shows is data, which handlers read and write and a toolkit's backend brings to the screen.
//
// A backend does three things: it shows a user's action in the values and tells the form of it, runs the form's handler,
// and pushes what differs from what it last showed to its widgets. It pushes before every message box and file dialog
// too. So there are no change signals, and nothing that the form writes comes back to it as an event.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ui {

enum class Kind { Label, TextBox, ListBox, ComboBox, Button, Line, MenuItem };

// In twips, 1/1440 inch, from the window's upper left corner. A backend may scale them.
struct Place {
  int left = 0, top = 0, width = 0, height = 0;
  bool operator==(const Place&) const = default;
};

struct Font {
  double points = 0;  // 0: the window's usual ones
  bool bold = false, italic = false;
};

struct Color {
  int red = 0, green = 0, blue = 0;
};

// What never changes about a control. Controls are told apart by their index in the window's table.
struct ControlDef {
  std::string name{};
  Kind kind = Kind::Label;
  std::string caption{};  // a label's, button's or menu item's text at the start
  bool shown = true;      // at the start
  Place place{};
  Place drawn{};       // where it is drawn, if a little beside its place; no width: there
  Place elsewhere{};   // where it stands while shown boxes lie over its place; no width: nowhere else
  bool wraps = false;  // a caption of several lines
  Font font{};
  Color color{};
  int tab = -1;         // position in the focus order; -1: none
  int label = -1;       // the label whose caption names this box to a screen reader; -1: none
  std::string about{};  // what the box holds, where the caption of its label does not tell
  bool path = false;    // the text is a path, in the encoding of the system's file names
};

struct WindowDef {
  std::string_view program{};  // its name in messages on a terminal
  std::string_view desktop{};  // its name in the desktop's list of programs
  std::string_view caption{};
  int width = 0, height = 0;  // of the client area, in twips
  int row = 0;                // from one row of boxes to the next, in twips
  double points = 0;          // of the usual font
  Color background{};
  std::string_view menu{};  // the caption of the one menu, which holds all menu items
  std::span<const ControlDef> controls{};
};

// What changes. Texts are bytes of the code page (text/code_page.h).
struct Control {
  std::string text;  // of a list box: unused, see selected_text()
  bool shown = true;
  std::vector<std::string> entries{};  // of a list box or combo box
  int selected = -1;                   // entry of a list box

  std::string_view selected_text() const {
    return selected < 0 ? std::string_view() : std::string_view(entries[static_cast<std::size_t>(selected)]);
  }
};

struct Window {
  std::vector<Control> controls;
  bool ended = false;  // the program has ended
  int status = 0;      // and this is its exit status

  Control& operator[](int control) { return controls[static_cast<std::size_t>(control)]; }
  const Control& operator[](int control) const { return controls[static_cast<std::size_t>(control)]; }
};

// The program behind a window.
class Form {
 public:
  virtual ~Form() = default;
  virtual const WindowDef& definition() const = 0;
  virtual Window& window() = 0;
  // The window was created. Runs before it is shown.
  virtual void load() = 0;
  // A button was pressed, a menu item chosen, an entry of a list box or combo box picked (also the one picked before).
  virtual void click(int control) = 0;
};

}  // namespace ui
