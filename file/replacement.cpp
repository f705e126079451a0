#include "file/replacement.h"

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

}  // namespace

Replacement::Replacement(System& system, const std::string& temporary, const std::string& target, const Spared& spared)
    : system_(system),
      spared_(spared),
      name_(target),
      target_(target),
      exclusion_(system) {
  refuse_spared(system_, target, spared_);
  // Without the links: renaming over a link would replace the link and leave the database itself as it was.
  Status present;
  require(system_.status(target, Follow::Nothing, present), "look at", target);
  if (present.type != Type::Missing) require(system_.without_links(target, target_), "find", target);
  look_at_target();
  // Others are kept out before the database is read, or of two savings the second would lose the first.
  if (before_.type == Type::Plain) exclude_others();
  // The target under the temporary name would be taken for a leftover and removed.
  require(system_.status(temporary, Follow::Nothing, present), "look at", temporary);
  if (present.same_file(before_) || temporary == target) throw temporary_itself(temporary);
  temporary_.emplace(system_, temporary, access(), spared_);
}

void Replacement::look_at_target() {
  require(system_.status(target_, Follow::Nothing, before_), "look at", target_);
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
  if (error != std::errc::not_supported) require(error, "lock", name_);
  look_at_target();  // again: while it was waited for, it may have been replaced
}

// A new database gets the permissions that the user's new files get, an existing one keeps its own; until it has them nobody
// else can read what is written.
Access Replacement::access() const { return before_.type == Type::Missing ? Access::Shared : Access::Private; }

// What the target has (permissions, an access list) the file system of the temporary file may not even know.
bool Replacement::is_far() const { return before_.type == Type::Plain && !temporary_->created().same_device(before_); }

std::error_code Replacement::try_rename(std::string_view content) {
  temporary_->write(content, before_.type == Type::Missing ? nullptr : &target_);
  // Another program, which knows nothing of this one, may have changed the database since it was read, or a link to it.
  Status now;
  require(system_.status(name_, Follow::Links, now), "look at", name_);
  if (!now.same_content(before_))
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
  if (same_place(system, from, to)) return std::nullopt;
  refuse_temporary(system, to + kBeside, from);
  Replacement replacement(system, to + kBeside, to, spared);
  Status before, after;
  require(system.status(from, Follow::Links, before), "look at", from);
  const std::string content = read_whole(system, from, kLargestDatabase);
  require(system.status(from, Follow::Links, after), "look at", from);
  if (!after.same_content(before))
    throw Refusal(named(from) + " was changed by another program while it was being copied. Try again.");
  return replacement.commit(content);
}

}  // namespace file
