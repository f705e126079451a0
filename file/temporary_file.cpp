#include "file/temporary_file.h"

#include <filesystem>
#include <new>
#include <utility>

namespace file {
namespace {

Refusal in_use(const std::string& path) {
  return Refusal(named(path) + " is in use: another editor is saving in this folder. Wait until it is done and try again.");
}

}  // namespace

bool is_denied(std::error_code error) {
  return error == std::errc::permission_denied || error == std::errc::operation_not_permitted;
}

bool same_place(System& system, const std::string& one, const std::string& other) {
  Status ours, theirs;
  require(system.status(one, Follow::Links, ours), "look at", one);
  require(system.status(other, Follow::Links, theirs), "look at", other);
  if (ours.type != Type::Missing || theirs.type != Type::Missing) return ours.same_file(theirs);
  std::string folder;
  require(system.current_folder(folder), "find", one);
  const auto place = [&](const std::string& path) { return (std::filesystem::path(folder) / path).lexically_normal(); };
  return place(one) == place(other);
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
  try {
    if (ours_ && !is_taken()) uninterrupted([&] { return system_.remove(path_); });
  } catch (const std::bad_alloc&) {  // the next save removes it
  }
}

// False while another editor has the name. The file is never opened through a link and never emptied: what lies under the
// name may be somebody's only copy under another name.
bool TemporaryFile::claim(Access access) {
  Status present;
  require(system_.status(path_, Follow::Nothing, present), "look at", path_);
  if (present.type != Type::Missing && present.type != Type::Plain)
    throw Refusal(named(path_) + " is in the way: it is not a plain file. Remove it and try again.");
  if (present.type == Type::Plain && !remove_leftover()) return false;

  const auto created = uninterrupted([&] { return system_.create_new(path_, access, writer_.handle()); });
  if (created == std::errc::file_exists) return false;
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
  if (excluded != std::errc::not_supported) require(excluded, "lock", path_);
  return true;
}

// Held while it is removed, so that two editors cannot both take it for a leftover. False while another writes it.
bool TemporaryFile::remove_leftover() {
  OpenFile leftover(system_);
  auto error = uninterrupted([&] { return system_.exclude_others(path_, leftover.handle()); });
  if (error == std::errc::operation_would_block) return false;
  if (!error || error == std::errc::not_supported) error = uninterrupted([&] { return system_.remove(path_); });
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
  for (std::size_t at = 0, put = 0; at < content.size(); at += put) {
    put = 0;
    require(uninterrupted([&] { return system_.write(writer_.get(), content.substr(at), put); }), "write", path_);
    if (put == 0) require(make_error_code(std::errc::no_space_on_device), "write", path_);
  }
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
  const Input input(system_, path_);
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

}  // namespace file
