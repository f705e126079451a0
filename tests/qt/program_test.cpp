// The program itself, started as Kelmar starts it.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace {

// The program itself, in a folder of samples and with a home of its own.
class ProgramRun {
 public:
  ProgramRun() {
    for (const auto& entry : std::filesystem::directory_iterator(SAMPLES))
      QFile::copy(QString::fromStdString(entry.path().string()),
                  folder.filePath(QString::fromStdString(entry.path().filename().string())));
    process.setWorkingDirectory(folder.path());
  }
  void start(const std::vector<std::pair<const char*, const char*>>& variables) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) environment.remove(display);
    for (const char* place : {"HOME", "TMPDIR", "XDG_RUNTIME_DIR"}) environment.insert(place, home.path());
    for (const auto& [name, value] : variables) environment.insert(name, value);
    process.setProcessEnvironment(environment);
    process.start(KELMAR_DBEDIT, {});
  }
  std::string said() {
    process.waitForFinished();
    EXPECT_EQ(process.exitCode(), 1);
    return process.readAllStandardError().toStdString();
  }

  QTemporaryDir folder, home;
  QProcess process;
};

TEST(Program, SaysWhyItCannotStart) {
  ProgramRun without, other;
  without.start({});
  EXPECT_EQ(without.said(), "kelmar-dbedit: the window cannot be opened: there is no display.\n");
  other.start({{"QT_QPA_PLATFORM", "nonsense"}});
  const std::string said = other.said();
  EXPECT_TRUE(said.starts_with("kelmar-dbedit: the window cannot be opened: ") && said.find("\"nonsense\"") != said.npos)
      << said;
}

TEST(Program, LeavesNothingBehindWhenItIsKilled) {
  ProgramRun run;
  run.start({{"QT_QPA_PLATFORM", "offscreen"}});
  const QString hand_over = run.folder.filePath("sorptemp.dat");
  for (int i = 0; i < 500 && QFile::exists(hand_over); ++i) QTest::qWait(10);
  QTest::qWait(300);  // the window is open
  EXPECT_FALSE(QFile::exists(hand_over));
  run.process.kill();
  run.process.waitForFinished();
  EXPECT_EQ(QDir(run.home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

}  // namespace
