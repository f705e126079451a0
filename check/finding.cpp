// Findings as lines.
#include <algorithm>
#include <functional>

#include "check/check.h"
#include "text/code_page.h"

namespace check {

std::string lines_of(file::System& system, const std::string& path, std::vector<Finding> findings) {
  if (findings.empty()) return "";
  std::ranges::stable_sort(findings, std::less<>(), &Finding::offset);
  std::string bytes(findings.back().offset + 1, '\0');
  const file::Input input(system, path, path);
  for (std::size_t size = 0, got = 1; got > 0 && size < bytes.size(); size += got)
    got = input.read(size, &bytes[size], bytes.size() - size);

  std::string lines;
  std::size_t line = 1, at = 0;
  for (const Finding& finding : findings) {
    for (; at < finding.offset; ++at) line += bytes[at] == '\n' || (bytes[at] == '\r' && bytes[at + 1] != '\n');
    static constexpr const char* kWords[] = {"note", "warning", "error"};
    std::string text = ":" + std::to_string(line) + ": " + kWords[static_cast<int>(finding.severity)] + ": ";
    if (finding.record > 0)
      text += "record " + std::to_string(finding.record) +
              (finding.name.empty() ? "" : " \"" + file::named(finding.name) + "\"") + ": ";
    text.append(finding.reason).append(" [").append(finding.rule).append("]");
    lines += path + text::to_utf8(text) + '\n';
  }
  return lines;
}

}  // namespace check
