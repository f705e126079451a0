#include "qt/qt_player.h"

namespace player {

QPoint QtPlayer::middle(int entry) {
  const QModelIndex index = list()->model()->index(entry, 0);
  list()->scrollTo(index);
  return list()->visualRect(index).center();
}

QLineEdit* QtPlayer::edit(int control) {
  auto* combo = qobject_cast<QComboBox*>(window.widget(control));
  return combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(window.widget(control));
}

void QtPlayer::do_load() {
  Player::do_load();
  window.push();
  window.show();
}

void QtPlayer::do_select(const Event& event) {
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, middle(event.entry));
}

void QtPlayer::do_pick(const Event& event) {
  auto* combo = qobject_cast<QComboBox*>(window.widget(event.control));
  combo->showPopup();
  const QModelIndex index = combo->model()->index(event.entry, 0);
  combo->view()->scrollTo(index);
  QTest::mouseClick(combo->view()->viewport(), Qt::LeftButton, {}, combo->view()->visualRect(index).center());
}

void QtPlayer::do_type(const Event& event) {
  QLineEdit* edit = this->edit(event.control);
  edit->setFocus();
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClicks(edit, ui::qt::from_bytes(event.text));
}

void QtPlayer::do_click(const Event& event) {
  if (QAction* action = window.action(event.control))
    action->trigger();
  else
    QTest::mouseClick(window.widget(event.control), Qt::LeftButton);
}

std::string QtPlayer::differences() {
  QApplication::processEvents();
  std::string all;
  for (int i = 0; i < app::kControls; ++i) {
    QWidget* widget = window.widget(i);
    if (widget == nullptr) continue;
    const ui::Control& value = form.window()[i];
    std::string text = value.text;
    std::vector<std::string> entries = value.entries;
    int selected = value.selected;
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
      entries.clear();
      for (int j = 0; j < combo->count(); ++j) entries.push_back(ui::qt::to_bytes(combo->itemText(j)));
    }
    if (widget == list()) {
      entries.clear();
      for (int j = 0; j < list()->model()->rowCount(); ++j)
        entries.push_back(ui::qt::to_bytes(list()->model()->index(j, 0).data().toString()));
      selected = list()->selected();
    }
    if (auto* line = edit(i)) text = ui::qt::to_bytes(line->text());
    if (auto* button = qobject_cast<QPushButton*>(widget)) text = ui::qt::to_bytes(button->text());
    if (auto* label = qobject_cast<QLabel*>(widget)) text = ui::qt::to_bytes(label->text());
    if (widget->isHidden() == value.shown || text != value.text || entries != value.entries || selected != value.selected)
      all += " " + app::window_def().controls[static_cast<std::size_t>(i)].name;
  }
  return all;
}

}  // namespace player
