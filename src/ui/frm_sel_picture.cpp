#include "ui/frm_sel_picture.h"

#include <QComboBox>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

#include "core/language.h"
#include "core/session/entry.h"
#include "platform/numbers.h"
#include "ui/folder_box.h"
#include "ui/guard.h"
#include "ui/picture_view.h"
#include "ui/thumbnails.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

using observations::Taken;

constexpr int small_side = 104;  // logical pixels
constexpr int preview_side = 1600;

const platform::Message not_stored{"枠に入れたものがまだ登録されていません。登録しますか。",
                                   "What the places hold isn't stored yet. Do you want to store it?"};

// The wait cursor as long as this lives.
struct Waiting {
  Waiting() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~Waiting() { QGuiApplication::restoreOverrideCursor(); }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
};

// A picture in the middle of an icon of this size, so that names beside or below icons stand in line; an empty picture
// keeps its room.
QIcon icon_of(const QImage& image, QSize size, double scale) {
  QPixmap pixmap(size * scale);
  pixmap.fill(Qt::transparent);
  if (!image.isNull()) {
    QSize shown = image.size();
    if (shown.width() > pixmap.width() || shown.height() > pixmap.height())
      shown.scale(pixmap.size(), Qt::KeepAspectRatio);
    QRect place(QPoint(), shown);
    place.moveCenter(pixmap.rect().center());
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, image);
  }
  pixmap.setDevicePixelRatio(scale);
  QIcon icon(pixmap);
  icon.addPixmap(pixmap, QIcon::Selected);  // not tinted
  return icon;
}

}  // namespace

Frm_sel_picture::Frm_sel_picture(session::Session& session, session::Ports& ports, bool edit, QWidget* parent)
    : QDialog(parent),
      session_(session),
      ports_(ports),
      edit_(edit),
      japanese_(core::is_japanese(session.settings.language)),
      thumbnails_(new Thumbnails(ports.files, this)) {
  setObjectName("frm_sel_picture");
  lay_out();
  const auto& panel = session.entry.boxes.Text14;
  observations::frm_sel_picture_load(context(), boxes_, panel[observations::box_touroku_no], panel[observations::box_X],
                                     panel[observations::box_Y]);
  observations::Text1_change(context(), boxes_, edit_);
  connect_all();
  fill_points();
  boxes_to_widgets();
  fill_source();
  fill_stored();
  fill_text();
  show_places();
  preview({});
  Text1_->setFocus();
}

// A box that loses the keyboard while the window goes tells so, when there is nothing left here to tell it to.
Frm_sel_picture::~Frm_sel_picture() {
  for (QWidget* part : findChildren<QWidget*>()) part->disconnect(this);
}

void Frm_sel_picture::connect_all() {
  connect(thumbnails_, &Thumbnails::ready, this, &Frm_sel_picture::picture_made);
  connect(Dir1_, &Folder_box::chosen, this, &Frm_sel_picture::folder_chosen);
  // Beside the letters of the captions, which a shortcut of the button itself would take away.
  connect(new QShortcut(QKeySequence("Ctrl+S"), this), &QShortcut::activated, this, &Frm_sel_picture::Command5);
  connect(new QShortcut(QKeySequence("Ctrl+L"), this), &QShortcut::activated, this, [this] { rotate(false); });
  connect(new QShortcut(QKeySequence("Ctrl+R"), this), &QShortcut::activated, this, [this] { rotate(true); });
  connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, this, &Frm_sel_picture::fill_source);
  connect(Dir2_, &Folder_box::chosen, this, &Frm_sel_picture::folder_named);
  connect(File1_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) preview({Kind::source, row});
  });
  connect(File1_, &QListWidget::itemActivated, this, &Frm_sel_picture::take_free);
  connect(File2_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) preview({Kind::stored, row});
  });
  connect(File2_, &QListWidget::itemActivated, this, &Frm_sel_picture::play);
  for (int i = 0; i < places; ++i) {
    const auto at = static_cast<std::size_t>(i);
    connect(take_buttons_[at], &QPushButton::clicked, this, [this, i] { take(i); });
    connect(place_buttons_[at], &QToolButton::clicked, this, [this, i] { preview({Kind::place, i}); });
  }
  connect(points_, &QComboBox::activated, this, [this] {
    Text1_->setText(points_->currentText());
    point_named();
  });
  connect(Text1_, &QLineEdit::editingFinished, this, &Frm_sel_picture::point_named);
  connect(rotate_left_, &QPushButton::clicked, this, [this] { rotate(false); });
  connect(rotate_right_, &QPushButton::clicked, this, [this] { rotate(true); });
  connect(play_, &QPushButton::clicked, this, &Frm_sel_picture::play);
  connect(empty_, &QPushButton::clicked, this, &Frm_sel_picture::empty_place);
  for (QToolButton* button : place_buttons_)
    connect(new QShortcut(QKeySequence::Delete, button, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            this, &Frm_sel_picture::empty_place);
  connect(remove_, &QPushButton::clicked, this, &Frm_sel_picture::remove_stored);
  connect(photos_, &QPushButton::clicked, this, &Frm_sel_picture::photo_read);
  connect(open_text_, &QPushButton::clicked, this, &Frm_sel_picture::Command7);
  connect(store_, &QPushButton::clicked, this, &Frm_sel_picture::Command5);
  connect(close_, &QPushButton::clicked, this, &Frm_sel_picture::reject);
}

observations::Picture_context Frm_sel_picture::context() {
  return {session_.settings, ports_.files,  ports_.pictures, ports_.prompts,
          ports_.processes,  ports_.sounds, ports_.journal};
}

bool Frm_sel_picture::guarded(const std::function<void()>& procedure) {
  return ui::guarded(ports_.prompts, procedure);
}

// The text may have been changed in the program that it was opened with.
void Frm_sel_picture::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) fill_text();
}

void Frm_sel_picture::boxes_from_widgets() {
  boxes_.Text1 = from_toolkit(Text1_->text());
  boxes_.Text2 = from_toolkit(Text2_->text());
  boxes_.Text3 = from_toolkit(Text3_->text());
  boxes_.Dir1 = from_toolkit(Dir1_->folder());
  const QListWidgetItem* chosen = File1_->currentItem();
  boxes_.File1 = chosen ? from_toolkit(chosen->text()) : std::string();
}

void Frm_sel_picture::boxes_to_widgets() {
  Text1_->setText(to_toolkit(boxes_.Text1));
  Text2_->setText(to_toolkit(boxes_.Text2));
  Text3_->setText(to_toolkit(boxes_.Text3));
  Dir1_->set_folder(to_toolkit(boxes_.Dir1));
  Dir2_->set_folder(to_toolkit(boxes_.Dir2));
}

// A box that is left tells its folder again, changed or not.
void Frm_sel_picture::folder_chosen() {
  if (from_toolkit(Dir1_->folder()) != boxes_.Dir1) fill_source();
}

void Frm_sel_picture::ask(const std::string& path, int quarter_turns, Shown for_what, bool urgent) {
  const int longest = qRound(small_side * devicePixelRatioF());
  asked_[thumbnails_->ask(path, quarter_turns, longest, urgent)] = for_what;
}

void Frm_sel_picture::forget(Kind kind, int row) {
  std::erase_if(asked_, [&](const auto& asked) {
    return asked.second.kind == kind && (row == every_row || asked.second.row == row);
  });
  thumbnails_->forget([this](int ticket) { return ticket != preview_ticket_ && !asked_.contains(ticket); });
}

QImage Frm_sel_picture::sound_picture(QSize size) const {
  return style()->standardIcon(QStyle::SP_MediaVolume).pixmap(size / 2).toImage();
}

void Frm_sel_picture::add_item(QListWidget* list, const std::string& name) {
  const QImage picture = observations::is_sound_name(name) ? sound_picture(list->iconSize()) : QImage();
  auto* item = new QListWidgetItem(icon_of(picture, list->iconSize(), devicePixelRatioF()), to_toolkit(name), list);
  item->setToolTip(item->text());
}

void Frm_sel_picture::fill_source() {
  boxes_from_widgets();
  const QSignalBlocker quiet(File1_);
  File1_->clear();
  forget(Kind::source);
  int photos = 0;
  for (const std::string& name : observations::File1_list(ports_.files, boxes_.Dir1)) {
    add_item(File1_, name);
    if (observations::is_sound_name(name)) continue;
    ++photos;
    ask(platform::join_path(boxes_.Dir1, name), as_the_camera_tells, {Kind::source, File1_->count() - 1});
  }
  const QString count = to_toolkit(std::to_string(photos));
  told_->setText(photos == 0 ? either("フォルダに画像がありません。", "The folder holds no picture.")
                             : either("フォルダの画像: ", "Pictures in the folder: ") + count);
  if (shown_.kind == Kind::source) preview({});
  show_state();
}

void Frm_sel_picture::fill_stored() {
  const QSignalBlocker quiet(File2_);
  File2_->clear();
  forget(Kind::stored);
  for (const observations::Listed_picture& listed : boxes_.File2) {
    const bool sound = observations::is_sound_name(listed.name);
    add_item(File2_, listed.name);
    const std::string path =
        observations::picture_path(session_.settings.project_path, boxes_.File2_point, listed.name);
    if (!sound && !path.empty()) ask(path, as_the_camera_tells, {Kind::stored, File2_->count() - 1});
  }
  if (shown_.kind == Kind::stored) preview({});
  show_state();
}

void Frm_sel_picture::fill_points() {
  if (!edit_) return;
  const QSignalBlocker quiet(points_);
  points_->clear();
  for (const std::string& name : observations::points_in_store(context(), session_.registry))
    points_->addItem(to_toolkit(name));
  points_->setCurrentIndex(points_->findText(to_toolkit(boxes_.Text1)));
  points_->setEnabled(points_->count() > 0);
}

void Frm_sel_picture::fill_text() {
  boxes_from_widgets();
  text_->setPlainText(to_toolkit(observations::point_text(context(), boxes_)));
}

void Frm_sel_picture::show_places() {
  for (std::size_t i = 0; i < boxes_.places.size(); ++i) {
    QToolButton* button = place_buttons_[i];
    const std::string& path = boxes_.places[i].path;
    const QString number = to_toolkit(std::to_string(i + 1));
    const QString name = path.empty() ? either("枠", "Place ") + number + either("(空)", " (free)")
                                      : to_toolkit(observations::leaf_of(path));
    button->setText(button->fontMetrics().elidedText(name, Qt::ElideMiddle, button->iconSize().width() + 16));
    button->setToolTip(name);
    const QImage picture = observations::is_sound_name(path) ? sound_picture(button->iconSize()) : place_pictures_[i];
    button->setIcon(icon_of(picture, button->iconSize(), devicePixelRatioF()));
  }
}

std::string Frm_sel_picture::shown_path() const {
  const auto row = static_cast<std::size_t>(shown_.row);
  switch (shown_.kind) {
    case Kind::source:
      return platform::join_path(boxes_.Dir1, from_toolkit(File1_->item(shown_.row)->text()));
    case Kind::place:
      return boxes_.places[row].path;
    case Kind::stored:
      return observations::picture_path(session_.settings.project_path, boxes_.File2_point, boxes_.File2[row].name);
    default:
      return {};
  }
}

void Frm_sel_picture::preview(Shown shown) {
  shown_ = shown;
  const std::string path = shown_path();
  preview_ticket_ = 0;
  shown_name_->setText(path.empty() ? " " : to_toolkit(observations::leaf_of(path)));
  shown_name_->setToolTip(to_toolkit(path));
  if (path.empty()) {
    view_->show_word(either("左の一覧から画像を選んで下さい。", "Choose a picture from the list on the left."));
  } else if (observations::is_sound_name(path)) {
    view_->show_word(either("音声ファイル", "Sound"));
  } else {
    const int turns = shown.kind == Kind::place ? boxes_.places[static_cast<std::size_t>(shown.row)].quarter_turns
                                                : as_the_camera_tells;
    preview_ticket_ = thumbnails_->ask(path, turns, preview_side, true);
  }
  show_state();
}

void Frm_sel_picture::show_state() {
  const std::string path = shown_path();
  const bool sound = observations::is_sound_name(path);
  const bool turnable = !path.empty() && !sound && shown_.kind != Kind::source;
  rotate_left_->setEnabled(turnable);
  rotate_right_->setEnabled(turnable);
  play_->setEnabled(sound);
  empty_->setEnabled(shown_.kind == Kind::place && !path.empty());
  remove_->setEnabled(shown_.kind == Kind::stored);
  for (QPushButton* button : take_buttons_) button->setEnabled(File1_->currentRow() >= 0);
  for (int i = 0; i < places; ++i)
    place_buttons_[static_cast<std::size_t>(i)]->setChecked(shown_.kind == Kind::place && shown_.row == i);
}

void Frm_sel_picture::picture_made(int ticket, const QImage& image) {
  if (ticket == preview_ticket_) {
    if (image.isNull())
      view_->show_word(QString());  // a missing picture shows nothing
    else
      view_->show_picture(image);
    return;
  }
  const auto asked = asked_.find(ticket);
  if (asked == asked_.end()) return;
  const Shown for_what = asked->second;
  asked_.erase(asked);
  if (image.isNull()) return;
  if (for_what.kind == Kind::place) {
    place_pictures_[static_cast<std::size_t>(for_what.row)] = image;
    show_places();
  } else {
    QListWidget* list = for_what.kind == Kind::source ? File1_ : File2_;
    list->item(for_what.row)->setIcon(icon_of(image, list->iconSize(), devicePixelRatioF()));
  }
}

void Frm_sel_picture::take(int place) {
  boxes_from_widgets();
  Taken taken = Taken::nothing;
  guarded([&] {
    if (place == 0) taken = observations::Command10(context(), boxes_);
    if (place == 1) taken = observations::Command11(context(), boxes_);
    if (place == 2) taken = observations::Command12(context(), boxes_);
  });
  if (taken == Taken::nothing) return;
  const auto at = static_cast<std::size_t>(place);
  place_pictures_[at] = QImage();
  forget(Kind::place, place);
  if (taken == Taken::picture) ask(boxes_.places[at].path, boxes_.places[at].quarter_turns, {Kind::place, place}, true);
  show_places();
  preview({Kind::place, place});
}

void Frm_sel_picture::take_free() {
  for (int i = 0; i < places; ++i)
    if (boxes_.places[static_cast<std::size_t>(i)].path.empty()) return take(i);
  told_->setText(either("空いている枠がありません。", "No place is free."));
}

void Frm_sel_picture::empty_place() {
  if (shown_.kind != Kind::place) return;
  const auto at = static_cast<std::size_t>(shown_.row);
  boxes_.places[at] = {};
  place_pictures_[at] = QImage();
  show_places();
  preview({});
}

void Frm_sel_picture::rotate(bool clockwise) {
  int place = shown_.row;
  guarded([&] {
    if (shown_.kind == Kind::stored)
      place = observations::place_from_store(context(), boxes_, static_cast<std::size_t>(shown_.row));
    else if (shown_.kind != Kind::place)
      place = -1;
  });
  if (place < 0) return;
  const auto at = static_cast<std::size_t>(place);
  bool turned = false;
  const Waiting waiting;
  guarded([&] {
    turned = clockwise ? observations::gazou_kaiten(context(), boxes_.places[at])
                       : observations::gazou_kaiten2(context(), boxes_.places[at]);
  });
  if (turned) ask(boxes_.places[at].path, boxes_.places[at].quarter_turns, {Kind::place, place}, true);
  show_places();
  preview({Kind::place, place});
}

void Frm_sel_picture::point_named() {
  boxes_from_widgets();
  if (platform::trim_text(boxes_.Text1) == boxes_.File2_point) return;
  guarded([&] { observations::Text1_change(context(), boxes_, edit_); });
  boxes_to_widgets();
  points_->setCurrentIndex(points_->findText(to_toolkit(boxes_.File2_point)));
  fill_stored();
  fill_text();
}

void Frm_sel_picture::folder_named() {
  boxes_from_widgets();
  const std::string folder = from_toolkit(Dir2_->folder());
  if (folder != boxes_.Dir2) guarded([&] { observations::Dir2_change(context(), boxes_, folder, edit_); });
  boxes_to_widgets();
  fill_stored();
  fill_text();
}

void Frm_sel_picture::remove_stored() {
  if (shown_.kind != Kind::stored) return;
  observations::File2_remove(boxes_, static_cast<std::size_t>(shown_.row));
  shown_ = {};
  fill_stored();
  preview({});
}

void Frm_sel_picture::play() {
  const std::string path = shown_path();
  if (observations::is_sound_name(path)) guarded([&] { observations::sound_out(context(), path); });
}

void Frm_sel_picture::Command5() {
  boxes_from_widgets();
  bool stored = false;
  {
    const Waiting waiting;
    guarded([&] { stored = observations::Command5(context(), boxes_); });
  }
  boxes_to_widgets();
  if (stored) place_pictures_ = {};
  fill_stored();
  fill_points();
  fill_text();
  show_places();
  if (!stored) return;
  preview({});
  emit registered();
}

bool Frm_sel_picture::holds_something() const {
  return std::any_of(boxes_.places.begin(), boxes_.places.end(),
                     [](const observations::Picture_place& place) { return !place.path.empty(); });
}

// What was put into the places and isn't stored would go with the window. A word that is neither language has no
// messages: nobody could answer then.
void Frm_sel_picture::reject() {
  const bool can_ask = japanese_ || session_.settings.language == "English";
  if (can_ask && holds_something()) {
    const platform::Answer answer = ports_.prompts.yes_no_cancel(not_stored);
    if (answer == platform::Answer::cancel) return;
    if (answer == platform::Answer::yes) Command5();
    if (answer == platform::Answer::yes && holds_something()) return;  // it couldn't be stored
  }
  QDialog::reject();
}

void Frm_sel_picture::Command7() {
  boxes_from_widgets();
  guarded([&] { observations::Command7(context(), boxes_); });
}

void Frm_sel_picture::photo_read() {
  boxes_from_widgets();
  const geodesy::Point position{platform::val(boxes_.Text2), platform::val(boxes_.Text3)};
  observations::Photo_result result;
  guarded([&] { result = session::photo_read(session_, ports_, boxes_.Dir1, position); });
  if (!result.saved) return;
  told_->setText(either("登録した地点: ", "Points made: ") + to_toolkit(std::to_string(result.added)));
  emit registered();
}

}  // namespace ui
