// A picture as large as its room allows, or a word in its stead.
#pragma once

#include <QImage>
#include <QWidget>

namespace ui {

class Picture_view : public QWidget {
  Q_OBJECT

 public:
  explicit Picture_view(QWidget* parent = nullptr);
  void show_picture(const QImage& picture);
  void show_word(const QString& word);
  const QImage& picture() const { return picture_; }
  QString word() const { return word_; }
  QSize sizeHint() const override { return {400, 320}; }
  QSize minimumSizeHint() const override { return {240, 180}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage picture_;
  QString word_;
};

}  // namespace ui
