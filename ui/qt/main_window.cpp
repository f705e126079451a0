#include "ui/qt/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QToolTip>
#include <algorithm>
#include <string_view>

#include "ui/qt/text.h"
#include "ui/qt/widgets.h"

namespace ui::qt {
namespace {

constexpr int kFrameHeight = 60;  // pixels of a title bar and the menu
constexpr double kSmallest = .6;  // of the size at the start
constexpr int kLongestText = 1 << 20;
constexpr int kInnerMargin = 8;  // pixels beside the text of a box

QColor to_qt(const Color& color) { return {color.red, color.green, color.blue}; }

bool is_label(const ControlDef& def) { return def.kind == Kind::Label || def.kind == Kind::Line; }

void set_color(QWidget* widget, QPalette::ColorRole role, const Color& color) {
  QPalette palette = widget->palette();
  palette.setColor(role, to_qt(color));
  widget->setPalette(palette);
}

// A font of these points where `desktop` has the usual ones.
QFont scaled(const QFont& desktop, const Font& font, double usual_points, double factor) {
  QFont scaled = desktop;
  const double relative = font.points > 0 ? font.points / usual_points : 1;
  scaled.setPixelSize(std::max(1, static_cast<int>(QFontInfo(desktop).pixelSize() * relative * factor)));
  scaled.setBold(font.bold);
  scaled.setItalic(font.italic);
  return scaled;
}

Layout make_layout(const WindowDef& def, const QFont& desktop) {
  const auto metrics = [&](const Font& font) { return QFontMetricsF(scaled(desktop, font, def.points, 1)); };
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  return {def,
          [&](const Font& font, std::string_view text) { return metrics(font).horizontalAdvance(from_bytes(text)); },
          metrics({}).height(),
          {screen.width(), screen.height() - kFrameHeight}};
}

QSize to_qt(Size size) { return {size.width, size.height}; }
Size from_qt(QSize size) { return {size.width(), size.height()}; }

}  // namespace

MainWindow::MainWindow(Form& form)
    : form_(form),
      desktop_font_(QApplication::font()),
      layout_(make_layout(form.definition(), desktop_font_)),
      area_(new QWidget) {
  const WindowDef& window = form.definition();
  setWindowTitle(from_bytes(window.caption));
  set_color(area_, QPalette::Window, window.background);
  area_->setAutoFillBackground(true);
  setCentralWidget(area_);
  menuBar()->addMenu("&" + from_bytes(window.menu));

  views_.resize(window.controls.size());
  shown_.resize(window.controls.size());
  // Later widgets lie above earlier ones: labels first.
  for (const bool labels : {true, false})
    for (int i = 0; i < controls(); ++i)
      if (is_label(def(i)) == labels) views_[static_cast<std::size_t>(i)] = build(i);
  for (int i = 0; i < controls(); ++i)
    if (widget(i) != nullptr) widget(i)->setAccessibleDescription(from_bytes(def(i).about));
  set_focus_order();
  area_->installEventFilter(this);
  area_->resize(to_qt(layout_.start()));
  area_->setMinimumSize(to_qt(layout_.start()) * kSmallest);
  menu_height_ = menuBar()->sizeHint().height();
  resize(area_->size() + QSize(0, menu_height_));
}

MainWindow::View MainWindow::build(int control) {
  switch (def(control).kind) {
    case Kind::Label: return build_label(control);
    case Kind::Line: return build_line(control);
    case Kind::TextBox: return build_text_box(control, new QLineEdit(area_));
    case Kind::ComboBox: return build_combo_box(control);
    case Kind::ListBox: return build_list(control);
    case Kind::Button: return build_button(control);
    case Kind::MenuItem: break;
  }
  QAction* action = menuBar()->actions().front()->menu()->addAction(QString());
  connect(action, &QAction::triggered, this, [this, control] { run(control); });
  return {.action = action, .set_text = [action](const QString& text) { action->setText(text); }};
}

MainWindow::View MainWindow::build_button(int control) {
  auto* button = new QPushButton(area_);
  button->setAutoDefault(true);  // Enter presses it
  connect(button, &QPushButton::clicked, this, [this, control] { run(control); });
  return {.widget = button, .set_text = [button](QString text) { button->setText(text.replace('&', "&&")); }};
}

MainWindow::View MainWindow::build_label(int control) {
  auto* label = new Caption(area_, def(control).path);
  label->setAlignment(Qt::AlignLeft | (def(control).wraps ? Qt::AlignTop : Qt::AlignVCenter));
  label->setWordWrap(def(control).wraps);
  set_color(label, QPalette::WindowText, def(control).color);
  label->installEventFilter(this);
  return {.widget = label, .caption = label, .set_text = [label](const QString& text) { label->setText(text); }};
}

// Filled, not drawn: a drawn line may vanish where the screen's scale is no whole number.
MainWindow::View MainWindow::build_line(int control) {
  auto* line = new QWidget(area_);
  set_color(line, QPalette::Window, def(control).color);
  line->setAutoFillBackground(true);
  return {.widget = line};
}

MainWindow::View MainWindow::build_list(int control) {
  auto* list = new EntryList(area_);
  connect(list, &EntryList::chosen, this, [this, control](int entry) {
    if (entry < 0) return push();  // which shows it again
    if (!running_) form_.window()[control].selected = entry;
    run(control);
  });
  return {.widget = list, .list = list};
}

MainWindow::View MainWindow::build_text_box(int control, QLineEdit* edit) {
  auto* validator = new CodePageValidator(edit);
  edit->setValidator(validator);
  connect(validator, &CodePageValidator::left_out, this, [edit] {
    QToolTip::showText(edit->mapToGlobal(QPoint(0, edit->height())),
                       "A character was left out: the files hold only those of the code page Windows-1252.", edit);
  });
  edit->setMaxLength(kLongestText);
  // By whatever means it was typed, dictation among them.
  connect(edit, &QLineEdit::textChanged, this, [this, control](const QString& text) {
    if (!pushing_) form_.window()[control].text = shown_[static_cast<std::size_t>(control)].text = to_bytes(text);
  });
  edit->installEventFilter(this);
  return {.widget = edit, .edit = edit, .set_text = [edit](const QString& text) {
            edit->setText(text);
            edit->setCursorPosition(0);
          }};
}

MainWindow::View MainWindow::build_combo_box(int control) {
  auto* combo = new PickBox(area_);
  View view = build_text_box(control, combo->lineEdit());
  connect(combo, &QComboBox::activated, this, [this, control](int entry) {
    Control& value = form_.window()[control];
    if (!running_) value.text = value.entries[static_cast<std::size_t>(entry)];
    run(control);
  });
  combo->installEventFilter(this);
  view.widget = view.combo = combo;
  view.set_text = [combo, set_text = view.set_text](const QString& text) {
    combo->setCurrentIndex(combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    set_text(text);
  };
  return view;
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
  const double points = form_.definition().points;
  const auto font_of = [&](const Font& font, const QSize& area) {
    return scaled(desktop_font_, font, points, layout_.font_factor(from_qt(area)));
  };
  // By the size of the whole window: the menu's own height would feed back into it.
  const QFont menu = font_of({}, size() - QSize(0, menu_height_));
  menuBar()->setFont(menu);
  menuBar()->actions().front()->menu()->setFont(menu);
  for (int i = 0; i < controls(); ++i) {
    if (widget(i) == nullptr) continue;
    widget(i)->setFont(font_of(def(i).font, area_->size()));
    place(i);
  }
}

void MainWindow::place(int control) {
  const Place place = layout_.place(control, form_.window(), from_qt(area_->size()));
  widget(control)->setGeometry(place.left, place.top, place.width, place.height);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == area_ && event->type() == QEvent::Resize) arrange();
  // A text is seen from its beginning when it is set, and when the user has left it (not for its own menu).
  if (event->type() == QEvent::FocusOut && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
    for (const View& view : views_)
      if (watched == view.widget && view.edit != nullptr) view.edit->setCursorPosition(0);
  if (event->type() == QEvent::ToolTip) {
    for (const View& view : views_) {
      if (watched != view.widget && watched != view.edit) continue;
      QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), plain_tooltip(cut_text(view)), view.widget);
      return true;
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

// The text of a control that does not show whole; else nothing.
QString MainWindow::cut_text(const View& view) const {
  if (view.caption != nullptr) return view.caption->is_shortened() ? view.caption->text() : QString();
  if (view.edit == nullptr) return {};
  const bool cut = view.edit->fontMetrics().horizontalAdvance(view.edit->text()) > view.edit->width() - kInnerMargin;
  return cut ? view.edit->text() : QString();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (running_) return event->ignore();
  form_.window().ended = true;
  event->accept();
  QApplication::exit(form_.window().status);
}

void MainWindow::run(int control) {
  if (running_) return push(true);  // takes back what was done to the widget
  running_ = true;
  form_.click(control);
  running_ = false;
  push();
  if (form_.window().ended) close();
}

void MainWindow::push(bool anew) {
  pushing_ = true;
  for (int i = 0; i < controls(); ++i) {
    push_control(i, anew);
    if (def(i).elsewhere.width > 0) place(i);
  }
  name_boxes();
  pushing_ = false;
}

void MainWindow::push_control(int control, bool anew) {
  const View& view = this->view(control);
  const Control& now = form_.window()[control];
  Control& before = shown_[static_cast<std::size_t>(control)];
  if (view.list != nullptr) {
    if (anew || now.entries != view.list->entries()) view.list->show_entries(now.entries);
    if (now.selected != view.list->selected()) view.list->show_selected(now.selected);
  }
  if (view.combo != nullptr && (anew || now.entries != before.entries))
    view.combo->show_entries(before.entries = now.entries);
  if (anew || now.text != before.text) view.set_text(def(control).path ? from_path(now.text) : from_bytes(now.text));
  before.text = now.text;
  if (view.widget != nullptr && (anew || now.shown != before.shown)) view.widget->setVisible(now.shown);
  before.shown = now.shown;
}

// A screen reader tells a box by its label. A label can name only one box, the first that is shown, and no list: the others
// bear its text.
void MainWindow::name_boxes() {
  std::vector<bool> names_one(views_.size());
  for (int i = 0; i < controls(); ++i) {
    if (def(i).label < 0) continue;
    Caption* const label = view(def(i).label).caption;
    const auto at = static_cast<std::size_t>(def(i).label);
    const bool first = form_.window()[i].shown && !names_one[at];
    names_one[at] = names_one[at] || first;
    if (first && label->buddy() != widget(i)) label->setBuddy(widget(i));
    const QString name = first && view(i).list == nullptr ? QString() : label->text();
    if (widget(i)->accessibleName() != name) widget(i)->setAccessibleName(name);
  }
}

}  // namespace ui::qt
