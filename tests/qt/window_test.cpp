// What users, screen readers and eyes meet in the window, beyond the stories.
#include <QTimer>
#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "qt/qt_player.h"
#include "support/seat.h"
#include "support/watched_system.h"
#include "ui/backend.h"

namespace {

const bool kWithoutDisplay = qputenv("QT_QPA_PLATFORM", "offscreen");

// Whatever box comes up is closed, and then the window.
TEST(Run, EndsWithTheFormAndItsStatus) {
  for (const bool starts : {true, false}) {
    support::MemorySystem system{{starts ? "dabase.txt" : "other.txt", "C"}};
    support::WatchedSystem watched(system);
    watched.before = [starts, begun = false](const support::CallInfo&) mutable -> std::optional<support::Instead> {
      if (std::exchange(begun, true)) return std::nullopt;
      if (!starts) QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
      if (starts) QTimer::singleShot(100, [] { QApplication::closeAllWindows(); });
      return std::nullopt;
    };
    char program[] = "kelmar-dbedit";
    const int status =
        ui::run(program, [&](ui::Dialogs& dialogs) { return std::make_unique<app::frmMaindb>(dialogs, watched); });
    EXPECT_EQ(status, starts ? 0 : 1);
  }
}

struct Application {
  int count = 1;
  char name[8] = "seat", *names[2] = {name, nullptr};
  QApplication application{count, names};
};

struct QtSeat : Application, support::Seat<player::QtPlayer> {};

TEST(Qt, CutsNoTextAndKeepsEveryByte) {
  QtSeat qt;
  qt.set(app::txtName, std::string(100000, 'n'));
  qt.check();
  EXPECT_EQ(qt.text(app::txtName).size(), 100000u);
  for (int byte = 1; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(ui::qt::to_bytes(ui::qt::from_bytes(text)), byte == '\r' || byte == '\n' ? "" : text) << byte;
  }
}

TEST(Qt, ShortensAPathInItsMiddleAndACaptionAtItsEnd) {
  QtSeat qt;
  const auto picture = [&](int control, const std::string& text) {
    qt.set(control, text);
    return qt.window.widget(control)->grab().toImage();
  };
  const std::string name(160, 'w');
  const QImage a_path = picture(app::lblNameDb, name + "/a.mdb"), a_text = picture(app::lblComp, name + "a");
  EXPECT_NE(picture(app::lblNameDb, name + "/b.mdb"), a_path);
  EXPECT_EQ(picture(app::lblComp, name + "b"), a_text);
  // In the encoding of file names where it is that, else in the code page.
  for (const char* path : {"\xc3\xa4.mdb", "\xe4.mdb"}) {
    picture(app::lblNameDb, path);
    EXPECT_EQ(dynamic_cast<ui::qt::Caption*>(qt.window.widget(app::lblNameDb))->text(), QString::fromUtf8("\u00e4.mdb"));
  }
}

// The note about M.B. stoichiometries gives way to the rows that lie over it; boxes above one another are alike.
TEST(Qt, LaysNothingOverText) {
  QtSeat qt;
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
