// Sounds through what the machine has: a small player program, or the system's own.
#pragma once

#include <QProcess>
#include <QStringList>

#include "platform/files.h"
#include "platform/sounds.h"

namespace platform {

class Qt_sounds : public Sounds {
 public:
  explicit Qt_sounds(Files& files);
  // The same with other player programs, by name or path; the first that plays is taken.
  Qt_sounds(Files& files, QStringList players);
  // A sound that is still playing gives way.
  ~Qt_sounds() override;
  bool play(const std::string& path) override;

 private:
  bool play_with(const QString& player, const QString& file);
  void stop();

  Files& files_;
  QStringList players_;
  QProcess player_;
};

}  // namespace platform
