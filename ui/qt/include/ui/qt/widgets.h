// The few widgets that differ from the toolkit's own.
#pragma once

#include <QAbstractListModel>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QValidator>
#include <string>
#include <vector>

#include "ui/type_ahead.h"

namespace ui::qt {

inline constexpr int kLabelIndent = 3;  // pixels; keeps a label's text from touching what stands left of it

// A label that shows a text too long for it shortened.
class Caption : public QLabel {
  Q_OBJECT
 public:
  Caption(QWidget* parent, bool path);
  bool is_shortened() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool path_;
};

// Lets only characters of the code page into a text box.
class CodePageValidator : public QValidator {
  Q_OBJECT
 public:
  using QValidator::QValidator;
  State validate(QString& input, int& position) const override;

 signals:
  void left_out() const;
};

// The entries are the form's own bytes, made into text when they come into view.
class EntryModel : public QAbstractListModel {
  Q_OBJECT
 public:
  using QAbstractListModel::QAbstractListModel;
  void set_entries(const std::vector<std::string>& entries);
  const std::vector<std::string>& entries() const { return entries_; }
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<std::string> entries_;
};

// A list of which an entry is chosen by mouse, keys, typing its first letters, or a screen reader; the entry chosen already
// can be chosen again. What is chosen is told before the next event, so that no later one overtakes it. A choice is never
// taken back by the user.
class EntryList : public QListView {
  Q_OBJECT
 public:
  explicit EntryList(QWidget* parent);
  void show_entries(const std::vector<std::string>& entries);
  void show_selected(int selected);  // -1: none
  int selected() const;
  const std::vector<std::string>& entries() const { return model_.entries(); }

 signals:
  void chosen(int entry);  // -1: somebody took the choice back

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseMoveEvent(QMouseEvent*) override {}  // a drag chooses nothing
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void show_focus(QPalette::ColorRole frame);
  template <typename Change>
  void quietly(Change change);

  EntryModel model_;
  TypeAhead letters_;
  bool quiet_ = false;  // a change of the selection is not told
};

// A combo box from which only the list and the arrow keys pick: typing an entry, Enter, or the wheel does not.
class PickBox : public QComboBox {
  Q_OBJECT
 public:
  explicit PickBox(QWidget* parent);
  void show_entries(const std::vector<std::string>& entries);

 protected:
  void wheelEvent(QWheelEvent* event) override;
};

}  // namespace ui::qt
