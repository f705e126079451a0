// The window on the screen: builds itself from the form's table of controls, tells the form what the user does, and shows
// what differs from what it showed last.
#pragma once

#include <QMainWindow>
#include <functional>
#include <vector>

#include "ui/layout.h"
#include "ui/window.h"

class QLineEdit;

namespace ui::qt {

class Caption;
class EntryList;
class PickBox;

class MainWindow : public QMainWindow {
  Q_OBJECT
 public:
  explicit MainWindow(Form& form);

  // Shows what the form holds. `anew` shows everything, not only what differs.
  void push(bool anew = false);
  // The widget of a control; null for a menu item.
  QWidget* widget(int control) const { return view(control).widget; }
  QAction* action(int control) const { return view(control).action; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  // A control on the screen: what it is made of, as far as it has it.
  struct View {
    QWidget* widget = nullptr;
    QAction* action = nullptr;
    Caption* caption = nullptr;
    QLineEdit* edit = nullptr;
    PickBox* combo = nullptr;
    EntryList* list = nullptr;
    std::function<void(const QString&)> set_text = [](const QString&) {};
  };

  View build(int control);
  View build_button(int control);
  View build_label(int control);
  View build_line(int control);
  View build_list(int control);
  View build_text_box(int control, QLineEdit* edit);
  View build_combo_box(int control);
  void set_focus_order();
  void arrange();
  void place(int control);
  void push_control(int control, bool anew);
  void name_boxes();
  QString cut_text(const View& view) const;
  void run(int control);

  const ControlDef& def(int control) const { return form_.definition().controls[static_cast<std::size_t>(control)]; }
  const View& view(int control) const { return views_[static_cast<std::size_t>(control)]; }
  int controls() const { return static_cast<int>(views_.size()); }

  Form& form_;
  QFont desktop_font_;
  Layout layout_;
  QWidget* area_;
  int menu_height_ = 0;   // at the start
  bool pushing_ = false;  // what changes in the widgets is not the user's doing
  bool running_ = false;  // a handler runs, perhaps in a message box: no other may begin
  std::vector<View> views_;
  std::vector<Control> shown_;  // what was pushed last; the entries of a list are with its widget
};

}  // namespace ui::qt
