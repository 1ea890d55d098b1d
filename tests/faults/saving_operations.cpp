#include "faults/saving_operations.h"

#include <filesystem>

#include "core/language.h"
#include "core/project_settings.h"
#include "core/session/entry.h"
#include "core/session/first_start.h"
#include "core/session/shape_of_entry.h"
#include "core/session/start_up.h"
#include "core/session/tools.h"
#include "core/session/undo.h"
#include "core/settei.h"
#include "core/settings_files.h"
#include "drawing/picture_files.h"
#include "exchange/shape_export.h"
#include "instruments/fake_serial.h"
#include "instruments/measurement_files.h"
#include "instruments/registry_writing.h"
#include "instruments/route_lists.h"
#include "instruments/stereo_net_file.h"
#include "instruments/tiltvane_link.h"
#include "instruments/track_log.h"
#include "maps/sheet_index.h"
#include "observations/area.h"
#include "observations/declination.h"
#include "observations/picture_store.h"

namespace support {

namespace {

using platform::Journal_operation;
using Operations = std::vector<Saving_operation>;

const std::string registry = "project/chisou_men/genchi.csv", backup = "project/chisou_men/csv/genchi.csv";

void add(Operations& all, const std::vector<Saving_operation>& more) {
  all.insert(all.end(), more.begin(), more.end());
}

// ---- basic settings and the small settings files

void choose(core::Settings_boxes& boxes, const std::string& registry_name) {
  for (core::File_choice& file : boxes.File11) file.selected = file.name == registry_name;
}

void save_settings(Fault_place& place) {
  core::Settings_boxes boxes = place.session.boxes;
  boxes.Text5 = "2000";
  choose(boxes, "genchi.csv");
  core::Command10(place.session.settings, boxes, place.files, place.prompts);
}

void make_project(Fault_place& place) {
  core::Settings_boxes boxes = place.session.boxes;
  boxes.Text2 = "sawa";
  core::Command14(boxes, place.files, place.prompts);
}

void make_registry(Fault_place& place) {
  const Journal_operation kept(place.journal, "新規ファイル作成", "New registration file");
  core::Settings_boxes boxes = place.session.boxes;
  boxes.Text4 = "sawa";
  core::Command44(place.session.settings, boxes, place.files, place.prompts);
}

void delete_registries(Fault_place& place) {
  const Journal_operation kept(place.journal, "地点登録ファイルの削除", "Delete registration files");
  core::Settings_boxes boxes = place.session.boxes;
  core::File11_refresh(boxes, place.files);
  for (core::File_choice& file : boxes.File11) file.selected = file.name != "genchi.csv";
  core::Command45(boxes, place.files, place.prompts);
}

// The switch is to the other language, so that the file changes.
void switch_language(Fault_place& place) {
  core::Settings& settings = place.session.settings;
  core::menu_language(settings, "Deutsch", place.files, place.prompts);
}

void begin_section(Fault_place& place) {
  session::Map_tools tools;
  session::Command25(place.session);
  session::mouse_press(place.session, place.ports, tools, {session::Button::left, 3000, 3000});
}

// A refused save leaves the tool as it stood before its second press.
void end_section(Fault_place& place) {
  const session::Map_tools tools;
  place.session.flags.section_step = 2;
  session::mouse_press(place.session, place.ports, tools, {session::Button::left, 6000, 4500});
}

Operations of_settings() {
  const auto program = [](void (*write)(platform::Files&, const std::string&, const std::string&)) {
    return [write](Fault_place& place) { write(place.files, place.program(), "C:\\GIS"); };
  };
  return {
      {.name = "basic settings",
       .told = {"program/settei.ini", "project/data"},
       .files = [](const std::string& root) { std::filesystem::remove(root + "/project/data"); },
       .press = save_settings},
      {.name = "new project folder", .told = {"project/sawa", "project/sawa/chisou_men"}, .press = make_project},
      {.name = "new registration file", .told = {"project/chisou_men/sawa.csv"}, .press = make_registry},
      {.name = "registration files deleted",
       .told = {},
       .silent = {"project/chisou_men/sawa.csv", "project/chisou_men/tani.csv"},  // the list shows what stays
       .files =
           [](const std::string& root) {
             put_lines(root, "project/chisou_men/sawa.csv", {"1"});
             put_lines(root, "project/chisou_men/tani.csv", {"1"});
           },
       .press = delete_registries},
      {.name = "language", .told = {"program/Language.set"}, .press = switch_language},
      {.name = "section line",
       .told = {"program/danmen.dat"},
       .files =
           [](const std::string& root) {
             put_lines(root, "program/danmen.dat", {"old", "1,2", "3,4"});
           },
       .open = begin_section,
       .press = end_section},
      {.name = "display settings of the sheet index",
       .told = {"program/chizuset.dat"},
       .press =
           [](Fault_place& place) {
             maps::Command1(place.files, place.prompts, place.program(), {100, 50, 20});
           }},
      {.name = "start of the program",
       .told = {},
       .silent = {"program/dempath.dat", "program/mps", "program/pda_chizu"},
       .open =
           [](Fault_place& place) {
             std::filesystem::remove(place.root + "/program/mps");
             std::filesystem::remove(place.root + "/program/pda_chizu");
             put_lines(place.root, "program/dempath.dat", {"C:\\another folder"});
           },
       .press = [](Fault_place& place) { session::form_load(place.session, place.ports, place.program()); }},
      {.name = "settings read",
       .silent = {"project/chisou_men"},
       .open = [](Fault_place& place) { std::filesystem::remove_all(place.root + "/project/chisou_men"); },
       .press =
           [](Fault_place& place) {
             core::Settings_boxes boxes = core::settei_defaults(place.session.settings);
             core::settei_r(place.session.settings, boxes, place.files, place.prompts);
           }},
      {.name = "borehole folder", .told = {"program/BoringOut.set"}, .press = program(core::boring_out_w)},
      {.name = "Rockview3D folder", .told = {"program/Rockview3d.set"}, .press = program(core::rockview3d_w)},
      {.name = "borehole file folder", .told = {"program/setpath2.dat"}, .press = program(core::setpath2_w)},
      {.name = "model job",
       .told = {"program/RockviewPath.dat"},
       .press =
           [](Fault_place& place) {
             core::rockview_path_w(place.files, place.program(), {"C:", "C:\\models", "sawa", 1, 0, "40"});
           }},
      {.name = "log form",
       .told = {"project/chisou_men/yoshiki.ini"},
       .press = [](Fault_place& place) { core::yoshiki_w(place.files, place.project(), "Drillfile_MAP"); }},
      {.name = "range of a model",
       .told = {"other/chisou_men/zahyo.dat"},
       .files =
           [](const std::string& root) {
             put_lines(root, "other/chisou_men/zahyo.dat", {"0", "1"});
           },
       .press = [](Fault_place& place) { core::zahyo_w(place.files, place.path("other"), {}); }},
  };
}

// ---- the registry

void open_record(Fault_place& place) {
  session::mnu_henkou(place.session, place.ports, 1);
}

void change_record(Fault_place& place) {
  place.session.entry.boxes.Text14[observations::box_soukou] = "N20W";
  place.session.entry.boxes.memo = "細粒砂岩\n上方へ泥岩に移る";
  session::Command9(place.session, place.ports);
}

void open_new_record(Fault_place& place) {
  place.session.entry_click.position.x = 700;
  place.session.entry_click.position.y = 800;
  session::mnu_sinki(place.session, place.ports);
}

void save_new_record(Fault_place& place) {
  place.session.entry.boxes.Text14[observations::box_soukou] = "N40E";
  session::Command9(place.session, place.ports);
}

void delete_record(Fault_place& place) {
  place.session.entry.touroku = 1;
  session::mnu_del(place.session, place.ports);
}

void add_to_surface(Fault_place& place) {
  place.session.entry.boxes.Combo2 = "sawa";
  session::surface_add(place.session, place.ports);
}

void keep_area(Fault_place& place) {
  observations::Area_make(place.files, place.project(), {{100, 100}, {200, 100}, {150.5, 200}});
}

// A press on the mark of a record whose picture column names a borehole log.
void open_log(Fault_place& place) {
  place.session.boring_out_folder = place.path("other");
  session::Map_tools tools;
  session::add_entry_tools(tools, place.ports);
  session::mouse_press(place.session, place.ports, tools,
                       {session::Button::left, (300 + 100) * 7.5, (1100 - 400) * 7.5});
}

void add_photos(Fault_place& place) {
  session::photo_read(place.session, place.ports, place.path("other\\photos"), {800, 900});
}

void put_photos(const std::string& root) {
  put_bytes(root, "other/photos/a.jpg", "PICTURE 4 3 100");
  put_bytes(root, "other/photos/b.bmp", "PICTURE 3 2 50");
  using std::filesystem::file_time_type;
  for (const char* name : {"a.jpg", "b.bmp"})
    std::filesystem::last_write_time(root + "/other/photos/" + name, file_time_type(std::chrono::hours(1000)));
}

Operations of_registry() {
  return {
      {.name = "record changed, with its memo",
       .told = {registry, "project/chisou_men/txt/081114-001.txt"},
       .silent = {backup},
       .open = open_record,
       .press = change_record},
      {.name = "new record, and a memo of its number from a record that is gone",
       .told = {registry, "project/chisou_men/txt/081115-001.txt"},
       .silent = {backup},
       .files =
           [](const std::string& root) { put_lines(root, "project/chisou_men/txt/081115-001.txt", {"an old memo"}); },
       .open = open_new_record,
       .press = save_new_record,
       .repeats = false},
      {.name = "record deleted", .told = {registry}, .press = delete_record, .repeats = false},
      {.name = "record added to another surface",
       .told = {"project/chisou_men/sawa.csv"},
       .files = [](const std::string& root) { put_lines(root, "project/chisou_men/sawa.csv", {"1,1.0,2.0,3,,,,,x"}); },
       .open = open_record,
       .press = add_to_surface,
       .repeats = false},
      {.name = "points from photos", .told = {registry}, .silent = {backup}, .files = put_photos, .press = add_photos},
      {.name = "area",
       .told = {"project/chisou_men/Area.dat"},
       .files = [](const std::string& root) { put_lines(root, "project/chisou_men/Area.dat", {"1,1,9,1,5,9"}); },
       .press = keep_area,
       .repeats = false},
      {.name = "log handed to the log program",
       .told = {"program/boring_out.tmp"},
       .files =
           [](const std::string& root) {
             put_lines(root, "program/boring_out.tmp", {"A-1"});
             put_bytes(root, "project/chisou_men/B-12.XML", "<log/>");
             put_lines(root, "project/chisou_men/genchi.csv",
                       {" 0 ,300.0,400.0,,,,,,081114-001,B-12.XML,○, 9 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,"});
           },
       .press = open_log},
      {.name = "input sheet",
       .told = {"project/chisou_men/081114-001.xls"},
       .open = open_record,
       .press = [](Fault_place& place) { session::Command1(place.session, place.ports); }},
      {.name = "declination",
       .told = {"program/henkaku.dat"},
       .files = [](const std::string& root) { put_lines(root, "program/henkaku.dat", {"-6.5"}); },
       .press = [](Fault_place& place) { observations::henkaku_w(place.files, place.program(), "-7"); }},
  };
}

// ---- pictures

observations::Picture_context pictures_of(Fault_place& place) {
  return {place.session.settings, place.files,  place.pictures, place.prompts,
          place.processes,        place.sounds, place.journal};
}

void store_pictures(Fault_place& place) {
  observations::Picture_boxes boxes;
  boxes.Dir1 = place.path("other\\photos");
  boxes.Dir2 = place.path("project\\image");
  boxes.Text1 = "081114-001";
  boxes.Text2 = "300";
  boxes.Text3 = "400";
  boxes.places[0].path = place.path("other\\photos\\a.jpg");
  boxes.places[1].path = place.path("other\\photos\\b.bmp");
  observations::Command5(pictures_of(place), boxes);
}

void turn_picture(Fault_place& place) {
  observations::Picture_place shown{place.path("other\\photos\\a.jpg")};
  observations::gazou_kaiten(pictures_of(place), shown);
}

std::function<void(Fault_place&)> save_canvas(bool png) {
  return [png](Fault_place& place) {
    drawing::Image_save_boxes boxes;
    boxes.Text16 = "map";
    boxes.Dir2 = place.path("other");
    boxes.Option1 = !png;
    boxes.Option3 = png;
    platform::Picture canvas = platform::make_picture(5, 4, 32);
    for (std::uint8_t& byte : canvas.bits) byte = 77;
    drawing::Command29(place.files, place.pictures, place.prompts, canvas, boxes);
  };
}

Operations of_pictures() {
  const auto one_point = [](const std::string& root) {
    put_photos(root);
    put_bytes(root, "project/image/081114-001/b.bmp", "an older picture");
    put_lines(root, "project/image/081114-001/081114-001.dat", {"1,081114-001,300.0,400.0", "1,b.bmp"});
  };
  return {
      {.name = "pictures of a new point",
       .told = {"project/image/081114-001/081114-001.dat", "project/image/081114-001/a.bmp",
                "project/image/081114-001/b.bmp", "project/image/081114-001/081114-001.txt", "program/tmp.bmp"},
       .silent = {"program/psettei.dat"},
       .files = put_photos,
       .press = store_pictures,
       .one_language = true},
      {.name = "pictures of a point that has some",
       .told = {"project/image/081114-001/081114-001.dat", "project/image/081114-001/a.bmp",
                "project/image/081114-001/b.bmp", "project/image/081114-001/081114-001.txt", "program/tmp.bmp"},
       .silent = {"program/psettei.dat"},
       .files = one_point,
       .press = store_pictures,
       .one_language = true},
      {.name = "picture turned",
       .told = {"program/tmp.bmp", "program/tmp0.bmp"},
       .files = put_photos,
       .press = turn_picture,
       .one_language = true},
      {.name = "map picture as a bitmap",
       .told = {"other/map.bmp"},
       .silent = {"other/bmp.bmp"},
       .files = [](const std::string& root) { put_bytes(root, "other/map.bmp", "an older map"); },
       .press = save_canvas(false),
       .one_language = true},
      {.name = "map picture as PNG",
       .told = {"other/map.png", "other/bmp.bmp"},
       .press = save_canvas(true),
       .one_language = true},
  };
}

// ---- Shapefiles

void write_shape_list(Fault_place& place) {
  session::Command7(place.session, place.ports);
}

void export_shape(Fault_place& place) {
  const Journal_operation kept(place.journal, "Shapeファイル作成", "Make Shapefile");
  exchange::Shape_boxes boxes;
  boxes.Dir1 = place.path("other");
  boxes.Text1 = "a";
  boxes.Check1 = true;
  exchange::frm_Shape_ok(place.session.settings, boxes, place.files, place.prompts, place.clock);
}

void convert_list(Fault_place& place) {
  const Journal_operation kept(place.journal, "Shapeファイル作成", "Make Shapefile");
  exchange::Shape_make_boxes boxes;
  boxes.Dir1 = place.path("project\\data");
  boxes.File1 = "fault.txt";
  exchange::frm_ShapeMake_ok(place.session.settings, boxes, place.files, place.prompts, place.clock);
}

Operations of_exchange() {
  return {
      {.name = "list of the drawn shape",
       .told = {"program/TMP.TMP"},
       .files = [](const std::string& root) { put_lines(root, "program/TMP.TMP", {"P,1,2"}); },
       .open = open_record,
       .press = write_shape_list},
      {.name = "Shapefile with its second set",
       .told = {"other/a.shp", "other/a.shx", "other/a.dbf", "other/a_gis.dbf", "other/a_gis.cpg", "other/a_gis.prj",
                "other/a_gis.shx", "other/a_gis.shp", "program/shape.set"},
       .files =
           [](const std::string& root) {
             put_lines(root, "program/TMP.TMP", {"S,100,100,200,100,150.5,200"});
             put_bytes(root, "other/a.shp", std::string(600, 's'));
             put_bytes(root, "other/a.shx", std::string(150, 'x'));
             for (const char* ending : {".dbf", ".cpg", ".prj", ".shx", ".shp"})
               put_bytes(root, std::string("other/a_gis") + ending, std::string("older") + ending);
           },
       .press = export_shape},
      {.name = "Shapefile of a list",
       .told = {"project/data/fault.shp", "project/data/fault.shx", "project/data/fault.dbf"},
       .files =
           [](const std::string& root) {
             put_lines(root, "project/data/fault.txt", {"P,5,6", "L,1,2,3.5,4,5,6"});
           },
       .press = convert_list},
  };
}

// ---- instruments

const std::string with_lineation =
    "1,L,N50E,49S,3.5,N30E,12,2008/11/15 10:20:30,＋,0,0,N43E,49E,3.5,N23E,12,-7,3541.1234,N,13945.6789,E,-7";
const std::string plane_alone = "2,P,N20W,30E,0.1,  ,  ,2008/11/15 08:05:09,●,0,0,N27W,30E,0.1,  ,  ,-7,-,-,-,-,-7";

instruments::Data_context data_of(Fault_place& place) {
  return {place.session.settings, place.files, place.clock, place.prompts, &place.journal};
}

instruments::Measurement_list measured() {
  instruments::Measurement_list list;
  for (const std::string& line : {with_lineation, plane_alone}) list.rows.push_back({line, true});
  return list;
}

std::function<std::string()> path_asked(Fault_place& place, const std::string& name) {
  return [path = place.path("other\\" + name)] { return path; };
}

void write_measurements(Fault_place& place) {
  instruments::Tiltvane_boxes boxes;
  boxes.DirGPS = boxes.DirGPS2 = place.path("other");
  instruments::Tiltvane_File_Make(data_of(place), place.session.registry, measured(), boxes);
}

const std::string record_1 = "001,P,N20W,30E,3,0,0,2008/11/15 10:20:30,1,0,0,V,,,,\r\n";
const std::string record_2 = "002,P,N50E,10S,3,0,0,2008/11/15 10:21:30,1,0,0,V,,,,\r\n";

struct Conversation {
  Fake_serial serial;
  instruments::Tiltvane_boxes boxes;
  instruments::Tiltvane_link link;
  const std::string program;
  instruments::Link_ports ports;
  explicit Conversation(Fault_place& place, bool full = true)
      : program(place.program()), ports{serial, place.files, place.prompts, place.clock, program, full} {
    boxes.Combo8 = "05";
    boxes.Text15 = "999";
    boxes.Text1 = "-7";
    serial.devices[5] = {record_1, record_2, "END\r\n"};
  }
};

void download(Fault_place& place, bool full) {
  Conversation talk(place, full);
  instruments::link_start(talk.link, talk.boxes, talk.ports);
  while (talk.link.timer == instruments::Link_timer::Timer3)
    instruments::timer3_tick(talk.link, talk.boxes, talk.ports);
}

void search(Fault_place& place) {
  Conversation talk(place);
  talk.boxes.Check3 = 1;
  instruments::link_start(talk.link, talk.boxes, talk.ports);
}

void read_log_again(Fault_place& place) {
  Conversation talk(place);
  instruments::read_again(talk.link, talk.boxes, talk.ports);
}

void choose_routes(Fault_place& place, bool nmea) {
  const Journal_operation kept(place.journal, "経路の選択", "Choice of routes");
  instruments::Route_boxes boxes;
  const core::Settings& settings = place.session.settings;
  (nmea ? instruments::frm_keiroNMEA_load : instruments::frm_keiro_load)(place.files, settings, boxes);
  instruments::Command3(boxes);
  (nmea ? instruments::frm_keiroNMEA_Command1 : instruments::frm_keiro_Command1)(place.files, place.prompts, settings,
                                                                                 boxes);
}

void put_earlier_download(const std::string& root) {
  put_bytes(root, "program/Tiltvane.tmp", record_1 + "END\r\n");
  put_bytes(root, "program/Tiltvane.old", "an older log");
  put_bytes(root, "program/TMP.TMP", "an older answer");
  put_bytes(root, "program/TMP2.TMP", "an older table");
  put_lines(root, "program/RSPORT.dat", {"05", "100"});
}

Operations of_instruments() {
  const std::vector<std::string> downloaded{"program/TMP2.TMP", "program/TMP.TMP", "program/Tiltvane.tmp",
                                            "program/Tiltvane.old", "program/RSPORT.dat"};
  const auto routes = [](const std::string& root) {
    put_lines(root, "project/chisou_men/gps/081115.txt", {"500400,126000,0,0,0"});
    put_lines(root, "project/chisou_men/gps/081115.nme", {"$GPRMC"});
    put_lines(root, "project/chisou_men/keiro_out.dat", {"gone.txt", "lost.txt"});
  };
  return {
      {.name = "ticked measurements",
       .told = {"program/Tiltvane/001-002_2008-11-15_10-20-30.csv"},
       .press = [](Fault_place& place) { instruments::Command10(data_of(place), measured(), "-7"); }},
      {.name = "clinometer file deleted",
       .told = {"program/Tiltvane/sawa.csv"},
       .files = [](const std::string& root) { put_lines(root, "program/Tiltvane/sawa.csv", {with_lineation}); },
       .press = [](Fault_place& place) { instruments::Command1(data_of(place), "sawa.csv"); }},
      {.name = "track log",
       .told = {"other/track.log"},
       .press =
           [](Fault_place& place) {
             instruments::Command16(data_of(place), measured(), path_asked(place, "track.log"));
           }},
      {.name = "stereo net file",
       .told = {"other/net.csv", "program/henkaku.dat"},
       .press =
           [](Fault_place& place) {
             instruments::Command9(data_of(place), measured(), {"-7.5", true}, path_asked(place, "net.csv"));
           }},
      {.name = "picture of the stereonet",
       .told = {"other/net.png"},
       .files = [](const std::string& root) { put_bytes(root, "other/net.png", "an older net"); },
       .press =
           [](Fault_place& place) {
             instruments::net_picture_save(data_of(place), place.path("other\\net.png"), "the picture, encoded");
           }},
      {.name = "measurements into the registry",
       .told = {registry, "program/RSPORT.dat"},
       .silent = {backup},
       .press = write_measurements},
      {.name = "download of the clinometer",
       .told = downloaded,
       .files = put_earlier_download,
       .press = [](Fault_place& place) { download(place, true); },
       .keeps_earlier = "program/Tiltvane.old"},
      {.name = "download by the small dialog",
       .told = {"program/TMP2.TMP", "program/TMP.TMP", "program/Tiltvane.tmp", "program/RSPORT.dat"},
       .press = [](Fault_place& place) { download(place, false); },
       .keeps_earlier = "program/Tiltvane.old"},
      {.name = "search for the clinometer",
       .told = {"program/TMP2.TMP", "program/RSPORT.dat"},
       .files = put_earlier_download,
       .press = search},
      {.name = "broken download read again",
       .told = {"program/TMP2.TMP", "program/TMP.TMP"},
       .files =
           [](const std::string& root) {
             put_bytes(root, "program/Tiltvane.tmp", record_1 + record_2.substr(0, 20));
             put_bytes(root, "program/TMP.TMP", "an older answer");
           },
       .press = read_log_again},
      {.name = "choice of text tracks",
       .told = {"project/chisou_men/keiro_out.dat"},
       .files = routes,
       .press = [](Fault_place& place) { choose_routes(place, false); }},
      {.name = "choice of NMEA logs",
       .told = {"project/chisou_men/keiro_out2.dat"},
       .files = routes,
       .press = [](Fault_place& place) { choose_routes(place, true); }},
  };
}

// ---- undo and redo

// What there is to be taken back can only come of an operation.
void change_a_record(const std::string& root, bool and_back) {
  Fault_place place(root);
  place.start();
  open_record(place);
  change_record(place);
  if (and_back) session::menu_undo(place.session, place.ports);
}

Operations of_undo() {
  const std::vector<std::string> changed{registry, backup, "project/chisou_men/txt/081114-001.txt"};
  return {
      {.name = "undo of a changed record",
       .told = changed,
       .files = [](const std::string& root) { change_a_record(root, false); },
       .press = [](Fault_place& place) { session::menu_undo(place.session, place.ports); },
       .repeats = false},
      {.name = "redo of a changed record",
       .told = changed,
       .files = [](const std::string& root) { change_a_record(root, true); },
       .press = [](Fault_place& place) { session::menu_redo(place.session, place.ports); },
       .repeats = false},
  };
}

// ---- the first start of an installed program

// The user's program folder is other/own; what is installed and a sample that was made lie beside the program.
session::First_start first_start_of(const Fault_place& place) {
  session::First_start start;
  start.place = {place.path("other\\own"), place.path("templates"), place.path("helpers")};
  start.language = place.session.settings.language;
  start.documents = place.path("other");
  start.make_sample = [&place](bool, const session::Take_sample& take) {
    take(place.path("made"));
    return session::Sample_making::made;
  };
  return start;
}

void put_sample(const std::string& root) {
  std::filesystem::create_directories(root + "/other/own");
  std::vector<std::string> settings(27, "False");
  settings[0] = settings[2] = settings[24] = "where the sample was made";
  put_lines(root, "made/program/settei.ini", settings);
  put_bytes(root, "made/program/ZUMEI.CSV", "a row of a sheet");
  put_bytes(root, "made/program/map/533935.bmp", "PICTURE 4 3 100");
  put_bytes(root, "made/project/chisou_men/tani.csv", "a record of the sample");
}

Operations of_first_start() {
  return {
      {.name = "program folder of an installed program",
       .told = {"other/own/Language.set", "other/own/igrf10.coef", "other/own"},
       .files = [](const std::string& root) { put_bytes(root, "templates/igrf10.coef", "the coefficients"); },
       .press =
           [](Fault_place& place) { session::program_folder_make(first_start_of(place), place.files, place.prompts); }},
      {.name = "sample put in place",
       .told = {"other/own/settei.ini", "other/own/sample.set", "other/own/ZUMEI.CSV", "other/own/map",
                "other/own/map/533935.bmp", "other/Terranote sample", "other/Terranote sample/sample.txt",
                "other/Terranote sample/chisou_men", "other/Terranote sample/chisou_men/tani.csv"},
       .files = put_sample,
       .press = [](Fault_place& place) { session::sample_offer(first_start_of(place), place.files, place.prompts); },
       .repeats = false},  // with the settings in place nothing is asked again
  };
}

}  // namespace

const std::vector<Saving_operation>& saving_operations() {
  static const Operations all = [] {
    Operations joined;
    for (const Operations& more :
         {of_settings(), of_registry(), of_pictures(), of_exchange(), of_instruments(), of_undo(), of_first_start()})
      add(joined, more);
    return joined;
  }();
  return all;
}

}  // namespace support
