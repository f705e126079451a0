// kelmar-dbedit-open [FILE]: starts the editor that lies beside it on a file, or on the samples, as Kelmar would.
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "file/input.h"
#include "launcher/hand_over.h"
#include "launcher/samples.h"
#include "ui/backend.h"

namespace {

constexpr const char* kUsage = "Usage: kelmar-dbedit-open [FILE]\n";
constexpr const char* kHelp =
    "Opens the species-database editor on FILE, in its folder, as Kelmar would. Without FILE it\n"
    "opens the samples, which it copies into your data folder when there are none yet.\n";

constexpr int kEndSignals[] = {SIGTERM, SIGHUP, SIGINT};
volatile std::sig_atomic_t ended_by = 0, editor = 0;

extern "C" void end_editor(int signal) {
  const int usual = errno;
  ended_by = signal;
  if (editor != 0) ::kill(editor, signal);
  errno = usual;
}

// While it lives, what should end this program ends the editor, and this program lives on to clean up. No signal is blocked,
// because the editor would inherit that, and one that was ignored stays so.
class EndSignals {
 public:
  EndSignals() {
    for (const int signal : kEndSignals)
      if (std::signal(signal, end_editor) == SIG_IGN) std::signal(signal, SIG_IGN);
  }
  ~EndSignals() {
    for (const int signal : kEndSignals)
      if (std::signal(signal, SIG_DFL) == SIG_IGN) std::signal(signal, SIG_IGN);
  }
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;
};

// Until the editor ends; gives its exit status.
int run(const std::string& program) {
  std::string name = program;
  char* const arguments[] = {name.data(), nullptr};
  pid_t child = 0;
  if (const int error = ::posix_spawn(&child, program.c_str(), nullptr, nullptr, arguments, environ))
    throw file::Error(file::failure("start", program, {error, std::generic_category()}) + " Install the editor anew.");
  editor = child;
  if (ended_by != 0) ::kill(child, ended_by);  // it came too early for the handler
  siginfo_t info{};
  while (::waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOWAIT) == -1 && errno == EINTR) continue;
  editor = 0;  // before its number may become another process's
  int status = 0;
  while (::waitpid(child, &status, 0) == -1 && errno == EINTR) continue;
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// The file that is named; null: none. Ends the program when the command line is not understood.
const char* file_of(int count, char** arguments) {
  int at = 1;
  const std::string_view option = at < count ? arguments[at] : "";
  if (option == "--help") {
    std::fprintf(stdout, "%s%s", kUsage, kHelp);
    std::exit(0);
  }
  at += option == "--";
  if (count - at > 1 || (option.size() > 1 && option.front() == '-' && option != "--")) {
    std::fprintf(stderr, "kelmar-dbedit-open: one file is opened, and there are no options but --help. %s", kUsage);
    std::exit(2);
  }
  return at < count ? arguments[at] : nullptr;
}

int open(char* program, const char* file) {
  file::System& system = file::system();
  const std::filesystem::path folder = std::filesystem::canonical("/proc/self/exe").parent_path();
  const launcher::Database database = launcher::enter(
      system, file != nullptr ? file
                              : launcher::sample(system, (folder / SAMPLES).lexically_normal(),
                                                 launcher::data_folder(std::getenv("XDG_DATA_HOME"), std::getenv("HOME"))));
  if (!database.notice.empty()) ui::tell(program, database.notice, "Kelmar");
  const EndSignals signals;
  launcher::HandOver hand_over(system);
  hand_over.write(database);
  return run(folder / "kelmar-dbedit");
}

}  // namespace

int main(int count, char** arguments) {
  const char* const file = file_of(count, arguments);
  try {
    return open(arguments[0], file);
  } catch (const file::Error& error) {
    ui::tell(arguments[0], error.what(), "Kelmar");
  } catch (const std::exception& error) {  // no memory, no /proc
    ui::tell(arguments[0], std::string("The editor cannot start: ") + error.what() + ".", "Kelmar");
  }
  return 1;
}
