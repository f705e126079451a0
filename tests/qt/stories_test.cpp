// The same stories on the window without a toolkit and in real widgets: what the widgets show is what the window's values
// hold, both backends come to the same end, and so does a user who does not wait.
#include <sstream>
#include <string>

#include "qt/seat.h"

namespace {

using support::HastySeat;
using support::QtSeat;
using support::Seat;

const char* const kStories[] = {
    // A change, a new species and a deletion.
    "load\nselect 5\ntype txtlogk  7,25\nanswer Yes\nclick cmdSavedb\n"
    "click cmdAddnew\npick cboComp 3\ntype txtStoicn 2\nclick cmdNextcomp\ntype cboComp H+\ntype txtStoicn -1\n"
    "type txtSpname New\nclick cmdSuggest\ntype txtlogk 1\ntype txtCharge 0\nanswer Yes\nclick cmdSavedb\n"
    "select 0\nselect 0\nanswer Yes\nclick cmdDelete\nselect 300",
    // Every kind of database, a model, a new database.
    "load\nchoose freundl.ISO\nclick mnuFileOpen\nselect 2\npick cboIsoterm 3\nselect 1\nanswer Yes\nclick cmdSavedb\n"
    "choose nicadon.NIC\nclick mnuFileOpen\nselect 39\nchoose counter.CDB\nclick mnuFileOpen\nselect 3\n"
    "choose copper.BLI\nclick mnuFileOpen\nselect 1\ntype txtf50 .5\nchoose new.BLI\nclick cmdNewDb\n"
    "choose goethite.MDB\nclick mnuFileOpen\nselect 16\nchoose nowhere.mdb\nclick cmdCompdb\nselect 3",
};

TEST(Qt, ShowsWhatTheWindowHolds) {
  for (const char* story : kStories) {
    Seat plain;
    QtSeat qt;
    std::istringstream script(story);
    for (std::string line; std::getline(script, line);) {
      SCOPED_TRACE(line);
      const auto event = player::parse_event(line);
      ASSERT_TRUE(event);
      plain.play(*event);
      qt.play(*event);
      ASSERT_EQ(qt.difference(plain), "");
      ASSERT_EQ(qt.program.told, plain.program.told);
    }
    EXPECT_EQ(qt.system.all(), plain.system.all());
  }
}

TEST(Qt, RunsEventsInTheOrderInWhichTheyWereMade) {
  const char* const bursts[] = {
      "select 3\nselect 9\nanswer Yes\nclick cmdDelete",
      "select 3\ntype txtlogk 7,5\nselect 4\ntype txtlogk 1\nanswer Yes\nclick cmdSavedb\nselect 2\nclick cmdAddnew",
      "select 5\nclick cmdAddnew\ntype txtSpname New\ntype cboComp H+\ntype txtStoicn 2\nclick cmdSuggest\n"
      "type txtlogk 1\ntype txtCharge 1\nanswer Yes\nclick cmdSavedb\nclick cmdAddnew",
      "select 1\npick cboIsoterm 1\nselect 3\nanswer Yes\nclick cmdSavedb\nselect 4\nselect 5\nanswer Yes\nclick cmdDelete",
  };
  for (const std::string burst : bursts) {
    Seat plain;
    HastySeat hasty;
    const bool isotherm = burst.find("cboIsoterm") != burst.npos;
    for (Seat* seat : {&plain, static_cast<Seat*>(&hasty)}) {
      if (isotherm) seat->system.add("sorptemp.dat", "freundl.ISO");
      seat->load();
      seat->Seat::type(app::cboIsoterm, isotherm ? "Linear Kd" : "");  // the Down key goes on from the first entry
    }
    hasty.window.push(true);
    if (!isotherm) {  // entry mode shows the boxes that a burst types into
      for (Seat* seat : {&plain, static_cast<Seat*>(&hasty)}) seat->Seat::click(app::cmdAddnew);
      hasty.window.push();
    }
    std::istringstream script(burst);
    for (std::string line; std::getline(script, line);) {
      plain.play(*player::parse_event(line));
      hasty.play(*player::parse_event(line));
    }
    hasty.settle();
    EXPECT_EQ(hasty.difference(plain), "") << burst;
    EXPECT_EQ(hasty.program.told, plain.program.told);
    EXPECT_TRUE(hasty.system.all() == plain.system.all()) << burst;
  }
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
