// The handlers that show, change, enter and delete a species.
#include <algorithm>

#include "app/frmMaindb.h"
#include "db/field_reader.h"
#include "db/number.h"
#include "db/rewrite.h"
#include "edit/models.h"
#include "edit/saving.h"

namespace app {
namespace {

std::string component_caption(const std::string& number) { return "Component no. " + number; }

// The one filter that fits the open database.
std::string_view save_filter(const db::Database& open) {
  if (open.isomodel.empty() && !open.cdbfile() && !open.blifile()) return "Sorption database files (*.MDB)|*.MDB";
  if (open.cdbfile()) return "Counterion selectivity files (*.CDB)|*.CDB";
  if (open.isomodel != db::kNicaDonnan && !open.blifile()) return "Isotherm database files (*.ISO)|*.ISO";
  if (open.isomodel == db::kNicaDonnan) return "NICA-Donnan database files (*.NIC)|*.NIC";
  return "BLM parameter files (*.BLI)|*.BLI";
}

}  // namespace

void frmMaindb::lstReactions_Click() {
  if (state_.suggestrun) return;
  hide_rows();
  hide({lblLk2, txtLk2});
  std::optional<edit::Shown> shown;
  const auto failure =
      message_of([&] { shown = edit::show_species(system_, state_.open, selected_species().value_or("")); },
                 "The species cannot be shown: ", " Mend the file with a text editor, or open another one.");
  if (shown) show_values(*shown);
  if (shown && shown->notice) refuse(*shown->notice);
  if (!failure) return;
  for (const int box : {txtID, txtName, txtlogk, txtLk2, txtdhr, txtKsel, txtCharge, txtNocomp}) set(box, "");
  hide({cmdDelete});
  refuse(*failure);
}

void frmMaindb::show_values(const edit::Shown& shown) {
  const edit::Entry& boxes = shown.boxes;
  if (boxes.lk2) {
    show({txtLk2, lblLk2});
    set(lblLk2, shown.lk2_caption);
    set(txtLk2, *boxes.lk2);
  }
  if (shown.ksel_is_m_ref) {
    show({txtKsel, lblKsel});
    set(lblKsel, "m-ref");
  }
  if (boxes.ksel) set(txtKsel, *boxes.ksel);
  set(txtlogk, boxes.logk);
  set(txtdhr, boxes.dhr);
  set(txtName, boxes.name);
  set(txtID, boxes.id);
  set(txtCharge, boxes.charge);
  set(txtNocomp, boxes.nocomp);
  int i = 0;
  for (const edit::Row& row : boxes.rows) {
    show_row(++i);
    if (state_.open.mbfields) set(txtMBstoich(i), row.mbstoich);
    set(txtStoich(i), row.stoich);
    set(txtComp(i), row.comp);
  }
  show({cmdDelete});
}

void frmMaindb::cmdAddnew_Click() {
  show({lblAddnew, lblComp, txtSpname, cboComp, lblSpname, cmdNextcomp, txtStoicn, cmdSuggest});
  hide({cmdDelete, lblLk2, txtLk2});
  if (state_.open.mbfields) show({lblMAnote});
  set(txtSpname, "");
  set(lblComp, component_caption("1"));
  edit::Choices choices = edit::component_choices(system_, state_.open);
  window_[cboComp].entries = std::move(choices.names);
  empty_rows();
  window_[lstReactions].selected = -1;
  for (const int box : {txtName, txtID, txtlogk, txtKsel, txtdhr, txtCharge}) set(box, "");
  set(txtNocomp, "0");
  state_.compslot = 1;
  if (choices.failure) refuse(*choices.failure);
}

bool frmMaindb::refuse_ninth_component() {
  if (state_.compslot <= kRows) return false;
  refuse("A species has at most eight components. Save this one, or start again with \"Add new species\".");
  return true;
}

void frmMaindb::take_pending_component() {
  const int k = state_.compslot;
  show_row(k);
  set(txtComp(k), text(cboComp));
  set(txtStoich(k), text(txtStoicn));
  set(txtStoicn, "");
  set(cboComp, "");
  ++state_.compslot;
  set(lblComp, component_caption(db::numtext(state_.compslot)));
}

void frmMaindb::cmdSuggest_Click() {
  const bool pending = !text(cboComp).empty() && !text(txtStoicn).empty();
  if (pending && refuse_ninth_component()) return;
  state_.suggestrun = true;
  add_species(text(txtSpname));
  set(txtName, text(txtSpname));
  if (pending) take_pending_component();
  set(txtNocomp, db::numtext(state_.compslot - 1));

  const auto failure = message_of([this] { suggest_id(); },
                                  "No ID number can be suggested: ", " Type an ID number, or mend the file and try again.");
  state_.suggestrun = false;
  if (failure) refuse(*failure);
}

void frmMaindb::suggest_id() {
  numgenerator2();
  state_.idcompno = edit::with_site(state_.idcompno, state_.open.isomodel, text(txtComp(1)));
  if (edit::range_of(edit::first_candidate(state_.idcompno)) != edit::IdRange::None) {
    show({txtLk2, lblLk2});
    set(txtLk2, " 0");
    if (state_.open.isomodel == "NICA") {
      show({txtKsel});
      set(txtdhr, " 0");
      set(txtKsel, " 0");
    }
  }
  set(txtID, db::numtext(edit::free_id(system_, state_.open, state_.idcompno)));
}

void frmMaindb::numgenerator2() { edit::look_up(system_, state_.open, text(txtComp(1)), text(txtComp(2)), state_.idcompno); }

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
  const bool anew = was_misnamed && !misnamed && db::leading_of(state_.open.kind) != db::Leading::Model;
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

void frmMaindb::Newspecdelete() {
  set(txtSpname, "");
  hide({txtSpname, lblAddnew, txtStoicn, lblSpname, lblComp, cboComp, cmdNextcomp, cmdSuggest, lblMAnote});
}

void frmMaindb::show_row(int i) {
  show({lblStoich(i), txtComp(i), txtStoich(i)});
  if (state_.open.mbfields) show({txtMBstoich(i)});
}

void frmMaindb::hide_rows() {
  for (int i = 1; i <= kRows; ++i) hide({lblStoich(i), txtMBstoich(i), txtComp(i), txtStoich(i)});
}

void frmMaindb::empty_rows() {
  hide_rows();
  for (int i = 1; i <= kRows; ++i)
    for (const int box : {txtStoich(i), txtMBstoich(i), txtComp(i)}) set(box, "");
}

// Selects the first entry with its text; none for the empty text.
void frmMaindb::add_species(std::string name) {
  ui::Control& list = window_[lstReactions];
  list.entries.push_back(std::move(name));
  const auto first = std::ranges::find(list.entries, list.entries.back());
  list.selected = first->empty() ? -1 : static_cast<int>(first - list.entries.begin());
  lstReactions_Click();  // shows nothing while a suggestion runs
}

void frmMaindb::remove_species(int entry) {
  ui::Control& list = window_[lstReactions];
  list.entries.erase(list.entries.begin() + entry);
  list.selected = -1;
}

std::optional<std::string> frmMaindb::selected_species() const {
  const ui::Control& list = window_[lstReactions];
  return list.selected < 0 ? std::nullopt : std::optional<std::string>(db::trimmed(list.selected_text()));
}

}  // namespace app
