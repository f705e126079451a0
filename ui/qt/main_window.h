// The window on the screen: builds itself from the form's table of controls, tells the form what the user does, and shows
// what differs from what it showed last.
#pragma once

#include <QMainWindow>
#include <vector>

#include "ui/qt/layout.h"
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
  QWidget* widget(int control) const { return widgets_[static_cast<std::size_t>(control)]; }
  QAction* action(int control) const { return actions_[static_cast<std::size_t>(control)]; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void build(int control);
  void build_text_box(int control);
  void build_combo_box(int control);
  QLineEdit* make_line_edit(int control, QLineEdit* edit);
  void set_focus_order();
  void arrange();
  void push_control(int control, bool anew);
  void push_text(int control);
  void push_tooltips();
  QString tooltip(int control) const;
  void run(int control);

  const ControlDef& def(int control) const { return form_.definition().controls[static_cast<std::size_t>(control)]; }
  int controls() const { return static_cast<int>(widgets_.size()); }

  Form& form_;
  Layout layout_;
  QWidget* area_;
  int menu_height_ = 0;  // at the start
  std::vector<QWidget*> widgets_;
  std::vector<QAction*> actions_;
  std::vector<Control> shown_;  // what was pushed last; the entries of a list are with its widget
};

}  // namespace ui::qt
