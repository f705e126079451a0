// A person who uses real widgets by real clicks and keys; after each event the widgets show what the window's values hold.
#pragma once

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "player/player.h"
#include "ui/qt/main_window.h"
#include "ui/qt/text.h"
#include "ui/qt/widgets.h"

namespace player {

class QtPlayer : public Player {
 public:
  explicit QtPlayer(file::System& system) : Player(system) {}

  ui::qt::EntryList* list() { return dynamic_cast<ui::qt::EntryList*>(window.widget(app::lstReactions)); }
  QPoint middle(int entry);
  QLineEdit* edit(int control);
  // Lets the window settle. Gives the controls whose widgets differ from the values.
  std::string differences();

  ui::qt::MainWindow window{form};

 protected:
  void do_load() override;
  void do_select(const Event& event) override;
  void do_pick(const Event& event) override;
  void do_type(const Event& event) override;
  void do_click(const Event& event) override;
  void do_close() override { window.close(); }
};

// Shows a real dialog: "tell" or "ask" a text, or one for a file to "open", to "save" to with an extension, or to "name".
// The replies, with bars between, are keys, buttons, "close", or a name that is typed. Writes what the dialog shows and
// gives.
void play_dialog(QWidget* parent, const std::string& form, const std::string& text, const QString& replies);

}  // namespace player
