#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "db/components.h"
#include "db/kind.h"
#include "db/rewrite.h"
#include "support/story.h"

namespace {

using support::lines;
using support::MemorySystem;

// All fields of a text, each in brackets, a quoted one with its quotes.
std::string fields_of(const std::string& text) {
  MemorySystem system;
  system.add("x", text);
  db::FieldReader reader(system, "x");
  std::string all;
  for (db::Field field; reader.next(field);) {
    const std::string mark = field.quoted ? "\"" : "";
    all.append("[").append(mark).append(field.text).append(mark).append("]");
  }
  return all;
}

TEST(Fields, AreSeparatedByCommasAndLineEnds) {
  const struct {
    const char* text;
    const char* fields;
  } rows[] = {{"", ""},
              {"1,2", "[1][2]"},
              {"1,2,", "[1][2]"},
              {"1,2,\r\n", "[1][2][]"},
              {"1\r\n2\n3\r4", "[1][2][3][4]"},
              {"1\n\r2", "[1][][2]"},
              {"a\r\n\r\nb", "[a][][b]"},
              {",", "[]"},
              {"  1  ,  x y  ", "[1][x y]"},
              {"   ", "[]"},
              {"\"a,b\"", "[\"a,b\"]"},
              {"  \" a \" junk ,\"\"", "[\" a \"][\"\"]"},
              {"a\"b,c", "[a\"b][c]"},
              {"\"a\"\"b\",c", "[\"a\"][c]"}};
  for (const auto& [text, fields] : rows) EXPECT_EQ(fields_of(text), fields) << text;
  EXPECT_EQ(fields_of(std::string("a\0b,\xe9", 5)), std::string("[a\0b][\xe9]", 8));
}

// Wherever a block of the reader ends, the fields are the same.
TEST(Fields, DoNotDependOnWhereABlockEnds) {
  for (const std::string& tail : {std::string("\r\n\"a,b\" x,  7  ,y"), std::string("\r\r\n,  \"q\"\r\n")}) {
    const std::string plain = fields_of(tail);
    for (std::size_t before = 120 * 1024 - 8; before < 120 * 1024 + 4; ++before) {
      std::string text;
      while (text.size() + 9 < before) text += "12345678,";
      text.append(before - text.size(), 'z');
      const std::string head = fields_of(text);
      EXPECT_EQ(fields_of(text + tail), head + plain.substr(plain.starts_with("[]") ? 2 : 0)) << before;
    }
  }
}

TEST(Fields, AreBoundedAndClosed) {
  EXPECT_EQ(fields_of(std::string(65536, 'x')).size(), 65538u);
  EXPECT_THROW(fields_of(std::string(65537, 'x')), db::FieldError);
  EXPECT_THROW(fields_of(std::string(400000, ' ')), db::FieldError);
  EXPECT_THROW(fields_of("1,\"abc\r\nd\""), db::FieldError);
  EXPECT_THROW(fields_of("\"abc"), db::FieldError);
}

TEST(Kind, IsToldByTheEndOfThePath) {
  const struct {
    const char* path;
    db::Kind kind;
  } rows[] = {{"x.MDB", db::Kind::Complexation}, {"", db::Kind::Complexation},    {"x.Iso", db::Kind::Complexation},
              {"x.ISO", db::Kind::Isotherm},     {"abcdb", db::Kind::Counterion}, {"x.CDB", db::Kind::Counterion},
              {"clinic", db::Kind::NicaDonnan},  {"x.BLI", db::Kind::Blm},        {"bli", db::Kind::Blm}};
  for (const auto& [path, kind] : rows) EXPECT_EQ(db::kind_of(path), kind) << path;
  EXPECT_TRUE(db::is_donnica("mydonnica.cdb"));
  EXPECT_FALSE(db::is_donnica("DONNICA.CDB"));
}

// What a rewrite makes of a database, or the message that it gives.
std::string rewritten(const std::string& content, const std::string& name = "x.mdb") {
  MemorySystem system;
  system.add(name, content);
  const db::Database open = db::database_at(name);
  try {
    db::Rewrite rewrite(system, open, "comp.mdb", {.model = "", .critical_f = .5});
    EXPECT_FALSE(rewrite.keep_until(std::nullopt));
    EXPECT_EQ(rewrite.commit(), std::nullopt);
  } catch (const file::Error& error) {
    EXPECT_EQ(system.content(name), content);
    return error.what();
  }
  return system.content(name);
}

TEST(Rewrite, KeepsTypesAndGivesNumbersOneForm) {
  const std::string marker = "0,,0,0,0,0,0,0,0,0,0,0\n", one = lines({"1,\"a\",0,0,0,0,0,0,0,0,0,0"});
  const struct {
    std::string before, after;
  } rows[] = {
      {marker + "whatever follows", support::kTrailer},
      {"", ""},
      // An end marker after an empty line, and what is as good as the end of the file.
      {"\r\n" + support::kTrailer, support::kTrailer},
      {one + "\r\n" + support::kTrailer + "\x1a", one + support::kTrailer},
      {one + ",,,,,,,,,,,,,0,0.0,\"\",For KELMAR", one + support::kTrailer},
      {one + "\x1a", one},
      {one + " \t\r\n\x1a\r\n\r\n", one},
      {one + "\r\n ,,\r\n" + std::string(10000, '\n'), one},
      {one + "\x1a\r\n\x1a,,,,,,,,,,,,", one + "\"\x1a\",\"\x1a\",,,,,,,,,,\r\n"},
      {"\xEF\xBB\xBF" + one, one},
      {"\xEF\xBB\xBF\xEF\xBB\xBFx\"" + one.substr(1), "\xEF\xBB\xBF\xEF\xBB\xBFx\"" + one.substr(1)},
      {"1\t,\t\"a\"\t,\t 0.5 \t,b\tc,0,0,0,0,0,0,0,0\r\n", lines({"1,\"a\",.5,\"b\tc\",0,0,0,0,0,0,0,0"})},
      {"1,a,0.50,+3,\"2.5\",,x,1E5,0.00001,-0.0,\"a,b\",0\n" + marker,
       "1,\"a\",.5,3,\"2.5\",,\"x\",100000,1E-05,0,\"a,b\",0\r\n" + support::kTrailer},
      // Pairs and blocks, however they are spread over lines; a file without end marker stays without.
      {"1,a\n0,0,0,0,0,0\r0,0,0,102,1.0,812\n-1\n330\n1\n.50\n330\n",
       lines({"1,\"a\",0,0,0,0,0,0,0,0,0,102", "1,812,-1,330", "1", ".5,330"})},
      {"1,a,0,0,0,0,0,0,0,0,0,102\n1,812,-1,330\n1.9\n.50,330\n",
       lines({"1,\"a\",0,0,0,0,0,0,0,0,0,102", "1,812,-1,330", "1.9", ".5,330"})},
      {"1,a,0,0,0,0,0,0,0,0,0,101\n1,2\n0\n" + marker,
       lines({"1,\"a\",0,0,0,0,0,0,0,0,0,101", "1,2", "0"}) + support::kTrailer},
      {"1,a,0,0,0,0,0,0,0,0,0,10\n1,1,1,2,1,3,1,4,1,5,1,6,1,7,1,8,1,9,1,10\n",
       lines({"1,\"a\",0,0,0,0,0,0,0,0,0,10", "1,1,1,2,1,3,1,4,1,5,1,6,1,7,1,8,1,9,1,10"})},
      {"1,a\"b,0,0,0,0,0,0,0,0,0,-1.5\n", lines({"1,a\"b,0,0,0,0,0,0,0,0,0,-1.5"})},
      {"1,a,0,0,0,0,0,0,0,0,0,\"1\"\n3,4", lines({"1,\"a\",0,0,0,0,0,0,0,0,0,\"1\"", "3,4"})},
  };
  for (const auto& [before, after] : rows) {
    EXPECT_EQ(rewritten(before), after) << before;
    EXPECT_EQ(rewritten(after), after) << "not stable: " << before;
  }
  EXPECT_EQ(rewritten("\"Temkin\"\n" + marker, "x.iso"), "\"Temkin\"\r\n" + support::kTrailer);
  EXPECT_EQ(rewritten("\n" + one + marker, "x.iso"), "\r\n" + one + support::kTrailer);
  EXPECT_EQ(rewritten("\"\"\n" + one + marker, "x.iso"), "\"\"\r\n" + one + support::kTrailer);
  EXPECT_EQ(rewritten("\xEF\xBB\xBFtext,\"more\", 0.25\n" + marker, "x.bli"),
            "\"text\"\r\n\"more\",.5\r\n" + support::kTrailer);
}

TEST(Rewrite, SaysWhatIsWrongAndWhere) {
  const std::string hidden =
      "an empty line or field ends the list here, and what stands after it would be lost. Nothing was changed. Remove the "
      "empty line with a text editor.";
  const std::string first = "1,a,0,0,0,0,0,0,0,0,0,0\n";
  const struct {
    std::string content, message;
  } rows[] = {
      {first + "2,b,0", "x.mdb, record 2 (b): the file ends inside the record."},
      {first + "\r\n2",
       "x.mdb, record 2: an empty line or field begins the record, and the file ends inside it; in a "
       "rewrite what stands there would be lost. Remove the empty line with a text editor."},
      {first + "\r\n2,b,0,0,0,0,0,0,0,0,0,0\r\n", "x.mdb, record 2: " + hidden},
      {first + std::string(12, ',') + support::kTrailer + "x", "x.mdb, record 2: " + hidden},
      {first + std::string(12, ',') + "\"open", "x.mdb, record 2: " + hidden},
      {first + std::string(12, ',') + "\" \"", "x.mdb, record 2: " + hidden},
      {first + std::string(300000, ',') + "1", "x.mdb, record 2: " + hidden},
      {first + "2,b,0,0,0,0,0,0,0,0,0,two\n", "x.mdb, record 2 (b): the number of components is \"two\", not a number."},
      {first + "2,b,0,0,0,0,0,0,0,0,0,11\n", "x.mdb, record 2 (b): it has more than 10 component pairs."},
      {first + "2,b,0,0,0,0,0,0,0,0,0,100\n", "x.mdb, record 2 (b): it has more than 10 component pairs."},
      {first + "2,b,0,0,0,0,0,0,0,0,0,1E308\n", "x.mdb, record 2 (b): it has more than 10 component pairs."},
      {first + "2,b,0,0,0,0,0,0,0,0,0,101\n1,2\nx", "x.mdb, record 2 (b): the number of M.B. pairs is \"x\", not a number."},
      {first + "2,b,0,0,0,0,0,0,0,0,0,101\n1,2\n11", "x.mdb, record 2 (b): it has more than 10 M.B. pairs."},
      {first + "2,\"b,0\n", "x.mdb, record 2: a quoted text is not closed on its line."},
      {first + std::string(70000, '1'), "x.mdb, record 2: a field is longer than 64 KiB."},
  };
  for (const auto& [content, message] : rows) EXPECT_EQ(rewritten(content), message);
  EXPECT_EQ(rewritten("a,b,c\n", "x.bli"),
            "x.bli, before the first record: the critical f value is \"c\", not a number. Mend the file with "
            "a text editor.");
  for (const char* name : {"x.iso", "x.nic"})
    EXPECT_EQ(rewritten("\r\n\"NICA-Donnan\"\r\n" + first, name),
              std::string(name) +
                  ", record 1 (1): an empty line or field stands in the place of the model, and a text in that of the ID "
                  "number. Nothing was changed. Remove the empty line with a text editor.");
  EXPECT_EQ(rewritten("", "x.iso"), "x.iso, before the first record: the file ends too early.");
}

TEST(Rewrite, LeavesAListAloneThatItCannotHoldWhole) {
  std::string species;
  for (int i = 1; i <= 4000; ++i) species += "1,a,0,0,0,0,0,0,0,0,0,0\r\n";
  const std::string refusal =
      "x.mdb goes on after its first 4000 records; a species database holds at most 3999 species. Nothing was changed. "
      "Divide the database with a text editor.";
  EXPECT_EQ(rewritten(species + "1,b"), refusal);
  EXPECT_EQ(rewritten(species + support::kTrailer), refusal);
  EXPECT_EQ(rewritten(species).size(), species.size() + 2 * 4000);  // the name gets its quotes
  const std::string full = species.substr(0, species.size() / 4000 * 3999);
  EXPECT_EQ(rewritten(full + support::kTrailer).size(), full.size() + 2 * 3999 + support::kTrailer.size());
}

TEST(Rewrite, LeavesALargeDatabaseAlone) {
  const std::string name(60000, 'n');
  std::string content;
  for (int i = 0; i < 1150; ++i) content.append("1,").append(name).append(",0,0,0,0,0,0,0,0,0,0\r\n");
  EXPECT_EQ(rewritten(content), "x.mdb is larger than 64 MiB. The editor leaves it as it is.");
  MemorySystem system;
  system.add("x.mdb", content);
  try {
    (void)file::copy_over(system, "x.mdb", "y.mdb", {"comp.mdb", ""});
    ADD_FAILURE();
  } catch (const file::Error& error) {
    EXPECT_STREQ(error.what(), "cannot read x.mdb as a whole: it is larger than any database.");
  }
}

// A database cut at every byte is read to an end or an error, and never rewritten with less than it held.
TEST(Rewrite, OfADatabaseCutAnywhereLosesNothing) {
  const std::string whole = lines({"\"Freundlich\"", "501,\"Fe,X\",0,2.5,0,0,1,0,0,0,0,102", "1,812,-1,330", "1", ".5,330",
                                   "502,\"CuX\",0,2.5,0,0,1,0,0,0,0,1", "1,231"}) +
                            support::kTrailer;
  for (std::size_t cut = 0; cut < whole.size(); ++cut) {
    const std::string result = rewritten(whole.substr(0, cut), "x.iso");
    if (result.starts_with("x.iso")) continue;  // refused, and left as it was
    EXPECT_TRUE(whole.starts_with(result) || result == whole || result.substr(0, cut) == whole.substr(0, cut)) << cut;
  }
}

TEST(Components, AreFoundByNumberAndName) {
  MemorySystem system;
  std::string many =
      lines({"150,Ca+2,0,0,0,x", "151,\"Ca+2\",0,0,0,x", "812,SOH,0,0,0,x", "9,\" lead\",0,0,0,x", ",\"none\",0,0,0,x"});
  for (int i = 6; i <= 400; ++i) many += "1000,filler,0,0,0,x\r\n";
  system.add("c", many + "500,last,0,0,0,x\r\n");

  const double numbers[] = {150, 812, 500, 811, 9};
  const auto names = db::component_names(system, "c", numbers);
  EXPECT_EQ(names.failure, "");
  const std::vector<std::optional<std::string>> expected{"Ca+2", "=SOH", std::nullopt, std::nullopt, " lead"};
  EXPECT_EQ(names.names, expected);

  const std::string wanted[] = {"Ca+2", "lead", "last", "none"};
  const auto found = db::component_numbers(system, "c", wanted, db::NameMatch::Trimmed);
  EXPECT_EQ(found.at("Ca+2").value, 151);
  EXPECT_EQ(found.at("lead").value, 9);
  EXPECT_EQ(found.at("none").value, std::nullopt);
  EXPECT_EQ(found.size(), 3u);
  EXPECT_EQ(db::component_numbers(system, "c", wanted, db::NameMatch::AsRead).count("lead"), 0u);
}

TEST(Components, ThatCannotBeReadAreNeverGuessed) {
  MemorySystem system;
  system.add("cut", "150,Ca+2,0,0,0,x\r\n231,Cu+2,0");
  const double numbers[] = {150, 231};
  const auto names = db::component_names(system, "cut", numbers);
  EXPECT_EQ(names.names[0], "Ca+2");
  EXPECT_EQ(names.names[1], std::nullopt);
  EXPECT_EQ(names.failure, "cut, record 2: the file ends inside the record.");
  const std::string wanted[] = {"Ca+2"};
  EXPECT_THROW(db::component_numbers(system, "cut", wanted, db::NameMatch::AsRead), file::Error);
  for (const char* end : {"\r\n", "\x1a", "\r\n\r\n\x1a\r\n", " , \t"}) {
    system.add("blank", std::string("150,Ca+2,0,0,0,x\r\n") + end);
    EXPECT_EQ(db::component_names(system, "blank", numbers).failure, "");
    EXPECT_EQ(db::component_numbers(system, "blank", wanted, db::NameMatch::AsRead).at("Ca+2").value, 150);
  }
  system.add("text", "abc,Ca+2,0,0,0,x\r\n");
  EXPECT_THROW(db::component_numbers(system, "text", wanted, db::NameMatch::AsRead), file::Error);
  EXPECT_EQ(db::component_names(system, "nowhere", numbers).failure, "cannot open nowhere: No such file or directory.");
}

}  // namespace
