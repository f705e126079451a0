// The controls of the one window: the table from which every backend builds itself, and the names by which the handlers
// speak of them.
#pragma once

#include "ui/window.h"

namespace app {

inline constexpr int kRows = 8;  // component rows

// In the order of the table.
enum ControlId : int {
  Label1,
  lstReactions,
  Label2,
  lblNameDb,
  Label3,
  txtID,
  Label9,
  txtName,
  lblLogk,
  txtlogk,
  lblLk2,
  txtLk2,
  lbldhr,
  txtdhr,
  lblKsel,
  txtKsel,
  Label6,
  txtCharge,
  Label7,
  txtNocomp,
  lblMB,
  lblMA,
  kFirstMBstoich,
  kFirstStoich = kFirstMBstoich + kRows,
  kFirstComp = kFirstStoich + kRows,
  kFirstRowLabel = kFirstComp + kRows,
  lblMBnote = kFirstRowLabel + kRows,
  lblIsoterm,
  cboIsoterm,
  txtf50,
  cmdAddnew,
  cmdDelete,
  Line1,
  lblAddnew,
  cmdCompdb,
  lblSpname,
  lblComp,
  txtSpname,
  txtStoicn,
  cboComp,
  cmdNextcomp,
  cmdSuggest,
  lblMAnote,
  cmdSavedb,
  cmdQuit,
  cmdNewDb,
  Label8,
  mnuFileOpen,
  mnuFileExit,
  kControls
};

// The control arrays; i is 1 to kRows.
constexpr int txtMBstoich(int i) { return kFirstMBstoich + i - 1; }
constexpr int txtStoich(int i) { return kFirstStoich + i - 1; }
constexpr int txtComp(int i) { return kFirstComp + i - 1; }
constexpr int lblStoich(int i) { return kFirstRowLabel + i - 1; }

const ui::WindowDef& window_def();

}  // namespace app
