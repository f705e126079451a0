// What never changes about a control, in one table.
#include "app/controls.h"

#include <string>
#include <utility>
#include <vector>

namespace app {
namespace {

using ui::ControlDef;
using ui::Font;
using ui::Kind;
using ui::Place;

constexpr Font kRegular{}, kBold{0, true, false}, kItalic{0, false, true}, kLarge{9.75, true, false};
constexpr bool kShown = true, kHidden = false;
constexpr int kRowHeight = 240, kEdge = 15;  // boxes above one another share an edge

struct Table {
  Table() {
#define KELMAR_ONE(id) controls.push_back({.name = #id});
#define KELMAR_ROW(id) \
  for (int i = 1; i <= kRows; ++i) controls.push_back({.name = #id "(" + std::to_string(i) + ")"});
    KELMAR_CONTROLS(KELMAR_ONE, KELMAR_ROW)
    fill();
    adjust();
    number_tabs();
  }

  ControlDef& at(int control) { return controls[static_cast<std::size_t>(control)]; }

  ControlDef& put(int control, Kind kind, std::string caption, bool shown, Place place, Font font) {
    at(control).kind = kind;
    at(control).caption = std::move(caption);
    at(control).shown = shown;
    at(control).place = place;
    at(control).font = font;
    return at(control);
  }
  ControlDef& label(int control, std::string caption, bool shown, Place place, Font font = kBold) {
    return put(control, Kind::Label, std::move(caption), shown, place, font);
  }
  void box(int control, bool shown, Place place, int label, std::string about = {}, Kind kind = Kind::TextBox) {
    put(control, kind, {}, shown, place, kRegular).label = label;
    at(control).about = std::move(about);
  }

  // The texts are those that users and documents know, odd spellings included.
  void fill() {
    label(Label1, "Present database species", kShown, {480, 240, 2415, 255});
    box(lstReactions, kShown, {480, 480, 2295, 3570}, Label1, {}, Kind::ListBox);
    label(Label2, "Click to see reaction!", kShown, {2760, 1920, 1815, 255}, kItalic);
    label(lblNameDb, "", kHidden, {2880, 0, 6015, 375}, kItalic).path = true;
    label(Label3, "Species ID number", kShown, {5760, 360, 1815, 255});
    box(txtID, kShown, {4200, 360, 1455, 285}, Label3);
    label(Label9, "Species name", kShown, {5760, 600, 1695, 255});
    box(txtName, kShown, {4200, 600, 1455, 285}, Label9);
    label(lblLogk, "log K", kShown, {5760, 960, 855, 255});
    box(txtlogk, kShown, {4200, 960, 1455, 285}, lblLogk);
    label(lblLk2, "Lk2", kHidden, {8400, 960, 855, 255});
    box(txtLk2, kHidden, {7440, 960, 855, 285}, lblLk2);
    label(lbldhr, "dHr (kJ / mol)", kShown, {5760, 1200, 1695, 255});
    box(txtdhr, kShown, {4200, 1200, 1455, 285}, lbldhr);
    label(lblKsel, "Selectivity coefficient (K-sel)", kHidden, {5760, 1560, 2895, 255});
    box(txtKsel, kHidden, {4200, 1560, 1455, 285}, lblKsel);
    label(Label6, "Charge", kShown, {5760, 2040, 1695, 255});
    box(txtCharge, kShown, {4920, 2040, 735, 285}, Label6);
    label(Label7, "No. of components", kShown, {5760, 2280, 1695, 255});
    box(txtNocomp, kShown, {4920, 2280, 735, 285}, Label7);
    label(lblMB, "M.B.*", kHidden, {3600, 2520, 495, 255}, kRegular);
    label(lblMA, "M.A.", kHidden, {4200, 2520, 495, 255}, kRegular);
    int top = 2760, row = 1;
    for (const char* const nth : {"1st", "2nd", "3rd", "4th", "5th", "6th", "7th", "8th"}) {
      const std::string component = std::string(nth) + " component";
      box(txtMBstoich(row), kHidden, {3480, top, 615, 285}, lblStoich(row), "M.B. stoichiometry of the " + component);
      box(txtStoich(row), kHidden, {4080, top, 615, 285}, lblStoich(row), "M.A. stoichiometry of the " + component);
      box(txtComp(row), kHidden, {4680, top, 975, 285}, lblStoich(row), "Name of the " + component);
      label(lblStoich(row++), "Stoichiometry of " + component, kHidden, {5760, top, 3135, 255});
      top += kRowHeight;
    }
    label(lblMBnote, "* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry", kHidden,
          {3480, 4200, 3375, 615}, kRegular)
        .wraps = true;
    label(lblIsoterm, "Isotherm model", kHidden, {480, 4080, 2295, 255});
    box(cboIsoterm, kHidden, {480, 4320, 2295, 315}, lblIsoterm, {}, Kind::ComboBox);
    box(txtf50, kHidden, {480, 4320, 1215, 285}, lblIsoterm);
    put(cmdAddnew, Kind::Button, "Add new species", kShown, {480, 4800, 2535, 375}, kLarge);
    put(cmdDelete, Kind::Button, "Delete this species", kHidden, {4080, 4800, 2535, 375}, kLarge);
    put(Line1, Kind::Line, {}, kShown, {480, 5160, 8160, 0}, kRegular);
    label(lblAddnew, "Add new species:", kHidden, {1680, 5280, 2295, 255}, {9.75, true, true});
    put(cmdCompdb, Kind::Button, "Click here if you would like to change the component database", kShown,
        {3960, 5280, 4815, 255}, kRegular);
    label(lblSpname, "Species name", kHidden, {600, 5640, 1335, 255});
    label(lblComp, "Component no. 1", kHidden, {2640, 5640, 1575, 255});
    box(txtSpname, kHidden, {600, 5880, 1215, 285}, lblSpname, "Name of the new species");
    box(txtStoicn, kHidden, {2400, 5880, 615, 285}, lblComp, "Stoichiometry of the component being entered");
    box(cboComp, kHidden, {3000, 5880, 1455, 315}, lblComp, "Component being entered", Kind::ComboBox);
    put(cmdNextcomp, Kind::Button, "Next component", kHidden, {4560, 5880, 1695, 255}, kBold);
    put(cmdSuggest, Kind::Button, "Suggest ID number", kHidden, {6480, 5880, 2295, 255}, kBold);
    label(lblMAnote, "Here you supply the M.A. stoichiometry", kHidden, {1920, 6240, 2775, 255}, kRegular).color = {255, 0,
                                                                                                                    0};
    put(cmdSavedb, Kind::Button, "Save changes to current database", kShown, {4920, 6480, 3855, 375}, kLarge);
    put(cmdQuit, Kind::Button, "Quit", kShown, {600, 6720, 2655, 495}, kLarge);
    put(cmdNewDb, Kind::Button, "Save changes to new database", kShown, {4920, 6840, 3855, 375}, kLarge);
    label(Label8, "Remember to save after any change made to a species!", kShown, {3960, 7320, 5415, 255}, {0, true, true})
        .color = {255, 0, 0};
    put(mnuFileOpen, Kind::MenuItem, "Open sorption database", kShown, {}, kRegular);
    put(mnuFileExit, Kind::MenuItem, "Exit", kShown, {}, kRegular);
  }

  // To the eye: boxes of one height, in a row with the buttons beside them; no label at the edge of a box; the line just
  // beneath the buttons, as wide as all of them.
  void adjust() {
    for (ControlDef& control : controls) {
      control.drawn = control.place;
      if (control.kind == Kind::TextBox) control.drawn.height = kRowHeight + kEdge;
    }
    at(Label2).drawn.left += 45;
    at(lblMBnote).drawn = {3480, 4230, 3375, 585};
    at(lblMBnote).elsewhere = {4200, 1290, 4500, 585};  // no value of a model with M.B. stoichiometries is shown there
    at(cboComp).drawn = {3000, 5865, 1455, 285};
    at(Line1).drawn = {480, 5190, 8295, 0};
  }

  void number_tabs() {
    int tab = 0;
    for (const int control : {lstReactions, txtID, txtlogk, txtdhr, txtCharge, txtNocomp}) at(control).tab = tab++;
    for (int i = 1; i <= kRows; ++i)
      for (const int control : {txtMBstoich(i), txtStoich(i), txtComp(i)}) at(control).tab = tab++;
    for (const int control : {txtName, txtLk2, txtKsel, cboIsoterm, txtf50, cmdAddnew, cmdDelete, cmdCompdb, txtSpname,
                              txtStoicn, cboComp, cmdNextcomp, cmdSuggest, cmdSavedb, cmdNewDb, cmdQuit})
      at(control).tab = tab++;
  }

  std::vector<ControlDef> controls;
};

}  // namespace

const ui::WindowDef& window_def() {
  static const Table table;
  static const ui::WindowDef def{
      .program = "kelmar-dbedit",
      .desktop = "org.kelmar.dbedit",
      .caption = "Sorption / complexation database editor for Kelmar",
      .width = 9165,
      .height = 7950,
      .row = kRowHeight,
      .points = 8.25,
      .background = {255, 255, 192},
      .menu = "File",
      .controls = table.controls,
  };
  return def;
}

}  // namespace app
