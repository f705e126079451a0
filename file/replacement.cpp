#include "file/replacement.h"

#include <filesystem>

#include <cstdint>
#include <system_error>
#include <utility>

#include "file/input.h"

namespace file {
namespace {

Refusal in_use(const std::string& path) {
  return Refusal(path + " is in use: another editor is saving in this folder. Wait until it is done and try again.");
}

}  // namespace

void refuse_spared(System& system, const std::string& target, const Spared& spared) {
  Status ours, theirs;
  for (const auto& [path, status] : {std::pair(&target, &ours), std::pair(&spared.path, &theirs)})
    if (const auto error = system.status(*path, Follow::Links, *status)) throw Error(failure("look at", *path, error));
  bool same = ours.same_file(theirs);
  if (ours.type == Type::Missing && theirs.type == Type::Missing) {
    std::string folder;
    if (const auto error = system.current_folder(folder)) throw Error(failure("find", target, error));
    const auto place = [&](const std::string& path) { return (std::filesystem::path(folder) / path).lexically_normal(); };
    same = place(target) == place(spared.path);
  }
  if (same)
    throw Refusal(target + " is " + spared.what + ", which is never changed. Choose another file for one of the two.");
}

void Replacement::require(std::error_code error, std::string_view what, const std::string& path) {
  if (error) throw Error(failure(what, path, error));
}

Replacement::Replacement(System& system, std::string temporary, const std::string& target, Spared spared)
    : system_(system),
      spared_(std::move(spared)),
      kept_(temporary + ".keep"),
      target_(target) {
  refuse_spared(system_, target, spared_);
  // Without the links: renaming over a link would replace the link and leave the database itself as it was.
  require(system_.status(target, Follow::Links, target_status_), "look at", target);
  Status link;
  require(system_.status(target, Follow::Nothing, link), "look at", target);
  if (link.type != Type::Missing) require(system_.real_path(target, target_), "find", target);
  if (target_status_.type != Type::Missing && target_status_.type != Type::Plain)
    throw Refusal(target + " is not a plain file. Choose another name.");
  if (target_status_.type == Type::Plain && !target_status_.writable)
    throw Refusal(target + " is read-only. Make it writable or save to a new database.");

  // The target under the temporary name would be taken for a leftover and removed.
  Status present;
  require(system_.status(temporary, Follow::Nothing, present), "look at", temporary);
  if (present.same_file(target_status_) || target == temporary)
    throw Refusal("the open database is the temporary file " + temporary +
                  " itself. Copy it to another name and open that.");
  // What an interrupted overwriting left may be the only whole copy of a database.
  Status kept;
  require(system_.status(kept_, Follow::Nothing, kept), "look at", kept_);
  if (kept.type != Type::Missing)
    throw Refusal(kept_ + " holds the whole content of a database whose saving was interrupted. Compare it with the " +
                  "database, copy it over that if it is damaged, and remove it; then save again.");
  try {
    claim(temporary_, std::move(temporary));
  } catch (...) {
    release(temporary_);
    throw;
  }
}

Replacement::~Replacement() {
  release(beside_);
  release(temporary_);
}

// Creates the file, removing a plain leftover of that name first, and locks it. The file is never opened through a link
// and never emptied: what lies under the name may be somebody's only copy under another name.
void Replacement::claim(Claim& claim, std::string path) {
  refuse_spared(system_, path, spared_);
  Status present;
  require(system_.status(path, Follow::Nothing, present), "look at", path);
  if (present.type == Type::Plain) {
    Handle leftover = -1;
    require(uninterrupted([&] { return system_.open_existing(path, leftover); }), "open", path);
    const auto locked = uninterrupted([&] { return system_.lock(leftover); });
    // Removed while it is locked, so that two editors cannot both take it for a leftover.
    const auto removed = locked ? std::error_code() : system_.remove(path);
    system_.close(leftover);
    if (locked == std::errc::operation_would_block) throw in_use(path);
    require(locked, "lock", path);
    require(removed, "remove", path);
  } else if (present.type != Type::Missing) {
    throw Refusal(path + " is in the way: it is not a plain file. Remove it and try again.");
  }

  // A new database gets the permissions that the user's new files get, an existing one keeps its own (set below); until
  // then nobody else can read what is written here.
  const Access access = target_status_.type == Type::Missing ? Access::Shared : Access::Private;
  const auto created = uninterrupted([&] { return system_.create_new(path, access, claim.writer); });
  if (created == std::errc::file_exists) throw in_use(path);
  require(created, "create", path);
  claim.path = std::move(path);  // from here on ours to remove

  require(system_.status(claim.writer, claim.file), "look at", claim.path);
  // A handle of its own for the lock, which has to outlive the closing of the writer.
  require(uninterrupted([&] { return system_.open_existing(claim.path, claim.holder); }), "open", claim.path);
  const auto locked = uninterrupted([&] { return system_.lock(claim.holder); });
  if (locked == std::errc::operation_would_block) {
    const std::string theirs = std::move(claim.path);  // another editor took it for a leftover before it was locked
    claim.path.clear();
    throw in_use(theirs);
  }
  require(locked, "lock", claim.path);
}

// Whether another editor has removed the file as a leftover, before it was locked, and put its own under the name.
bool Replacement::is_taken(const Claim& claim) {
  Status named;
  return claim.file.type != Type::Missing && !system_.status(claim.path, Follow::Nothing, named) &&
         named.type != Type::Missing && !named.same_file(claim.file);
}

// Only the file that was written here: another one under its name may be half done.
std::error_code Replacement::rename(Claim& claim, const std::string& to) {
  if (is_taken(claim)) throw in_use(claim.path);
  return uninterrupted([&] { return system_.rename(claim.path, to); });
}

void Replacement::release(Claim& claim) {
  if (!claim.path.empty() && !is_taken(claim)) uninterrupted([&] { return system_.remove(claim.path); });
  if (claim.writer != -1) system_.close(claim.writer);
  if (claim.holder != -1) system_.close(claim.holder);
  claim = {};
}

// Each step would, left out, lose this:
void Replacement::write_claimed(Claim& claim, std::string_view content) {
  // the rest of the content, when a disk fills up or a write comes back short;
  write_all(claim.writer, 0, content, claim.path);
  // the file's owner and permissions, and with them somebody's access to the database;
  if (target_status_.type == Type::Plain)
    require(uninterrupted([&] { return system_.set_ownership(claim.writer, target_status_); }), "set the permissions of",
            claim.path);
  // the content after a power cut: the new name may reach the disk before the bytes do. Tried once: after a failed flush
  // the system may have dropped the bytes, and a second flush would succeed without them;
  require(system_.flush(claim.writer), "write to the disk", claim.path);
  // a failure that a network file system or a quota reports only now;
  const Handle writer = claim.writer;
  claim.writer = -1;
  require(system_.close(writer), "close", claim.path);
  // everything, when what came back from memory, bus or disk is not what was meant.
  verify(claim.holder, content, claim.path);
}

void Replacement::write_all(Handle handle, std::uint64_t offset, std::string_view bytes, const std::string& path) {
  while (!bytes.empty()) {
    std::size_t put = 0;
    require(uninterrupted([&] { return system_.write(handle, offset, bytes, put); }), "write", path);
    if (put == 0) require(make_error_code(std::errc::no_space_on_device), "write", path);
    bytes.remove_prefix(put);
    offset += put;
  }
}

void Replacement::verify(Handle handle, std::string_view content, const std::string& path) {
  char block[64 * 1024];
  for (std::size_t offset = 0, got = 0;; offset += got) {
    require(uninterrupted([&] { return system_.read(handle, offset, block, sizeof block, got); }), "read back", path);
    if (content.substr(offset, got) != std::string_view(block, got) || (got == 0 && offset < content.size()))
      throw Error(path + " does not hold what was written to it. The disk may be failing.");
    if (got == 0) return;
  }
}

std::string Replacement::commit(std::string_view content) {
  write_claimed(temporary_, content);
  // A rename would part this name of the database from its others, or drop its access list.
  if (target_status_.links > 1 || target_status_.access_list) return overwrite(content);

  // The one step that replaces: before it the path holds the whole old content, after it the whole new one, and there is
  // no moment between.
  const auto error = rename(temporary_, target_);
  if (error == std::errc::cross_device_link) return copy_beside(content);
  if (target_status_.type == Type::Plain &&
      (error == std::errc::permission_denied || error == std::errc::operation_not_permitted))
    return overwrite(content);
  require(error, "replace", target_);
  return renamed(temporary_);
}

// Left out, a power cut could bring the old name back, with the old content, after the user was told of the new one.
std::string Replacement::renamed(Claim& claim) {
  claim.path.clear();
  const auto error = uninterrupted([&] { return system_.flush_folder_of(target_); });
  if (!error) return "";
  return failure("write to the disk the folder of", target_, error) +
         " The database holds the new content, but a power cut may bring the old one back: save it again.";
}

// From another file system a file cannot be renamed: a second one in the target's own folder can.
std::string Replacement::copy_beside(std::string_view content) {
  try {
    claim(beside_, target_ + kBeside);
  } catch (const Refusal&) {
    throw;
  } catch (const Error&) {
    if (target_status_.type == Type::Plain) return overwrite(content);  // no new file there, but perhaps this one
    throw;
  }
  write_claimed(beside_, content);
  require(rename(beside_, target_), "replace", target_);
  return renamed(beside_);
}

// Where the file itself must stay (it has other names, or its folder is closed to us), it is overwritten, and for a moment
// it is neither old nor new. So the new content lies whole and on the disk under a name that no later saving removes, and
// the old one is kept at hand to put back.
std::string Replacement::overwrite(std::string_view content) {
  const std::string old = read_whole(system_, target_, kLargestDatabase);
  Handle handle = -1;
  require(uninterrupted([&] { return system_.open_existing(target_, handle); }), "open", target_);
  bool touched = false, lost = false;
  try {
    require(rename(temporary_, kept_), "rename", temporary_.path);
    temporary_.path = kept_;
    require(uninterrupted([&] { return system_.flush_folder_of(kept_); }), "write to the disk the folder of", kept_);
    // What lies behind the old content first: a full disk shows here, where the old content can still be cut free.
    touched = true;
    if (content.size() > old.size()) {
      write_all(handle, old.size(), content.substr(old.size()), target_);
      require(system_.flush(handle), "write to the disk", target_);
    }
    write_all(handle, 0, content.substr(0, old.size()), target_);
    if (content.size() < old.size())
      require(uninterrupted([&] { return system_.truncate(handle, content.size()); }), "shorten", target_);
    require(system_.flush(handle), "write to the disk", target_);
  } catch (const Error& error) {
    try {
      if (touched) restore(handle, old);
    } catch (const Error&) {
      lost = true;
    }
    system_.close(handle);
    if (!lost) throw;
    temporary_.path.clear();  // the whole new content stays where it is
    throw Error(std::string(error.what()) + " " + target_ + " may be damaged: its whole new content is in " + kept_ + ".");
  }
  system_.close(handle);  // what this could still report, the flush has
  temporary_.path.clear();
  const auto removed = uninterrupted([&] { return system_.remove(kept_); });
  return removed ? failure("remove", kept_, removed) + " The database is saved; remove that file before the next saving."
                 : "";
}

void Replacement::restore(Handle handle, std::string_view old) {
  write_all(handle, 0, old, target_);
  require(uninterrupted([&] { return system_.truncate(handle, old.size()); }), "shorten", target_);
  require(system_.flush(handle), "write to the disk", target_);
}

std::string copy_over(System& system, const std::string& from, const std::string& to, const Spared& spared) {
  Status source, target;
  if (!system.status(from, Follow::Links, source) && !system.status(to, Follow::Links, target) && source.same_file(target))
    return "";
  const std::string content = read_whole(system, from, kLargestDatabase);
  return Replacement(system, to + Replacement::kBeside, to, spared).commit(content);
}

}  // namespace file
