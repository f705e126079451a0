// The frame around the window: the toolkit's start and end.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <memory>

#include "app/frmMaindb.h"
#include "support/memory_system.h"
#include "ui/backend.h"

namespace {

// Whatever box comes up is closed, and then the window.
TEST(Run, EndsWithTheFormAndItsStatus) {
  for (const bool starts : {true, false}) {
    support::MemorySystem system;
    if (starts) system.add("dabase.txt", "C");
    char program[] = "kelmar-dbedit";
    const int status = ui::run(program, [&](ui::Dialogs& dialogs) {
      if (!starts) QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
      if (starts) QTimer::singleShot(100, [] { QApplication::closeAllWindows(); });
      return std::make_unique<app::frmMaindb>(dialogs, system);
    });
    EXPECT_EQ(status, starts ? 0 : 1);
  }
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
