// The frame around the window: the toolkit's start and end.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <span>

#include "ui/backend.h"

namespace {

const ui::ControlDef kControls[] = {
    {.name = "button", .kind = ui::Kind::Button, .caption = "a", .place = {0, 0, 900, 300}, .tab = 0}};

// A form that asks something while it loads, and ends as it is told.
class ShortForm final : public ui::Form {
 public:
  ShortForm(ui::Dialogs& dialogs, bool ends, int status) : dialogs_(dialogs), ends_(ends) {
    window_.controls.resize(1);
    window_.status = status;
  }
  const ui::WindowDef& definition() const override {
    static const ui::WindowDef def{.program = "short",
                                   .caption = "Short",
                                   .width = 3000,
                                   .height = 900,
                                   .row = 240,
                                   .points = 8.25,
                                   .controls = kControls};
    return def;
  }
  ui::Window& window() override { return window_; }
  void load() override {
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    dialogs_.message("A question before the window is there", "Short", ui::Icon::Question, ui::Buttons::YesNo);
    window_.ended = ends_;
    if (!ends_) QTimer::singleShot(100, [] { QApplication::closeAllWindows(); });
  }
  void click(int) override {}

 private:
  ui::Dialogs& dialogs_;
  ui::Window window_;
  bool ends_;
};

TEST(Run, EndsWithTheFormAndItsStatus) {
  for (const bool ends : {true, false}) {
    for (const int status : {0, 1}) {
      char program[] = "short";
      EXPECT_EQ(ui::run(program, [&](ui::Dialogs& dialogs) { return std::make_unique<ShortForm>(dialogs, ends, status); }),
                status);
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
