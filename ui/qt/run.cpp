// Qt's part of a program's start.
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QMessageBox>
#include <QSettings>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "ui/backend.h"
#include "ui/qt/dialogs.h"
#include "ui/qt/main_window.h"
#include "ui/qt/text.h"

namespace ui {
namespace {

std::string name;  // of the program, in messages

// The toolkit ends the program by abort() when it cannot open a window; nothing has been opened by then.
void end_without_window(QtMsgType type, const QMessageLogContext&, const QString& message) {
  static QString said;
  said += message + "\n";
  if (type != QtFatalMsg) return;
  bool display = false;
  for (const char* place : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) display |= qEnvironmentVariableIsSet(place);
  std::fprintf(stderr, "%s: the window cannot be opened: %s\n", name.c_str(),
               display ? qPrintable(said.trimmed()) : "there is no display.");
  std::exit(1);
}

// The toolkit, as long as it lives.
class Toolkit {
 public:
  Toolkit(char* program, std::string_view shown) : argv_{program, nullptr} {
    name = shown;
    // The program remembers nothing from run to run: for what the toolkit and its file dialog would note in the temporary
    // folder and in the user's home, there is no folder.
    constexpr const char* kNowhere = "/dev/null";
    qputenv("TMPDIR", kNowhere);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, kNowhere);

    const auto usual = qInstallMessageHandler(end_without_window);
    application_.emplace(argc_, argv_);
    qInstallMessageHandler(usual);
  }

 private:
  int argc_ = 1;  // no command line for the toolkit
  char* argv_[2];
  std::optional<QApplication> application_;
};

}  // namespace

int run(char* program, const std::function<std::unique_ptr<Form>(Dialogs&)>& make_form) {
  qt::QtDialogs dialogs;
  const auto form = make_form(dialogs);
  const Toolkit toolkit(program, form->definition().program);

  // X takes the icon from the window, Wayland from the desktop's entry. The program holds it in several sizes.
  QGuiApplication::setDesktopFileName(qt::from_bytes(form->definition().desktop));
  QIcon icon;
  for (const QFileInfo& size : QDir(":/icon").entryInfoList()) icon.addFile(size.filePath());
  QGuiApplication::setWindowIcon(icon);

  qt::MainWindow window(*form);
  form->load();
  if (form->window().ended) return form->window().status;
  dialogs.parent = &window;
  dialogs.push = [&window] { window.push(); };
  window.push();
  window.show();
  return QApplication::exec();
}

void tell(char* program, std::string_view text, std::string_view title) {
  const std::string path = program;
  const std::string shown = path.substr(path.rfind('/') + 1);
  std::fprintf(stderr, "%s: %s\n", shown.c_str(), std::string(text).c_str());
  const Toolkit toolkit(program, shown);
  QMessageBox box(QMessageBox::Information, qt::from_bytes(title), {}, QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.setText(qt::from_path(text));
  box.exec();
}

}  // namespace ui
