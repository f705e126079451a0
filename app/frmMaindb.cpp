// The start, the choice of files and models, and the list of species; frmMaindb_species.cpp has what is done to one species.
#include "app/frmMaindb.h"

#include <new>

#include "db/format.h"
#include "db/number.h"
#include "db/species_reader.h"
#include "edit/models.h"

namespace app {
namespace {

constexpr std::string_view kDatabaseFilter =
    "Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|"
    "Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI";
constexpr std::string_view kComponentFilter = "Kelmar database files (*.MDB)|*.MDB";

}  // namespace

std::string working_folder(std::string_view current_folder) {
  const bool development = current_folder == R"(C:\Program\Microsoft Visual Studio\VB98)" ||
                           current_folder == R"(C:\Program Files\Microsoft Visual Studio\VB98)";
  return std::string(development ? R"(c:\Program Files\kelmar)" : current_folder);
}

frmMaindb::frmMaindb(ui::Dialogs& dialogs, file::System& system) : dialogs_(dialogs), system_(system) {
  for (const ui::ControlDef& def : window_def().controls)
    window_.controls.push_back({.text = def.caption, .shown = def.shown});
}

void frmMaindb::run(void (frmMaindb::*handler)()) {
  try {
    (this->*handler)();
  } catch (const std::bad_alloc&) {
    state_.suggestrun = false;
    refuse(
        "There is not enough memory to go on. The database holds the whole change or nothing of it: open it again and "
        "look.");
  }
}

void frmMaindb::click(int control) {
  switch (control) {
    case lstReactions: return run(&frmMaindb::lstReactions_Click);
    case cboIsoterm: return run(&frmMaindb::cboIsoterm_Click);
    case cmdAddnew: return run(&frmMaindb::cmdAddnew_Click);
    case cmdNextcomp: return run(&frmMaindb::cmdNextcomp_Click);
    case cmdSuggest: return run(&frmMaindb::cmdSuggest_Click);
    case cmdDelete: return run(&frmMaindb::cmdDelete_Click);
    case cmdSavedb: return run(&frmMaindb::cmdSavedb_Click);
    case cmdNewDb: return run(&frmMaindb::cmdNewDb_Click);
    case cmdCompdb: return run(&frmMaindb::cmdCompdb_Click);
    case mnuFileOpen: return run(&frmMaindb::mnuFileOpen_Click);
    case mnuFileExit: return run(&frmMaindb::mnuFileExit_Click);
    case cmdQuit: return run(&frmMaindb::cmdQuit_Click);
  }
}

void frmMaindb::Form_Load() {
  state_.open.compdb = db::kComponentFile;
  std::string folder, drive;
  try {
    if (const auto error = system_.current_folder(folder))
      throw file::Error("there is no current folder: " + file::reason(error) + ".");
    folder = working_folder(folder);
    if (const auto error = system_.change_folder(folder))
      throw file::Error("the folder cannot be entered: " + file::reason(error) + ".");
    drive = db::first_field(system_, db::kDriveFile);
  } catch (const file::Error& error) {
    refuse("The editor cannot start" + (folder.empty() ? "" : " in " + file::named(folder)) + ": " + error.what() +
           " Start it from Kelmar, in Kelmar's folder.");
    window_.ended = true;
    window_.status = 1;
    return;
  }
  open_database(take_hand_over(folder, drive));
  for (const edit::Model& model : edit::models())
    if (model.name != db::kNicaDonnan) window_[cboIsoterm].entries.emplace_back(model.name);
  Listfill();
}

// The path of the database. Whatever fails ends this in silence: the user can open one by the menu.
std::string frmMaindb::take_hand_over(const std::string& folder, const std::string& drive) {
  if ((!drive.empty() && system_.change_drive(drive.front())) || system_.change_folder(folder)) return "";
  state_.dialog_folder = folder;
  try {
    std::string path = system_.path_in_file(db::first_field(system_, db::kPathFile));
    system_.remove(db::kPathFile);  // or it would be read again at the next start
    return path;
  } catch (const file::Error&) {
    return "";
  }
}

void frmMaindb::open_database(std::string path) {
  state_.open.kind = db::kind_of(path);
  state_.open.misplaced = false;
  state_.open.path = std::move(path);
  state_.open.isomodel.clear();
  state_.open.isoselect.clear();
  hide({lblKsel, txtKsel, txtf50, lblIsoterm, cboIsoterm});
  show({lblNameDb});
  set(lblNameDb, state_.open.path);
  if (!state_.open.cdbfile() || db::is_donnica(state_.open.path)) return;
  show({txtKsel, lblKsel});
  set(lblKsel, "Selectivity coefficient (K-sel)");
}

void frmMaindb::Listfill() {
  ui::Control& list = window_[lstReactions];
  list.entries.clear();
  list.selected = -1;
  show({txtdhr, lbldhr});
  set(lbldhr, "dHr (kJ/mol)");
  db::Listing listing = db::list_species(system_, state_.open);
  if (!listing.opened) return;
  const db::Kind by_name = db::kind_of(state_.open.path);
  const bool isotherm = by_name == db::Kind::Isotherm;
  // An isotherm database keeps its M.B. stoichiometries in use under another name too, or a change would lose them.
  if (isotherm || state_.open.kind != db::Kind::Isotherm) state_.open.mbfields = false;
  if (!isotherm && state_.open.kind != db::Kind::Isotherm) {
    set(lblLogk, "log K");
    hide({lblMA, lblMB, lblMBnote});
  }
  if (!listing.led && db::leading_of(by_name) == db::Leading::Model) return;
  if (isotherm) {
    edit::put_in_force(state_.open, listing.leading.model);
    show_model();
  } else if (state_.open.blifile()) {
    show({txtf50, lblIsoterm, lblKsel, txtKsel});
    set(lblIsoterm, "Critical f value");
    set(lblKsel, "Contributes to toxicity");
  }
  if (listing.leading.which == db::Leading::Blm) set(txtf50, db::numtext(listing.leading.critical_f));
  list.entries = std::move(listing.names);
}

// The controls of an isotherm database.
void frmMaindb::show_model() {
  show({cboIsoterm, lblIsoterm});
  set(lblIsoterm, "Isotherm model");
  set(cboIsoterm, state_.open.isomodel);
  if (state_.open.isomodel == "NICA")
    set(lbldhr, "p");
  else
    hide({txtdhr, lbldhr, txtKsel, lblKsel});
  const edit::Model& model = edit::model(state_.open.isomodel);
  if (!model.logk_caption.empty()) set(lblLogk, std::string(model.logk_caption));
  set_shown({lblMA, lblMB, lblMBnote}, state_.open.mbfields);
}

void frmMaindb::mnuFileOpen_Click() {
  const auto chosen =
      dialogs_.choose_file({.form = ui::FileRequest::Form::Open, .filter = kDatabaseFilter, .folder = state_.dialog_folder});
  if (!chosen) return;
  open_database(*chosen);
  Listfill();
}

void frmMaindb::cmdCompdb_Click() {
  const auto chosen = dialogs_.choose_file(
      {.form = ui::FileRequest::Form::Save, .filter = kComponentFilter, .folder = state_.dialog_folder});
  if (chosen) state_.open.compdb = *chosen;
}

void frmMaindb::cboIsoterm_Click() {
  state_.open.isoselect = text(cboIsoterm);
  Listfill();
}

}  // namespace app
