// The real message boxes and file dialogs, answered by real keys and clicks.
#include "ui/qt/dialogs.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

namespace {

using ui::Answer;
using ui::Buttons;
using ui::FileRequest;
using ui::Icon;
using ui::qt::QtDialogs;

class QtDialog : public testing::Test {
 protected:
  QtDialog() {
    dialogs.parent = &parent;
    dialogs.push = [this] { ++pushed; };
  }
  // What is done to the dialog that opens next.
  template <typename Dialog>
  void answer(std::function<void(Dialog&)> act) {
    QTimer::singleShot(0, [act] {
      auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      act(*dialog);
    });
  }
  std::optional<std::string> choose(const FileRequest& request, const std::function<void(QFileDialog&)>& act) {
    answer<QFileDialog>(act);
    return dialogs.choose_file(request);
  }
  std::string file(const char* name) { return folder.filePath(name).toStdString(); }

  QWidget parent;
  int pushed = 0;
  QTemporaryDir folder;
  QtDialogs dialogs;
};

TEST_F(QtDialog, MessageSaysItsTextAsItStands) {
  answer<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Kelmar error");
    EXPECT_EQ(box.text(), "<b>x</b> \u00e4");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.icon(), QMessageBox::Critical);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    QTest::keyClick(&box, Qt::Key_Return);
  });
  EXPECT_EQ(dialogs.message("<b>x</b> \xc3\xa4", "Kelmar error", Icon::Critical, Buttons::Ok), Answer::Ok);
  EXPECT_EQ(pushed, 1) << "the window behind shows what stands";
}

TEST_F(QtDialog, QuestionIsAnsweredYesByYesAlone) {
  const struct {
    std::function<void(QMessageBox&)> act;
    Answer answer;
  } rows[] = {{[](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); }, Answer::Yes},
              {[](QMessageBox& box) { box.button(QMessageBox::No)->click(); }, Answer::No},
              {[](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }, Answer::No},
              {[](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }, Answer::No},
              {[](QMessageBox& box) { box.close(); }, Answer::No}};
  for (const auto& row : rows) {
    answer<QMessageBox>([&](QMessageBox& box) {
      EXPECT_EQ(box.icon(), QMessageBox::Question);
      row.act(box);
    });
    EXPECT_EQ(dialogs.message("Really?", "Species change - Kelmar", Icon::Question, Buttons::YesNo), row.answer);
  }
}

TEST_F(QtDialog, MessageIsNoLargerThanTheScreen) {
  const std::string name(80, 'W');
  answer<QMessageBox>([](QMessageBox& box) {
    EXPECT_LE(box.width(), box.screen()->availableSize().width());
    EXPECT_LE(box.height(), box.screen()->availableSize().height());
    box.close();
  });
  dialogs.message(name + ", record 4000 (" + name + "): the number of components is \"" + name + "\", not a number.",
                  "Kelmar error", Icon::Critical, Buttons::Ok);
}

TEST_F(QtDialog, FileToOpenIsThere) {
  QFile there(folder.filePath("a.MDB"));
  ASSERT_TRUE(there.open(QIODevice::WriteOnly));
  const FileRequest request{
      .form = FileRequest::Form::Open, .filter = "A (*.MDB)|*.MDB|B (*.ISO)|*.ISO", .folder = file("")};
  EXPECT_EQ(choose(request,
                   [](QFileDialog& dialog) {
                     EXPECT_EQ(dialog.nameFilters(), (QStringList{"A (*.MDB) (*.MDB *.mdb)", "B (*.ISO) (*.ISO *.iso)"}));
                     dialog.selectFile("a.MDB");
                     QTest::keyClick(&dialog, Qt::Key_Return);
                   }),
            file("a.MDB"));
  EXPECT_EQ(choose(request, [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }), std::nullopt);
}

TEST_F(QtDialog, FileToWriteGetsTheExtensionAndIsReplacedOnlyWhenTheUserSaysSo) {
  QFile there(folder.filePath("there.NIC"));
  ASSERT_TRUE(there.open(QIODevice::WriteOnly));
  const FileRequest request{
      .form = FileRequest::Form::Save, .filter = "Sorption (*.MDB)|*.MDB", .folder = file(""), .extension = "NIC"};
  const auto type = [this](const char* name, std::optional<QMessageBox::StandardButton> replace) {
    return [this, name, replace](QFileDialog& dialog) {
      auto* const edit = dialog.findChild<QLineEdit*>();
      edit->setText(name);
      if (replace) {
        answer<QMessageBox>([replace](QMessageBox& box) { box.button(*replace)->click(); });
        if (*replace == QMessageBox::No) QTimer::singleShot(50, &dialog, [&dialog] { dialog.reject(); });
      }
      QTest::keyClick(&dialog, Qt::Key_Return);
    };
  };
  EXPECT_EQ(choose(request, type("fresh", std::nullopt)), file("fresh.NIC"));
  EXPECT_EQ(choose(request, type("fresh.mdb", std::nullopt)), file("fresh.mdb"));
  EXPECT_EQ(choose(request, type("there", QMessageBox::Yes)), file("there.NIC"));
  EXPECT_EQ(choose(request, type("there", QMessageBox::No)), std::nullopt);
  // Where nothing will be written any name will do.
  const FileRequest names{.form = FileRequest::Form::Save, .filter = "Kelmar (*.MDB)|*.MDB", .folder = file("")};
  EXPECT_EQ(choose(names, type("there.NIC", std::nullopt)), file("there.NIC"));
  EXPECT_EQ(choose(names, type("plain", std::nullopt)), file("plain"));
  EXPECT_EQ(choose(names, type("\u00e4\u0416", std::nullopt)), file("\xc3\xa4\xd0\x96"));
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
