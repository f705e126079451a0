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
#define KELMAR_ROW(name) name##1, name##Last = name##1 + kRows - 1,
enum ControlId : int { KELMAR_CONTROLS(KELMAR_ONE, KELMAR_ROW) kControls };
#undef KELMAR_ONE
#undef KELMAR_ROW

// Those of a row, from 1 to kRows.
constexpr int txtMBstoich(int row) { return txtMBstoich1 + row - 1; }
constexpr int txtStoich(int row) { return txtStoich1 + row - 1; }
constexpr int txtComp(int row) { return txtComp1 + row - 1; }
constexpr int lblStoich(int row) { return lblStoich1 + row - 1; }

const ui::WindowDef& window_def();

}  // namespace app
