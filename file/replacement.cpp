// The only place that can lose a database: each call of it is made to fail in tests.
#include "file/replacement.h"

#include <new>
#include <utility>

namespace file {
namespace {

constexpr const char* kBeside = ".dbnamep";  // after the target's name
constexpr const char* kElsewhere = " Use \"Save changes to new database\" with another place.";

Refusal closed_folder(const std::string& path) {
  return Refusal("the folder of " + named(path) + " does not let a file be replaced." + kElsewhere);
}

Refusal temporary_itself(const std::string& temporary) {
  return Refusal("the open database is the temporary file " + named(temporary) +
                 " itself. Copy it to another name and open that.");
}

Refusal in_use(const std::string& path) {
  return Refusal(named(path) + " is in use: another editor is saving in this folder. Wait until it is done and try again.");
}

bool is_denied(std::error_code error) {
  return error == std::errc::permission_denied || error == std::errc::operation_not_permitted;
}

Status look_at(System& system, const std::string& path, Follow follow) {
  Status status;
  require(system.status(path, follow, status), "look at", path);
  return status;
}

// The answer to keeping others from a file. Where the file system knows no way, nothing can be done.
void require_excluded(std::error_code error, const std::string& path) {
  if (error == std::errc::file_exists)
    throw Refusal(named(path + kLock) +
                  " is in the way: a lock of that name would be empty, and it is not. Move it away and " + "try again.");
  if (error != std::errc::not_supported) require(error, "lock", path);
}

}  // namespace

bool same_place(System& system, const std::string& one, const std::string& other) {
  const Status ours = look_at(system, one, Follow::Links), theirs = look_at(system, other, Follow::Links);
  if (ours.type != Type::Missing || theirs.type != Type::Missing) return ours.same_file(theirs);
  std::string our_place, their_place;
  require(system.place_of(one, our_place), "find", one);
  require(system.place_of(other, their_place), "find", other);
  return our_place == their_place;
}

void refuse_spared(System& system, const std::string& target, const Spared& spared) {
  if (same_place(system, target, spared.path))
    throw Refusal(named(target) + " is " + spared.what +
                  ", which is never changed. Choose another file for one of the two.");
}

TemporaryFile::TemporaryFile(System& system, std::string path)
    : system_(system),
      path_(std::move(path)),
      writer_(system),
      exclusion_(system) {}

TemporaryFile::TemporaryFile(System& system, std::string path, Access access, const Spared& spared)
    : TemporaryFile(system, std::move(path)) {
  refuse_spared(system_, path_, spared);
  if (!patiently(system_, [&] { return claim(access); })) throw in_use(path_);
}

TemporaryFile::~TemporaryFile() {
  writer_.close();  // Windows removes no file that is open without leave to
  try {
    if (ours_ && !is_taken()) uninterrupted([&] { return system_.remove(path_); });
  } catch (const std::bad_alloc&) {  // the next save removes it
  }
}

// False while another editor has the name. The file is never opened through a link and never emptied: what lies under the
// name may be somebody's only copy under another name.
bool TemporaryFile::claim(Access access) {
  const Status present = look_at(system_, path_, Follow::Nothing);
  if (present.type != Type::Missing && present.type != Type::Plain)
    throw Refusal(named(path_) + " is in the way: it is not a plain file. Remove it and try again.");
  if (present.type == Type::Plain && !remove_leftover()) return false;

  const auto created = uninterrupted([&] { return system_.create_new(path_, access, writer_.handle()); });
  if (created == std::errc::file_exists || created == std::errc::operation_would_block) return false;
  require(created, "create", path_);
  ours_ = true;
  require(system_.status(writer_.get(), created_), "look at", path_);
  const auto excluded = uninterrupted([&] { return system_.exclude_others(path_, exclusion_.handle()); });
  if (excluded == std::errc::operation_would_block || excluded == std::errc::no_such_file_or_directory || is_taken()) {
    ours_ = false;  // before it was held another editor has taken it for a leftover
    writer_.close();
    exclusion_.close();
    return false;
  }
  require_excluded(excluded, path_);
  return true;
}

// Held while it is removed, so that two editors cannot both take it for a leftover. False while another writes it.
bool TemporaryFile::remove_leftover() {
  OpenFile leftover(system_);
  auto error = uninterrupted([&] { return system_.exclude_others(path_, leftover.handle()); });
  if (!error || error == std::errc::not_supported) error = uninterrupted([&] { return system_.remove(path_); });
  if (error == std::errc::operation_would_block) return false;
  if (const std::string owner = is_denied(error) ? system_.owner_of(path_) : ""; !owner.empty())
    throw Refusal(named(path_) + " belongs to " + owner +
                  ", whose saving in this folder is not done or was interrupted. Try " +
                  "again in a while; if the file stays, have " + owner + " remove it.");
  if (error != std::errc::no_such_file_or_directory) require(error, "remove", path_);
  return true;
}

// Whether the name is another file's now.
bool TemporaryFile::is_taken() const {
  Status present;
  return created_.type != Type::Missing && !system_.status(path_, Follow::Nothing, present) &&
         present.type != Type::Missing && !present.same_file(created_);
}

// Each step would, left out, lose this:
void TemporaryFile::write(std::string_view content, const std::string* like) {
  // the rest of the content, when a disk fills up or a write comes back short;
  require(write_all(system_, writer_.get(), content), "write", path_);
  // the file's permissions, and with them somebody's access to the database;
  if (like != nullptr)
    require(uninterrupted([&] { return system_.take_over(writer_.get(), *like); }), "set the permissions of", path_);
  // the content after a power cut: the new name may reach the disk before the bytes do. Tried once: after a failed flush
  // the system may have dropped the bytes, and a second flush would succeed without them;
  require(system_.flush(writer_.get()), "write to the disk", path_);
  // a failure that a network file system or a quota reports only now;
  require(writer_.close(), "close", path_);
  // everything, when what came back from memory, bus or disk is not what was meant.
  verify(content);
}

void TemporaryFile::verify(std::string_view content) const {
  const Input input(system_, path_, path_);
  char block[64 * 1024];
  for (std::size_t offset = 0, got = 0;; offset += got) {
    got = input.read(offset, block, sizeof block, "read back");
    if (content.substr(offset, got) != std::string_view(block, got) || (got == 0 && offset < content.size()))
      throw Error(named(path_) + " does not hold what was written to it. The disk may be failing.");
    if (got == 0) return;
  }
}

std::error_code TemporaryFile::rename(const std::string& to) {
  if (is_taken()) throw in_use(path_);  // that one may be half done
  const auto error = uninterrupted([&] { return system_.rename(path_, to); });
  ours_ = ours_ && error;
  return error;
}

Replacement::Replacement(System& system, const std::string& temporary, const std::string& target, const Spared& spared)
    : system_(system),
      spared_(spared),
      name_(target),
      target_(target),
      exclusion_(system) {
  refuse_spared(system_, target, spared_);
  // Without the links: renaming over a link would replace the link and leave the database itself as it was.
  if (look_at(system_, target, Follow::Nothing).type != Type::Missing)
    require(system_.without_links(target, target_), "find", target);
  look_at_target();
  // Others are kept out before the database is read, or of two savings the second would lose the first.
  if (before_.type == Type::Plain) exclude_others();
  // The target under the temporary name would be taken for a leftover and removed.
  if (look_at(system_, temporary, Follow::Nothing).same_file(before_) || temporary == target)
    throw temporary_itself(temporary);
  temporary_.emplace(system_, temporary, access(), spared_);
}

void Replacement::look_at_target() {
  before_ = look_at(system_, target_, Follow::Nothing);
  if (before_.type == Type::Missing) return;
  if (before_.type != Type::Plain) throw Refusal(named(name_) + " is not a plain file. Choose another name.");
  if (!before_.writable) throw Refusal(named(name_) + " is read-only. Make it writable or save to a new database.");
  if (before_.links > 1)
    throw Refusal(named(name_) + " has several names (hard links), from which replacing it would part it." + kElsewhere);
  if (!before_.replaceable) throw closed_folder(name_);
}

// Where the file system knows no way, the comparison before the rename alone guards.
void Replacement::exclude_others() {
  std::error_code error;
  const bool done = patiently(system_, [&] {
    error = uninterrupted([&] { return system_.exclude_others(target_, exclusion_.handle()); });
    return error != std::errc::operation_would_block;
  });
  if (!done) throw Refusal(named(name_) + " is in use: another editor is saving it. Wait until it is done and try again.");
  require_excluded(error, name_);
  look_at_target();  // again: while it was waited for, it may have been replaced
}

std::error_code Replacement::try_rename(std::string_view content) {
  temporary_->write(content, before_.type == Type::Missing ? nullptr : &target_);
  std::error_code error;
  const bool done = patiently(system_, [&] {
    error = rename();
    return error != std::errc::operation_would_block;
  });
  if (!done)
    throw Refusal(named(name_) + ", or the temporary file of its new content, is open in another program. Close it there " +
                  "and try again.");
  return error;
}

std::error_code Replacement::rename() {
  // Another program, which knows nothing of this one, may have changed the database since it was read, or a link to it.
  if (!look_at(system_, name_, Follow::Links).same_content(before_))
    throw Refusal(named(name_) + " was changed by another program while it was being saved, and is left as that made it. " +
                  "Show the species again and repeat the change.");
  // The one step that replaces: before it the path holds the whole old content, after it the whole new one, and there is no
  // moment between.
  return temporary_->rename(target_);
}

std::optional<std::string> Replacement::commit(std::string_view content) {
  auto error = is_far() ? make_error_code(std::errc::cross_device_link) : try_rename(content);
  if (error == std::errc::cross_device_link) {
    // From another file system a file cannot be renamed: a second one in the target's own folder can.
    temporary_.emplace(system_, target_ + kBeside, access(), spared_);
    error = try_rename(content);
  }
  const bool closed = is_denied(error) || error == std::errc::device_or_resource_busy;  // something is mounted there
  if (closed && before_.type == Type::Plain) throw closed_folder(name_);
  require(error, "replace", target_);
  // Left out, a power cut could bring the old name back, with the old content, after the user was told of the new one.
  error = uninterrupted([&] { return system_.flush_folder_of(target_); });
  if (!error) return std::nullopt;
  return failure("write to the disk the folder of", target_, error) +
         " The database holds the new content, but a power cut may bring the old one back: save it again.";
}

void refuse_temporary(System& system, const std::string& temporary, const std::string& database) {
  if (same_place(system, temporary, database)) throw temporary_itself(temporary);
}

std::optional<std::string> copy_over(System& system, const std::string& from, const std::string& to, const Spared& spared) {
  // A file on a disk that was copied from another may be told as the same file; its content is then seen to differ.
  const auto content_of = [&](const std::string& path) { return look_at(system, path, Follow::Links); };
  if (same_place(system, from, to) && content_of(from).same_content(content_of(to))) return std::nullopt;
  refuse_temporary(system, to + kBeside, from);
  Replacement replacement(system, to + kBeside, to, spared);
  const Status before = content_of(from);
  const std::string content = read_whole(system, from, kLargestDatabase);
  if (!content_of(from).same_content(before))
    throw Refusal(named(from) + " was changed by another program while it was being copied. Try again.");
  return replacement.commit(content);
}

}  // namespace file
