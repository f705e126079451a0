// What the program is measured against: a plain program of the toolkit with the same widgets at the same places, which reads
// no file, has nothing to do with them, and fills its list with as many names of its own.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QStringListModel>
#include <QTransform>
#include <algorithm>

#include "app/controls.h"

namespace {

// Pixels of a twip: the window becomes as large as the program makes it with the usual letters, 796 by 681 pixels.
const QTransform kScale = QTransform::fromScale(1 / 11.51, 1 / 12.01);

QString text_of(const ui::ControlDef& def) { return QString::fromLatin1(def.caption); }

QColor color_of(const ui::Color& color) { return {color.red, color.green, color.blue}; }

QWidget* make_widget(const ui::ControlDef& def, QWidget* area) {
  switch (def.kind) {
    case ui::Kind::Label: {
      auto* label = new QLabel(text_of(def), area);
      label->setWordWrap(def.wraps);
      QPalette palette = label->palette();
      palette.setColor(QPalette::WindowText, color_of(def.color));
      label->setPalette(palette);
      return label;
    }
    case ui::Kind::Line: {
      auto* line = new QFrame(area);
      line->setFrameStyle(QFrame::HLine | QFrame::Plain);
      return line;
    }
    case ui::Kind::TextBox: return new QLineEdit(area);
    case ui::Kind::ComboBox: {
      auto* combo = new QComboBox(area);
      combo->setEditable(true);
      return combo;
    }
    case ui::Kind::ListBox: {
      QStringList names;
      for (int i = 0; i < 3999; ++i) names += QString("Cu(OH)%1-2").arg(i);
      auto* list = new QListView(area);
      list->setUniformItemSizes(true);
      list->setModel(new QStringListModel(names, list));
      return list;
    }
    case ui::Kind::Button: return new QPushButton(text_of(def), area);
    case ui::Kind::MenuItem: return nullptr;
  }
  return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const ui::WindowDef& def = app::window_def();
  QMainWindow window;
  window.setWindowTitle(QString::fromLatin1(def.caption));
  QMenu* menu = window.menuBar()->addMenu(QString::fromLatin1(def.menu));
  auto* area = new QWidget;
  QPalette palette = area->palette();
  palette.setColor(QPalette::Window, color_of(def.background));
  area->setPalette(palette);
  area->setAutoFillBackground(true);
  window.setCentralWidget(area);
  for (const ui::ControlDef& control : def.controls) {
    QWidget* widget = make_widget(control, area);
    if (widget == nullptr) {
      menu->addAction(text_of(control));
      continue;
    }
    QFont font = widget->font();
    if (control.font.points > 0) font.setPointSizeF(font.pointSizeF() * control.font.points / def.points);
    font.setBold(control.font.bold);
    font.setItalic(control.font.italic);
    widget->setFont(font);
    const ui::Place& place = control.drawn;
    widget->setGeometry(kScale.mapRect(QRect(place.left, place.top, place.width, std::max(place.height, 15))));
    widget->setVisible(control.shown);
  }
  window.resize(kScale.mapRect(QRect(0, 0, def.width, def.height)).size() + QSize(0, window.menuBar()->sizeHint().height()));
  window.show();
  return QApplication::exec();
}
