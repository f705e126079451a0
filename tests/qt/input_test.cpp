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
  const std::string third = qt.Listed()[3], seventh = qt.Listed()[7];
  qt.Answer(ui::Answer::Yes);
  press(app::cmdDelete);
  EXPECT_EQ(boxes, 1);
  EXPECT_FALSE(qt.form.window().ended);
  EXPECT_TRUE(qt.window.isVisible());
  EXPECT_NE(qt.Listed()[3], third);
  EXPECT_EQ(qt.Listed()[6], seventh);
  EXPECT_FALSE(qt.Shown(app::cboComp));
}

// Dictation and screen readers change what stands in the widgets by other means than keys.
TEST(Qt, WhatIsChangedByAnyMeansCounts) {
  QtSeat qt;
  qt.load();
  qt.select(3);
  QAccessible::queryAccessibleInterface(qt.edit(app::txtlogk))->setText(QAccessible::Value, "99");
  qt.settle();
  EXPECT_EQ(qt.Text(app::txtlogk), "99");
  qt.list()->clearSelection();
  qt.settle();
  EXPECT_EQ(qt.form.window()[app::lstReactions].selected, 3);
  qt.form.window()[app::txtName].text = std::string(100000, 'n');
  qt.window.push();
  qt.settle();
  EXPECT_EQ(qt.Text(app::txtName).size(), 100000u);
}

TEST(Qt, ListTakesEveryKeyAndEveryClick) {
  QtSeat qt;
  qt.load();
  qt.select(1);
  QTest::keyClick(qt.list(), Qt::Key_Down);
  qt.settle();
  QTest::mouseDClick(qt.list()->viewport(), Qt::LeftButton, {}, qt.middle(1));
  qt.settle();
  EXPECT_EQ(qt.form.window()[app::lstReactions].selected, 1);
  // A key that chooses nothing new shows nothing again, over what was typed.
  qt.type(app::txtlogk, "7");
  for (const int key : {Qt::Key_Shift, Qt::Key_F2, Qt::Key_Left}) QTest::keyClick(qt.list(), static_cast<Qt::Key>(key));
  for (const QChar letter : {u'\u0416', u'~'}) QTest::sendKeyEvent(QTest::Click, qt.list(), Qt::Key_unknown, letter, {});
  qt.settle();
  EXPECT_EQ(qt.Text(app::txtlogk), "7");
  EXPECT_EQ(qt.form.window()[app::lstReactions].selected, 1);
  QTest::keyClick(qt.list(), Qt::Key_End);
  qt.settle();
  EXPECT_EQ(qt.Text(app::txtName), qt.Listed().back());
}

TEST(Qt, QuitAndExitCloseTheWindow) {
  for (const int control : {app::cmdQuit, app::mnuFileExit}) {
    QtSeat qt;
    qt.load();
    qt.click(control);
    EXPECT_TRUE(qt.form.window().ended && !qt.window.isVisible());
  }
}

TEST(Qt, TypingAnEntryOfAComboBoxPicksNothing) {
  QtSeat qt;
  qt.system.add("sorptemp.dat", "freundl.ISO");
  qt.load();
  qt.select(2);
  qt.type(app::txtlogk, "7");
  qt.type(app::cboIsoterm, "Temkin");
  QTest::keyClick(qt.edit(app::cboIsoterm), Qt::Key_Return);
  qt.window.widget(app::txtID)->setFocus();
  qt.settle();
  EXPECT_EQ(qt.form.state().open.isoselect, "Freundlich");
  EXPECT_EQ(qt.Text(app::cboIsoterm), "Temkin");
  EXPECT_EQ(qt.Text(app::txtlogk), "7");
  EXPECT_EQ(qt.form.window()[app::lstReactions].selected, 2);
  QWidget* combo = qt.window.widget(app::cboIsoterm);
  QWheelEvent wheel({5, 5}, combo->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
  combo->setFocus();
  QApplication::sendEvent(combo, &wheel);
  EXPECT_EQ(qt.form.state().open.isoselect, "Freundlich");
  QTest::keyClick(combo, Qt::Key_Down);
  qt.settle();
  EXPECT_EQ(qt.form.state().open.isoselect, "Extended Freundlich");
}

TEST(Qt, ListAlwaysShowsTheSelection) {
  QtSeat qt;
  qt.system.add("sorptemp.dat", "freundl.ISO");
  qt.load();
  QWidget* viewport = qt.list()->viewport();
  EXPECT_TRUE(qt.list()->hasFocus());
  const QColor frame = qt.list()->palette().color(QPalette::WindowText);
  qt.window.widget(app::txtID)->setFocus();
  EXPECT_NE(qt.list()->palette().color(QPalette::WindowText), frame) << "the focus does not show";
  qt.list()->setFocus();
  QTest::keyClick(qt.list(), Qt::Key_Down);
  qt.settle();
  EXPECT_EQ(qt.form.window()[app::lstReactions].selected, 0);
  qt.select(2);
  const std::string shown = qt.state();
  const QPoint empty(viewport->width() / 2, viewport->height() - 3);
  const std::function<void()> attempts[] = {
      [&] { QTest::mouseClick(viewport, Qt::LeftButton, {}, empty); },
      [&] { QTest::mouseClick(viewport, Qt::LeftButton, Qt::ControlModifier, qt.middle(2)); },
      [&] { QTest::mouseClick(viewport, Qt::RightButton, {}, qt.middle(4)); },
      [&] { QTest::mouseClick(viewport, Qt::RightButton, {}, empty); },
      [&] { QTest::keyClick(qt.list(), Qt::Key_Space, Qt::ControlModifier); },
      [&] { QTest::keyClick(qt.list(), Qt::Key_A, Qt::ControlModifier); },
      [&] {
        QTest::mousePress(viewport, Qt::LeftButton, {}, qt.middle(2));
        QTest::mouseMove(viewport, qt.middle(5));
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, qt.middle(5));
      },
  };
  for (const auto& attempt : attempts) {
    attempt();
    qt.settle();
    EXPECT_EQ(qt.state(), shown) << &attempt - attempts;
  }
  // Chosen again, it is shown again.
  qt.type(app::txtlogk, "7");
  QTest::keyClick(qt.list(), Qt::Key_Return);
  qt.settle();
  EXPECT_EQ(qt.state(), shown);
  QTest::mouseClick(viewport, Qt::LeftButton, Qt::ControlModifier, qt.middle(4));
  qt.settle();
  EXPECT_EQ(qt.form.window()[app::lstReactions].selected, 4);
}

TEST(Qt, ShowsNumbersFromTheirFirstDigit) {
  QtSeat qt;
  qt.load();
  qt.select(2);
  QLineEdit* edit = qt.edit(app::txtCharge);
  EXPECT_EQ(edit->cursorPosition(), 0);
  qt.type(app::txtCharge, "1.333333333333333333333333333");
  EXPECT_GT(edit->cursorPosition(), 0);
  qt.window.widget(app::txtID)->setFocus();
  EXPECT_EQ(edit->cursorPosition(), 0);
  // Also when it was only looked at.
  edit->setFocus();
  QTest::keyClick(edit, Qt::Key_End);
  EXPECT_GT(edit->cursorPosition(), 0);
  QTest::keyClick(edit, Qt::Key_Tab);
  EXPECT_EQ(edit->cursorPosition(), 0);
}

TEST(Qt, KeysAloneReachEverything) {
  QtSeat qt;
  qt.load();
  QWidget* list = qt.window.widget(app::lstReactions);
  EXPECT_TRUE(list->hasFocus());
  QTest::keyClicks(list, "Fe(");
  qt.settle();
  EXPECT_EQ(qt.Text(app::txtName), "Fe(OH)3-");
  QTest::keyClick(list, Qt::Key_Down);
  qt.settle();
  EXPECT_EQ(qt.Text(app::txtName), "FeSO4+");
  // The order of the tabulator key is that of the table, over the controls that are shown.
  std::vector<std::string> visited{"lstReactions"};
  for (int i = 0; i < app::kControls; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    for (int j = 0; j < app::kControls; ++j)
      if (qt.window.widget(j) == QApplication::focusWidget())
        visited.push_back(app::window_def().controls[static_cast<std::size_t>(j)].name);
    if (visited.back() == "lstReactions") break;
  }
  const std::vector<std::string> expected{"lstReactions", "txtID",        "txtlogk",     "txtdhr",       "txtCharge",
                                          "txtNocomp",    "txtStoich(1)", "txtComp(1)",  "txtStoich(2)", "txtComp(2)",
                                          "txtName",      "cmdAddnew",    "cmdDelete",   "cmdCompdb",    "cmdSavedb",
                                          "cmdNewDb",     "cmdQuit",      "lstReactions"};
  EXPECT_EQ(visited, expected);
  QWidget* button = qt.window.widget(app::cmdAddnew);
  button->setFocus();
  QTest::keyClick(button, Qt::Key_Return);
  qt.settle();
  EXPECT_TRUE(qt.Shown(app::cboComp));
}

TEST(Qt, TakesCharactersOfTheCodePageOnly) {
  QtSeat qt;
  qt.load();
  auto* edit = qobject_cast<QLineEdit*>(qt.window.widget(app::txtName));
  edit->clear();
  edit->setFocus();
  QApplication::clipboard()->setText(QString::fromUtf8("a\u20ac\u0416b\u0081\u00e9"));
  edit->paste();
  EXPECT_EQ(qt.Text(app::txtName),
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
