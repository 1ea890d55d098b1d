// Small pictures of files, one after the other: a file is read between two events, and its picture is made beside the
// window's thread, so that the window goes on.
#pragma once

#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <deque>
#include <functional>
#include <string>

#include "platform/files.h"

class QTimer;

namespace ui {

inline constexpr int as_the_camera_tells = -1;

class Thumbnails : public QObject {
  Q_OBJECT

 public:
  explicit Thumbnails(platform::Files& files, QObject* parent = nullptr);
  ~Thumbnails() override;

  // Asks for a file's picture with `longest` pixels at its longer side at most, turned by quarters clockwise or upright
  // as_the_camera_tells. An urgent one comes before all others. What ready() will call it.
  int ask(const std::string& path, int quarter_turns, int longest, bool urgent = false);
  // Forgets those that are not begun yet and not wanted any more.
  void forget(const std::function<bool(int ticket)>& unwanted);

 signals:
  // An empty image: the file is missing or holds no whole picture.
  void ready(int ticket, const QImage& image);

 private:
  struct Wish {
    int ticket = 0;
    std::string path;
    int quarter_turns = 0;
    int longest = 0;
  };
  void step();
  void made(int ticket, const QImage& image);

  platform::Files& files_;
  std::deque<Wish> wishes_;
  QThreadPool pool_;
  QTimer* timer_ = nullptr;
  int last_ticket_ = 0;
  int in_work_ = 0;
};

// The picture in a file's content, as ask() tells it.
QImage thumbnail_of(const std::string& bytes, int quarter_turns, int longest);

}  // namespace ui
