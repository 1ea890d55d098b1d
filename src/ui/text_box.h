// Entry boxes for texts that go into files of code page 932: a box that holds characters without a code says so.
#pragma once

#include <QLineEdit>

namespace ui {

// Marks the box with a red frame and a tool tip that names the characters, or takes the mark off. Called for every
// change of the text from then on. The box's own tool tip comes back with a good text.
void text_box_watch(QLineEdit* box);

// The language of the tool tips, and the box's own hint.
void text_box_hint(QLineEdit* box, bool japanese, const QString& hint);

// The text can be stored.
bool text_box_good(const QLineEdit* box);

}  // namespace ui
