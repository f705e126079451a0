// Message boxes and file dialogs: the desktop's own.
#pragma once

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "ui/backend.h"
#include "ui/qt/text.h"

namespace ui::qt {

class QtDialogs final : public Dialogs {
 public:
  // The window over which dialogs open, and a call that brings it up to date first.
  void attach_to(QWidget* parent, std::function<void()> push) {
    parent_ = parent;
    push_ = std::move(push);
  }

  Answer message(std::string_view prompt, std::string_view title, Icon icon, Buttons buttons) override {
    push_();
    QMessageBox box(parent_);
    box.setWindowTitle(from_bytes(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(from_path(prompt));
    box.setIcon(icon == Icon::Critical ? QMessageBox::Critical : QMessageBox::Question);
    box.setStandardButtons(buttons == Buttons::Ok ? QMessageBox::Ok : QMessageBox::Yes | QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);  // every question is about data that would be gone
    const bool yes = box.exec() == QMessageBox::Yes;
    return buttons == Buttons::Ok ? Answer::Ok : yes ? Answer::Yes : Answer::No;
  }

  std::optional<std::string> choose_file(const FileRequest& request) override {
    push_();
    QFileDialog dialog(parent_);
    const bool opens = request.form == FileRequest::Form::Open;
    dialog.setAcceptMode(opens ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(opens ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, request.extension.empty());
    dialog.setOption(QFileDialog::HideNameFilterDetails);  // the descriptions name the patterns
    dialog.setNameFilters(name_filters(request.filter));
    dialog.setDefaultSuffix(from_bytes(request.extension));
    if (!request.folder.empty()) dialog.setDirectory(QFile::decodeName(request.folder.c_str()));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
  }

 private:
  // "Text (*.MDB)|*.MDB|..." as the toolkit writes it, each pattern in upper and lower case: "Text (*.MDB) (*.MDB *.mdb)".
  static QStringList name_filters(std::string_view filter) {
    const QStringList parts = from_bytes(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
      filters += parts[i] + " (" + parts[i + 1].toUpper() + " " + parts[i + 1].toLower() + ")";
    return filters;
  }

  QWidget* parent_ = nullptr;
  std::function<void()> push_ = [] {};
};

}  // namespace ui::qt
