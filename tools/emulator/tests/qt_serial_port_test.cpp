#include "platform/qt/qt_serial_port.h"

#include <gmock/gmock.h>

#include <QTest>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <utility>

#include "emulator/tests/line_end.h"
#include "support/temporary_folder.h"

namespace {

using platform::Line_settings;
using testing::ElementsAre;

struct Qt_serial_port : testing::Test {
  support::Temporary_folder folder;
  platform::Disk_files files;
  platform::Qt_serial_port port{files, folder.text()};

  std::string heard;
  bool hears(const std::string& text) {
    return QTest::qWaitFor(
        [&] {
          heard += port.read_all();
          return heard.find(text) != std::string::npos;
        },
        5000);
  }
};

TEST_F(Qt_serial_port, TalksToTheDeviceThatALinkPointsAt) {
  const support::Line_end end(folder.path(), "com07", emulator::conversation_of("> o1\n< 001,L\n> o2\n< END"));
  ASSERT_TRUE(end.plugged_in);
  port.set_port(7);
  port.set_line("9600,n,8,1");
  ASSERT_TRUE(port.open());
  EXPECT_TRUE(port.write("o1"));
  EXPECT_TRUE(hears("001,L\r\n"));
  EXPECT_TRUE(port.write("o2"));
  EXPECT_TRUE(hears("END\r\n"));
  EXPECT_EQ(port.read_all(), "");
}

// What the device's line stands at, as the system tells it to anybody who asks.
termios line_of(const std::string& device) {
  termios line{};
  const int file = ::open(device.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
  EXPECT_EQ(::tcgetattr(file, &line), 0) << device;
  ::close(file);
  return line;
}

TEST_F(Qt_serial_port, SetsTheLineWithoutParityAndFlowControl) {
  const support::Line_end end(folder.path(), "com07", emulator::Conversation{});
  for (const auto& [settings, speed] : {std::pair("9600,n,8,1", B9600), std::pair("4800,n,8,1", B4800)}) {
    port.close();
    port.set_port(7);
    port.set_line(settings);
    ASSERT_TRUE(port.open());
    const termios line = line_of(end.line.path());
    EXPECT_EQ(::cfgetospeed(&line), static_cast<speed_t>(speed));
    EXPECT_EQ(::cfgetispeed(&line), static_cast<speed_t>(speed));
    EXPECT_EQ(line.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
    EXPECT_EQ(line.c_cflag & (PARENB | CSTOPB | CRTSCTS), 0u);
    EXPECT_EQ(line.c_iflag & (IXON | IXOFF), 0u);
  }
}

TEST_F(Qt_serial_port, FailsToOpenANumberWithoutADevice) {
  for (const int number : {0, -1, 51, 99, 100, 1'000'000}) {
    port.set_port(number);
    EXPECT_FALSE(port.open()) << number;
    EXPECT_FALSE(port.is_open());
    EXPECT_FALSE(port.write("o1"));
    EXPECT_EQ(port.read_all(), "");
  }
}

TEST_F(Qt_serial_port, ClosesWhenTheDeviceIsPulledAndStillGivesWhatCameBefore) {
  const support::Line_end end(folder.path(), "com07", emulator::conversation_of("> o1\n< 001,L\nwait 300\nunplug"));
  port.set_port(7);
  ASSERT_TRUE(port.open());
  port.write("o1");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !port.is_open(); }, 5000));
  EXPECT_EQ(port.read_all(), "001,L\r\n");
  EXPECT_EQ(port.read_all(), "");
  EXPECT_FALSE(port.write("o1"));
  port.close();
  EXPECT_FALSE(port.open());
}

TEST_F(Qt_serial_port, OpensAgainWhenTheDeviceIsBack) {
  const support::Line_end end(folder.path(), "com07",
                              emulator::conversation_of("> o1\nunplug\nwait 300\nplug\n> o1\n< here again"));
  port.set_port(7);
  ASSERT_TRUE(port.open());
  port.write("o1");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !port.is_open(); }, 5000));
  ASSERT_TRUE(QTest::qWaitFor([&] { return port.open(); }, 5000));
  port.write("o1");
  EXPECT_TRUE(hears("here again"));
}

TEST_F(Qt_serial_port, TakesBytesAsTheyAre) {
  const support::Line_end end(folder.path(), "com01",
                              emulator::conversation_of("> o\nraw \\x00\\x1a\\xff\\x03\\r\\n\\n|"));
  port.set_port(1);
  ASSERT_TRUE(port.open());
  port.write("o");
  ASSERT_TRUE(hears("|"));
  EXPECT_EQ(heard, std::string("\x00\x1a\xff\x03\r\n\n|", 8));
}

TEST_F(Qt_serial_port, KeepsItsNumberWhileItIsOpen) {
  const support::Line_end end(folder.path(), "com07", emulator::conversation_of("> o1\n< seven"));
  port.set_port(7);
  ASSERT_TRUE(port.open());
  port.set_port(8);
  EXPECT_TRUE(port.open());
  port.write("o1");
  EXPECT_TRUE(hears("seven"));
}

TEST_F(Qt_serial_port, ListsTheLinksThatPointAtSomething) {
  const support::Line_end end(folder.path(), "com07", emulator::Conversation{});
  std::filesystem::create_symlink("/dev/no_such_device", folder.path() / "ports" / "com08");
  const auto devices = platform::serial_devices(files, folder.text());
  const auto of = [&](int number) {
    return std::find_if(devices.begin(), devices.end(), [&](const auto& device) { return device.number == number; });
  };
  ASSERT_NE(of(7), devices.end());
  EXPECT_TRUE(of(7)->path.ends_with("/ports/com07"));
  EXPECT_EQ(of(7)->name, end.line.path());
  EXPECT_EQ(of(8), devices.end());
  EXPECT_NE(platform::serial_device_path(files, folder.text(), 8), "") << "its number is still the link's";
}

TEST(Serial_devices, AreCountedInTheOrderOfTheirNumbers) {
  std::vector<std::string> names{"ttyUSB10", "ttyUSB2", "ttyACM11", "ttyS0", "ttyUSB02", "ttyACM9"};
  std::sort(names.begin(), names.end(), platform::comes_before);
  EXPECT_THAT(names, ElementsAre("ttyACM9", "ttyACM11", "ttyS0", "ttyUSB02", "ttyUSB2", "ttyUSB10"));
}

// On a machine with serial devices of its own; numbers that a link has are the link's.
TEST(Serial_devices, HaveTheirPathsByTheirNumbers) {
  const support::Temporary_folder folder;
  platform::Disk_files files;
  const auto devices = platform::serial_devices(files, folder.text());
  if (devices.empty()) GTEST_SKIP() << "this machine has no serial device";
  for (const platform::Serial_device& device : devices)
    EXPECT_EQ(platform::serial_device_path(files, folder.text(), device.number), device.path);
}

TEST(Line_settings, AreReadAndFallBackPartByPart) {
  using platform::line_settings_of;
  EXPECT_EQ(line_settings_of("9600,n,8,1"), (Line_settings{9600, 'n', 8, 1}));
  EXPECT_EQ(line_settings_of("4800,E,7,2"), (Line_settings{4800, 'e', 7, 2}));
  EXPECT_EQ(line_settings_of("1200,o,5,1.5"), (Line_settings{1200, 'o', 5, 1.5}));
  EXPECT_EQ(line_settings_of(""), Line_settings{});
  EXPECT_EQ(line_settings_of("fast,x,9,3"), Line_settings{});
  EXPECT_EQ(line_settings_of("-1"), Line_settings{});
}

}  // namespace
