#include "observations/link.h"

#include <gmock/gmock.h>

#include "observations/observation_place.h"
#include "support/fake_ports.h"

namespace {

using observations::Link_opened;
using testing::ElementsAre;
using testing::IsEmpty;

struct Press {
  double x = 0, y = 0;  // twips
  maps::Map_position position;
};

struct Link : testing::Test, support::Observation_place {
  support::Recorded_processes processes;
  std::string log_folder = folder.text() + "\\logs";

  observations::Link_context link_context() { return {settings, log_folder, registry, canvas, files, processes}; }
  Link_opened open(const std::string& link) { return observations::open_link(link_context(), link); }
  std::string file_of(const std::string& link) { return observations::linked_file(files, project, link); }
  void add(double x, double y, const std::string& link = "", double size = 2) {
    observations::Record& record = registry.rows[++registry.N];
    record.X = x;
    record.Y = y;
    record.gazou = link;
    record.size = size;
  }
  Press press_at(double x_units, double y_units) {
    const double x = x_units * 7.5, y = y_units * 7.5;
    return {x, y, maps::henkan_M(canvas, x, y)};
  }
  int hit(double x_units, double y_units) {
    const Press press = press_at(x_units, y_units);
    return observations::linked_record_at(registry, canvas, press.position, press.x, press.y);
  }
  std::string handed_over() { return disk.read_bytes(settings.program_path + "\\boring_out.tmp"); }
};

// The plain canvas: half a unit to the metre, (10, 20) at the margin of 100 units, 800 m high, moved by (10, -20).
// The point (210, 620) lies at ((210 - 10) / 2 + 100 + 10, (800 - (620 - 20)) / 2 + 100 - 20) = (210, 180); a y below
// 100,000 keeps map_y0, so that it is drawn 10 units higher, at (210, 170).
TEST_F(Link, IsHitWithinTheHalfSizeOfTheMark) {
  add(210, 620, "a.jpg", 3);  // 15 units
  EXPECT_EQ(hit(210, 170), 1);
  EXPECT_EQ(hit(225, 170), 1);
  EXPECT_EQ(hit(195, 155), 1);
  EXPECT_EQ(hit(225.1, 170), 0);
  EXPECT_EQ(hit(210, 185.1), 0);
  registry.rows[1].size = 0;  // counts as 2: 10 units
  EXPECT_EQ(hit(220, 180), 1);
  EXPECT_EQ(hit(220.1, 170), 0);
}

TEST_F(Link, IsThatOfTheNearestPointOnly) {
  add(210, 600, "large", 10);
  add(250, 600, "small", 1);
  // 24 units right of the first, 4 right of the second; then beyond the small mark, though within the large one.
  EXPECT_EQ(hit(234, 180), 2);
  EXPECT_EQ(hit(236, 180), 0);
  EXPECT_EQ(hit(218, 180), 1);
}

TEST_F(Link, IsThatOfTheFirstOfEquallyNearPoints) {
  add(210, 600);
  add(210, 600);
  EXPECT_EQ(hit(210, 180), 1);
}

TEST_F(Link, IsHitAtAnyDistanceInMetres) {
  canvas = support::geographic_canvas();  // 10 m to the unit
  // 36 seconds of longitude are 1000 units and 900 m; 36 of latitude 1080 m.
  add(13'901'000, 3'601'000);
  add(900, 2000);
  // (900 m, 1080 m) lies at (190, 892), (900 m, 2000 m) at (190, 800).
  EXPECT_EQ(hit(190 + 9, 892), 1);
  EXPECT_EQ(hit(190 - 9, 800), 2);
  EXPECT_EQ(hit(190, 892 + 11), 0);
}

TEST_F(Link, IsNotHitInAnEmptyRegistry) {
  EXPECT_EQ(hit(210, 180), 0);
  const Press press = press_at(210, 180);
  EXPECT_EQ(observations::open_link(link_context(), press.position, press.x, press.y), Link_opened::none);
}

TEST_F(Link, ToAFileIsItsPathBelowTheProject) {
  using observations::link_to;
  EXPECT_EQ(link_to(project, path("a.JPG")), "a.JPG");
  EXPECT_EQ(link_to(project, path("写真\\沢1\\a.jpg")), "写真\\沢1\\a.jpg");
  EXPECT_EQ(link_to(project, project + "\\photo\\a.jpg"), "photo\\a.jpg");
  EXPECT_EQ(link_to(project + "\\", project + "\\Photo//\\B.jpg"), "Photo\\B.jpg");
  EXPECT_EQ(link_to("C:\\Data\\p", "c:/data/P/photo/a.jpg"), "photo\\a.jpg");
}

TEST_F(Link, ToAFileBesideTheProjectIsNone) {
  using observations::link_to;
  EXPECT_EQ(link_to(project, folder.text() + "\\photo\\a.jpg"), "");
  EXPECT_EQ(link_to(project, project + "2\\a.jpg"), "");
  EXPECT_EQ(link_to(project, project), "");
  EXPECT_EQ(link_to(project, project + "\\photo\\..\\..\\a.jpg"), "");
  EXPECT_EQ(link_to(project, project + "\\x\\..\\photo\\a.jpg"), "photo\\a.jpg");
  EXPECT_EQ(link_to(project, project + "\\photo\\x\\..\\a.jpg"), "");
  EXPECT_EQ(link_to("", "a.jpg"), "");
}

TEST_F(Link, OpensWhatThePressedRecordNames) {
  put("picture", "a.jpg");
  add(210, 600, "a.jpg");
  add(510, 600);
  const Press first = press_at(212, 172), second = press_at(360, 172), beside = press_at(280, 172);
  EXPECT_EQ(observations::open_link(link_context(), first.position, first.x, first.y), Link_opened::opened);
  EXPECT_THAT(processes.started, ElementsAre(path("a.jpg")));
  EXPECT_EQ(observations::open_link(link_context(), second.position, second.x, second.y), Link_opened::none);
  EXPECT_EQ(observations::open_link(link_context(), beside.position, beside.x, beside.y), Link_opened::none);
  EXPECT_EQ(processes.started.size(), 1u);
}

TEST_F(Link, HandsALogToTheLogProgram) {
  put("log", "B-12.bor");
  EXPECT_EQ(open("B-12.bor"), Link_opened::opened);
  EXPECT_THAT(processes.started, ElementsAre(log_folder + "\\logprint2.exe"));
  EXPECT_THAT(processes.arguments, ElementsAre(ElementsAre(disk.native_path(path("B-12.bor")))));
  EXPECT_THAT(processes.folders, ElementsAre(log_folder));
  EXPECT_EQ(handed_over(), "B-12\r\n");
}

TEST_F(Link, HandsOverALogThatIsNotThere) {
  EXPECT_EQ(open("logs\\沢１.Xml"), Link_opened::opened);
  EXPECT_THAT(processes.arguments, ElementsAre(ElementsAre(disk.native_path(path("logs\\沢１.Xml")))));
  EXPECT_EQ(handed_over(), support::lines_932({"沢１"}));
}

TEST_F(Link, FailsWithoutALogProgram) {
  processes.works = false;
  EXPECT_EQ(open("a.BOR"), Link_opened::failed);
  processes.started.clear();
  log_folder.clear();
  EXPECT_EQ(open("a.BOR"), Link_opened::failed);
  log_folder = "C:\\logs";
  files.read_only = true;
  EXPECT_EQ(open("a.BOR"), Link_opened::failed);
  EXPECT_THAT(processes.started, IsEmpty());
  EXPECT_THAT(prompts.shown, IsEmpty());
}

TEST_F(Link, OpensAnAddressFromWhereItBegins) {
  EXPECT_EQ(open("http://example.com/a.xml"), Link_opened::opened);
  EXPECT_EQ(open("資料 http://example.com/b c"), Link_opened::opened);
  EXPECT_EQ(open("https://example.com/"), Link_opened::opened);
  EXPECT_EQ(open("..\\http:a"), Link_opened::opened);
  EXPECT_THAT(processes.started,
              ElementsAre("http://example.com/a.xml", "http://example.com/b c", "https://example.com/", "http:a"));
}

TEST_F(Link, OpensAFileOfTheProjectWithItsProgram) {
  put("sheet", "081115-001.XLS");
  disk.make_folder(project + "\\image");
  disk.write_whole(project + "\\image\\a.bmp", "picture");
  EXPECT_EQ(open("081115-001.XLS"), Link_opened::opened);
  EXPECT_EQ(open(" \\image/a.bmp "), Link_opened::opened);
  EXPECT_THAT(processes.started, ElementsAre(path("081115-001.XLS"), project + "\\image\\a.bmp"));
  processes.works = false;
  EXPECT_EQ(open("081115-001.XLS"), Link_opened::failed);
}

TEST_F(Link, TakesTheRegistrysFolderBeforeTheProjects) {
  put("one", "a.txt");
  disk.write_whole(project + "\\a.txt", "another");
  EXPECT_EQ(file_of("a.txt"), path("a.txt"));
  disk.remove(path("a.txt"));
  EXPECT_EQ(file_of("a.txt"), project + "\\a.txt");
  disk.remove(project + "\\a.txt");
  EXPECT_EQ(file_of("a.txt"), path("a.txt"));
}

TEST_F(Link, IsNothingWithoutAText) {
  for (const char* empty : {"", "  "}) EXPECT_EQ(open(empty), Link_opened::none);
}

TEST_F(Link, NeverLeavesTheProject) {
  disk.write_whole(folder.text() + "\\secret.txt", "outside");
  for (const char* link :
       {"..\\..\\secret.txt", "../secret.txt", "chisou_men\\..\\..\\secret.txt", "C:\\secret.txt", "c:secret.txt", "..",
        "\\", "a\\.. \\b", "file:///etc/passwd", "a.txt:b", "con", "a\\nul.txt", "..\\a.xml", "...\\a.bor"}) {
    EXPECT_EQ(file_of(link), "") << link;
    EXPECT_EQ(open(link), Link_opened::failed) << link;
  }
  EXPECT_EQ(file_of(folder.text() + "\\secret.txt").find(project), folder.text()[0] == '/' ? 0u : std::string::npos);
  EXPECT_THAT(processes.started, IsEmpty());
}

TEST_F(Link, IsNotOpenedWhereThereIsNoProject) {
  settings.project_path.clear();
  EXPECT_EQ(open("a.txt"), Link_opened::failed);
  EXPECT_EQ(observations::picture_path("", "a.txt"), "");
}

TEST_F(Link, FailsForAFileThatIsNotThere) {
  EXPECT_EQ(open("gone.jpg"), Link_opened::failed);
  EXPECT_THAT(processes.started, IsEmpty());
}

}  // namespace
