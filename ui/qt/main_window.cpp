// The window in widgets of Qt: shows what the form holds, and tells the form what a user does.
#include "ui/qt/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "ui/qt/text.h"
#include "ui/qt/widgets.h"

namespace ui::qt {
namespace {

constexpr int kFrameHeight = 60;  // pixels of a title bar and the menu
constexpr double kSmallest = .6;  // of the size at the start

void set_color(QWidget* widget, QPalette::ColorRole role, const Color& color) {
  QPalette palette = widget->palette();
  palette.setColor(role, QColor(color.red, color.green, color.blue));
  widget->setPalette(palette);
  widget->setAutoFillBackground(role == QPalette::Window);
}

Size from_qt(QSize size) { return {size.width(), size.height()}; }

}  // namespace

MainWindow::MainWindow(Form& form)
    : form_(form),
      layout_(
          form.definition(),
          [this](const Font& font, std::string_view text) {
            return QFontMetricsF(font_of(font, 1)).horizontalAdvance(from_bytes(text));
          },
          QFontMetricsF(font_of({}, 1)).height(),
          from_qt(QGuiApplication::primaryScreen()->availableSize() - QSize(0, kFrameHeight))),
      views_(form.definition().controls.size()) {
  setWindowTitle(from_bytes(form.definition().caption));
  set_color(area_, QPalette::Window, form.definition().background);
  setCentralWidget(area_);
  menu_ = menuBar()->addMenu("&" + from_bytes(form.definition().menu));
  // Later widgets lie above earlier ones: labels first.
  for (const bool labels : {true, false})
    for (int i = 0; i < controls(); ++i)
      if ((def(i).kind == Kind::Label || def(i).kind == Kind::Line) == labels) build(i);
  std::map<int, QWidget*> order;  // of the focus
  for (int i = 0; i < controls(); ++i)
    if (def(i).tab >= 0) order[def(i).tab] = widget(i);
  QWidget* before = nullptr;
  for (const auto& [tab, next] : order) setTabOrder(std::exchange(before, next), next);
  order.begin()->second->setFocus();
  const QSize start(layout_.start().width, layout_.start().height);
  area_->installEventFilter(this);
  area_->resize(start);
  area_->setMinimumSize(start * kSmallest);
  menu_height_ = menuBar()->sizeHint().height();
  resize(start + QSize(0, menu_height_));
}

void MainWindow::build(int control) {
  const ControlDef& def = this->def(control);
  View& view = views_[static_cast<std::size_t>(control)];
  const auto click = [this, control] { run(control); };
  switch (def.kind) {
    case Kind::MenuItem:
      view.action = menu_->addAction(QString(), this, click);
      view.show_text = [action = view.action](const QString& text) { action->setText(text); };
      return;
    case Kind::Button: {
      auto* button = new QPushButton(area_);
      button->setAutoDefault(true);  // Enter presses it
      connect(button, &QPushButton::clicked, this, click);
      view.widget = button;
      view.show_text = [button](QString text) { button->setText(text.replace('&', "&&")); };
      break;
    }
    case Kind::Label: {
      auto* label = new Caption(area_, def.path);
      label->setAlignment(Qt::AlignLeft | (def.wraps ? Qt::AlignTop : Qt::AlignVCenter));
      label->setWordWrap(def.wraps);
      set_color(label, QPalette::WindowText, def.color);
      view.widget = label;
      view.show_text = [label](const QString& text) { label->setText(text); };
      break;
    }
    case Kind::Line:  // filled, not drawn: a drawn line may vanish where the screen's scale is no whole number
      view.widget = new QWidget(area_);
      set_color(view.widget, QPalette::Window, def.color);
      break;
    case Kind::ListBox: {
      auto* list = new EntryList(area_);
      list->chosen = [this, control](int entry) {
        if (entry < 0) return push();  // which shows it again
        if (!running_) form_.window()[control].selected = entry;
        run(control);
      };
      view.show_entries = [list](const Control& now) {
        if (now.entries != list->entries()) list->show_entries(now.entries);
        if (now.selected != list->selected()) list->show_selected(now.selected);
      };
      view.widget = list;
      break;
    }
    case Kind::TextBox:
    case Kind::ComboBox: {
      auto* combo = def.kind == Kind::ComboBox ? new PickBox(area_) : nullptr;
      auto* box = combo != nullptr ? combo->edit : new TextBox(area_);
      // By whatever means it was typed, dictation among them.
      connect(box, &QLineEdit::textChanged, this, [this, control, &shown = view.shown](const QString& text) {
        if (!pushing_) form_.window()[control].text = shown.text = to_bytes(text);
      });
      view.widget = box;
      view.show_text = [box, combo](const QString& text) {
        if (combo != nullptr) combo->setCurrentIndex(combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
        box->show_text(text);
      };
      if (combo == nullptr) break;
      view.show_entries = [combo, &shown = view.shown](const Control& now) {
        if (now.entries != shown.entries) combo->show_entries(shown.entries = now.entries);
      };
      view.widget = combo;
      connect(combo, &QComboBox::activated, this, [this, control](int entry) {
        Control& value = form_.window()[control];
        if (!running_) value.text = value.entries[static_cast<std::size_t>(entry)];
        run(control);
      });
    }
  }
  view.widget->setAccessibleDescription(from_bytes(def.about));
}

// A font of the table where the desktop's has the usual size.
QFont MainWindow::font_of(const Font& font, double factor) const {
  QFont scaled = desktop_font_;
  const double relative = font.points > 0 ? font.points / form_.definition().points : 1;
  scaled.setPixelSize(std::max(1, static_cast<int>(QFontInfo(desktop_font_).pixelSize() * relative * factor)));
  scaled.setBold(font.bold);
  scaled.setItalic(font.italic);
  return scaled;
}

void MainWindow::arrange() {
  // By the size of the whole window: the menu's own height would feed back into it.
  const QFont menu = font_of({}, layout_.font_factor(from_qt(size() - QSize(0, menu_height_))));
  menuBar()->setFont(menu);
  menu_->setFont(menu);
  for (int i = 0; i < controls(); ++i)
    if (widget(i) != nullptr) arrange(i);
}

void MainWindow::arrange(int control) {
  const Size area = from_qt(area_->size());
  const Place place = layout_.place(control, form_.window(), area);
  widget(control)->setFont(font_of(def(control).font, layout_.font_factor(area)));
  widget(control)->setGeometry(place.left, place.top, place.width, place.height);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == area_ && event->type() == QEvent::Resize) arrange();
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (running_) return event->ignore();
  form_.window().ended = true;
  QApplication::exit(form_.window().status);
}

void MainWindow::run(int control) {
  if (running_) return push();  // takes back what was done to the widget
  running_ = true;
  form_.click(control);
  running_ = false;
  push();
  if (form_.window().ended) close();
}

void MainWindow::push() {
  pushing_ = true;
  for (int i = 0; i < controls(); ++i) {
    const Control& now = form_.window()[i];
    auto& [widget, action, show_text, show_entries, before] = views_[static_cast<std::size_t>(i)];
    show_entries(now);
    if (now.text != before.text) show_text(def(i).path ? from_path(now.text) : from_bytes(now.text));
    before.text = now.text;
    if (widget != nullptr) widget->setVisible(now.shown);
    if (def(i).elsewhere.width > 0) arrange(i);
  }
  // A screen reader tells a box by its label. A label can name only one box, the first that is shown, and no list: the
  // others bear its text.
  std::set<QLabel*> naming;
  for (int i = 0; i < controls(); ++i) {
    if (def(i).label < 0) continue;
    auto* const label = qobject_cast<QLabel*>(widget(def(i).label));
    const bool first = form_.window()[i].shown && naming.insert(label).second;
    if (first && label->buddy() != widget(i)) label->setBuddy(widget(i));
    const QString name = first && def(i).kind != Kind::ListBox ? QString() : label->text();
    if (widget(i)->accessibleName() != name) widget(i)->setAccessibleName(name);
  }
  pushing_ = false;
}

}  // namespace ui::qt
