// Real message boxes and file dialogs, answered by real keys and buttons.
#include <QAbstractButton>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <iostream>

#include "qt/qt_player.h"
#include "ui/qt/dialogs.h"

namespace player {
namespace {

void describe(const QWidget* dialog) {
  const QSize screen = dialog->screen()->availableSize();
  if (const auto* box = qobject_cast<const QMessageBox*>(dialog)) {
    const std::string icon = box->icon() == QMessageBox::Critical ? "critical" : "question";
    describe_box(box->windowTitle().toStdString(), ui::qt::to_bytes(box->text()),
                 box->textFormat() == Qt::PlainText ? icon : icon + " formatted",
                 box->standardButtons() == (QMessageBox::Yes | QMessageBox::No));
  }
  if (const auto* file = qobject_cast<const QFileDialog*>(dialog))
    std::cout << file->nameFilters().join(" | ").toStdString() << '\n';
  if (dialog->width() > screen.width() || dialog->height() > screen.height()) std::cout << "too large for the screen\n";
}

// Answers the dialog that opens next, and those that open from it.
void reply(QStringList replies) {
  QTimer::singleShot(0, [replies]() mutable {
    QWidget* const dialog = QApplication::activeModalWidget();
    const auto* const box = qobject_cast<QMessageBox*>(dialog);
    const QString first = replies.takeFirst();
    if (!replies.isEmpty()) reply(replies);
    if (first == "close")
      dialog->close();
    else if (first == "Return" || first == "Escape")
      QTest::keyClick(dialog, first == "Return" ? Qt::Key_Return : Qt::Key_Escape);
    else if (box != nullptr)
      box->button(first == "Yes" ? QMessageBox::Yes : QMessageBox::No)->click();
    else
      dialog->findChild<QLineEdit*>()->setText(first), QTest::keyClick(dialog, Qt::Key_Return);
  });
}

}  // namespace

void play_dialog(QWidget* parent, const std::string& form, const std::string& text, const QString& replies) {
  ui::qt::QtDialogs dialogs;
  dialogs.parent = parent;
  dialogs.push = [] { std::cout << "the window shows what stands\n"; };
  QTimer::singleShot(0, [] { describe(QApplication::activeModalWidget()); });
  reply(replies.split('|'));
  if (form == "tell" || form == "ask") {
    const bool ask = form == "ask";
    describe_answer(dialogs.message(text, "Kelmar", ask ? ui::Icon::Question : ui::Icon::Critical,
                                    ask ? ui::Buttons::YesNo : ui::Buttons::Ok));
    return;
  }
  const auto path = dialogs.choose_file({.form = form == "open" ? ui::FileRequest::Form::Open : ui::FileRequest::Form::Save,
                                         .filter = "A (*.MDB)|*.MDB|B (*.ISO)|*.ISO",
                                         .folder = QDir::currentPath().toStdString(),
                                         .extension = form == "save" ? "NIC" : ""});
  std::cout << "chosen " << path.value_or("nothing") << '\n';
}

}  // namespace player
