// The window on the screen: builds itself from the form's table of controls, tells the form what the user does, and shows
// what differs from what it showed last.
#pragma once

#include <QApplication>
#include <QMainWindow>
#include <functional>
#include <vector>

#include "ui/layout.h"
#include "ui/window.h"

namespace ui::qt {

class MainWindow : public QMainWindow {
 public:
  explicit MainWindow(Form& form);

  // Shows what the form holds.
  void push();
  // The widget of a control; null for a menu item.
  QWidget* widget(int control) const { return views_[static_cast<std::size_t>(control)].widget; }
  QAction* action(int control) const { return views_[static_cast<std::size_t>(control)].action; }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

  // A control on the screen.
  struct View {
    QWidget* widget = nullptr;
    QAction* action = nullptr;
    std::function<void(const QString&)> show_text = [](const QString&) {};
    std::function<void(const Control&)> show_entries = [](const Control&) {};
    Control shown{};  // its text when it was shown last, and a combo box's entries
  };

  void build(int control);
  void arrange();
  void arrange(int control);
  void run(int control);

  const ControlDef& def(int control) const { return form_.definition().controls[static_cast<std::size_t>(control)]; }
  int controls() const { return static_cast<int>(views_.size()); }
  QFont font_of(const Font& font, double factor) const;

  Form& form_;
  const QFont desktop_font_ = QApplication::font();
  const Layout layout_;
  QWidget* const area_ = new QWidget;
  QMenu* menu_;
  int menu_height_;       // at the start
  bool pushing_ = false;  // what changes in the widgets is not the user's doing
  bool running_ = false;  // a handler runs, perhaps in a message box: no other may begin
  std::vector<View> views_;
};

}  // namespace ui::qt
