#include "instruments/route_lists.h"

#include <gmock/gmock.h>

#include "instruments/receiver_place.h"
#include "instruments/routes.h"
#include "platform/failures.h"
#include "support/golden.h"

namespace {

using core::File_choice;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct Keiro : testing::Test, support::Route_place {
  instruments::Route_boxes boxes;
  void load() { instruments::frm_keiro_load(files, settings, boxes); }
  bool ok() { return instruments::frm_keiro_Command1(files, prompts, settings, boxes); }
};

TEST_F(Keiro, ListsTheTextTracksAndTicksThoseOfTheList) {
  put_track("081115.txt", "x");
  put_track("沢.TXT", "x");
  put_track("081116.txt", "x");
  put_track("081115.nme", "x");
  put_lines(data("keiro_out.dat"), {"081116.TXT", "沢.txt", "gone.txt"});
  load();
  EXPECT_EQ(boxes.Dir1, gps);
  EXPECT_THAT(boxes.List1, ElementsAre(File_choice{"081115.txt", false}, File_choice{"081116.txt", true},
                                       File_choice{"沢.TXT", true}));
}

TEST_F(Keiro, HasNothingToListWithoutAFolder) {
  settings.project_path = folder.text() + "\\nothing";
  load();
  EXPECT_THAT(boxes.List1, IsEmpty());
}

TEST_F(Keiro, WritesTheTickedNamesAndShowsThemTickedTheNextTime) {
  for (const char* name : {"081115.txt", "081116.txt", "沢.txt"}) put_track(name, "x");
  load();
  boxes.List1[0].selected = boxes.List1[2].selected = true;
  EXPECT_TRUE(ok());
  EXPECT_TRUE(support::same_as_golden(disk.read_bytes(data("keiro_out.dat")), "instruments/keiro_out.dat"));
  load();
  EXPECT_THAT(boxes.List1, ElementsAre(File_choice{"081115.txt", true}, File_choice{"081116.txt", false},
                                       File_choice{"沢.txt", true}));
}

TEST_F(Keiro, WritesAnEmptyListForAnEmptyChoice) {
  put_track("081115.txt", "500400,126000,0,0,0\r\n500436,126036,0,0,1\r\n");
  put_lines(data("keiro_out.dat"), {"081115.txt"});
  load();
  boxes.List1[0].selected = false;
  EXPECT_TRUE(ok());
  EXPECT_EQ(disk.length(data("keiro_out.dat")), 0);
  instruments::Routes routes;
  instruments::routes_r(files, project, routes);
  EXPECT_THAT(routes.routes, IsEmpty());
}

TEST_F(Keiro, TicksAll) {
  put_track("a.txt", "x");
  put_track("b.txt", "x");
  load();
  instruments::Command3(boxes);
  EXPECT_THAT(boxes.List1, ElementsAre(File_choice{"a.txt", true}, File_choice{"b.txt", true}));
}

TEST_F(Keiro, RefusesANameThatCantBeStored) {
  put_lines(data("keiro_out.dat"), {"old.txt"});
  boxes.List1 = {{"a.txt", true}, {"\U0001F5FB.txt", true}};
  EXPECT_FALSE(ok());
  EXPECT_THAT(prompts.shown, ElementsAre("この名前には保存できない文字があります: \U0001F5FB.txt"));
  EXPECT_EQ(disk.read_bytes(data("keiro_out.dat")), "old.txt\r\n");
}

TEST_F(Keiro, LeavesTheOldListWhenTheDiskIsFull) {
  put_lines(data("keiro_out.dat"), {"old.txt"});
  boxes.List1 = {{"a.txt", true}};
  files.room = 3;
  EXPECT_THROW(ok(), platform::File_failure);
  EXPECT_EQ(disk.read_bytes(data("keiro_out.dat")), "old.txt\r\n");
}

struct Keiro_nmea : testing::Test, support::Route_place {
  instruments::Route_boxes boxes;
  std::string logs = folder.text() + "\\logs";
  Keiro_nmea() { disk.make_folder(logs); }
  void load() { instruments::frm_keiroNMEA_load(files, settings, boxes); }
  bool ok() { return instruments::frm_keiroNMEA_Command1(files, prompts, settings, boxes); }
};

TEST_F(Keiro_nmea, BeginsInTheFolderOfTheTracks) {
  put_track("081115.NME", "x");
  put_track("081115.txt", "x");
  load();
  EXPECT_EQ(boxes.Dir1, gps);
  EXPECT_THAT(boxes.List1, ElementsAre(File_choice{"081115.NME", false}));
}

TEST_F(Keiro_nmea, BeginsInTheFolderOfTheFirstDrawnLog) {
  put(logs + "\\a.nme", "x");
  put(logs + "\\b.nme", "x");
  put_lines(data("keiro_out2.dat"), {logs + "/B.NME"});
  load();
  EXPECT_EQ(boxes.Dir1, logs);
  EXPECT_THAT(boxes.List1, ElementsAre(File_choice{"a.nme", false}, File_choice{"b.nme", true}));
  put_lines(data("keiro_out2.dat"), {"Z:\\gone\\b.nme"});
  load();
  EXPECT_EQ(boxes.Dir1, gps);
}

TEST_F(Keiro_nmea, WritesFullPaths) {
  boxes.Dir1 = "C:\\記録\\gps";
  boxes.List1 = {{"081115.NME", true}, {"081116.NME", false}, {"沢.NME", true}};
  EXPECT_TRUE(ok());
  EXPECT_TRUE(support::same_as_golden(disk.read_bytes(data("keiro_out2.dat")), "instruments/keiro_out2.dat"));
}

TEST_F(Keiro_nmea, TicksByThePathAndNotByTheNameAlone) {
  put(logs + "\\a.nme", "x");
  put_track("a.nme", "x");
  put_lines(data("keiro_out2.dat"), {logs + "\\a.nme"});
  instruments::Dir1_change(files, settings, boxes, gps);
  EXPECT_THAT(boxes.List1, ElementsAre(File_choice{"a.nme", false}));
  instruments::Dir1_change(files, settings, boxes, logs);
  EXPECT_THAT(boxes.List1, ElementsAre(File_choice{"a.nme", true}));
}

TEST_F(Keiro_nmea, IsDrawnFromTheWrittenList) {
  put_lines(logs + "\\a.nme", {"$GPGGA,1,3530.0,N,13915.1,E,1", "$GPGGA,1,3531.0,N,13915.1,E,1"});
  instruments::Dir1_change(files, settings, boxes, logs);
  instruments::Command3(boxes);
  EXPECT_TRUE(ok());
  instruments::Routes routes;
  EXPECT_TRUE(instruments::routes_r(files, project, routes));
  ASSERT_THAT(routes.routes, SizeIs(1));
  EXPECT_THAT(routes.routes[0].points, SizeIs(2));
}

}  // namespace
