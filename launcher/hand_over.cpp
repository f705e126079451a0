// What is written into the folder of a database, and taken away again.
#include "launcher/hand_over.h"

#include <algorithm>
#include <optional>

#include "db/field_reader.h"

namespace launcher {
namespace {

using db::kDriveFile, db::kPathFile;

// Only the drive is read, which means nothing here. A file with just this content was made by a launcher.
constexpr std::string_view kOurDrive = "C:,\"made by kelmar-dbedit-open, which removes it\"\r\n";

// A path as a field that reads back as the same path; nothing when there is none. Quoted text knows no quote inside, other
// text no comma and no blank at its end.
std::optional<std::string> field_of(const std::string& path) {
  if (path.find_first_of("\r\n") != path.npos) return std::nullopt;
  if (path.find('"') == path.npos) return '"' + path + '"';
  if (path.find(',') != path.npos || path.ends_with(' ') || path.ends_with('\t')) return std::nullopt;
  return path;
}

[[noreturn]] void refuse(const Database& database, const std::string& why) {
  throw file::Error("The editor cannot start in " + file::named(database.folder) + ": " + why);
}

[[noreturn]] void refuse_folder(const Database& database, const char* name, std::error_code error) {
  refuse(database,
         file::failure("create", name, error) +
             " It needs the right and the room to write there: copy the database and comp.mdb to a folder of your own, and "
             "open the copy.");
}

}  // namespace

std::error_code create(file::System& system, const std::string& path, std::string_view content, file::OpenFile& file) {
  if (const auto error = system.create_new(path, file::Access::Shared, file.handle())) return error;
  auto error = file::write_all(system, file.get(), content);
  if (!error) error = system.flush(file.get());
  if (error) {
    file.close();
    system.remove(path);
  }
  return error;
}

Database enter(file::System& system, const std::string& file) {
  Database database;
  database.path = file;
  if (!file.starts_with('/')) {
    std::string current;
    if (const auto error = system.current_folder(current))
      throw file::Error("The editor cannot start: there is no current folder: " + file::reason(error) +
                        ". Name the database by its whole path.");
    database.path = (current == "/" ? "" : current) + "/" + file;
  }
  for (std::size_t at = 0; (at = database.path.find("/./")) != std::string::npos;) database.path.erase(at, 2);
  database.folder = database.path.substr(0, std::max<std::size_t>(database.path.rfind('/'), 1));
  try {
    const file::Input probe(system, database.path, database.path);
  } catch (const file::Error& error) {
    throw file::Error("The editor cannot start: " + std::string(error.what()) +
                      " Name a database that is there and that you may read.");
  }
  if (const auto error = system.change_folder(database.folder))
    refuse(database, "the folder cannot be entered: " + file::reason(error) + ".");
  file::Status components;
  if (!system.status(db::kComponentFile, file::Follow::Links, components) && components.type == file::Type::Missing)
    database.notice = "There is no component database, comp.mdb, in " + file::named(database.folder) +
                      ": components will show as numbers until you choose one with the button \"Click here if you would "
                      "like to change the component database\".";
  return database;
}

// Whoever holds sorptemp.dat is alone with dabase.txt: an editor reads it before it takes sorptemp.dat, and no launcher
// removes it without having a sorptemp.dat of its own there. So none vanishes under an editor that is just starting, and the
// last launcher that needs it removes it.
void HandOver::write(const Database& database) {
  const auto field = field_of(database.path);
  if (!field)
    refuse(database, "the path " + file::named(database.path) +
                         " cannot be handed over, because it has a line end, or a quote together with a comma or with a "
                         "blank at its end. Rename the file or its folder.");
  std::error_code error;
  file::patiently(system_, [&] {
    error = create(system_, kPathFile, *field + "\r\n", path_file_);
    return error != std::errc::file_exists;
  });
  if (error == std::errc::file_exists)
    refuse(database,
           "a sorptemp.dat waits there. Another editor is just starting, or one never took it. Try again in a moment; if "
           "it still waits then, delete it.");
  if (error) refuse_folder(database, kPathFile, error);

  file::OpenFile drive_file(system_);
  error = create(system_, kDriveFile, kOurDrive, drive_file);
  if (error && error != std::errc::file_exists) refuse_folder(database, kDriveFile, error);
  try {
    db::first_field(system_, kDriveFile);
  } catch (const file::Error& unreadable) {
    refuse(database,
           std::string(unreadable.what()) + " Delete it; or if it is Kelmar's, start Kelmar, which makes it anew.");
  }
}

// What fails here leaves a file behind, which the next start uses or names.
HandOver::~HandOver() {
  if (path_file_.get() < 0) return;
  if (is_taken()) {
    if (!drive_is_ours()) return;
    path_file_.close();
    if (create(system_, kPathFile, "", path_file_)) return;  // another launcher's: it removes both
  }
  if (drive_is_ours()) system_.remove(kDriveFile);
  system_.remove(kPathFile);
}

bool HandOver::is_taken() const {
  file::Status made, named;
  return system_.status(path_file_.get(), made) || system_.status(kPathFile, file::Follow::Nothing, named) ||
         !made.same_file(named);
}

bool HandOver::drive_is_ours() const {
  try {
    return file::read_whole(system_, kDriveFile, kOurDrive.size()) == kOurDrive;
  } catch (const file::Error&) {
    return false;
  }
}

}  // namespace launcher
