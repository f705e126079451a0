#include "app/frmMaindb.h"
#include "db/rewrite.h"
#include "db/text.h"
#include "edit/leading_fields.h"
#include "file/replacement.h"

namespace app {
namespace {

// The one filter that fits the open database.
std::string_view save_filter(const edit::Database& open) {
  if (open.isomodel.empty() && !open.cdbfile && !open.blifile) return "Sorption database files (*.MDB)|*.MDB";
  if (open.cdbfile) return "Counterion selectivity files (*.CDB)|*.CDB";
  if (open.isomodel != db::kNicaDonnan && !open.blifile) return "Isotherm database files (*.ISO)|*.ISO";
  if (open.isomodel == db::kNicaDonnan) return "NICA-Donnan database files (*.NIC)|*.NIC";
  return "BLM parameter files (*.BLI)|*.BLI";
}

}  // namespace

void frmMaindb::cmdSavedb_Click() {
  if (!confirm(
          "Are you really sure you would like to save changes to the database? - The old settings will disappear forever",
          "Species change - Kelmar"))
    return;
  try {
    savedb();
  } catch (const file::Refusal& refusal) {
    refuse(refusal.what());
  } catch (const file::Error& error) {
    refuse(std::string("The database was not saved: ") + error.what() + " Put that right and save again.");
  }
}

void frmMaindb::cmdNewDb_Click() {
  const std::string old_dbname = state_.dbname;
  const auto chosen = dialogs_.choose_file({.form = ui::FileRequest::Form::Save,
                                            .filter = save_filter(database()),
                                            .folder = state_.dialog_folder,
                                            .writes = true});
  if (!chosen) return;
  // Whatever fails from here on ends the handler in silence, but not what the program itself refuses.
  try {
    state_.dbname = *chosen;
    const std::string warning = file::copy_over(system_, old_dbname, state_.dbname);
    set(lblNameDb, state_.dbname);
    savedb();
    if (!warning.empty()) refuse(warning);
  } catch (const file::Refusal& refusal) {
    refuse(refusal.what());
  } catch (const file::Error&) {
  }
}

void frmMaindb::savedb() {
  const std::string species = selected_species();
  if (species.empty() && db::trimmed(text(cboIsoterm)).empty())
    return refuse("Please use the mouse to select the database species to be changed before saving");
  for (const int required : {txtlogk, txtCharge, txtID, txtNocomp})
    if (db::trimmed(text(required)).empty())
      return refuse("One or more required data fields have been left blank. Please complete before saving");

  state_.changedone = "N";
  const bool add = !species.empty() && species == db::trimmed(text(txtSpname));
  if (!add && state_.isomodel == db::kNicaDonnan) state_.isoselect = db::kNicaDonnan;
  db::Rewrite order;
  order.database = state_.dbname;
  edit::set_leading_fields(order, database(), add ? state_.isomodel : state_.isoselect, text(txtf50));
  if (add)
    order.first = [this](std::string& out) {
      SpeciesChange(out);
      state_.changedone = "N";
    };
  order.decide = [this, add, &species](const db::Record& record, std::string& out) {
    if (!add && record.head[db::kName].text == species) SpeciesChange(out);
    if (state_.changedone != "Y") return db::Decision::Keep;
    state_.changedone = "N";
    return db::Decision::Replace;
  };
  const std::string warning = db::rewrite(system_, order);
  if (add) Newspecdelete();
  Listfill();
  if (!warning.empty()) refuse(warning);
}

void frmMaindb::SpeciesChange(std::string& out) {
  edit::append_species(out, entry(), database(), system_, state_.compdb);
  state_.changedone = "Y";
}

edit::Entry frmMaindb::entry() const {
  edit::Entry entry{.id = text(txtID),
                    .name = text(txtName),
                    .logk = text(txtlogk),
                    .dhr = text(txtdhr),
                    .ksel = text(txtKsel),
                    .charge = text(txtCharge),
                    .nocomp = text(txtNocomp),
                    .lk2 = std::nullopt,
                    .rows = {}};
  if (window_[txtLk2].shown) entry.lk2 = text(txtLk2);
  int i = 0;
  for (edit::Row& row : entry.rows) {
    ++i;
    row = {text(txtStoich(i)), text(txtComp(i)), text(txtMBstoich(i))};
  }
  return entry;
}

void frmMaindb::cmdDelete_Click() {
  const std::string species = selected_species();
  if (species.empty()) return refuse("No species defined", "Kelmar");
  if (species == db::trimmed(text(txtSpname))) {
    refuse("This species is not yet in the database anyway", "Kelmar");
    return remove_selected_species();
  }
  if (!confirm("Are you really sure you would like to delete this species from the database? Once deleted it is gone!",
               "Deletion of species - Kelmar"))
    return;

  db::Rewrite order;
  order.database = state_.dbname;
  std::string warning;
  try {
    edit::set_leading_fields(order, database(), state_.isomodel, text(txtf50));
    order.decide = [&species](const db::Record& record, std::string&) {
      return record.head[db::kName].text == species ? db::Decision::Drop : db::Decision::Keep;
    };
    warning = db::rewrite(system_, order);
  } catch (const file::Refusal& refusal) {
    return refuse(refusal.what());
  } catch (const file::Error& error) {
    return refuse(std::string("The species was not deleted: ") + error.what() + " Put that right and try again.");
  }
  remove_selected_species();
  empty_rows();
  for (const int box : {txtID, txtName, txtlogk, txtdhr, txtCharge, txtKsel}) set(box, "");
  set(txtNocomp, "0");
  if (!warning.empty()) refuse(warning);
}

}  // namespace app
