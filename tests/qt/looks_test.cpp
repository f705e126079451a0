// What the window looks like, to eyes and to screen readers.
#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>
#include <cmath>
#include <string>

#include "qt/seat.h"

namespace {

using support::QtSeat;

TEST(Qt, NamesBoxesByTheirLabels) {
  QtSeat qt;
  qt.system.add("sorptemp.dat", "freundl.ISO");
  qt.load();
  const auto text = [&](int control, QAccessible::Text kind) {
    return QAccessible::queryAccessibleInterface(qt.window.widget(control))->text(kind).toStdString();
  };
  const struct {
    int control;
    const char *name, *description;
  } rows[] = {{app::lstReactions, "Present database species", ""},
              {app::txtlogk, "log KF", ""},
              {app::txtStoich(1), "Stoichiometry of 1st component", "M.A. stoichiometry of the 1st component"},
              {app::txtComp(1), "Stoichiometry of 1st component", "Name of the 1st component"}};
  qt.select(5);
  qt.type(app::txtName, "<b>" + std::string(80, 'w') + "</b>");
  for (const auto& [control, name, description] : rows) {
    EXPECT_EQ(text(control, QAccessible::Name), name);
    EXPECT_EQ(text(control, QAccessible::Description), description);
  }
  EXPECT_EQ(text(app::txtName, QAccessible::Name), "Species name");
  // Of a combo box the toolkit gives the text as the name; that of its label goes the same way as to every box.
  const auto labels =
      QAccessible::queryAccessibleInterface(qt.window.widget(app::cboIsoterm))->relations(QAccessible::Label);
  ASSERT_EQ(labels.size(), 1);
  EXPECT_EQ(labels[0].first->object(), qt.window.widget(app::lblIsoterm));
  EXPECT_EQ(text(app::txtName, QAccessible::Description), "");
  qt.Choose("copper.BLI");
  qt.click(app::mnuFileOpen);
  EXPECT_EQ(text(app::txtf50, QAccessible::Name), "Critical f value");
}

TEST(Qt, CutsNoCaptionAndShowsLongTextsInTooltips) {
  QtSeat qt;
  qt.load();
  for (const double factor : {1., 1.6}) {
    qt.window.resize(qt.window.size() * factor);
    QApplication::processEvents();
    for (int i = 0; i < app::kControls; ++i) {
      auto* label = dynamic_cast<ui::qt::Caption*>(qt.window.widget(i));
      EXPECT_FALSE(label != nullptr && label->is_shortened()) << label->text().toStdString();
    }
  }
  const auto tooltip = [&](int control) {
    QWidget* widget = qt.window.widget(control);
    QHelpEvent event(QEvent::ToolTip, widget->rect().center(), widget->mapToGlobal(widget->rect().center()));
    QApplication::sendEvent(widget, &event);
    return QToolTip::text().toStdString();
  };
  const std::string name(80, 'w');
  qt.type(app::txtName, "<b>" + name);
  EXPECT_EQ(tooltip(app::txtID), "");
  EXPECT_EQ(tooltip(app::txtName), "<span>&lt;b&gt;" + name + "</span>");
  // A path is cut in its middle, a caption at its end.
  const auto picture = [&](int control, const std::string& text) {
    qt.form.window()[control].text = text;
    qt.window.push();
    return qt.window.widget(control)->grab().toImage();
  };
  const QImage a_path = picture(app::lblNameDb, name + name + "/a.mdb"), a_text = picture(app::lblComp, name + name + "a");
  EXPECT_NE(picture(app::lblNameDb, name + name + "/b.mdb"), a_path);
  EXPECT_EQ(picture(app::lblComp, name + name + "b"), a_text);
  EXPECT_EQ(tooltip(app::lblComp), "<span>" + name + name + "b</span>");
  // In the encoding of file names where it is that, else in the code page.
  picture(app::lblNameDb, "\xc3\xa4.mdb");
  EXPECT_EQ(dynamic_cast<ui::qt::Caption*>(qt.window.widget(app::lblNameDb))->text(), QString::fromUtf8("\u00e4.mdb"));
  picture(app::lblNameDb, "\xe4.mdb");
  EXPECT_EQ(dynamic_cast<ui::qt::Caption*>(qt.window.widget(app::lblNameDb))->text(), QString::fromUtf8("\u00e4.mdb"));
}

// The note about M.B. stoichiometries gives way to the rows that lie over it; boxes above one another are alike.
TEST(Qt, LaysNothingOverText) {
  QtSeat qt;
  qt.system.add("sorptemp.dat", "freundl.ISO");
  qt.load();
  qt.click(app::cmdAddnew);
  const auto at = [&](int control) { return qt.window.widget(control)->geometry(); };
  const QRect usual = at(app::lblMBnote);
  for (int i = 1; i <= 8; ++i) {
    qt.click(app::cmdNextcomp);
    EXPECT_EQ(at(app::lblMBnote) == usual, i < 7) << i;
    for (int j = 0; j < app::kControls; ++j) {
      if (qt.window.widget(j) == nullptr || !qt.Shown(j) || j == app::lblMBnote) continue;
      EXPECT_LE(at(j).intersected(at(app::lblMBnote)).height(), 3) << j;
    }
    EXPECT_EQ(at(app::txtStoich(i)).height(), at(app::txtID).height());
  }
  for (const int control : {app::cboComp, app::cmdNextcomp, app::cmdSuggest})
    EXPECT_LE(std::abs(at(control).center().y() - at(app::txtStoicn).center().y()), 1);
  EXPECT_GT(at(app::Label2).left(), at(app::lstReactions).right() + 1);
  EXPECT_GT(at(app::Line1).top(), at(app::cmdAddnew).bottom());
  // In a window of any proportions everything keeps its own.
  const QSize size = qt.window.size();
  const QRect quit = at(app::cmdQuit);
  qt.window.resize(size.width() * 2, size.height());
  QApplication::processEvents();
  EXPECT_EQ(at(app::cmdQuit), quit);
  for (const double factor : {.83, 1.21}) {
    qt.window.resize(size * factor);
    QApplication::processEvents();
    for (int i = 1; i <= 8; ++i) EXPECT_EQ(at(app::txtStoich(i)).height(), at(app::txtID).height());
  }
}

}  // namespace
