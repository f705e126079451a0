#include "app/controls.h"

#include <array>
#include <string>
#include <vector>

namespace app {
namespace {

using ui::ControlDef;
using ui::Font;
using ui::Kind;
using ui::Place;

constexpr Font kRegular{}, kBold{0, true, false}, kItalic{0, false, true}, kLarge{9.75, true, false};
constexpr ui::Color kBlack{0, 0, 0}, kRed{255, 0, 0};
constexpr bool kShown = true, kHidden = false;
constexpr int kRowHeight = 240, kEdge = 15;  // boxes above one another share an edge

ControlDef label(const char* name, const char* caption, bool shown, Place place, Font font = kBold,
                 ui::Color color = kBlack) {
  return {
      .name = name, .kind = Kind::Label, .caption = caption, .shown = shown, .place = place, .font = font, .color = color};
}

ControlDef box(Kind kind, const char* name, bool shown, Place place, int label, const char* about = "") {
  return {.name = name, .kind = kind, .shown = shown, .place = place, .label = label, .about = about};
}

// To the eye: boxes of one height, in a row with the buttons beside them; no label at the edge of a box; the line just
// beneath the buttons, as wide as all of them.
void adjust(std::vector<ControlDef>& table) {
  for (ControlDef& control : table) {
    control.drawn = control.drawn.width > 0 ? control.drawn : control.place;
    if (control.kind == Kind::TextBox) control.drawn.height = kRowHeight + kEdge;
  }
  table[Label2].drawn.left += 45;
  table[cboComp].drawn = {3000, 5865, 1455, 285};
  table[Line1].drawn = {480, 5190, 8295, 0};
}

ControlDef button(const char* name, const char* caption, bool shown, Place place, Font font) {
  return {.name = name, .kind = Kind::Button, .caption = caption, .shown = shown, .place = place, .font = font};
}

ControlDef menu_item(const char* name, const char* caption) {
  return {.name = name, .kind = Kind::MenuItem, .caption = caption};
}

constexpr std::array kOrdinals{"1st", "2nd", "3rd", "4th", "5th", "6th", "7th", "8th"};
constexpr std::array kRowCaptions{"Stoichiometry of 1st component", "Stoichiometry of 2nd component",
                                  "Stoichiometry of 3rd component", "Stoichiometry of 4th component",
                                  "Stoichiometry of 5th component", "Stoichiometry of 6th component",
                                  "Stoichiometry of 7th component", "Stoichiometry of 8th component"};

constexpr int row_top(int i) { return 2760 + kRowHeight * (i - 1); }

void add_row_boxes(std::vector<ControlDef>& table, const char* name, int left, int width, const char* about) {
  for (int i = 1; i <= kRows; ++i) {
    table.push_back(box(Kind::TextBox, "", kHidden, {left, row_top(i), width, 285}, lblStoich(i)));
    table.back().name = std::string(name) + "(" + std::to_string(i) + ")";
    table.back().about = std::string(about) + " of the " + kOrdinals[static_cast<std::size_t>(i - 1)] + " component";
  }
}

std::vector<ControlDef> make_table() {
  std::vector<ControlDef> t{
      label("Label1", "Present database species", kShown, {480, 240, 2415, 255}),
      box(Kind::ListBox, "lstReactions", kShown, {480, 480, 2295, 3570}, Label1),
      label("Label2", "Click to see reaction!", kShown, {2760, 1920, 1815, 255}, kItalic),
      label("lblNameDb", "", kHidden, {2880, 0, 6015, 375}, kItalic),
      label("Label3", "Species ID number", kShown, {5760, 360, 1815, 255}),
      box(Kind::TextBox, "txtID", kShown, {4200, 360, 1455, 285}, Label3),
      label("Label9", "Species name", kShown, {5760, 600, 1695, 255}),
      box(Kind::TextBox, "txtName", kShown, {4200, 600, 1455, 285}, Label9),
      label("lblLogk", "log K", kShown, {5760, 960, 855, 255}),
      box(Kind::TextBox, "txtlogk", kShown, {4200, 960, 1455, 285}, lblLogk),
      label("lblLk2", "Lk2", kHidden, {8400, 960, 855, 255}),
      box(Kind::TextBox, "txtLk2", kHidden, {7440, 960, 855, 285}, lblLk2),
      label("lbldhr", "dHr (kJ / mol)", kShown, {5760, 1200, 1695, 255}),
      box(Kind::TextBox, "txtdhr", kShown, {4200, 1200, 1455, 285}, lbldhr),
      label("lblKsel", "Selectivity coefficient (K-sel)", kHidden, {5760, 1560, 2895, 255}),
      box(Kind::TextBox, "txtKsel", kHidden, {4200, 1560, 1455, 285}, lblKsel),
      label("Label6", "Charge", kShown, {5760, 2040, 1695, 255}),
      box(Kind::TextBox, "txtCharge", kShown, {4920, 2040, 735, 285}, Label6),
      label("Label7", "No. of components", kShown, {5760, 2280, 1695, 255}),
      box(Kind::TextBox, "txtNocomp", kShown, {4920, 2280, 735, 285}, Label7),
      label("lblMB", "M.B.*", kHidden, {3600, 2520, 495, 255}, kRegular),
      label("lblMA", "M.A.", kHidden, {4200, 2520, 495, 255}, kRegular),
  };
  add_row_boxes(t, "txtMBstoich", 3480, 615, "M.B. stoichiometry");
  add_row_boxes(t, "txtStoich", 4080, 615, "M.A. stoichiometry");
  add_row_boxes(t, "txtComp", 4680, 975, "Name");
  for (int i = 1; i <= kRows; ++i) {
    t.push_back(label("", kRowCaptions[static_cast<std::size_t>(i - 1)], kHidden, {5760, row_top(i), 3135, 255}));
    t.back().name = "lblStoich(" + std::to_string(i) + ")";
  }
  const ControlDef rest[] = {
      {.name = "lblMBnote",
       .caption = "* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry",
       .shown = kHidden,
       .place = {3480, 4200, 3375, 615},
       .drawn = {3480, 4230, 3375, 585},
       .elsewhere = {4200, 1290, 4500, 585},  // no value of a model with M.B. stoichiometries is shown there
       .wraps = true},
      label("lblIsoterm", "Isotherm model", kHidden, {480, 4080, 2295, 255}),
      box(Kind::ComboBox, "cboIsoterm", kHidden, {480, 4320, 2295, 315}, lblIsoterm),
      box(Kind::TextBox, "txtf50", kHidden, {480, 4320, 1215, 285}, lblIsoterm),
      button("cmdAddnew", "Add new species", kShown, {480, 4800, 2535, 375}, kLarge),
      button("cmdDelete", "Delete this species", kHidden, {4080, 4800, 2535, 375}, kLarge),
      {.name = "Line1", .kind = Kind::Line, .place = {480, 5160, 8160, 0}},
      label("lblAddnew", "Add new species:", kHidden, {1680, 5280, 2295, 255}, {9.75, true, true}),
      button("cmdCompdb", "Click here if you would like to change the component database", kShown, {3960, 5280, 4815, 255},
             kRegular),
      label("lblSpname", "Species name", kHidden, {600, 5640, 1335, 255}),
      label("lblComp", "Component no. 1", kHidden, {2640, 5640, 1575, 255}),
      box(Kind::TextBox, "txtSpname", kHidden, {600, 5880, 1215, 285}, lblSpname, "Name of the new species"),
      box(Kind::TextBox, "txtStoicn", kHidden, {2400, 5880, 615, 285}, lblComp,
          "Stoichiometry of the component being entered"),
      box(Kind::ComboBox, "cboComp", kHidden, {3000, 5880, 1455, 315}, lblComp, "Component being entered"),
      button("cmdNextcomp", "Next component", kHidden, {4560, 5880, 1695, 255}, kBold),
      button("cmdSuggest", "Suggest ID number", kHidden, {6480, 5880, 2295, 255}, kBold),
      label("lblMAnote", "Here you supply the M.A. stoichiometry", kHidden, {1920, 6240, 2775, 255}, kRegular, kRed),
      button("cmdSavedb", "Save changes to current database", kShown, {4920, 6480, 3855, 375}, kLarge),
      button("cmdQuit", "Quit", kShown, {600, 6720, 2655, 495}, kLarge),
      button("cmdNewDb", "Save changes to new database", kShown, {4920, 6840, 3855, 375}, kLarge),
      label("Label8", "Remember to save after any change made to a species!", kShown, {3960, 7320, 5415, 255},
            {0, true, true}, kRed),
      menu_item("mnuFileOpen", "Open sorption database"),
      menu_item("mnuFileExit", "Exit"),
  };
  t.insert(t.end(), std::begin(rest), std::end(rest));
  t[lblNameDb].path = true;
  adjust(t);

  int tab = 0;
  const auto next_focus = [&](int control) { t[static_cast<std::size_t>(control)].tab = tab++; };
  for (const int control : {lstReactions, txtID, txtlogk, txtdhr, txtCharge, txtNocomp}) next_focus(control);
  for (int i = 1; i <= kRows; ++i)
    for (const int control : {txtMBstoich(i), txtStoich(i), txtComp(i)}) next_focus(control);
  for (const int control : {txtName, txtLk2, txtKsel, cboIsoterm, txtf50, cmdAddnew, cmdDelete, cmdCompdb, txtSpname,
                            txtStoicn, cboComp, cmdNextcomp, cmdSuggest, cmdSavedb, cmdNewDb, cmdQuit})
    next_focus(control);
  return t;
}

}  // namespace

const ui::WindowDef& window_def() {
  static const std::vector<ControlDef> table = make_table();
  static const ui::WindowDef def{
      .program = "kelmar-dbedit",
      .caption = "Sorption / complexation database editor for Kelmar",
      .width = 9165,
      .height = 7950,
      .row = kRowHeight,
      .points = 8.25,
      .background = {255, 255, 192},
      .menu = "File",
      .controls = table,
  };
  return def;
}

}  // namespace app
