#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

#include "ui/backend.h"
#include "ui/qt/dialogs.h"
#include "ui/qt/main_window.h"

namespace ui {
namespace {

// The toolkit ends the program by abort() when it finds no display; nothing has been opened by then.
void end_without_display(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  std::fputs("kelmar-dbedit: the window cannot be opened: there is no display.\n", stderr);
  std::_Exit(1);
}

}  // namespace

int run(char* program, const MakeForm& make_form) {
  const auto usual = qInstallMessageHandler(end_without_display);
  int argc = 1;  // the program has no command line, also none for the toolkit
  char* argv[] = {program, nullptr};
  const QApplication application(argc, argv);
  qInstallMessageHandler(usual);

  // The toolkit's file dialog notes its state in the user's home; the program remembers nothing from run to run.
  const QTemporaryDir notes;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, notes.path());

  qt::QtDialogs dialogs;
  const auto form = make_form(dialogs);
  qt::MainWindow window(*form);
  form->load();
  if (form->window().ended) return form->window().status;
  dialogs.stand_before(&window, [&window] { window.push(); });
  window.push(true);
  window.show();
  return QApplication::exec();
}

}  // namespace ui
