// The entry panel on a session of its own: a program folder with the published coefficients, and a record in the panel.
#pragma once

#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"
#include "support/fake_ports.h"
#include "support/golden.h"
#include "support/places.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"
#include "ui/frame6.h"
#include "ui/toolkit_text.h"

namespace support {

struct Frame6_place {
  Temporary_folder folder;
  platform::Disk_files files;
  Fake_pictures pictures;
  Recorded_processes processes;
  Scripted_prompts prompts;
  Other_ports other{files};
  session::Ports ports{files, pictures, prompts, processes, other.clock, other.journal, other.sheets, other.sounds};
  session::Session session;
  std::unique_ptr<ui::Frame6> frame;
  std::vector<QString> commands;
  int edits = 0, positions = 0;

  explicit Frame6_place(const std::string& language, bool with_field = true) {
    session.settings.program_path = folder.text();
    session.settings.language = language;
    if (with_field)
      files.write_whole(platform::join_path(folder.text(), "igrf10.coef"),
                        bytes_of(support::golden_file("observations/igrf10.coef")));
    session.stratum_names = {"砂岩", "泥岩"};
    frame = std::make_unique<ui::Frame6>(session, ports);
    QObject::connect(frame.get(), &ui::Frame6::command, [this](const QString& name) { commands.push_back(name); });
    QObject::connect(frame.get(), &ui::Frame6::edited, [this] { ++edits; });
    QObject::connect(frame.get(), &ui::Frame6::position_typed, [this] { ++positions; });
    frame->resize(300, 620);
    frame->show();
  }

  // Opens the panel for record 1, which lies in Kochi (33.5597 N, 133.5311 E).
  void open() {
    observations::fill_mark_lists(session.entry.boxes, session.settings.language);
    observations::position_to_boxes(session.entry.boxes, {13353110, 3355970});
    session.entry.boxes.frame_title = "PointRegistrationFile<genchi.csv>";
    session.entry.touroku = 1;
    session.entry.open = true;
    session.registry.N = 1;
    frame->boxes_out();
    QCoreApplication::processEvents();
  }

  template <typename Widget>
  Widget* find(const char* name) const {
    auto* widget = frame->findChild<Widget*>(name);
    if (!widget) ADD_FAILURE() << "no widget " << name;
    return widget;
  }
  std::string label(const char* name) const { return ui::from_toolkit(find<QLabel>(name)->text()); }
  void type(const char* name, const char* text) const {
    auto* box = find<QLineEdit>(name);
    box->setFocus();
    box->selectAll();
    if (*text == '\0') QTest::keyClick(box, Qt::Key_Delete);
    // The keyboard of the test has ASCII alone; other characters come as an input method hands them over.
    for (const QChar letter : QString::fromUtf8(text)) {
      QInputMethodEvent composed;
      composed.setCommitString(letter);
      if (letter.unicode() < 0x80)
        QTest::keyClick(box, letter.toLatin1());
      else
        QCoreApplication::sendEvent(box, &composed);
    }
  }
};

}  // namespace support
