// A person who uses real widgets by real clicks and keys. Besides what every window takes:
//
//   dialog FORM REPLIES: for a file to "open", to "save" to with an extension, or to "name"; a reply may be a name typed
//   describe NAME: what a screen reader reads, with the tooltip, and whether the frame is lit
#pragma once

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "player/window_player.h"
#include "ui/qt/main_window.h"
#include "ui/qt/text.h"
#include "ui/qt/widgets.h"

namespace player {

class QtPlayer : public WindowPlayer {
 public:
  explicit QtPlayer(file::System& system) : WindowPlayer(system) {}

  void settle() override { QApplication::processEvents(); }
  std::string differences() override;
  bool is_cut(int control) override;

  ui::qt::MainWindow window{form};

 protected:
  void do_load() override;
  void do_select(const Event& event) override;
  void do_pick(const Event& event) override;
  void do_type(const Event& event) override;
  void do_click(const Event& event) override;
  void do_close() override { window.close(); }
  bool do_other(const Deed& deed) override;
  int focused() override;
  bool is_open() override { return window.isVisible(); }

 private:
  ui::qt::EntryList* list() { return dynamic_cast<ui::qt::EntryList*>(window.widget(app::lstReactions)); }
  QPoint middle(int entry);
  QLineEdit* edit(int control);
};

// Shows a real dialog, and writes what it shows and gives.
void play_dialog(QWidget* parent, const std::string& form, const std::string& text, const QString& replies);

}  // namespace player
