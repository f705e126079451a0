// The few widgets that differ from the toolkit's own.
#pragma once

#include <QAbstractListModel>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QValidator>
#include <functional>
#include <string>
#include <vector>

#include "ui/qt/text.h"
#include "ui/type_ahead.h"

namespace ui::qt {

// The answer of a widget that is asked for its tooltip: its text, where that is cut. No markup in it is taken for
// formatting.
inline bool show_tooltip(QWidget* widget, const QEvent* asked, const QString& text, bool cut) {
  const QString shown = cut ? "<span>" + text.toHtmlEscaped() + "</span>" : QString();
  QToolTip::showText(static_cast<const QHelpEvent*>(asked)->globalPos(), shown, widget);
  return true;
}

// A label that shows a text too long for it shortened.
class Caption : public QLabel {
 public:
  Caption(QWidget* parent, bool path) : QLabel(parent), cut_(path ? Qt::ElideMiddle : Qt::ElideRight) {
    setTextFormat(Qt::PlainText);
    setContentsMargins(3, 0, 0, 0);  // keeps the text from touching what stands left of it
  }
  bool is_shortened() const { return !wordWrap() && fontMetrics().horizontalAdvance(text()) > contentsRect().width(); }

 private:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ToolTip) return show_tooltip(this, event, text(), is_shortened());
    return QLabel::event(event);
  }
  void paintEvent(QPaintEvent* event) override {
    if (!is_shortened()) return QLabel::paintEvent(event);
    const QRect inside = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), cut_, inside.width());
    QPainter(this).drawText(inside, static_cast<int>(alignment()), shown);
  }

  const Qt::TextElideMode cut_;
};

// Lets only characters of the code page into a text box.
class CodePageValidator : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& input, int& position) const override {
    const QString taken = from_bytes(to_bytes(input));
    if (taken == input) return Acceptable;
    position -= static_cast<int>(input.size() - taken.size());
    input = taken;
    auto* box = static_cast<QWidget*>(parent());
    QToolTip::showText(box->mapToGlobal(QPoint(0, box->height())),
                       "A character was left out: the files hold only those of the code page Windows-1252.", box);
    return Acceptable;
  }
};

// A text is seen from its beginning when it is set, and when the user has left it (not for its own menu).
class TextBox : public QLineEdit {
 public:
  explicit TextBox(QWidget* parent) : QLineEdit(parent) {
    setValidator(new CodePageValidator(this));
    setMaxLength(1 << 20);
  }
  void show_text(const QString& text) {
    setText(text);
    setCursorPosition(0);
  }

 private:
  bool event(QEvent* event) override {
    constexpr int kMargin = 8;  // pixels beside the text
    if (event->type() != QEvent::ToolTip) return QLineEdit::event(event);
    return show_tooltip(this, event, text(), fontMetrics().horizontalAdvance(text()) > width() - kMargin);
  }
  void focusOutEvent(QFocusEvent* event) override {
    if (event->reason() != Qt::PopupFocusReason) setCursorPosition(0);
    QLineEdit::focusOutEvent(event);
  }
};

// A combo box from which only the list and the arrow keys pick: typing an entry, Enter, or the wheel does not.
class PickBox : public QComboBox {
 public:
  explicit PickBox(QWidget* parent) : QComboBox(parent) {
    setLineEdit(edit);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);  // what the user types stays what it is
    setFocusPolicy(Qt::StrongFocus);
    disconnect(edit, &QLineEdit::editingFinished, this, nullptr);  // which picks the entry that the text equals
  }
  void show_entries(const std::vector<std::string>& entries) {
    const QString text = currentText();
    clear();
    for (const std::string& entry : entries) addItem(from_bytes(entry));
    setCurrentIndex(-1);
    setEditText(text);
  }

  TextBox* const edit = new TextBox(this);

 private:
  bool event(QEvent* event) override {
    return event->type() == QEvent::ToolTip ? lineEdit()->event(event) : QComboBox::event(event);
  }
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

// The entries are the form's own bytes, made into text when they come into view.
class EntryModel : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;
  void reset(const std::vector<std::string>& now) {
    beginResetModel();
    entries = now;
    endResetModel();
  }
  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : static_cast<int>(entries.size()); }
  QVariant data(const QModelIndex& index, int role) const override {
    return role == Qt::DisplayRole ? from_bytes(entries[static_cast<std::size_t>(index.row())]) : QVariant();
  }

  std::vector<std::string> entries;
};

// A list of which an entry is chosen by mouse, keys, typing its first letters, or a screen reader; the entry chosen already
// can be chosen again. What is chosen is told before the next event, so that no later one overtakes it. A choice is never
// taken back by the user.
class EntryList : public QListView {
 public:
  explicit EntryList(QWidget* parent) : QListView(parent) {
    setModel(&model_);
    setUniformItemSizes(true);  // or every row is measured
    setEditTriggers(NoEditTriggers);
    setFrameStyle(QFrame::Box | QFrame::Plain);  // the style's own frame vanishes in part at a scale of 1.5
    QPalette usual = palette();
    usual.setColor(QPalette::WindowText, usual.color(QPalette::WindowText));  // said, lest it be inherited from the list
    verticalScrollBar()->setPalette(usual);
    horizontalScrollBar()->setPalette(usual);
    show_focus(QPalette::Mid);
  }
  const std::vector<std::string>& entries() const { return model_.entries; }
  void show_entries(const std::vector<std::string>& entries) { model_.reset(entries); }
  int selected() const { return selectionModel()->selectedIndexes().value(0).row(); }  // -1: none
  void show_selected(int selected) {
    quietly([&] { selected < 0 ? selectionModel()->clear() : setCurrentIndex(model_.index(selected)); });
    scrollTo(currentIndex());
  }

  std::function<void(int entry)> chosen = [](int) {};  // -1: somebody took the choice back

 private:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent*) const override {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
  }
  // Not by an event of this list: a screen reader.
  void selectionChanged(const QItemSelection& now, const QItemSelection& before) override {
    QListView::selectionChanged(now, before);
    if (!quiet_) chosen(now.indexes().value(0).row());
  }
  void mousePressEvent(QMouseEvent* event) override {
    const QModelIndex pressed = indexAt(event->position().toPoint());
    if (!pressed.isValid() || event->button() != Qt::LeftButton) return;
    quietly([&] { QListView::mousePressEvent(event); });
    chosen(pressed.row());
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseMoveEvent(QMouseEvent*) override {}  // a drag chooses nothing
  void keyPressEvent(QKeyEvent* event) override {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool letter = event->key() > Qt::Key_Space && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) &&
                        !event->text().isEmpty() && event->text().front().isPrint();
    const int before = selected();
    const int found = letter ? letters_.find(entries(), before, to_bytes(event->text()), event->timestamp()) : -1;
    quietly([&] {
      if (found >= 0) setCurrentIndex(model_.index(found));
      if (!enter && !letter) QListView::keyPressEvent(event);
    });
    if (selected() >= 0 && (enter || selected() != before)) chosen(selected());
  }
  // The frame shows the focus. The toolkit makes the first entry the current one, from which the first arrow key would go
  // on.
  void focusInEvent(QFocusEvent* event) override {
    quietly([&] {
      QListView::focusInEvent(event);
      if (selected() < 0) selectionModel()->clearCurrentIndex();
    });
    show_focus(QPalette::Highlight);
  }
  void focusOutEvent(QFocusEvent* event) override {
    QListView::focusOutEvent(event);
    show_focus(QPalette::Mid);
  }

  void show_focus(QPalette::ColorRole frame) {
    QPalette shown = palette();
    shown.setColor(QPalette::WindowText, shown.color(QPalette::Active, frame));
    setPalette(shown);
  }
  template <typename Change>
  void quietly(Change change) {
    quiet_ = true;
    change();
    quiet_ = false;
  }

  EntryModel model_;
  TypeAhead letters_;
  bool quiet_ = false;  // a change of the selection is not told
};

}  // namespace ui::qt
