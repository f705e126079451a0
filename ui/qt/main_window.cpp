#include "ui/qt/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QToolTip>
#include <algorithm>

#include "ui/qt/text.h"
#include "ui/qt/widgets.h"

namespace ui::qt {
namespace {

constexpr int kFrameHeight = 60;  // pixels of a title bar and the menu

QSize available_size() {
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  return {screen.width(), screen.height() - kFrameHeight};
}

QColor to_qt(const Color& color) { return {color.red, color.green, color.blue}; }

bool is_label(const ControlDef& def) { return def.kind == Kind::Label || def.kind == Kind::Line; }

// So much of a label that its text suffers.
bool covers(const QRect& box, const QRect& label) { return box.intersected(label).height() > label.height() / 4; }

}  // namespace

MainWindow::MainWindow(Form& form)
    : form_(form),
      layout_(form.definition(), QApplication::font(), available_size()),
      area_(new QWidget) {
  const WindowDef& window = form.definition();
  setWindowTitle(QString::fromLatin1(window.caption.data(), static_cast<qsizetype>(window.caption.size())));
  QPalette palette = area_->palette();
  palette.setColor(QPalette::Window, to_qt(window.background));
  area_->setPalette(palette);
  area_->setAutoFillBackground(true);
  setCentralWidget(area_);
  menuBar()->addMenu("&" + QString::fromLatin1(window.menu.data(), static_cast<qsizetype>(window.menu.size())));

  widgets_.resize(window.controls.size());
  actions_.resize(window.controls.size());
  shown_.resize(window.controls.size());
  // Later widgets lie above earlier ones: labels first.
  for (const bool labels : {true, false})
    for (int i = 0; i < controls(); ++i)
      if (is_label(def(i)) == labels) build(i);
  set_focus_order();
  area_->installEventFilter(this);
  area_->resize(layout_.start_size());
  menu_height_ = menuBar()->sizeHint().height();
  resize(layout_.start_size() + QSize(0, menu_height_));
}

void MainWindow::build(int control) {
  QWidget*& widget = widgets_[static_cast<std::size_t>(control)];
  switch (def(control).kind) {
    case Kind::Label: {
      auto* label = new Caption(area_, def(control).path);
      label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
      if (def(control).place.height > 400) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
      }
      QPalette palette = label->palette();
      palette.setColor(QPalette::WindowText, to_qt(def(control).color));
      label->setPalette(palette);
      widget = label;
      break;
    }
    case Kind::Line: {
      // Filled, not drawn: a drawn line may vanish where the screen's scale is no whole number.
      widget = new QWidget(area_);
      QPalette palette = widget->palette();
      palette.setColor(QPalette::Window, to_qt(def(control).color));
      widget->setPalette(palette);
      widget->setAutoFillBackground(true);
      break;
    }
    case Kind::TextBox: return build_text_box(control);
    case Kind::ComboBox: return build_combo_box(control);
    case Kind::ListBox: {
      auto* list = new EntryList(area_);
      connect(list, &EntryList::chosen, this, [this, control](int entry) {
        if (static_cast<std::size_t>(entry) >= form_.window()[control].entries.size()) return;
        form_.window()[control].selected = shown_[static_cast<std::size_t>(control)].selected = entry;
        run(control);
      });
      widget = list;
      break;
    }
    case Kind::Button: {
      auto* button = new QPushButton(area_);
      connect(button, &QPushButton::clicked, this, [this, control] { run(control); });
      widget = button;
      break;
    }
    case Kind::MenuItem: {
      QAction* action = menuBar()->actions().front()->menu()->addAction(QString());
      connect(action, &QAction::triggered, this, [this, control] { run(control); });
      actions_[static_cast<std::size_t>(control)] = action;
      break;
    }
  }
}

void MainWindow::build_text_box(int control) {
  widgets_[static_cast<std::size_t>(control)] = make_line_edit(control, new QLineEdit(area_));
}

void MainWindow::build_combo_box(int control) {
  auto* combo = new PickBox(area_);
  make_line_edit(control, combo->lineEdit());
  connect(combo, &QComboBox::activated, this, [this, control](int entry) {
    Control& value = form_.window()[control];
    if (static_cast<std::size_t>(entry) >= value.entries.size()) return;
    value.text = shown_[static_cast<std::size_t>(control)].text = value.entries[static_cast<std::size_t>(entry)];
    run(control);
  });
  widgets_[static_cast<std::size_t>(control)] = combo;
}

QLineEdit* MainWindow::make_line_edit(int control, QLineEdit* edit) {
  auto* validator = new CodePageValidator(edit);
  edit->setValidator(validator);
  connect(validator, &CodePageValidator::left_out, this, [edit] {
    QToolTip::showText(edit->mapToGlobal(QPoint(0, edit->height())),
                       "A character was left out: the files hold only those of the code page Windows-1252.", edit);
  });
  connect(edit, &QLineEdit::textEdited, this, [this, control](const QString& text) {
    form_.window()[control].text = shown_[static_cast<std::size_t>(control)].text = to_bytes(text);
    push_tooltips();
  });
  return edit;
}

void MainWindow::set_focus_order() {
  std::vector<int> order;
  for (int i = 0; i < controls(); ++i)
    if (def(i).tab >= 0) order.push_back(i);
  std::sort(order.begin(), order.end(), [this](int a, int b) { return def(a).tab < def(b).tab; });
  for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(widget(order[i - 1]), widget(order[i]));
  widget(order.front())->setFocus();
}

void MainWindow::arrange() {
  // By the size of the whole window: the menu's own height would feed back into it.
  const QFont menu = layout_.menu_font(size() - QSize(0, menu_height_));
  menuBar()->setFont(menu);
  menuBar()->actions().front()->menu()->setFont(menu);
  for (int i = 0; i < controls(); ++i) {
    if (widget(i) == nullptr) continue;
    widget(i)->setFont(layout_.font(i, area_->size()));
    widget(i)->setGeometry(layout_.place(i, area_->size()));
  }
  push_tooltips();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == area_ && event->type() == QEvent::Resize) arrange();
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  form_.window().ended = true;
  event->accept();
  QApplication::exit(form_.window().status);
}

void MainWindow::run(int control) {
  form_.click(control);
  push();
  if (form_.window().ended) close();
}

void MainWindow::push(bool anew) {
  for (int i = 0; i < controls(); ++i) push_control(i, anew);
  push_tooltips();
}

void MainWindow::push_control(int control, bool anew) {
  const Control& now = form_.window()[control];
  Control& before = shown_[static_cast<std::size_t>(control)];
  if (auto* list = qobject_cast<EntryList*>(widget(control))) {
    if (anew || now.entries != list->entries())
      list->show_entries(now.entries, now.selected);
    else if (now.selected != before.selected)
      list->show_selected(now.selected);
    before.selected = now.selected;
  }
  auto* combo = qobject_cast<PickBox*>(widget(control));
  if (combo != nullptr && (anew || now.entries != before.entries)) {
    combo->show_entries(now.entries);
    before.entries = now.entries;
  }

  if (anew || now.text != before.text) {
    before.text = now.text;
    push_text(control);
  }
  if (widget(control) != nullptr && (anew || now.shown != before.shown)) widget(control)->setVisible(now.shown);
  before.shown = now.shown;
}

void MainWindow::push_text(int control) {
  const std::string& bytes = form_.window()[control].text;
  const QString text = def(control).path ? from_path(bytes) : from_bytes(bytes);
  if (auto* edit = qobject_cast<QLineEdit*>(widget(control))) edit->setText(text);
  if (auto* combo = qobject_cast<PickBox*>(widget(control))) {
    combo->setCurrentIndex(combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    combo->setEditText(text);
  }
  if (auto* button = qobject_cast<QPushButton*>(widget(control))) button->setText(QString(text).replace('&', "&&"));
  if (QAction* item = action(control)) item->setText(text);
  auto* label = qobject_cast<Caption*>(widget(control));
  if (label == nullptr) return;
  label->setText(text);
  // A screen reader tells a box by the caption of its label.
  for (int i = 0; i < controls(); ++i) {
    if (def(i).label != control) continue;
    widget(i)->setAccessibleName(text);
    widget(i)->setAccessibleDescription(from_bytes(def(i).about));
    if (auto* combo = qobject_cast<PickBox*>(widget(i))) combo->lineEdit()->setAccessibleName(text);
  }
}

// A text that does not show whole shows whole in the tooltip: of its own widget, or of the boxes that lie over it.
void MainWindow::push_tooltips() {
  for (int i = 0; i < controls(); ++i)
    if (widget(i) != nullptr) widget(i)->setToolTip(plain_tooltip(tooltip(i)));
  for (int i = 0; i < controls(); ++i) {
    auto* label = qobject_cast<Caption*>(widget(i));
    if (label == nullptr) continue;
    bool covered = false;
    for (int j = 0; label->wordWrap() && !label->isHidden() && j < controls(); ++j) {
      if (widget(j) == nullptr || is_label(def(j)) || widget(j)->isHidden() ||
          !covers(widget(j)->geometry(), label->geometry()))
        continue;
      covered = true;
      if (widget(j)->toolTip().isEmpty()) widget(j)->setToolTip(plain_tooltip(label->text()));
    }
    label->set_covered(covered);
  }
}

QString MainWindow::tooltip(int control) const {
  if (const auto* label = qobject_cast<Caption*>(widget(control))) return label->is_shortened() ? label->text() : QString();
  const auto* combo = qobject_cast<PickBox*>(widget(control));
  const auto* edit = combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(widget(control));
  if (edit == nullptr) return {};
  constexpr int kInnerMargin = 8;
  return edit->fontMetrics().horizontalAdvance(edit->text()) > edit->width() - kInnerMargin ? edit->text() : QString();
}

}  // namespace ui::qt
