// The same stories on the window without a toolkit and in real widgets, by real clicks and keys: what the widgets show is
// what the window's values hold, and both backends come to the same end.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QToolTip>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "player/script.h"
#include "player/transcript.h"
#include "support/story.h"
#include "ui/qt/main_window.h"
#include "ui/qt/text.h"
#include "ui/qt/widgets.h"

namespace {

using player::Event;
using ui::qt::MainWindow;

void add_samples(support::MemorySystem& system) {
  for (const auto& entry : std::filesystem::directory_iterator(SAMPLES)) {
    std::ifstream file(entry.path(), std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    system.add(entry.path().filename().string(), content.str());
  }
}

// A program on the samples, and a hand for it.
class Seat {
 public:
  Seat() { add_samples(system); }
  virtual ~Seat() = default;
  virtual void load() { program.form.load(); }
  virtual void select(int entry) { program.person.select(app::lstReactions, entry); }
  virtual void pick(int control, int entry) { program.person.pick(control, entry); }
  virtual void type(int control, const std::string& text) { program.person.type(control, text); }
  virtual void click(int control) { program.person.click(control); }

  void play(const Event& event) {
    switch (event.kind) {
      case Event::Kind::Load: return load();
      case Event::Kind::AnswerYes: return program.Answer(ui::Answer::Yes);
      case Event::Kind::Choose: return program.Choose(event.text);
      case Event::Kind::Select: return select(event.entry);
      case Event::Kind::Pick: return pick(event.control, event.entry);
      case Event::Kind::Type: return type(event.control, event.text);
      case Event::Kind::Click: return click(event.control);
      default: FAIL() << "an event that this test does not play";
    }
  }
  std::string state() { return player::state_block(program.form.window(), program.form.state()); }

  support::MemorySystem system;
  support::Program program{system};
};

class QtSeat final : public Seat {
 public:
  void load() override {
    Seat::load();
    window.push(true);
    window.show();
    settle();
  }
  void select(int entry) override {
    auto* list = qobject_cast<QListView*>(window.widget(app::lstReactions));
    const QModelIndex index = list->model()->index(entry, 0);
    list->scrollTo(index);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
    settle();
  }
  void pick(int control, int entry) override {
    auto* combo = qobject_cast<QComboBox*>(window.widget(control));
    combo->showPopup();
    const QModelIndex index = combo->model()->index(entry, 0);
    combo->view()->scrollTo(index);
    QTest::mouseClick(combo->view()->viewport(), Qt::LeftButton, {}, combo->view()->visualRect(index).center());
    settle();
  }
  void type(int control, const std::string& text) override {
    auto* combo = qobject_cast<QComboBox*>(window.widget(control));
    auto* edit = combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(window.widget(control));
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, ui::qt::from_bytes(text));
    settle();
  }
  void click(int control) override {
    if (QAction* action = window.action(control))
      action->trigger();
    else
      QTest::mouseClick(window.widget(control), Qt::LeftButton);
    settle();
  }

  void settle() {
    QApplication::processEvents();
    for (int i = 0; i < app::kControls; ++i) compare(i);
  }

  MainWindow window{program.form};

 private:
  void compare(int control) {
    QWidget* widget = window.widget(control);
    if (widget == nullptr) return;
    const std::string& name = app::window_def().controls[static_cast<std::size_t>(control)].name;
    const ui::Control& value = program.form.window()[control];
    EXPECT_EQ(!widget->isHidden(), value.shown) << name;
    std::string text = value.text;
    std::vector<std::string> entries;
    if (auto* list = qobject_cast<QListView*>(widget)) {
      for (int i = 0; i < list->model()->rowCount(); ++i)
        entries.push_back(ui::qt::to_bytes(list->model()->index(i, 0).data().toString()));
      const auto selected = list->selectionModel()->selectedIndexes();
      EXPECT_EQ(selected.isEmpty() ? -1 : selected.front().row(), value.selected);
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
      for (int i = 0; i < combo->count(); ++i) entries.push_back(ui::qt::to_bytes(combo->itemText(i)));
      text = ui::qt::to_bytes(combo->currentText());
    } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
      text = ui::qt::to_bytes(edit->text());
    } else if (auto* button = qobject_cast<QPushButton*>(widget)) {
      text = ui::qt::to_bytes(button->text());
    } else if (auto* label = qobject_cast<QLabel*>(widget)) {
      text = ui::qt::to_bytes(label->text());
    }
    EXPECT_EQ(text, value.text) << name;
    EXPECT_EQ(entries, value.entries) << name;
  }
};

const char* const kStories[] = {
    // A change, a new species and a deletion.
    "load\nselect 5\ntype txtlogk  7,25\nanswer Yes\nclick cmdSavedb\n"
    "click cmdAddnew\npick cboComp 3\ntype txtStoicn 2\nclick cmdNextcomp\ntype cboComp H+\ntype txtStoicn -1\n"
    "type txtSpname New\nclick cmdSuggest\ntype txtlogk 1\ntype txtCharge 0\nanswer Yes\nclick cmdSavedb\n"
    "select 0\nselect 0\nanswer Yes\nclick cmdDelete\nselect 300",
    // Every kind of database, a model, a new database.
    "load\nchoose freundl.ISO\nclick mnuFileOpen\nselect 2\npick cboIsoterm 3\nselect 1\nanswer Yes\nclick cmdSavedb\n"
    "choose nicadon.NIC\nclick mnuFileOpen\nselect 39\nchoose counter.CDB\nclick mnuFileOpen\nselect 3\n"
    "choose copper.BLI\nclick mnuFileOpen\nselect 1\ntype txtf50 .5\nchoose new.BLI\nclick cmdNewDb\n"
    "choose goethite.MDB\nclick mnuFileOpen\nselect 16\nchoose nowhere.mdb\nclick cmdCompdb\nselect 3",
};

TEST(Qt, ShowsWhatTheWindowHolds) {
  for (const char* story : kStories) {
    Seat plain;
    QtSeat qt;
    std::istringstream script(story);
    for (std::string line; std::getline(script, line);) {
      SCOPED_TRACE(line);
      const auto event = player::parse_event(line);
      ASSERT_TRUE(event);
      plain.play(*event);
      qt.play(*event);
      ASSERT_EQ(qt.state(), plain.state());
      ASSERT_EQ(qt.program.told, plain.program.told);
    }
    EXPECT_EQ(qt.system.all(), plain.system.all());
  }
}

TEST(Qt, KeysAloneReachEverything) {
  QtSeat qt;
  qt.load();
  QWidget* list = qt.window.widget(app::lstReactions);
  EXPECT_TRUE(list->hasFocus());
  QTest::keyClicks(list, "Fe(");
  qt.settle();
  EXPECT_EQ(qt.program.Text(app::txtName), "Fe(OH)3-");
  QTest::keyClick(list, Qt::Key_Down);
  qt.settle();
  EXPECT_EQ(qt.program.Text(app::txtName), "FeSO4+");
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
}

TEST(Qt, TakesCharactersOfTheCodePageOnly) {
  QtSeat qt;
  qt.load();
  auto* edit = qobject_cast<QLineEdit*>(qt.window.widget(app::txtName));
  edit->clear();
  edit->setFocus();
  QApplication::clipboard()->setText(QString::fromUtf8("a\u20ac\u0416b\u0081\u00e9"));
  edit->paste();
  EXPECT_EQ(qt.program.Text(app::txtName),
            "a\x80"
            "b\x81\xe9");
  EXPECT_TRUE(QToolTip::isVisible());
  for (int byte = 1; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    const bool line_end = byte == '\r' || byte == '\n';
    EXPECT_EQ(ui::qt::to_bytes(ui::qt::from_bytes(text)), line_end ? "" : text) << byte;
  }
}

TEST(Qt, NamesBoxesByTheirLabels) {
  QtSeat qt;
  qt.program.Choose("freundl.ISO");
  qt.load();
  qt.click(app::mnuFileOpen);
  const struct {
    int control;
    const char* name;
  } rows[] = {{app::lstReactions, "Present database species"},
              {app::txtlogk, "log KF"},
              {app::cboIsoterm, "Isotherm model"},
              {app::txtComp(2), "Stoichiometry of 2nd component"}};
  for (const auto& [control, name] : rows) EXPECT_EQ(qt.window.widget(control)->accessibleName().toStdString(), name);
}

TEST(Qt, CutsNoCaptionAndShowsLongTextsInTooltips) {
  QtSeat qt;
  qt.load();
  for (const double factor : {1., 1.6}) {
    qt.window.resize(qt.window.size() * factor);
    QApplication::processEvents();
    for (int i = 0; i < app::kControls; ++i) {
      auto* label = qobject_cast<ui::qt::Caption*>(qt.window.widget(i));
      EXPECT_FALSE(label != nullptr && label->is_shortened()) << label->text().toStdString();
    }
  }
  const std::string name(80, 'w');
  qt.type(app::txtName, name);
  EXPECT_TRUE(qt.window.widget(app::txtName)->toolTip().contains(QString::fromStdString(name)));
  EXPECT_TRUE(qt.window.widget(app::txtID)->toolTip().isEmpty());
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
