// How the panel's texts will be read, shown beside them, and the marks on boxes whose text is read in another way than
// it looks or can't be stored.
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QVariant>

#include "platform/code_page_932.h"
#include "ui/frame6.h"
#include "ui/mark_preview.h"
#include "ui/toolkit_text.h"

namespace ui {

using namespace observations;

namespace {

constexpr double label_height = 22;  // canvas units: the map's labels at their usual size
constexpr const char* bad_frame = "2px solid #c62828";
constexpr const char* slip_frame = "2px solid #c77700";

// Sets the frame and the tool tip of a box; without a frame its own hint is the tool tip.
void box_mark(QWidget* box, const char* frame, const QString& told) {
  const QString style =
      frame ? QString("%1 { border: %2; border-radius: 3px; padding: 1px; }").arg(box->metaObject()->className(), frame)
            : QString();
  if (box->styleSheet() != style) box->setStyleSheet(style);
  box->setToolTip(frame ? told : box->property("hint").toString());
  box->setAccessibleDescription(frame ? told : QString());
  if (auto* icon = box->findChild<QLabel*>(box->objectName() + "_slip")) {
    icon->setVisible(frame);
    icon->setToolTip(told);
    static_cast<QLineEdit*>(box)->setTextMargins(0, 0, frame ? icon->sizeHint().width() + 2 : 0, 0);
  }
}

// The characters that keep a text from the file: those without a code, and in a column of the record the comma. A text
// that came from the file goes back as it is.
QString not_stored(const QString& text, const std::string& as_read, bool is_column) {
  const std::string typed = from_toolkit(text);
  if (typed == as_read) return {};
  QString found = to_toolkit(platform::characters_without_code(typed));
  if (is_column && text.contains(',')) found += ',';
  return found;
}

}  // namespace

void Frame6::echo_out() {
  if (!is_open()) return;
  const Entry_echo echo =
      entry_echo(session_.entry.boxes, session_.coefficients, session_.canvas, session_.settings.language);
  cells_out(echo);
  sentences_out(echo);
  boxes_mark(echo);
  previews_out();
}

void Frame6::cells_out(const Entry_echo& echo) {
  const auto cell = [this](const char* name, const std::string& text) {
    findChild<QLabel*>(name)->setText(to_toolkit(text));
  };
  cell("echo_raw", echo.raw);
  cell("echo_dip", echo.raw_dip);
  cell("echo_side", echo.raw_side);
  cell("echo_text", echo.raw_text);
  cell("echo_declination", echo.declination);
  cell("echo_corrected", echo.corrected);
  cell("echo_dip_corrected", echo.corrected_dip);
  cell("echo_side_corrected", echo.corrected_side);
  cell("echo_text_corrected", echo.corrected_text);
  cell("echo_lineation", echo.lineation);
  cell("echo_lineation_declination", echo.lineation.empty() ? "" : echo.declination);
  cell("echo_lineation_corrected", echo.lineation_corrected);
  cell("echo_lineation_dip", echo.lineation_dip);
  cell("echo_model", echo.model);
  for (const char* name : {"head_lineation", "echo_lineation", "echo_lineation_declination", "echo_lineation_corrected",
                           "head_lineation_dip", "echo_lineation_dip"})
    findChild<QLabel*>(name)->setVisible(!echo.lineation.empty() || !echo.lineation_dip.empty());
  const bool uncorrected = echo.correction == Correction::unknown;
  const QString style = uncorrected ? "QLabel { color: #c62828; }" : "";
  for (const char* name : {"head_corrected", "echo_corrected", "echo_side_corrected", "echo_text_corrected",
                           "echo_lineation_corrected", "echo_declination", "echo_model"}) {
    auto* label = findChild<QLabel*>(name);
    if (label->styleSheet() != style) label->setStyleSheet(style);
  }
  findChild<QLabel*>("head_corrected")
      ->setText(uncorrected ? either("未補正", "Uncorrected") : either("真方位", "True"));
}

void Frame6::sentences_out(const Entry_echo& echo) {
  QStringList sentences;
  for (const Echo_slip& slip : echo.slips) sentences.append(to_toolkit(slip.sentence));
  for (const std::string& note : echo.notes) sentences.append(to_toolkit(note));
  auto* notes = findChild<QLabel*>("echo_notes");
  notes->setText(sentences.join('\n'));
  notes->setToolTip(sentences.join('\n'));
  findChild<QWidget*>("echo_icon")->setVisible(!echo.slips.empty());
  findChild<QWidget*>("echo_told")->setVisible(!sentences.isEmpty());
  notes_area_->updateGeometry();
}

void Frame6::boxes_mark(const Entry_echo& echo) {
  const Entry_boxes& now = session_.entry.boxes;
  const auto mark = [this](QWidget* box, const std::string& text, const std::string& as_read, bool is_column,
                           const QString& slip) {
    const QString lost = not_stored(to_toolkit(text), as_read, is_column);
    if (!lost.isEmpty())
      box_mark(box, bad_frame, either("保存できない文字: ", "Can't be stored: ") + lost);
    else
      box_mark(box, slip.isEmpty() ? nullptr : slip_frame, slip);
  };
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    QString slip;
    for (const Echo_slip& found : echo.slips)
      if (found.box == static_cast<int>(i)) slip = to_toolkit(found.sentence);
    if (i == box_measurement)
      mark(texts_[i], now.Text13, as_read_.Text13, true, slip);
    else
      mark(texts_[i], now.Text14[i], as_read_.Text14[i], true, slip);
  }
  mark(Combo6_->lineEdit(), now.Combo6, as_read_.Combo6, true, {});
  mark(Combo7_->lineEdit(), now.Combo7, as_read_.Combo7, true, {});
  mark(Combo2_->lineEdit(), now.Combo2, as_read_.Combo2, false, {});
  mark(memo_, now.memo, as_read_.memo, false, {});
}

void Frame6::previews_out() {
  mark_preview_->show_painted([boxes = session_.entry.boxes](drawing::Surface& surface, drawing::Point at) {
    mark_sample_out(surface, at, boxes);
  });
  const Symbol symbol = entry_symbol(session_.entry.boxes, session_.coefficients, session_.canvas);
  symbol_preview_->show_painted(
      [symbol](drawing::Surface& surface, drawing::Point at) { symbol_out(surface, at, symbol, 1, label_height); });
}

}  // namespace ui
