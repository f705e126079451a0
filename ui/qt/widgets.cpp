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

bool Caption::is_shortened() const {
  return !wordWrap() && fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void Caption::paintEvent(QPaintEvent* event) {
  if (!is_shortened()) return QLabel::paintEvent(event);
  QPainter painter(this);
  const auto cut = path_ ? Qt::ElideMiddle : Qt::ElideRight;
  const QRect inside = contentsRect();
  painter.drawText(inside, static_cast<int>(alignment()), fontMetrics().elidedText(text(), cut, inside.width()));
}

QValidator::State CodePageValidator::validate(QString& input, int& position) const {
  const QString taken = from_bytes(to_bytes(input));
  if (taken != input) {
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
  QPalette usual = palette();
  usual.setColor(QPalette::WindowText, usual.color(QPalette::WindowText));  // said, lest it be inherited from the list
  verticalScrollBar()->setPalette(usual);
  horizontalScrollBar()->setPalette(usual);
  show_focus(QPalette::Mid);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

template <typename Change>
void EntryList::quietly(Change change) {
  quiet_ = true;
  change();
  quiet_ = false;
}

void EntryList::show_entries(const std::vector<std::string>& entries) {
  quietly([&] { model_.set_entries(entries); });
}

void EntryList::show_selected(int selected) {
  quietly([&] {
    if (selected < 0) return selectionModel()->clear();
    setCurrentIndex(model_.index(selected));
    scrollTo(currentIndex());
  });
}

int EntryList::selected() const {
  const QModelIndexList indexes = selectionModel()->selectedIndexes();
  return indexes.isEmpty() ? -1 : indexes.front().row();
}

QItemSelectionModel::SelectionFlags EntryList::selectionCommand(const QModelIndex& index, const QEvent*) const {
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

// Not by an event of this list: a screen reader.
void EntryList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QListView::selectionChanged(selected, deselected);
  if (!quiet_) emit chosen(selected.isEmpty() ? -1 : selected.indexes().front().row());
}

void EntryList::mousePressEvent(QMouseEvent* event) {
  const QModelIndex pressed = indexAt(event->position().toPoint());
  if (!pressed.isValid() || event->button() != Qt::LeftButton) return;
  quietly([&] { QListView::mousePressEvent(event); });
  emit chosen(pressed.row());
}

void EntryList::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool letter = event->key() > Qt::Key_Space && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) &&
                      !event->text().isEmpty() && event->text().front().isPrint();
  const int before = selected();
  quietly([&] {
    const int found = letter ? letters_.find(entries(), before, to_bytes(event->text()), event->timestamp()) : -1;
    if (found >= 0)
      setCurrentIndex(model_.index(found));
    else if (!enter && !letter)
      QListView::keyPressEvent(event);
    else if (currentIndex().isValid())
      selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
  });
  if (selected() >= 0 && (enter || selected() != before)) emit chosen(selected());
}

// The frame shows the focus. The toolkit makes the first entry the current one, from which the first arrow key would go on.
void EntryList::focusInEvent(QFocusEvent* event) {
  quietly([&] {
    QListView::focusInEvent(event);
    if (selected() < 0) selectionModel()->clearCurrentIndex();
  });
  show_focus(QPalette::Highlight);
}

void EntryList::focusOutEvent(QFocusEvent* event) {
  QListView::focusOutEvent(event);
  show_focus(QPalette::Mid);
}

void EntryList::show_focus(QPalette::ColorRole frame) {
  QPalette shown = palette();
  shown.setColor(QPalette::WindowText, shown.color(QPalette::Active, frame));
  setPalette(shown);
}

PickBox::PickBox(QWidget* parent) : QComboBox(parent) {
  setEditable(true);
  setInsertPolicy(NoInsert);
  setCompleter(nullptr);  // what the user types stays what it is
  setFocusPolicy(Qt::StrongFocus);
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);  // which picks the entry that the text equals
}

void PickBox::show_entries(const std::vector<std::string>& entries) {
  const QString text = currentText();
  clear();
  for (const std::string& entry : entries) addItem(from_bytes(entry));
  setCurrentIndex(-1);
  setEditText(text);
}

void PickBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace ui::qt
