// The one copy of the samples.
#include "launcher/samples.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>

#include "file/replacement.h"
#include "launcher/hand_over.h"

namespace launcher {
namespace {

namespace fs = std::filesystem;

// Keeps another launcher from copying at the same time, where the file system knows locks.
class Alone {
 public:
  explicit Alone(const fs::path& folder) : folder_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (folder_ != -1) ::flock(folder_, LOCK_EX);
  }
  ~Alone() {
    if (folder_ != -1) ::close(folder_);
  }
  Alone(const Alone&) = delete;
  Alone& operator=(const Alone&) = delete;

 private:
  int folder_;
};

void fill(file::System& system, const fs::path& from, const fs::path& to) {
  fs::create_directory(to);
  for (const auto& entry : fs::directory_iterator(from)) {
    if (!entry.is_regular_file()) continue;
    const std::string path = to / entry.path().filename();
    file::OpenFile file(system);
    file::require(create(system, path, file::read_whole(system, entry.path(), file::kLargestDatabase), file), "write", path);
  }
}

// Under another name first: a copy that is cut short is not taken for the user's samples.
void copy(file::System& system, const fs::path& from, const fs::path& to) {
  fs::create_directories(to.parent_path());
  const Alone alone(to.parent_path());
  if (fs::exists(fs::symlink_status(to))) return;
  const fs::path fresh = to.parent_path() / ".samples.new";
  fs::remove_all(fresh);
  try {
    fill(system, from, fresh);
    fs::rename(fresh, to);
  } catch (...) {
    std::error_code ignored;  // it is removed before the next copy
    fs::remove_all(fresh, ignored);
    throw;
  }
}

}  // namespace

std::string data_folder(const char* data_home, const char* home) {
  if (data_home != nullptr && *data_home == '/') return data_home;
  if (home != nullptr && *home == '/') return std::string(home) + "/.local/share";
  throw file::Error(
      "The samples cannot be opened: neither HOME nor XDG_DATA_HOME says where to copy them. Name a database of your own.");
}

std::string sample(file::System& system, const std::string& installed, const std::string& data_folder) {
  const std::string own = data_folder + "/kelmar-dbedit/samples";
  std::string shown = own + "/complex.MDB";
  std::string why;
  try {
    copy(system, installed, own);
    if (fs::exists(shown)) return shown;
    why = "there is no " + file::named(shown) + ". Delete that folder for new samples, or name another database.";
  } catch (const fs::filesystem_error& error) {
    why = file::failure("copy them from " + file::named(installed) + " to", own, error.code()) +
          " Name a database of your own.";
  } catch (const file::Error& error) {
    why = std::string(error.what()) + " Name a database of your own.";
  }
  throw file::Error("The samples cannot be opened: " + why);
}

}  // namespace launcher
