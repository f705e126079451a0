// What mouse, keys and screen readers can do to the window, beyond the stories.
#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QToolTip>
#include <cstddef>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "qt/seat.h"

namespace {

using support::QtSeat;

TEST(Qt, RunsEventsInTheOrderInWhichTheyWereMade) {
  // What is shown before, and what is then done at once.
  const struct {
    const char *database, *before;
    std::string burst;
  } rows[] = {
      {"complex.MDB", "select 0", "select 3\nselect 9\nanswer Yes\nclick cmdDelete"},
      {"complex.MDB", "select 0",
       "select 3\ntype txtlogk 7,5\nselect 4\ntype txtlogk 1\nanswer Yes\nclick cmdSavedb\nselect 2\nclick cmdAddnew"},
      {"complex.MDB", "click cmdAddnew",
       "select 5\nclick cmdAddnew\ntype txtSpname New\ntype cboComp H+\ntype txtStoicn 2\nclick cmdSuggest\n"
       "type txtlogk 1\ntype txtCharge 1\nanswer Yes\nclick cmdSavedb\nclick cmdAddnew"},
      {"langmuir.ISO", "select 0",
       "select 1\npick cboIsoterm 4\nselect 3\nanswer Yes\nclick cmdSavedb\nselect 4\nselect 5\nanswer Yes\nclick "
       "cmdDelete"},
  };
  for (const auto& [database, before, burst] : rows) {
    support::PlainSeat plain;
    support::HastySeat hasty;
    const auto play = [&](const std::string& line) {
      plain.play(*player::parse_event(line));
      hasty.play(*player::parse_event(line));
    };
    plain.system.add("sorptemp.dat", database);
    hasty.system.add("sorptemp.dat", database);
    play("load");
    play(before);
    hasty.settle();
    hasty.be_slow();
    std::istringstream script(burst);
    for (std::string line; std::getline(script, line);) play(line);
    hasty.settle();
    EXPECT_TRUE(hasty.state() == plain.state()) << burst;
    EXPECT_EQ(hasty.told, plain.told);
    EXPECT_TRUE(hasty.system.all() == plain.system.all()) << burst;
  }
}

// A screen reader reaches what a message box shuts off from mouse and keys.
TEST(Qt, RunsNoHandlerInsideTheMessageBoxOfAnother) {
  QtSeat qt;
  qt.load();
  qt.select(3);
  const auto press = [&](int control) { qobject_cast<QPushButton*>(qt.window.widget(control))->click(); };
  int boxes = 0;
  qt.dialogs.told = [&](const std::string&) {
    ++boxes;
    qt.list()->setCurrentIndex(qt.list()->model()->index(7, 0));
    press(app::cmdAddnew);
    press(app::cmdDelete);
    qt.window.close();
    EXPECT_EQ(qt.list()->selected(), 3);
  };
  const std::string third = qt.reactions().entries[3], seventh = qt.reactions().entries[7];
  qt.play("answer Yes");
  press(app::cmdDelete);
  EXPECT_EQ(boxes, 1);
  EXPECT_FALSE(qt.form.window().ended);
  EXPECT_TRUE(qt.window.isVisible());
  EXPECT_NE(qt.reactions().entries[3], third);
  EXPECT_EQ(qt.reactions().entries[6], seventh);
  EXPECT_FALSE(qt.form.window()[app::cboComp].shown);
}

// Dictation and screen readers change what stands in the widgets by other means than keys.
TEST(Qt, WhatIsChangedByAnyMeansCounts) {
  QtSeat qt;
  qt.load();
  qt.select(3);
  QAccessible::queryAccessibleInterface(qt.edit(app::txtlogk))->setText(QAccessible::Value, "99");
  qt.settle();
  EXPECT_EQ(qt.text(app::txtlogk), "99");
  qt.list()->clearSelection();
  qt.settle();
  EXPECT_EQ(qt.reactions().selected, 3);
  qt.form.window()[app::txtName].text = std::string(100000, 'n');
  qt.window.push();
  qt.settle();
  EXPECT_EQ(qt.text(app::txtName).size(), 100000u);
}

TEST(Qt, TakesCharactersOfTheCodePageOnly) {
  QtSeat qt;
  qt.load();
  auto* edit = qobject_cast<QLineEdit*>(qt.window.widget(app::txtName));
  edit->clear();
  edit->setFocus();
  QApplication::clipboard()->setText(QString::fromUtf8("a\u20ac\u0416b\u0081\u00e9"));
  edit->paste();
  EXPECT_EQ(qt.text(app::txtName),
            "a\x80"
            "b\x81\xe9");
  EXPECT_EQ(QToolTip::text().toStdString(),
            "A character was left out: the files hold only those of the code page Windows-1252.");
  for (int byte = 1; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    const bool line_end = byte == '\r' || byte == '\n';
    EXPECT_EQ(ui::qt::to_bytes(ui::qt::from_bytes(text)), line_end ? "" : text) << byte;
  }
}

}  // namespace
