// The controls of the one window: the table from which every backend builds itself, and the names by which the handlers
// speak of them.
#pragma once

#include "ui/window.h"

namespace app {

inline constexpr int kRows = 8;  // component rows

// Every control by its name, later ones above earlier ones; a ROW stands for kRows of them, txtComp(1) to txtComp(8). Ids
// and names both come from this list, so that they cannot drift apart.
// clang-format off
#define KELMAR_CONTROLS(ONE, ROW) \
  ONE(Label1) ONE(lstReactions) ONE(Label2) ONE(lblNameDb) ONE(Label3) ONE(txtID) ONE(Label9) ONE(txtName) \
  ONE(lblLogk) ONE(txtlogk) ONE(lblLk2) ONE(txtLk2) ONE(lbldhr) ONE(txtdhr) ONE(lblKsel) ONE(txtKsel) \
  ONE(Label6) ONE(txtCharge) ONE(Label7) ONE(txtNocomp) ONE(lblMB) ONE(lblMA) \
  ROW(txtMBstoich) ROW(txtStoich) ROW(txtComp) ROW(lblStoich) ONE(lblMBnote) \
  ONE(lblIsoterm) ONE(cboIsoterm) ONE(txtf50) ONE(cmdAddnew) ONE(cmdDelete) ONE(Line1) \
  ONE(lblAddnew) ONE(cmdCompdb) ONE(lblSpname) ONE(lblComp) ONE(txtSpname) ONE(txtStoicn) ONE(cboComp) \
  ONE(cmdNextcomp) ONE(cmdSuggest) ONE(lblMAnote) ONE(cmdSavedb) ONE(cmdQuit) ONE(cmdNewDb) ONE(Label8) \
  ONE(mnuFileOpen) ONE(mnuFileExit)
// clang-format on

#define KELMAR_ONE(name) name,
#define KELMAR_ROW(name) name##1, name##8 = name##1 + kRows - 1,
enum ControlId : int { KELMAR_CONTROLS(KELMAR_ONE, KELMAR_ROW) kControls };
#undef KELMAR_ONE
#undef KELMAR_ROW

#define KELMAR_ONE(name)
#define KELMAR_ROW(name) \
  constexpr int name(int i) { return name##1 + i - 1; }  // i is 1 to kRows
KELMAR_CONTROLS(KELMAR_ONE, KELMAR_ROW)
#undef KELMAR_ONE
#undef KELMAR_ROW

const ui::WindowDef& window_def();

}  // namespace app
