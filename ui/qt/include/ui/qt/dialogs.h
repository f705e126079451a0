// Message boxes and file dialogs: the desktop's own.
#pragma once

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "ui/backend.h"
#include "ui/qt/text.h"

namespace ui::qt {

class QtDialogs final : public Dialogs {
 public:
  Answer message(std::string_view prompt, std::string_view title, Icon icon, Buttons buttons) override {
    push();
    QMessageBox box(icon == Icon::Critical ? QMessageBox::Critical : QMessageBox::Question, from_bytes(title), {},
                    buttons == Buttons::Ok ? QMessageBox::Ok : QMessageBox::Yes | QMessageBox::No, parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(from_path(prompt));
    box.setDefaultButton(QMessageBox::No);  // every question is about data that would be gone
    if (box.exec() == QMessageBox::Yes) return Answer::Yes;
    return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
  }

  std::optional<std::string> choose_file(const FileRequest& request) override {
    push();
    QFileDialog dialog(parent);
    const bool opens = request.form == FileRequest::Form::Open;
    dialog.setAcceptMode(opens ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(opens ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, request.extension.empty());
    dialog.setOption(QFileDialog::HideNameFilterDetails);  // the descriptions name the patterns
    // Each pattern in upper and lower case: "Text (*.MDB) (*.MDB *.mdb)".
    const QStringList parts = from_bytes(request.filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
      filters += parts[i] + " (" + parts[i + 1].toUpper() + " " + parts[i + 1].toLower() + ")";
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(from_bytes(request.extension));
    if (!request.folder.empty()) dialog.setDirectory(QFile::decodeName(request.folder.c_str()));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
  }

  QWidget* parent = nullptr;           // the window over which they open
  std::function<void()> push = [] {};  // brings it up to date first
};

}  // namespace ui::qt
