// What the tests of the route dialogs share: a project with tracks and logs, opened in one of the languages.
#pragma once

#include <gmock/gmock.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

#include "core/session/session.h"
#include "gui/clipping.h"
#include "gui/gui_support.h"
#include "instruments/receiver_place.h"
#include "support/fake_ports.h"
#include "ui/toolkit_text.h"

namespace support {

struct Route_dialogs : testing::TestWithParam<const char*> {
  Route_place place;
  Fake_pictures pictures;
  Recorded_processes processes;
  Other_ports other{place.files};
  session::Ports ports{place.files, pictures,      place.prompts, processes,
                       place.clock, other.journal, other.sheets,  other.sounds};
  session::Session session;
  std::unique_ptr<QDialog> dialog;

  bool japanese() const { return std::string(GetParam()) == "Japanese"; }
  template <typename Dialog, typename... More>
  Dialog* open(More&... more) {
    place.settings.language = GetParam();
    place.prompts.use_language(GetParam());
    session.settings = place.settings;
    auto made = std::make_unique<Dialog>(session, ports, more...);
    Dialog* const shown = made.get();
    dialog = std::move(made);
    dialog->show();
    return shown;
  }
  template <typename Widget>
  Widget* find(const char* name) const {
    auto* widget = dialog->findChild<Widget*>(name);
    if (!widget) ADD_FAILURE() << "no widget " << name;
    return widget;
  }
  void press(const char* name) const { find<QPushButton>(name)->click(); }
  QListWidgetItem* row(int number) const { return find<QListWidget>("List1")->item(number); }
  std::string list(const char* name) {
    return place.disk.length(place.data(name)) == 0 ? "" : place.disk.read_bytes(place.data(name));
  }
  void expect_well_laid_out() const {
    for (const QSize size : {dialog->size(), QSize(900, 500), dialog->minimumSizeHint()}) {
      dialog->resize(size);
      QCoreApplication::processEvents();
      EXPECT_TRUE(nothing_clipped(dialog.get())) << size.width();
    }
    EXPECT_EQ(nameless_widgets(*dialog).join(", ").toStdString(), "");
  }
};

}  // namespace support
