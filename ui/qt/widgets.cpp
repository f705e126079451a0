#include "ui/qt/widgets.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include "ui/qt/text.h"

namespace ui::qt {

Caption::Caption(QWidget* parent, bool path) : QLabel(parent), path_(path) {
  setTextFormat(Qt::PlainText);
  setContentsMargins(kLabelIndent, 0, 0, 0);
}

void Caption::set_covered(bool covered) {
  if (covered_ == covered) return;
  covered_ = covered;
  update();
}

bool Caption::is_shortened() const {
  return !wordWrap() && fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void Caption::paintEvent(QPaintEvent* event) {
  if (covered_) return;
  if (!is_shortened()) return QLabel::paintEvent(event);
  QPainter painter(this);
  const auto cut = path_ ? Qt::ElideMiddle : Qt::ElideRight;
  const QRect inside = contentsRect();
  painter.drawText(inside, static_cast<int>(alignment()), fontMetrics().elidedText(text(), cut, inside.width()));
}

QValidator::State CodePageValidator::validate(QString& input, int& position) const {
  int lost = 0;
  const QString taken = from_bytes(to_bytes(input, &lost));
  if (lost > 0) {
    position -= static_cast<int>(input.size() - taken.size());
    input = taken;
    emit left_out();
  }
  return Acceptable;
}

void EntryModel::set_entries(const std::vector<std::string>& entries) {
  beginResetModel();
  entries_ = entries;
  endResetModel();
}

int EntryModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant EntryModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
  return from_bytes(entries_[static_cast<std::size_t>(index.row())]);
}

EntryList::EntryList(QWidget* parent) : QListView(parent), model_(this) {
  setModel(&model_);
  setUniformItemSizes(true);  // or every row is measured
  setEditTriggers(NoEditTriggers);
  setFrameStyle(QFrame::Box | QFrame::Plain);  // the style's own frame vanishes in part at a scale of 1.5
  QPalette usual = palette(), frame = usual;
  frame.setColor(QPalette::WindowText, frame.color(QPalette::Mid));
  setPalette(frame);
  usual.setColor(QPalette::WindowText, usual.color(QPalette::WindowText));  // said, lest it be inherited from the list
  verticalScrollBar()->setPalette(usual);
  horizontalScrollBar()->setPalette(usual);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void EntryList::show_entries(const std::vector<std::string>& entries, int selected) {
  pushing_ = true;
  model_.set_entries(entries);
  pushing_ = false;
  show_selected(selected);
}

void EntryList::show_selected(int selected) {
  pushing_ = true;
  if (selected < 0) {
    selectionModel()->clear();
  } else {
    setCurrentIndex(model_.index(selected));
    scrollTo(currentIndex());
  }
  pushing_ = false;
}

// The selection, not the current entry, which the toolkit also moves when the list gets the focus.
void EntryList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QListView::selectionChanged(selected, deselected);
  if (pushing_ || selected.isEmpty()) return;
  changed_ = true;
  choose(selected.indexes().front().row());
}

void EntryList::choose(int entry) {
  // Once the toolkit is done with the event: the handler may ask something and wait for the answer.
  QMetaObject::invokeMethod(
      this, [this, entry] { emit chosen(entry); }, Qt::QueuedConnection);
}

void EntryList::mousePressEvent(QMouseEvent* event) {
  changed_ = false;
  QListView::mousePressEvent(event);
  const QModelIndex pressed = indexAt(event->position().toPoint());
  if (!changed_ && pressed.isValid() && event->button() == Qt::LeftButton) choose(pressed.row());
}

void EntryList::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter || !currentIndex().isValid())
    QListView::keyPressEvent(event);
  else if (selectionModel()->isSelected(currentIndex()))
    choose(currentIndex().row());
  else
    selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
}

PickBox::PickBox(QWidget* parent) : QComboBox(parent) {
  setEditable(true);
  setInsertPolicy(NoInsert);
  setCompleter(nullptr);  // what the user types stays what it is
  setFocusPolicy(Qt::StrongFocus);
}

void PickBox::show_entries(const std::vector<std::string>& entries) {
  const QString text = currentText();
  clear();
  for (const std::string& entry : entries) addItem(from_bytes(entry));
  setCurrentIndex(-1);
  setEditText(text);
}

void PickBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus())
    QComboBox::wheelEvent(event);
  else
    event->ignore();
}

}  // namespace ui::qt
