// Sessions at random, on databases at random; fuzz/fuzz_session.cpp goes further in the same way.
#include "session.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>

#include "support/text.h"

namespace {

using fuzz::Session;

class Databases {
 public:
  explicit Databases(unsigned seed) : random_(seed) {}

  unsigned next(unsigned below) { return static_cast<unsigned>(random_() % below); }

  std::string database(const std::string& leading) {
    std::string content = leading;
    for (unsigned i = next(6); i > 0; --i) content += record();
    static const char* const kOddEnds[] = {"", "\r\n", "\x1a\r\n", "\r\n5,hidden,0,0,0,0,0,0,0,0,0,0\r\n", "7,cut,0"};
    const unsigned end = next(9);
    content += end < 5 ? kOddEnds[end] : end == 5 ? "\r\n" + support::kTrailer : support::kTrailer;
    for (unsigned i = next(8) == 0 ? 1 + next(3) : 0; i > 0 && !content.empty(); --i)
      content[next(static_cast<unsigned>(content.size()))] = "\",\r\n 0x9\t"[next(9)];
    return content;
  }

 private:
  std::string field() {
    static const char* const kFields[] = {"0", "1.50", "-.25", "", "\"2\"", "1E5", "x", " 7 ", "0.0001", "\"a,b\""};
    return kFields[next(10)];
  }
  std::string record() {
    static const char* const kNames[] = {"\"a\"", "b", "\"S1\"", "\"\"", "\" lead\"", "\"New\"", "c"};
    const unsigned pairs = next(4), block = next(5) == 0 && pairs > 0 ? 1 : 0;
    std::string text = std::to_string(next(30)) + "," + kNames[next(7)];
    for (int i = 0; i < 9; ++i) text += "," + (next(3) == 0 ? field() : "0");
    text += "," + std::to_string(pairs + 100 * block) + "\r\n";
    for (unsigned i = 0; i < pairs; ++i)
      text += "1," + std::to_string(next(2) == 0 ? 231 : 330) + (i + 1 < pairs ? "," : "\r\n");
    return block == 0 ? text : text + "1\r\n.5,231\r\n";
  }

  std::mt19937 random_;
};

TEST(Session, LosesNoRecord) {
  const std::pair<const char*, const char*> kinds[] = {{"x.mdb", ""},
                                                       {"x.cdb", ""},
                                                       {"x.iso", "\"Freundlich\"\r\n"},
                                                       {"x.nic", "\"NICA-Donnan\"\r\n"},
                                                       {"x.bli", "\"text\"\r\n\"label\",.5\r\n"}};
  for (unsigned seed = 0; seed < 3000; ++seed) {
    Databases databases(seed);
    const auto& [name, leading] = kinds[seed % 5];
    const std::string database = databases.database(leading);
    Session session(name, database, support::kComponents);
    std::string events;
    for (int i = 0; i < 25; ++i) {
      const auto byte = static_cast<unsigned char>(databases.next(256));
      events += " " + std::to_string(byte);
      ASSERT_EQ(session.play(byte), "") << "seed " << seed << ", " << name << ", events" << events << "\n" << database;
    }
  }
}

}  // namespace
