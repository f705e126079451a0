#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "app/frmMaindb.h"
#include "db/field_reader.h"
#include "db/rewrite.h"
#include "edit/saving.h"

namespace app {
namespace {

// The one filter that fits the open database.
std::string_view save_filter(const db::Database& open) {
  if (open.isomodel.empty() && !open.cdbfile() && !open.blifile()) return "Sorption database files (*.MDB)|*.MDB";
  if (open.cdbfile()) return "Counterion selectivity files (*.CDB)|*.CDB";
  if (open.isomodel != db::kNicaDonnan && !open.blifile()) return "Isotherm database files (*.ISO)|*.ISO";
  if (open.isomodel == db::kNicaDonnan) return "NICA-Donnan database files (*.NIC)|*.NIC";
  return "BLM parameter files (*.BLI)|*.BLI";
}

}  // namespace

void frmMaindb::cmdSavedb_Click() {
  if (!confirm(
          "Are you really sure you would like to save changes to the database? - The old settings will disappear forever",
          "Species change - Kelmar"))
    return;
  const auto failure = message_of([this] { savedb(); }, "The database was not saved: ", " Put that right and save again.");
  if (failure) refuse(*failure);
}

void frmMaindb::cmdNewDb_Click() {
  const auto chosen = dialogs_.choose_file({.form = ui::FileRequest::Form::Save,
                                            .filter = save_filter(state_.open),
                                            .folder = state_.dialog_folder,
                                            .extension = db::name_of(state_.open.kind).extension});
  if (!chosen) return;
  // What the program refuses is told; whatever else fails ends the handler in silence.
  std::optional<std::string> warning;
  try {
    warning = db::copy_to(system_, state_.open, *chosen);
  } catch (const file::Refusal& refusal) {
    return refuse(refusal.what());
  } catch (const file::Error&) {
    state_.open.path = *chosen;
    state_.open.misplaced = true;
    return;
  }
  const bool was_misnamed = db::misnamed(state_.open).has_value();
  state_.open.path = *chosen;
  const auto misnamed = db::misnamed(state_.open);
  set(lblNameDb, *chosen);
  // What was shown under a wrong name goes with it.
  const bool anew = was_misnamed && !misnamed && !db::leading_of(state_.open.kind).model;
  if (anew) open_database(*chosen);
  if (warning) refuse(*warning);
  bool saved = false;
  try {
    saved = savedb();
    if (misnamed) refuse(*misnamed);
  } catch (const file::Refusal& refusal) {
    refuse(refusal.what());
  } catch (const file::Error&) {
  }
  if (anew && !saved) Listfill();
}

bool frmMaindb::savedb() {
  const auto species = selected_species();
  if (species.value_or("").empty() && db::trimmed(text(cboIsoterm)).empty())
    return refuse("Please use the mouse to select the database species to be changed before saving"), false;
  for (const int required : {txtlogk, txtCharge, txtID, txtNocomp})
    if (db::trimmed(text(required)).empty())
      return refuse("One or more required data fields have been left blank. Please complete before saving"), false;

  state_.changedone = "N";
  const bool add = species && !species->empty() && *species == db::trimmed(text(txtSpname));
  if (!add && state_.open.isomodel == db::kNicaDonnan) state_.open.isoselect = db::kNicaDonnan;
  const edit::Entry entry = SpeciesChange();
  const auto warning = add ? edit::add_species(system_, state_.open, entry, text(txtf50))
                           : edit::change_species(system_, state_.open, species, entry, text(txtf50));
  if (add) Newspecdelete();
  Listfill();
  if (warning) refuse(*warning);
  return true;
}

edit::Entry frmMaindb::SpeciesChange() const {
  edit::Entry entry{text(txtID),   text(txtName),   text(txtlogk),
                    text(txtdhr),  text(txtCharge), text(txtNocomp),
                    text(txtKsel), std::nullopt,    {}};
  if (window_[txtLk2].shown) entry.lk2 = text(txtLk2);
  for (int i = 1; i <= kRows; ++i) entry.rows.push_back({text(txtStoich(i)), text(txtComp(i)), text(txtMBstoich(i))});
  return entry;
}

void frmMaindb::cmdDelete_Click() {
  const int entry = window_[lstReactions].selected;
  const std::string species = selected_species().value_or("");
  if (species.empty()) return refuse("No species defined", "Kelmar");
  if (species == db::trimmed(text(txtSpname))) {
    refuse("This species is not yet in the database anyway", "Kelmar");
    return remove_species(entry);
  }
  if (!confirm("Are you really sure you would like to delete this species from the database? Once deleted it is gone!",
               "Deletion of species - Kelmar"))
    return;

  std::optional<std::string> warning;
  const auto failure = message_of([&] { warning = edit::delete_species(system_, state_.open, species, text(txtf50)); },
                                  "The species was not deleted: ", " Put that right and try again.");
  if (failure) return refuse(*failure);
  remove_species(entry);
  empty_rows();
  for (const int box : {txtID, txtName, txtlogk, txtdhr, txtCharge, txtKsel}) set(box, "");
  set(txtNocomp, "0");
  if (warning) refuse(*warning);
}

}  // namespace app
