#include "db/number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "edit/values.h"
#include "file/error.h"

namespace {

TEST(Number, ReadsWholeFieldsOnly) {
  const struct {
    const char* text;
    double value;
  } numbers[] = {{"0", 0},       {"-0", 0},          {"+3", 3},      {"003", 3},
                 {".5", .5},     {"5.", 5},          {"-.25", -.25}, {"1E5", 1e5},
                 {"15e-1", 1.5}, {"1E-300", 1e-300}, {"1.50", 1.5},  {"123456789012345678", 123456789012345678.0}};
  for (const auto& [text, value] : numbers) EXPECT_EQ(db::parse_number(text), value) << text;

  for (const char* text : {"", "+", "-", ".", "+-3", "-+3", "1,5", "0x10", "inf", "nan", "1E", "1E+", "E5", "1 2", "1e999",
                           "1e-999", "--1", "1.2.3", "3x"})
    EXPECT_EQ(db::parse_number(text), std::nullopt) << text;
}

TEST(Number, IsWrittenInOneForm) {
  const struct {
    double value;
    const char* text;
  } forms[] = {{0, "0"},
               {-0.0, "0"},
               {1.5, "1.5"},
               {.5, ".5"},
               {-.25, "-.25"},
               {100, "100"},
               {-12, "-12"},
               {.0001, ".0001"},
               {.00001, "1E-05"},
               {1e14, "100000000000000"},
               {1e15, "1E+15"},
               {1.5e20, "1.5E+20"},
               {1. / 3, ".333333333333333"},
               {999999999999999., "999999999999999"},
               {9999999999999995., "1E+16"},
               {-1e-300, "-1E-300"}};
  for (const auto& [value, text] : forms) EXPECT_EQ(db::format_number(value), text);
  EXPECT_EQ(db::numtext(3), " 3");
  EXPECT_EQ(db::numtext(0), " 0");
  EXPECT_EQ(db::numtext(-.25), "-.25");
}

// A field that is copied as it stands must be one that would be written just so.
TEST(Number, IsFormattedOnlyInTheFormWritten) {
  for (const char* text : {"0", "7", "-7", ".5", "-.5", "12.25", "999999999999999", ".0001", "-.000123"})
    EXPECT_TRUE(db::is_formatted(text)) << text;
  for (const char* text : {"", "-", ".", "-0", "00", "07", "0.5", "1.", "1.50", ".0", ".00001", "1E-05", "+1",
                           "1234567890123456", ".1234567890123456", "1.2.3", "12a", "-x"})
    EXPECT_FALSE(db::is_formatted(text)) << text;

  std::mt19937 random(1);
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (int length = 1 + static_cast<int>(random() % 9); length > 0; --length) text += "0123456789.-E+"[random() % 14];
    if (!db::is_formatted(text)) continue;
    const auto value = db::parse_number(text);
    ASSERT_TRUE(value) << text;
    EXPECT_EQ(db::format_number(*value), text);
  }
}

TEST(Number, RuleTakesTheLeadingNumberOfABox) {
  const struct {
    const char* text;
    double plain, comma;
  } rows[] = {{"", 0, 0},
              {"x1", 0, 0},
              {" 3", 3, 3},
              {"-12,78", -12, -12.78},
              {"1,234,5", 1, 1.234},
              {"1 2,5", 12, 12.5},
              {"1.5.2", 1.5, 1.5},
              {"12a5", 12, 12},
              {"2E+", 2, 2},
              {"1E 2", 100, 100},
              {"- 3", -3, -3},
              {"--2", 0, 0},
              {"+,5", 0, .5},
              {"\t4\n2", 42, 42},
              {"1e-999", 0, 0},
              {"nan", 0, 0},
              {"-inf", 0, 0},
              {"0x10", 0, 0},
              {"-", 0, 0}};
  for (const auto& [text, plain, comma] : rows) {
    EXPECT_EQ(edit::number_rule(text), plain) << text;
    EXPECT_EQ(edit::comma_number(text), comma) << text;
  }
  // By the value, not by how it is written.
  const std::string zeros(400, '0');
  const std::vector<std::string> zero{"0." + zeros + "1", "." + zeros + "1E50",      "-0.00" + zeros + "7e-3",
                                      "0E99999999999",    "1E-99999999999999999999", "1" + zeros + "E-800"};
  for (const std::string& text : zero) EXPECT_EQ(edit::number_rule(text), 0) << text;
  EXPECT_EQ(edit::number_rule("1" + zeros + "E-400"), 1);
  EXPECT_EQ(edit::number_rule("." + zeros + "1E401"), 1);
  const std::vector<std::string> large{"1" + zeros + "E-5", "." + zeros + "1E+800", "1E999", "-1E99999999999999999999",
                                       "123456" + zeros + ".5"};
  for (const std::string& text : large) {
    try {
      edit::number_rule(text);
      ADD_FAILURE() << text;
    } catch (const file::Refusal& refusal) {
      EXPECT_EQ(refusal.what(), "\"" + file::named(text) + "\" is too large a number. Correct it before saving.");
    }
  }
}

}  // namespace
