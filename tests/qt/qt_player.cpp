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
  window.setVisible(!form.window().ended);
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
    const auto* combo = qobject_cast<QComboBox*>(widget);
    const QAbstractItemModel* model = combo != nullptr ? combo->model() : widget == list() ? list()->model() : nullptr;
    std::vector<std::string> entries;
    for (int j = 0; model != nullptr && j < model->rowCount(); ++j)
      entries.push_back(ui::qt::to_bytes(model->index(j, 0).data().toString()));
    const int selected = widget == list() ? list()->selected() : value.selected;
    const QVariant text = combo != nullptr ? combo->currentText() : widget->property("text");
    if (widget->isHidden() == value.shown || entries != value.entries || selected != value.selected ||
        (text.isValid() && ui::qt::to_bytes(text.toString()) != value.text))
      all += " " + app::window_def().controls[static_cast<std::size_t>(i)].name;
  }
  return all;
}

}  // namespace player
