// What users, screen readers and eyes meet in the window, beyond the stories.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QToolTip>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <thread>

#include "qt/qt_player.h"
#include "support/memory_system.h"
#include "support/watched_system.h"

namespace {

// Programs on the samples, in memory: one on the window without a toolkit, one in real widgets, and one that is used by
// somebody who does not wait.
struct Samples {
  Samples() {
    for (const auto& entry : std::filesystem::directory_iterator(SAMPLES)) {
      std::ifstream file(entry.path(), std::ios::binary);
      system.add(entry.path().filename().string(), {std::istreambuf_iterator<char>(file), {}});
    }
  }
  support::MemorySystem system;
  support::WatchedSystem watched{system};
};

struct PlainSeat : Samples, player::Player {
  PlainSeat() : Player(watched) {}
};

struct QtSeat : Samples, player::QtPlayer {
  QtSeat() : QtPlayer(watched) {}
  void load() {
    play("load");
    settle();
  }
  void settle() { EXPECT_EQ(differences(), ""); }
};

// Puts the events in line at once, on a disk that answers slowly; nothing settles between them.
class HastySeat final : public QtSeat {
 public:
  void be_slow() {
    watched.before = [](const support::CallInfo& info) {
      if (info.call == support::Call::OpenRead) std::this_thread::sleep_for(std::chrono::milliseconds(2));
      return std::nullopt;
    };
  }

 protected:
  void do_select(const player::Event& event) override { press(list()->viewport(), middle(event.entry)); }
  void do_click(const player::Event& event) override {
    press(window.widget(event.control), window.widget(event.control)->rect().center());
  }
  void do_pick(const player::Event& event) override { key(window.widget(event.control), Qt::Key_Down); }
  void do_type(const player::Event& event) override {
    key(edit(event.control), Qt::Key_A, Qt::ControlModifier);
    for (const QChar character : ui::qt::from_bytes(event.text)) key(edit(event.control), 0, {}, character);
  }

 private:
  static void press(QWidget* widget, const QPoint& at) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
      QApplication::postEvent(widget, new QMouseEvent(type, at, widget->mapToGlobal(at), Qt::LeftButton,
                                                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {}));
  }
  static void key(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
      QApplication::postEvent(widget, new QKeyEvent(type, key, modifiers, text));
  }
};

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
    PlainSeat plain;
    HastySeat hasty;
    const auto play = [&](const std::string& line) {
      plain.play(line);
      hasty.play(line);
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

TEST(Qt, TakesCharactersOfTheCodePageOnlyAndAsManyAsThereAre) {
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
  qt.form.window()[app::txtName].text = std::string(100000, 'n');
  qt.window.push();
  qt.settle();
  EXPECT_EQ(qt.text(app::txtName).size(), 100000u);
  for (int byte = 1; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    const bool line_end = byte == '\r' || byte == '\n';
    EXPECT_EQ(ui::qt::to_bytes(ui::qt::from_bytes(text)), line_end ? "" : text) << byte;
  }
}

TEST(Qt, ListShowsTheFocusInItsFrame) {
  QtSeat qt;
  qt.load();
  EXPECT_TRUE(qt.list()->hasFocus());
  const QColor frame = qt.list()->palette().color(QPalette::WindowText);
  qt.window.widget(app::txtID)->setFocus();
  EXPECT_NE(qt.list()->palette().color(QPalette::WindowText), frame);
}

TEST(Qt, ShortensAPathInItsMiddleAndACaptionAtItsEnd) {
  QtSeat qt;
  qt.load();
  const auto picture = [&](int control, const std::string& text) {
    qt.form.window()[control].text = text;
    qt.window.push();
    return qt.window.widget(control)->grab().toImage();
  };
  const std::string name(160, 'w');
  const QImage a_path = picture(app::lblNameDb, name + "/a.mdb"), a_text = picture(app::lblComp, name + "a");
  EXPECT_NE(picture(app::lblNameDb, name + "/b.mdb"), a_path);
  EXPECT_EQ(picture(app::lblComp, name + "b"), a_text);
  // In the encoding of file names where it is that, else in the code page.
  for (const char* path : {"\xc3\xa4.mdb", "\xe4.mdb"}) {
    picture(app::lblNameDb, path);
    EXPECT_EQ(qobject_cast<ui::qt::Caption*>(qt.window.widget(app::lblNameDb))->text(), QString::fromUtf8("\u00e4.mdb"));
  }
}

// The note about M.B. stoichiometries gives way to the rows that lie over it; boxes above one another are alike.
TEST(Qt, LaysNothingOverText) {
  QtSeat qt;
  qt.system.add("sorptemp.dat", "freundl.ISO");
  qt.load();
  qt.click(app::cmdAddnew);
  const auto at = [&](int control) { return qt.window.widget(control)->geometry(); };
  const QRect usual = at(app::lblMBnote);
  for (int i = 1; i <= 8; ++i) {
    qt.click(app::cmdNextcomp);
    EXPECT_EQ(at(app::lblMBnote) == usual, i < 7) << i;
    for (int j = 0; j < app::kControls; ++j) {
      if (qt.window.widget(j) == nullptr || !qt.form.window()[j].shown || j == app::lblMBnote) continue;
      EXPECT_LE(at(j).intersected(at(app::lblMBnote)).height(), 3) << j;
    }
    EXPECT_EQ(at(app::txtStoich(i)).height(), at(app::txtID).height());
  }
  for (const int control : {app::cboComp, app::cmdNextcomp, app::cmdSuggest})
    EXPECT_LE(std::abs(at(control).center().y() - at(app::txtStoicn).center().y()), 1);
  EXPECT_GT(at(app::Label2).left(), at(app::lstReactions).right() + 1);
  EXPECT_GT(at(app::Line1).top(), at(app::cmdAddnew).bottom());
  // In a window of any proportions everything keeps its own.
  const QSize size = qt.window.size();
  const QRect quit = at(app::cmdQuit);
  qt.window.resize(size.width() * 2, size.height());
  QApplication::processEvents();
  EXPECT_EQ(at(app::cmdQuit), quit);
  for (const double factor : {.83, 1.21}) {
    qt.window.resize(size * factor);
    QApplication::processEvents();
    for (int i = 1; i <= 8; ++i) EXPECT_EQ(at(app::txtStoich(i)).height(), at(app::txtID).height());
  }
}

}  // namespace
